#pragma once

#include "viewer/cameras/CameraStorage.h"

#include <QJsonArray>
#include <QVariantMap>

#include <array>
#include <vector>

class SimulatedBody;

/// A card or drive as a rig file or a console describes it.
struct CardContent {
    QString password; // empty: none
    bool writeProtected = false;
    bool formatted = true;
    int speedCode = 0x8003; // SDR104
    int speedClass = 10;
    quint64 capacity = 0; // bytes
    quint64 written = 0;
    std::vector<StorageRecord> records;
};

/// How many slots of each kind a camera has.
struct StorageSlots {
    int sdCards = 0;
    int dockStores = 0;
    int cFasts = 0;
};

/// The slots of a simulated camera. What is on a card lies as files in a folder of its own below the data
/// folder of the program; formatting removes them.
class StorageUnit : public CameraStorage {
public:
    StorageUnit(SimulatedBody& body, const StorageSlots& count);

    int slotCount(StorageKind kind) const override { return int(cards(kind).size()); }
    CardSlot slot(StorageKind kind, int slot) const override;
    StorageRecord record(StorageKind kind, int slot, int index) override;
    void requireReadable(StorageKind kind, int slot) override;
    Answer format(StorageKind kind, int slot) override;
    Answer refresh(StorageKind kind, int slot) override;
    Answer rename(StorageKind kind, int slot, int index, const QString& name) override;
    bool unlock(StorageKind kind, int slot, const QString& password) override;
    bool setPassword(StorageKind kind, int slot, const QString& before, const QString& now) override;

    // As a hand does at the camera. All throw CameraError of kind BadValue for a slot that is not there.
    void insert(StorageKind kind, int slot, const CardContent& content);
    void pull(StorageKind kind, int slot);
    /// The card that was pulled last.
    void putBack(StorageKind kind, int slot);
    /// The card is pulled in the middle of what is done with it next: a list of records, opening, a format.
    void pullDuringNext(StorageKind kind, int slot);
    void setProtected(StorageKind kind, int slot, bool on);
    /// Another record, and its file if there is one: it is copied.
    void fill(StorageKind kind, int slot, const StorageRecord& record, const QString& file = QString());

    QJsonArray toJson() const;

private:
    struct Card {
        bool inserted = false;
        bool unlocked = false;
        bool pullDue = false;
        CardContent content;
    };

    std::vector<Card>& cards(StorageKind kind) { return m_cards.at(size_t(kind)); }
    const std::vector<Card>& cards(StorageKind kind) const { return m_cards.at(size_t(kind)); }
    Card& at(StorageKind kind, int slot);
    void pullIfDue(StorageKind kind, int slot);
    /// Refused if no card is there.
    Card& present(StorageKind kind, int slot, const QString& function);
    QString folder(StorageKind kind, int slot) const;
    void tell();

    SimulatedBody& m_body;
    std::array<std::vector<Card>, 3> m_cards;
};

/// "sd", "dockstore" and "cfast".
QString storageName(StorageKind kind);
/// False for another name.
bool storageKind(const QString& name, StorageKind& kind);

/// A card of the texts and numbers "password", "protected", "formatted", "speed", "class", "capacityMb",
/// "writtenMb" and "records", each with "name", "frames", "date" as "2021/3/5" and "time" as "9:45:01". What
/// is missing has its usual value; numbers that make no sense become the nearest that do.
CardContent cardContent(const QVariantMap& values);
StorageRecord storageRecord(const QVariantMap& values);

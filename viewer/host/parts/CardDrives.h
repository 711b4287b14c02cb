#pragma once

#include "viewer/cameras/CameraStorage.h"
#include "viewer/documents/DocumentList.h"

#include <QMap>
#include <QStringList>

class CameraBody;

/// The slots of the cameras as drives of this computer: a card's letter follows from its slot, whether a card
/// is in it or not, so that it stays when another one is pulled.
class CardDrives {
public:
    struct Drive {
        CameraBody* body = nullptr;
        StorageKind kind = StorageKind::SDCard;
        int camera = 0; // index
        int slot = 0;
        QString name; // as the user reads it
    };

    explicit CardDrives(DocumentList& documents) : m_documents(documents) {}

    /// Those with a card, of cameras with a link.
    QList<Drive> present(StorageKind kind) const;
    /// The SD cards: bit n for the letter A+n.
    uint letters() const;
    /// Throws CameraFailure for a letter without a card.
    Drive byLetter(uint bit) const;
    uint letterOf(const Drive& drive) const;
    /// Of a camera. Throws CameraFailure if there is no card.
    Drive byNumber(StorageKind kind, int camera, int slot) const;
    CardSlot state(const Drive& drive) const;

    /// The recordings on it, the newest state of it. Throws CameraFailure if it can't be read, APP_Exception
    /// with the code 407 if it wants its password.
    QStringList recordings(const Drive& drive) const;
    /// Marks a document as one of the recordings on the drive.
    void mark(const Drive& drive, const QStringList& recordings, Document& document) const;
    static bool isOf(const Document& document, const Drive& drive);
    /// It was opened from a drive that was pulled since, or whose camera has no link any more.
    bool isGone(const Document& document) const;
    /// Recordings that lie on it.
    int count(const Drive& drive) const;
    /// Those of the files that no document shows.
    QStringList withoutOpen(QStringList recordings) const;
    /// Closes what was opened from storage of that kind: of one camera, or of all for -1.
    void closeDocuments(StorageKind kind, int camera = -1);
    /// Closes what was opened from storage of that kind and is not there any more.
    void closeGone(StorageKind kind);
    /// The drive of that kind that recordings are open of; false for none.
    bool current(StorageKind kind, Drive& drive) const;
    void setCurrent(const Drive& drive) { m_current[int(drive.kind)] = drive; }

    void format(const Drive& drive) const;
    bool unlock(const Drive& drive, const QString& password) const;
    /// A password is asked for a camera, not for one of its dock stores: those that it fits are opened. False
    /// if there is none.
    bool unlockStores(int camera, const QString& password) const;
    /// Of those of the camera's dock stores that have the password `before`. False if there is none, and with
    /// two empty ones for a store that has one. Throws CameraFailure if the camera has no store.
    bool setStoresPassword(int camera, const QString& before, const QString& now) const;

private:
    QList<Drive> all(StorageKind kind) const;
    QList<Drive> stores(int camera) const;
    template <class Is>
    void close(StorageKind kind, const Is& is);
    template <class Call>
    void read(const Drive& drive, const QString& function, const Call& call) const;

    DocumentList& m_documents;
    QMap<int, Drive> m_current; // by kind
};

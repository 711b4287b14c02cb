#pragma once

#include "viewer/cameras/Answer.h"

#include <QList>
#include <QString>

/// What a camera stores recordings on besides its memory.
enum class StorageKind { SDCard, DockStore, CFast };

/// A slot of a camera and what is in it.
struct CardSlot {
    bool enabled = true; // can be used at all
    bool inserted = false;
    bool writeProtected = false;
    bool formatted = false;
    bool locked = false; // asks for its password
    int speedCode = 0;   // of SD cards, as the camera reports it
    int speedClass = 0;
    quint64 capacity = 0; // bytes
    quint64 used = 0;
    quint64 written = 0; // in its whole life
    int records = 0;
    QString folder; // where this computer finds what is on it; empty if it can't
};

/// A recording on a card. Date (year from 2000, month, day) and time (hour, minute, second) are one byte
/// each, coded decimal; 0 if unknown.
struct StorageRecord {
    QString name;
    quint32 frames = 0;
    quint32 date = 0;
    quint32 time = 0;
};

/// The storage of a camera. Slots and records count from 0. A slot that the camera doesn't have is one that
/// can't be used.
class CameraStorage {
public:
    virtual ~CameraStorage() = default;

    /// From the program's own copy: costs nothing and works without a link.
    virtual int slotCount(StorageKind kind) const = 0;
    virtual CardSlot slot(StorageKind kind, int slot) const = 0;

    /// Without frames beyond the last. Throws CameraError of kind Refused if there is no card.
    virtual StorageRecord record(StorageKind kind, int slot, int index) = 0;
    /// Makes sure that what is on the card can be read. Throws CameraError of kind Refused.
    virtual void requireReadable(StorageKind kind, int slot) = 0;
    /// Empties the card. Refused without one, and for one that is write protected.
    virtual Answer format(StorageKind kind, int slot) = 0;
    /// Reads the state of the slot anew.
    virtual Answer refresh(StorageKind kind, int slot) = 0;
    virtual Answer rename(StorageKind kind, int slot, int index, const QString& name) = 0;
    /// False for the wrong password. An empty one stands for none.
    virtual bool unlock(StorageKind kind, int slot, const QString& password) = 0;
    virtual bool setPassword(StorageKind kind, int slot, const QString& before, const QString& now) = 0;
};

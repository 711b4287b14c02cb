#pragma once

#include "livecontrol/storage/cards/JS_Mediator_CameraStorage.h"

#include <QVariantMap>

/// The script object of the SD cards in a camera.
///
/// Slots count from 1; 0 stands for the first one that can be used.
class JS_Mediator_SaveSD : public JS_Mediator_CameraStorage {
    Q_OBJECT

public:
    explicit JS_Mediator_SaveSD(HostObject* host);

public slots:
    bool isManaged(DOCKEY dockey);
    bool isEnabaleSlot(DOCKEY dockey, int slot);
    bool isInserted(DOCKEY dockey, int slot);
    bool isProtected(DOCKEY dockey, int slot);
    bool isFormatted(DOCKEY dockey, int slot);
    /// Texts for class, speed and size of the card.
    QVariantMap getSDInfo(DOCKEY dockey, int slot);
    /// JSON: the records, up to the first without frames.
    QString getDataList(DOCKEY dockey, int slot);
    QString getMemoryMode(DOCKEY dockey);
    /// Asks the user, then empties the card.
    void format(DOCKEY dockey, int slot);
};

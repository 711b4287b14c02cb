#pragma once

#include "livecontrol/storage/cards/JS_Mediator_CameraStorage.h"

/// The script object of the CFast cards in a camera. Slots count as the host counts them, from 0.
class JS_Mediator_SaveCFast : public JS_Mediator_CameraStorage {
    Q_OBJECT

public:
    explicit JS_Mediator_SaveCFast(HostObject* host);

public slots:
    /// How many documents are saved, and how many heads the camera with most has.
    void selectedDocCount(int count) { m_documents = count; }
    void selectedDocHeadCount(int count) { m_heads = count; }
    bool isManaged(DOCKEY dockey);
    bool isEnabaleSlot(DOCKEY dockey, int slot);
    bool isInserted(DOCKEY dockey, int slot);
    bool isFormatted(DOCKEY dockey, int slot);
    /// JSON: as many records as the card counts, those without frames too.
    QString getDataList(DOCKEY dockey, int slot);
    /// Empties the card. The page has asked.
    void format(DOCKEY dockey, int slot);
    /// Empty text if the camera has no card.
    QString getFreeSpace(DOCKEY dockey);

private:
    int m_documents = 0;
    int m_heads = 0;
};

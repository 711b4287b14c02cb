#pragma once

#include "livecontrol/storage/cards/JS_Mediator_CameraStorage.h"

/// The script object of the dock stores of a camera. Slots count as the host counts them, from 0.
class JS_Mediator_SaveDockStore : public JS_Mediator_CameraStorage {
    Q_OBJECT

public:
    explicit JS_Mediator_SaveDockStore(HostObject* host);

public slots:
    /// How many documents are saved, and how many heads the camera with most has.
    void selectedDocCount(int count) { m_documents = count; }
    void selectedDocHeadCount(int count) { m_heads = count; }
    bool isManaged(DOCKEY dockey);
    bool isEnabaleSlot(DOCKEY dockey, int slot);
    bool isConnected(DOCKEY dockey, int slot);
    bool isFormatted(DOCKEY dockey, int slot);
    /// JSON: the records, up to the first without frames.
    QString getDataList(DOCKEY dockey, int slot);
    /// Empties the store. The page has asked.
    void format(DOCKEY dockey, int slot);
    /// The slot of the document's own head, whatever the number.
    int getSlotNo(DOCKEY dockey, ulong headNo);
    QString getAddCameraName(DOCKEY dockey);
    /// The number of the first camera, head and session, as it is added to the name of the data.
    QString getAddNumber();
    QString getAddDateTime(const QString& format);
    /// Lets the user choose the digits of that number.
    void numberSetting();
    /// Gives a record another name; the number is added if the user wants that.
    void convertDataName(DOCKEY dockey, int slot, int dataNo, const QString& dataName, int sequence);
    /// Empty text if the camera has no store, or none that is connected.
    QString getFreeSpace(DOCKEY dockey);
    bool canConvertDataName(DOCKEY docKey);

private:
    int m_documents = 0;
    int m_heads = 0;
};

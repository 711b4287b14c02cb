#pragma once

#include "livecontrol/interface/types.h"
#include "livecontrol/web/GUI_WebViewDialog.h"

#include <QList>

class JS_Mediator_FileSaveDialog;

/// The dialog that saves. It remembers which documents its page has handed over for export; the host that
/// runs it does the saving.
class GUI_FileSaveDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// A null parent means the host's dialog parent. Throws what the host throws.
    GUI_FileSaveDialog(HostObject* host, QWidget* parent);

    JS_Mediator_FileSaveDialog& page() const;
    /// In the order in which they were handed over, each once.
    const QList<DOCKEY>& exportKeys() const { return m_exportKeys; }

public slots:
    /// Hands a document over; of two partitions the later one is saved.
    void exportTarget(DOCKEY dockey, PARTITIONNUMBER partitionNo);

private:
    QList<DOCKEY> m_exportKeys;
};

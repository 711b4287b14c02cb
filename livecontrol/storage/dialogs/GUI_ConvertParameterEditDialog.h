#pragma once

#include "livecontrol/interface/types.h"
#include "livecontrol/web/GUI_WebViewDialog.h"

#include <QVariantList>

/// Lets the user look at and change what each file of a batch will be called and where it goes.
class GUI_ConvertParameterEditDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// See JS_Mediator_ConvertParameterEditDialog. A null parent means the host's dialog parent. Throws what
    /// the host throws.
    GUI_ConvertParameterEditDialog(HostObject* host, QWidget* parent, const QVariantList& dockeyList,
                                   DOCKEY docKey, PARTITIONNUMBER partitionNo);
};

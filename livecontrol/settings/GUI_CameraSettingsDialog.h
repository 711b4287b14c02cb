#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

/// Lets the user keep the settings of the cameras, in a file or in presets of the cameras.
class GUI_CameraSettingsDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `title` is untranslated; `folder` is where a file goes unless the user chooses another.
    GUI_CameraSettingsDialog(HostObject* host, QWidget* parent, const QString& title, const QString& folder);
};

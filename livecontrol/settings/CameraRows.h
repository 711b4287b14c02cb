#pragma once

#include "livecontrol/interface/types.h"

#include <QString>
#include <functional>

class DOC_Camera;
class HostObject;

// What the dialogs that keep and bring back the settings of cameras share. All throw what the host throws.

/// One camera device in a list: its first document stands for all its heads.
struct CameraRow {
    DOCKEY key;
    DOC_Camera* document;
};
/// Calls `visit` with one row after another, so that what fails on the way leaves the rows before it.
void visitCameraRows(HostObject& host, const std::function<void(const CameraRow&)>& visit);

/// Where such files were last, if that folder is still there; otherwise a folder among the user's documents.
QString settingsFolder(HostObject& host);
void storeSettingsFolder(HostObject& host, const QString& folder);

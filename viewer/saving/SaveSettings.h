#pragma once

#include "livecontrol/storage/dialogs/DialogKind.h"
#include "viewer/saving/SaveRequest.h"

class HostObject;

/// What the preferences say about saving.
namespace SaveSettings {

/// How it is saved; with no items yet.
SaveRequest request(HostObject& host, DialogKind kind);
/// A first save finds a folder to go to. `family`: what the preferences of the kind begin with.
void ensureFolder(HostObject& host, const QString& family);

} // namespace SaveSettings

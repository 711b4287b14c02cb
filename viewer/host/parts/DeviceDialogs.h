#pragma once

#include "livecontrol/interface/types.h"

#include <QString>

class HostObject;
class QWidget;

/// The dialogs of the device list that a host opens with the plug-in's classes. All are modal.
namespace DeviceDialogs {
/// Name and addresses of a camera; true if an address was changed.
bool edit(HostObject& host, DOCKEY key, QWidget* parent);
/// What a search of the network found, as the page reads it.
void search(HostObject& host, const QString& results, QWidget* parent);
/// Where a search looks; false if the user cancelled.
bool searchSettings(HostObject& host, QWidget* parent);
} // namespace DeviceDialogs

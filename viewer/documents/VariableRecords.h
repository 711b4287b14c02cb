#pragma once

#include "livecontrol/interface/records.h"

#include <QString>

class CameraHead;
struct DisplayFormat;

/// The variable channels of a camera as plug-ins get them.
namespace VariableRecords {

/// Empty for a channel that holds nothing. The shutter mode tells the dual slope shutter of the channel in
/// force only: a camera stores none with a channel.
VariableChannelInfo info(const CameraHead& head, unsigned channel);
/// One line: the number, and what the channel holds.
QString text(const CameraHead& head, unsigned channel, const DisplayFormat& format);
bool isStored(const CameraHead& head, unsigned channel);
VariableRestriction restriction(const CameraHead& head);

} // namespace VariableRecords

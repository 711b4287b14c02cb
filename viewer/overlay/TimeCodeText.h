#pragma once

#include <QString>

class QDateTime;
struct TimeCodeSetting;

/// The current time of a recording, as the user wants to read it.
namespace TimeCodeText {

/// Of the frame that stands that many frames behind the trigger, or before it: a time, or a value in the
/// user's unit that starts at the trigger. Empty without a rate.
QString text(const TimeCodeSetting& setting, qint64 frames, quint32 rate);
/// The value in the user's unit. It starts anew each time it has come to the setting's reset value.
double value(const TimeCodeSetting& setting, qint64 frames);
/// A moment as IRIG has it: day of the year, time and microseconds. `nanoseconds` are added to it.
QString irig(const QDateTime& moment, qint64 nanoseconds);

} // namespace TimeCodeText

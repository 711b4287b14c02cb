#pragma once

#include <QtGlobal>

/// Frames of a steady rate against time, both counted from 0.
namespace FrameTime {

constexpr qint64 Second = 1000000000; // ns

/// The frame that is exposed at a time in ns. In two steps, so that days at a million frames a second don't
/// overflow.
inline quint64 numberAt(qint64 time, quint32 rate) {
    return quint64(time / Second) * rate + quint64(time % Second) * rate / Second;
}

/// The earliest nanosecond that belongs to the frame.
inline qint64 startOf(quint64 number, quint32 rate) {
    return qint64(number / rate) * Second + qint64(((number % rate) * Second + rate - 1) / rate);
}

} // namespace FrameTime

#pragma once

#include <iterator>

/// How the trigger modes are called.
namespace trigger {

/// By number; the last one stands for every number that is no mode.
inline constexpr const char* kNames[] = {
    "Start Trg",         "Center Trg",           "End Trg",
    "Random Trg",        "Manual Trg",           "Random Reset Trg",
    "Random Center Trg", "Random Manual Trg",    "Twostage Trg",
    "Twostage Half Trg", "Twostage Quarter Trg", "Twostage Oneeighth Trg",
    "Reset Trg",         "Rec on cmd Trg",       "Random Loop Trg",
    "None Error Trg",
};
inline constexpr int kModes = int(std::size(kNames)) - 1;

/// Untranslated.
inline const char* nameOf(int mode) { return kNames[mode >= 0 && mode < kModes ? mode : kModes]; }

} // namespace trigger

#pragma once

#include <QString>

// Numbers as texts for a user.

/// The value and, if it isn't empty, a blank and the unit; with `grouped` in the locale's digit groups.
QString formatCount(uint value, const QString& unit, bool grouped);
/// The same, but empty for 0.
QString formatCountNonZero(uint value, const QString& unit, bool grouped);

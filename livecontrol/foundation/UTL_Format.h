#pragma once

#include <QString>

// Numbers and texts of others as a user is to see them.

/// The value and, if it isn't empty, a blank and the unit; with `grouped` in the locale's digit groups.
QString formatCount(uint value, const QString& unit, bool grouped);
/// The same, but empty for 0.
QString formatCountNonZero(uint value, const QString& unit, bool grouped);

/// Two decimals and the largest fitting unit of "KB", "MB", "GB" and "TB" (powers of 1024), without a blank.
QString formatFileSize(quint64 bytes);

/// Lines as they stand, for a tool tip or what else shows a text as markup if it looks like some: nothing of
/// their own counts as markup then. Empty for an empty text.
QString asMarkup(const QString& lines);

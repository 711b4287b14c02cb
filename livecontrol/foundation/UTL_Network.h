#pragma once

#include <QString>

/// The address as a number, its first part in the highest byte. Doesn't check the form: a part that isn't a
/// number counts as 0.
quint32 parseIPv4(const QString& address);

/// True if the text begins with four groups of one to three digits, joined by points. What follows them isn't
/// looked at, nor is the size of the numbers.
bool isValidIPAddress(const QString& text);

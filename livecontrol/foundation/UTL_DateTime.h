#pragma once

#include <QDateTime>

// Dates and times as cameras store them, packed with the decimal digits in hexadecimal: 0x180503 is the 3rd
// of May 2018.

/// "2018/5/3"; empty for 0. A value above 16777215 holds a day of the year in its low 16 bits: "123".
QString formatPackedDate(uint date);
/// "12:05:09", bytes from the top; empty if date and time are both 0.
QString formatPackedTime(uint date, uint time);

/// From "2018/5/3" and "12:05" or "12:05:09"; invalid for other forms.
QDateTime dateTimeFromStrings(const QString& date, const QString& time);

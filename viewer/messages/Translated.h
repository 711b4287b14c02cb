#pragma once

#include <QCoreApplication>
#include <QString>

/// The program's text for the user, in his language; the text itself while there is no translation. All texts
/// of the program and of the pages stand in one context, so one table serves both.
inline QString translated(const char* text, int n = -1) {
    return QCoreApplication::translate("zel4", text, nullptr, n);
}

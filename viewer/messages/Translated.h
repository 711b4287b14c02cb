#pragma once

#include "viewer/cameras/Reason.h"
#include "viewer/messages/OutputLanguage.h"

#include <QCoreApplication>
#include <QString>

/// The program's text for the user, in his language; the text itself while there is no translation. All texts
/// of the program and of the pages stand in one context, so one table serves both.
inline QString translated(const char* text, int n = -1) {
    if (const QTranslator* const output = OutputLanguage::Scope::texts()) {
        const QString found = output->translate("zel4", text, nullptr, n);
        return found.isEmpty() ? QString::fromUtf8(text) : found;
    }
    return QCoreApplication::translate("zel4", text, nullptr, n);
}

/// A reason in the user's language.
inline QString translated(const Reason& reason) {
    return reason.text([](const char* text) { return translated(text); });
}

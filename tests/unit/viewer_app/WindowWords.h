#pragma once

#include "viewer/app/MainWindow.h"

#include <QVariant>

/// What stands in the window, in tips and in what a screen reader says, in the words of the menus too.
inline QStringList wordsOn(const MainWindow& window) {
    QStringList texts;
    QList<const QObject*> parts{&window};
    for (QObject* const part : window.findChildren<QObject*>()) {
        parts.append(part);
    }
    for (const QObject* const part : qAsConst(parts)) {
        for (const char* const name : {"text", "title", "windowTitle", "toolTip", "statusTip", "iconText",
                                       "accessibleName", "placeholderText"}) {
            const QString text = part->property(name).toString().remove(QLatin1Char('&'));
            if (!text.isEmpty()) {
                texts.append(text);
            }
        }
    }
    return texts;
}

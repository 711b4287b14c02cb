#pragma once

#include "viewer/documents/DisplayFormat.h"
#include "viewer/messages/Translated.h"
#include "viewer/overlay/InfoFacts.h"
#include "viewer/overlay/InfoText.h"
#include "viewer/overlay/OverlaySettings.h"

#include <QStringList>

/// What the user noted of a document, as it stands over the image: comment and custom items, without the
/// comment's label.
inline QStringList notesOver(const Document& document) {
    OverlaySettings settings;
    settings.entries = {{QStringLiteral("Comment"), true}, {QStringLiteral("Custom"), true}};
    const QString label = translated("Comment") + QStringLiteral(": ");
    QStringList notes;
    for (const InfoLine& line : InfoText::lines(InfoFacts::of(document), settings, DisplayFormat())) {
        const bool isFirst = notes.isEmpty() && line.key == QLatin1String("Comment");
        notes += isFirst && line.text.startsWith(label) ? line.text.mid(label.size()) : line.text;
    }
    return notes;
}

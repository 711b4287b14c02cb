#pragma once

#include "viewer/overlay/DisplayEntries.h"

struct DisplayFormat;
struct InfoFacts;
struct OverlaySettings;

/// A line of what stands over an image.
struct InfoLine {
    enum class Kind { Text, Separator, Logo };

    Kind kind = Kind::Text;
    QString key; // of the item
    QString text;
    int leftOut = 0; // lines that follow in its item, but are not here

    bool operator==(const InfoLine& other) const {
        return kind == other.kind && key == other.key && text == other.text && leftOut == other.leftOut;
    }
};

/// The texts of the items.
namespace InfoText {

/// The label of an item in the user's language; the key's own translation for an item that is not known.
QString label(const QString& key);
/// The value of an item of one line, in the user's language; empty if there is none. The image has no source
/// for some items; their value is always empty.
QString value(const QString& key, const InfoFacts& facts, const OverlaySettings& settings,
              const DisplayFormat& format);
/// What the settings show, as far as it is offered in the picture's mode or for what is saved. Separators
/// stand between items alone.
QVector<InfoLine> lines(const InfoFacts& facts, const OverlaySettings& settings, const DisplayFormat& format);

} // namespace InfoText

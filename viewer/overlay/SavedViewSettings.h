#pragma once

#include "viewer/documents/DisplayFormat.h"
#include "viewer/messages/OutputLanguage.h"
#include "viewer/overlay/OverlaySettings.h"

#include <array>

class Preferences;

/// What stands in one place of a saved picture, and how.
struct SavedGroup {
    OverlaySettings texts;
    QColor background; // invalid for none
    int columns = 1;
    int columnSpacing = 0; // pixels
    QSize ratioBase;       // the picture at which the font has its size; invalid: it has that at any

    /// With all lengths in pixels of a picture of that width.
    SavedGroup at(int pictureWidth) const;
    /// Between the edge of the place and its texts.
    int gap() const;
};

/// All that is to be known for saving pictures with their information. Plain values: any thread may use a
/// copy.
struct SavedViewSettings {
    enum Place { Upper, LeftUpper, RightUpper, LeftLower, RightLower, Lower };
    static constexpr int Places = 6;

    std::array<SavedGroup, Places> groups;
    bool isWithinImage = false; // else the groups stand around the picture
    QString logoPath;           // of what comes from a camera; a recording in a file has its own
    OutputLanguage::Texts language;
    DisplayFormat format;

    /// From the preferences "saveinfo/...". Their group 0 is the stock of the items that stand nowhere; the
    /// places are their groups 1 to 6.
    static SavedViewSettings read(const Preferences& preferences, const DisplayFormat& format);
    bool isShown(const char* key) const;
};

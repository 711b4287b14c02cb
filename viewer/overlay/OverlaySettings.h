#pragma once

#include "livecontrol/interface/records.h"
#include "viewer/overlay/DisplayEntries.h"

#include <QColor>
#include <QFont>

class Preferences;

/// How the information over an image is written.
struct OverlayStyle {
    static constexpr int LargestWidth = 9999;

    QString fontName;
    int fontSize = 10;     // points
    double fontPixels = 0; // in place of the points if it is more: the same on any screen
    bool bold = false;
    bool italic = false;
    QColor color = Qt::white;
    Qt::AlignmentFlag alignment = Qt::AlignLeft; // in the width
    int width = 600;                             // where texts wrap, in device-independent pixels
    int logoHeight = 64;                         // at most, in device-independent pixels
    bool blankLine = false;                      // a separator is an empty line

    QFont font() const;
};

/// What stands over the live image, or in one place of a saved one, and how.
struct OverlaySettings {
    bool isSaved = false;
    QVector<DisplayEntry> entries; // those that are shown, each item once, and separators
    OverlayStyle style;
    QString logoPath;
    TimeCodeSetting timeCode;

    bool isShown(const char* key) const;
    /// From the preferences "info/...". What makes no sense there has the value that the program starts with.
    static OverlaySettings read(const Preferences& preferences);
};

/// The settings in force, read once for each change of a preference.
class OverlayPreferences {
public:
    /// The preferences outlive it.
    explicit OverlayPreferences(const Preferences& preferences) : m_preferences(preferences) {}

    /// A preference has changed. Whether it has to do with the information over the images.
    bool noteChange(const QString& key);
    /// All texts are due anew: the language has changed.
    void invalidate() { m_isDue = true; }
    const OverlaySettings& settings();
    /// Another one after each change.
    unsigned revision() const { return m_revision; }

private:
    const Preferences& m_preferences;
    OverlaySettings m_settings;
    unsigned m_revision = 0;
    bool m_isDue = true;
};

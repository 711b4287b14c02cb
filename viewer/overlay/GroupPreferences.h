#pragma once

#include "viewer/overlay/OverlaySettings.h"

class Preferences;

/// Reads the preferences of one group of information, whose keys have a beginning in common and maybe an end.
/// What makes no sense there is what the caller gives in its place.
class GroupPreferences {
public:
    GroupPreferences(const Preferences& preferences, const QString& prefix, const QString& suffix = QString())
        : m_preferences(preferences), m_prefix(prefix), m_suffix(suffix) {}

    QVariant value(const char* name) const;
    QString text(const char* name) const { return value(name).toString(); }
    bool flag(const char* name) const { return value(name).toBool(); }
    /// A whole number within limits, whether it stands there as a number or as a text.
    int number(const char* name, int least, int most, int otherwise) const;
    QColor color(const char* name, const QColor& otherwise) const;

    /// What is shown. However long the list is, there are no more than the items and as many separators
    /// between them.
    QVector<DisplayEntry> entries() const;
    OverlayStyle style() const;
    /// Of all groups.
    TimeCodeSetting timeCode() const;

private:
    const Preferences& m_preferences;
    QString m_prefix;
    QString m_suffix;
};

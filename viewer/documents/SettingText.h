#pragma once

#include "viewer/cameras/settings/HeadSettings.h"
#include "viewer/documents/ShutterFormat.h"

#include <QStringList>

// Settings of a camera in the user's words.

/// What the user reads values in.
struct SettingUnits {
    // Of levels of brightness: the largest ones of the camera's scale, and that of the user's. All 0: as the
    // camera counts.
    quint32 valueMax = 0;
    quint32 rangeMax = 0;
    quint32 shownMax = 0;
    ShutterFormat shutter{};
};

/// A line of a list of changes: what it is about, and its values.
QString changeLine(const QString& what, const QString& before, const QString& now);
/// What differs between two settings of a head, in words, a line each.
QStringList settingChanges(const HeadSettings& before, const HeadSettings& now,
                           const SettingUnits& units = {});
/// The same, with what follows from others.
QStringList allSettingChanges(const HeadSettings& before, const HeadSettings& now,
                              const ShutterFormat& shutter);

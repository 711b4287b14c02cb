#pragma once

#include "viewer/documents/ShutterFormat.h"

#include <QJsonObject>
#include <QStringList>

// Settings of a camera in the user's words.

/// A line of a list of changes: what it is about, and its values.
QString changeLine(const QString& what, const QString& before, const QString& now);
/// What differs between two states of a head, in words, a line each; exposures as the panel shows them.
QStringList settingChanges(const QJsonObject& before, const QJsonObject& now, const ShutterFormat& shutter);
/// The same, with what follows from others.
QStringList allSettingChanges(const QJsonObject& before, const QJsonObject& now,
                              const ShutterFormat& shutter);

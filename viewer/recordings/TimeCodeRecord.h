#pragma once

#include "livecontrol/interface/records.h"

#include <QVariant>

/// The custom time code as it is kept in the preferences, or with a recording.
namespace TimeCodeRecord {

/// The preference that holds it.
inline const QString kPreference = QStringLiteral("info/timeCode");

QVariantMap toMap(const TimeCodeSetting& setting);
/// What is missing, or of another kind, has the value that a setting starts with.
TimeCodeSetting fromMap(const QVariantMap& map);

} // namespace TimeCodeRecord

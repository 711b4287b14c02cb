#pragma once

#include <QString>

/// Keys of those functions of a camera that the table of the camera library doesn't have.
namespace OwnFunction {
inline const QString DriveLens = QStringLiteral("DriveLens");
inline const QString LoadPreset = QStringLiteral("LoadPreset");
inline const QString RestoreSettings = QStringLiteral("RestoreSettings");
inline const QString SwitchLamp = QStringLiteral("SwitchLamp");
inline const QString SwitchPower = QStringLiteral("SwitchPower");
} // namespace OwnFunction

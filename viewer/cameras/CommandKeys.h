#pragma once

#include <QString>

/// Keys of the commands to a camera, as logs and messages name them: of functions in the table of the camera
/// library, and of those that it doesn't have. Settings bring theirs in SettingTable.
namespace CommandKey {
inline const QString SetTrigger = QStringLiteral("KVC_SetTriggerMode");
inline const QString SetExposureControl = QStringLiteral("KVC_SetAutoExposureInfo");
inline const QString SetImageTrigger = QStringLiteral("KVC_SetImageTriggerInfo");
inline const QString CalibrateShading = QStringLiteral("KVC_SetPixelGainData");
inline const QString SetVariableChannel = QStringLiteral("KVC_SetVariableChannel");
inline const QString StoreVariableChannel = QStringLiteral("KVC_SetVariableChannelInfo");
inline const QString EraseVariableChannel = QStringLiteral("KVC_EraseVariableChannel");
inline const QString Link = QStringLiteral("KVC_SetInterfaceInfo");
inline const QString SetNetwork = QStringLiteral("KVC_SetEthernetInfo");
inline const QString RecordReady = QStringLiteral("KVC_SetRecReady");
inline const QString TriggerIn = QStringLiteral("KVC_TriggerIn");
inline const QString SetState = QStringLiteral("KVC_SetStatus");
inline const QString SetPartition = QStringLiteral("KVC_SetCurrentPartition");
inline const QString StorePreset = QStringLiteral("KVC_SetStorePreset");
inline const QString SetFan = QStringLiteral("KVC_SetFanCtrl");
inline const QString FormatStorage = QStringLiteral("KVFC_FormatDrive");
inline const QString NameRecord = QStringLiteral("KVFC_SetDataName");
inline const QString ReadStorage = QStringLiteral("ReadStorage");
inline const QString DriveLens = QStringLiteral("DriveLens");
inline const QString LoadPreset = QStringLiteral("LoadPreset");
inline const QString RestoreSettings = QStringLiteral("RestoreSettings");
inline const QString SwitchLamp = QStringLiteral("SwitchLamp");
inline const QString StopRecording = QStringLiteral("StopRecording");
inline const QString SwitchPower = QStringLiteral("SwitchPower");
} // namespace CommandKey

#pragma once

#include "viewer/cameras/CameraBody.h"

#include <QMap>
#include <array>

// What can be kept of a camera and brought back to it, or to another one: in a preset of its own, or in a
// file.

struct HeadRecord {
    HeadSettings settings;
    bool hasLens = false;
    std::array<int, 3> lens{}; // positions of LensAxis
};

struct BodyRecord {
    QString name;
    QString model; // id
    QString serial;
    int partition = 1;
    bool fanRuns = true;
    QMap<int, VariableChannel> channels; // stored ones, by number
    QList<HeadRecord> heads;
};

namespace SettingsRecord {

BodyRecord of(const CameraBody& body);
/// Brings the settings back, as far as the camera can take them, one command after the other. The first that
/// fails ends it; what was set before stays.
Answer apply(const BodyRecord& record, CameraBody& body);
/// The groups of a head's state that a record has; a camera that took all of it has the same in its state.
QJsonObject stateOf(const HeadRecord& record);

} // namespace SettingsRecord

/// The text of a camera settings file: JSON with a version.
namespace SettingsFile {

constexpr int Version = 1;
constexpr int MaxBytes = 8 * 1024 * 1024;

QByteArray write(const QList<BodyRecord>& records);
/// Checks all of the text before it gives anything. Throws RigFileError with the line that is wrong.
QList<BodyRecord> read(const QByteArray& text, const QString& fileName);

} // namespace SettingsFile

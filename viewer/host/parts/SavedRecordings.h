#pragma once

#include "viewer/recordings/RecordingInfo.h"

#include <QList>

/// Which recordings stand in the files of a folder, or of the group and sub folders in it.
namespace SavedRecordings {

/// For each of them, whether a file has all of its frames, in whatever format. Any thread. Files that can't
/// be read count as missing.
QVector<bool> find(const QList<RecordingInfo>& wanted, const QString& folder);

} // namespace SavedRecordings

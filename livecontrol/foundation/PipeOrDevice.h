#pragma once

#include <QFileInfo>

/// Whether something other than a file or a folder is there: opening or reading it might wait without end.
inline bool isPipeOrDevice(const QString& path) {
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

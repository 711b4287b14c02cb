#pragma once

#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/UnfinishedFile.h"

#include <QFile>

/// An unfinished file that a library writes, seeking in it. Throws RecordingError.
class LibraryFile {
public:
    LibraryFile(const QString& path, UnfinishedFile::Existing existing) : m_file(path, existing) {
        m_device.open(m_file.handle(), QIODevice::ReadWrite | QIODevice::Unbuffered);
    }

    QIODevice& device() { return m_device; }
    void finish() { m_file.finish(); }
    /// What the library says of a failure, unless the system has told why it can't write.
    [[noreturn]] void fail(const QString& why) const {
        const bool isSystem = m_device.error() != QFileDevice::NoError;
        throw RecordingError(RecordingError::While::Writing, m_file.path(),
                             isSystem ? Reason(m_device.errorString()) : Reason(why));
    }

private:
    UnfinishedFile m_file;
    QFile m_device;
};

#pragma once

#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/UnfinishedFile.h"

#include <QFile>

/// An unfinished file that a library writes, seeking in it. Throws RecordingError.
class LibraryFile {
public:
    LibraryFile(const QString& path, UnfinishedFile::Existing existing)
        : m_file(path, existing), m_device(m_file) {
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
    class Device : public QFile {
    public:
        explicit Device(UnfinishedFile& file) : m_file(file) {}

    protected:
        qint64 writeData(const char* bytes, qint64 size) override {
            const qint64 written = QFile::writeData(bytes, size);
            m_file.noteWritten(pos() + qMax(qint64(0), written));
            return written;
        }

    private:
        UnfinishedFile& m_file;
    };

    UnfinishedFile m_file;
    Device m_device;
};

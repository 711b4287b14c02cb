#pragma once

#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/UnfinishedFile.h"

#include <QFile>

#include <cerrno>

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
        if (m_device.systemError() != 0) {
            throw RecordingError::unwritable(m_file.path(), m_device.systemError());
        }
        throw RecordingError(RecordingError::While::Writing, m_file.path(), Reason(why));
    }

private:
    class Device : public QFile {
    public:
        explicit Device(UnfinishedFile& file) : m_file(file) {}

        /// Why the first write failed; 0 if none has.
        int systemError() const { return m_systemError; }

    protected:
        qint64 writeData(const char* bytes, qint64 size) override {
            errno = 0;
            const qint64 written = QFile::writeData(bytes, size);
            if (written < size && m_systemError == 0) {
                m_systemError = errno;
            }
            m_file.noteWritten(pos() + qMax(qint64(0), written));
            return written;
        }

    private:
        UnfinishedFile& m_file;
        int m_systemError = 0;
    };

    UnfinishedFile m_file;
    Device m_device;
};

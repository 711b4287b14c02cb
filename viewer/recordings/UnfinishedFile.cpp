#include "viewer/recordings/UnfinishedFile.h"

#include "viewer/recordings/RecordingError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

const QString UnfinishedFile::kPattern = QStringLiteral(".zel-*.part");

namespace {

constexpr qint64 kBegunAtOnce = 4 << 20;
constexpr qint64 kPageBytes = 4096;

// The rights that a new file would have. Reading the mask sets it, so it is read once, before there are
// threads that make files.
const mode_t kMask = [] {
    const mode_t mask = umask(0);
    umask(mask);
    return mask;
}();

// A folder of which the entries are on the disk, too; some file systems know no such thing.
void syncFolder(const QString& folder) {
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
}

} // namespace

void UnfinishedFile::checkPlace(const QString& path, Existing existing) {
    const QFileInfo place(path);
    if (place.isDir()) {
        throw RecordingError::unwritable(path, EISDIR);
    }
    if (existing == Existing::Refuse && (place.exists() || place.isSymLink())) {
        throw RecordingError::unwritable(path, EEXIST);
    }
    // The name of its own is short, so one that the place can't have is noticed here, not after the work.
    if (QFile::encodeName(place.fileName()).size() > NAME_MAX) {
        throw RecordingError::unwritable(path, ENAMETOOLONG);
    }
    if (!QFileInfo(place.absolutePath()).isDir()) {
        throw RecordingError::unwritable(path, ENOENT);
    }
}

UnfinishedFile::UnfinishedFile(const QString& path, Existing existing)
    : m_path(QFileInfo(path).absoluteFilePath()), m_existing(existing) {
    checkPlace(m_path, m_existing);
    QByteArray name =
        QFile::encodeName(QFileInfo(m_path).absolutePath() + QStringLiteral("/.zel-XXXXXX.part"));
    m_handle = ::mkostemps(name.data(), 5, O_CLOEXEC);
    if (m_handle < 0) {
        throw RecordingError::unwritable(m_path, errno);
    }
    m_current = QFile::decodeName(name);
    ::fchmod(m_handle, 0666 & ~kMask);
}

UnfinishedFile::~UnfinishedFile() { discard(); }

void UnfinishedFile::discard() {
    if (m_handle >= 0) {
        ::close(m_handle);
        m_handle = -1;
        ::unlink(QFile::encodeName(m_current).constData());
    }
}

void UnfinishedFile::write(const char* bytes, qint64 size) {
    while (size > 0) {
        const ssize_t done = ::write(m_handle, bytes, size_t(size));
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done <= 0) {
            throw RecordingError::unwritable(m_path, done == 0 ? ENOSPC : errno);
        }
        bytes += done;
        size -= done;
        m_written += done;
    }
    noteWritten(m_written);
}

// The disk works while the next bytes are made, in place of all at the end.
void UnfinishedFile::noteWritten(qint64 end) {
    m_written = qMax(m_written, end);
    // Whole pages only: the next bytes would wait for a page that is on its way to the disk.
    const qint64 whole = m_written / kPageBytes * kPageBytes;
    if (whole - m_begun >= kBegunAtOnce) {
        ::sync_file_range(m_handle, m_begun, whole - m_begun, SYNC_FILE_RANGE_WRITE);
        m_begun = whole;
    }
}

void UnfinishedFile::cut(qint64 size) {
    if (::ftruncate(m_handle, size) != 0 || ::lseek(m_handle, size, SEEK_SET) != size) {
        throw RecordingError::unwritable(m_path, errno);
    }
    m_written = m_begun = size;
}

void UnfinishedFile::finish() {
    try {
        if (::fsync(m_handle) != 0) {
            throw RecordingError::unwritable(m_path, errno);
        }
        moveIntoPlace();
    } catch (...) {
        discard();
        throw;
    }
    ::close(m_handle);
    m_handle = -1;
    syncFolder(QFileInfo(m_path).absolutePath());
}

// Nothing is written over unasked, not even what came there since the question; a file system that can't move
// without that may know links, which can.
void UnfinishedFile::moveIntoPlace() {
    const QByteArray from = QFile::encodeName(m_current);
    const QByteArray to = QFile::encodeName(m_path);
    if (m_existing == Existing::Replace) {
        if (::rename(from.constData(), to.constData()) != 0) {
            throw RecordingError::unwritable(m_path, errno);
        }
        return;
    }
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return;
    }
    const bool isKnown = errno != EINVAL && errno != ENOSYS;
    if (!isKnown && ::link(from.constData(), to.constData()) == 0) {
        ::unlink(from.constData());
        return;
    }
    const bool hasNoLinks = !isKnown && errno != EEXIST && !QFileInfo::exists(m_path);
    if (!hasNoLinks || ::rename(from.constData(), to.constData()) != 0) {
        throw RecordingError::unwritable(m_path, errno);
    }
}

#include "viewer/recordings/Spool.h"

#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingReader.h"
#include "viewer/recordings/UnfinishedFile.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QUuid>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

const QString kLockName = QStringLiteral("lock");
const QString kSuffix = QStringLiteral(".rchx");

// What was being written gets a name that lasts.
QString settled(const QString& path) {
    const QFileInfo info(path);
    if (!info.fileName().endsWith(QLatin1String(".part"))) {
        return path;
    }
    const QString name =
        QStringLiteral("%1/recovered-%2%3")
            .arg(info.absolutePath(), QUuid::createUuid().toString(QUuid::WithoutBraces).left(8), kSuffix);
    return QFile::rename(path, name) ? name : path;
}

/// False for a file that holds no frame at all.
bool holdsFrames(const QString& path) {
    try {
        return RecordingReader(path).count() > 0;
    } catch (const RecordingError& error) {
        qWarning("%s", error.what());
        return false;
    }
}

} // namespace

Spool::Spool(const QString& folder) : m_folder(folder) {}

Spool::~Spool() {
    release();
    tidy(m_own);
}

// A handle of -1 if somebody else has it.
Spool::Lock Spool::lockedFolder(const QString& folder, bool make) {
    const QByteArray path = QFile::encodeName(folder + QLatin1Char('/') + kLockName);
    const int handle = ::open(path.constData(), O_RDWR | O_CLOEXEC | (make ? O_CREAT : 0), 0666);
    if (handle >= 0 && ::flock(handle, LOCK_EX | LOCK_NB) != 0) {
        ::close(handle);
        return {};
    }
    return {handle, folder};
}

// An empty folder goes with the program.
void Spool::tidy(Lock& lock) {
    if (lock.handle < 0) {
        return;
    }
    if (QDir(lock.folder).entryList(QDir::Files | QDir::Hidden) == QStringList(kLockName)) {
        QFile::remove(lock.folder + QLatin1Char('/') + kLockName);
        QDir().rmdir(lock.folder);
    }
    ::close(lock.handle);
    lock.handle = -1;
}

QString Spool::newPath(const QString& camera) {
    if (m_own.handle < 0 || !QFileInfo(m_own.folder).isDir()) {
        const QString folder =
            m_folder + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces);
        if (!QDir().mkpath(folder)) {
            throw RecordingError(RecordingError::While::Writing, m_folder,
                                 reason("The folder for kept recordings can't be made."));
        }
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_own = lockedFolder(folder, true);
        if (m_own.handle < 0) {
            throw RecordingError::unwritable(folder + QLatin1Char('/') + kLockName, errno);
        }
    }
    static const QRegularExpression kUnfit(QStringLiteral("[^\\w-]+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    return QStringLiteral("%1/%2-%3-%4%5")
        .arg(m_own.folder, QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss")))
        .arg(++m_count)
        .arg(QString(camera).replace(kUnfit, QStringLiteral("_")).left(40), kSuffix);
}

qint64 Spool::bytes() const {
    qint64 sum = 0;
    QDirIterator files(m_folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        sum += files.fileInfo().size();
    }
    return sum;
}

QStringList Spool::adoptLeftovers() {
    QStringList found;
    for (const QFileInfo& folder : QDir(m_folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        Lock lock = folder.absoluteFilePath() == m_own.folder
                        ? Lock()
                        : lockedFolder(folder.absoluteFilePath(), false);
        if (lock.handle < 0) {
            continue;
        }
        const QDir dir(lock.folder);
        for (const QString& name : dir.entryList({QLatin1Char('*') + kSuffix, UnfinishedFile::kPattern},
                                                 QDir::Files | QDir::Hidden)) {
            const QString path = dir.filePath(name);
            if (holdsFrames(path)) {
                found.append(settled(path));
            } else if (name.endsWith(QLatin1String(".part"))) {
                QFile::remove(path);
            }
        }
        m_adopted.push_back(lock);
    }
    return found;
}

void Spool::release() {
    for (Lock& lock : m_adopted) {
        tidy(lock);
    }
    m_adopted.clear();
}

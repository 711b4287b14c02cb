#include "viewer/prefs/AtomicFile.h"

#include <QByteArray>

AtomicFile::AtomicFile(const QString& path, Readers readers) : m_file(path) {
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        m_failure = m_file.errorString();
    } else if (readers == Readers::OwnerAlone) {
        m_file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
}

// A disk that gets full cuts a write short; it is the next one that fails, with the reason.
bool AtomicFile::write(const QByteArray& bytes) {
    for (qint64 done = 0; m_failure.isEmpty() && done < bytes.size();) {
        const qint64 count = m_file.write(bytes.constData() + done, bytes.size() - done);
        if (count <= 0) {
            m_failure = m_file.errorString();
        }
        done += count;
    }
    return m_failure.isEmpty();
}

QString AtomicFile::commit() {
    if (!m_file.isOpen()) {
        return m_failure;
    }
    if (!m_failure.isEmpty()) {
        m_file.cancelWriting();
    }
    if (!m_file.commit() && m_failure.isEmpty()) {
        m_failure = m_file.errorString();
    }
    return m_failure;
}

QString replaceFile(const QString& path, const QByteArray& bytes, AtomicFile::Readers readers) {
    AtomicFile file(path, readers);
    file.write(bytes);
    return file.commit();
}

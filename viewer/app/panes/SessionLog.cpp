#include "viewer/app/panes/SessionLog.h"

#include <QDir>

SessionLog::SessionLog(const LogStore& store, const QString& folder) : m_folder(folder) {
    if (!QDir().mkpath(m_folder)) {
        return;
    }
    QFile::remove(path(Sessions - 1));
    for (int session = Sessions - 1; session > 0; --session) {
        QFile::rename(path(session - 1), path(session));
    }
    m_file.setFileName(path(0));
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return;
    }
    m_file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    connect(&store, &LogStore::lineAdded, this, &SessionLog::write);
}

QString SessionLog::path(int session) const {
    return QStringLiteral("%1/session-%2.log").arg(m_folder, QString::number(session));
}

QString SessionLog::textOf(const LogStore::Line& line) {
    return line.time.toString(Qt::ISODateWithMs) + QLatin1Char(' ') + line.level() + QLatin1Char(' ') +
           line.text;
}

// Each line goes to the system at once: the last one before a crash is the one that counts.
void SessionLog::write(const LogStore::Line& line) {
    if (m_file.pos() < MaxBytes) {
        m_file.write(textOf(line).toUtf8() + '\n');
        m_file.flush();
    }
}

QList<QStringList> SessionLog::earlier() const {
    QList<QStringList> sessions;
    for (int session = 1; session < Sessions; ++session) {
        QFile file(path(session));
        if (file.open(QIODevice::ReadOnly)) {
            const QString text = QString::fromUtf8(file.read(MaxBytes + (1 << 16)));
            sessions.append(text.split(QLatin1Char('\n'), Qt::SkipEmptyParts));
        }
    }
    return sessions;
}

#pragma once

#include "viewer/app/panes/LogStore.h"

#include <QFile>

/// The log of this session in a file of the user's own, beside those of the sessions before: what a support
/// desk asks for is often what went before the program was started anew. A folder that can't be written keeps
/// none, without a word.
class SessionLog : public QObject {
    Q_OBJECT

public:
    static constexpr int Sessions = 3;          // this one and two before
    static constexpr qint64 MaxBytes = 4 << 20; // of a session; the rest of a longer one is left out

    /// Begins a new file in that folder, which is made if need be. It gets the lines that the store tells
    /// from now on, so it is made right after the store. That is not owned and outlives it.
    SessionLog(const LogStore& store, const QString& folder);

    /// The lines of the sessions before, the latest one first.
    QList<QStringList> earlier() const;

    /// Time, level and text of a line, as it stands in the files.
    static QString textOf(const LogStore::Line& line);

private:
    QString path(int session) const;
    void write(const LogStore::Line& line);

    QString m_folder;
    QFile m_file;
};

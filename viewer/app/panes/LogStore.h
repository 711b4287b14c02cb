#pragma once

#include <QDateTime>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>

/// The program's log: takes the lines of Qt's message system while it lives, keeps the latest ones and passes
/// all of them on to the handler that was there before. Lines may come from any thread.
class LogStore : public QObject {
    Q_OBJECT

public:
    struct Line {
        QtMsgType type = QtDebugMsg;
        QString text;
        QDateTime time;
        qint64 number = 0; // of all that there have been, from 1

        /// "debug", "info", "warning" or "critical".
        QString level() const;
    };

    static constexpr int Limit = 5000;

    /// One at a time.
    explicit LogStore(QObject* parent = nullptr);
    ~LogStore() override;

    /// Oldest first.
    QList<Line> lines() const;
    /// How many lines there have been.
    qint64 count() const;
    void clear();

signals:
    /// Emitted on the thread of the store, in the order of the log.
    void lineAdded(const LogStore::Line& line);
    void cleared();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void add(QtMsgType type, const QString& text);

    mutable QMutex m_mutex;
    QList<Line> m_lines;
    qint64 m_count = 0;
    QtMessageHandler m_previous = nullptr;
};

Q_DECLARE_METATYPE(LogStore::Line)

#pragma once

#include <QList>
#include <QMutex>
#include <QStringList>

/// Collects what goes through Qt's logging while it lives. One at a time.
class LogCapture {
public:
    LogCapture() {
        s_lines.clear();
        m_previous = qInstallMessageHandler(&LogCapture::take);
    }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(LogCapture)

    struct Line {
        QtMsgType type;
        QString text;
        bool hasPlace; ///< It names a file or a line.
    };

    QList<Line> lines() const { return s_lines; }

    /// The texts of all lines that contain `part`.
    QStringList with(const QString& part) const {
        QStringList found;
        for (const Line& line : s_lines) {
            if (line.text.contains(part)) {
                found.append(line.text);
            }
        }
        return found;
    }
    void clear() { s_lines.clear(); }

private:
    static void take(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        const QMutexLocker locker(&s_mutex);
        s_lines.append({type, text, context.file != nullptr || context.line != 0});
    }

    static inline QMutex s_mutex;
    static inline QList<Line> s_lines;
    QtMessageHandler m_previous;
};

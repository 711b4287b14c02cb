#include "viewer/app/panes/LogStore.h"

namespace {

// The message handler is a plain function, so the store that it feeds is a static. The mutex guards it
// against a line from another thread while the store goes away.
LogStore* g_store = nullptr;
QBasicMutex g_storeMutex;

// What a camera or a page is called must not make lines of its own.
QString oneLine(QString text) {
    for (QChar& sign : text) {
        if (sign == QLatin1Char('\n') || sign == QChar::LineSeparator || sign == QChar::ParagraphSeparator) {
            sign = QChar(0x21b5); // an arrow that turns back
        } else if (sign.category() == QChar::Other_Control && sign != QLatin1Char('\t')) {
            sign = QChar::ReplacementCharacter;
        }
    }
    return text;
}

} // namespace

QString LogStore::Line::level() const {
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    default:
        return QStringLiteral("critical");
    }
}

LogStore::LogStore(QObject* parent) : QObject(parent) {
    qRegisterMetaType<LogStore::Line>();
    const QMutexLocker lock(&g_storeMutex);
    if (g_store) {
        qFatal("There is a log store already: the handler before it would be itself.");
    }
    g_store = this;
    m_previous = qInstallMessageHandler(&LogStore::handle);
}

LogStore::~LogStore() {
    const QMutexLocker lock(&g_storeMutex);
    qInstallMessageHandler(m_previous);
    g_store = nullptr;
}

QList<LogStore::Line> LogStore::lines() const {
    const QMutexLocker lock(&m_mutex);
    return m_lines;
}

qint64 LogStore::count() const {
    const QMutexLocker lock(&m_mutex);
    return m_count;
}

void LogStore::clear() {
    {
        const QMutexLocker lock(&m_mutex);
        m_lines.clear();
    }
    emit cleared();
}

void LogStore::handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    QtMessageHandler previous = nullptr;
    {
        const QMutexLocker lock(&g_storeMutex);
        if (g_store) {
            previous = g_store->m_previous;
            g_store->add(type, oneLine(text));
        }
    }
    if (previous) {
        previous(type, context, text);
    }
}

void LogStore::add(QtMsgType type, const QString& text) {
    const QMutexLocker lock(&m_mutex); // over the end too: lines are told in their order
    const Line line{type, text, QDateTime::currentDateTime(), ++m_count};
    if (m_lines.size() >= Limit) {
        m_lines.removeFirst();
    }
    m_lines.append(line);
    // Queued even on the own thread: who shows a line may log in turn.
    QMetaObject::invokeMethod(
        this, [this, line] { emit lineAdded(line); }, Qt::QueuedConnection);
}

#include "viewer/console/Console.h"

#include "viewer/console/ConsoleTarget.h"
#include "viewer/console/WindowDriver.h"
#include "viewer/documents/commands/CommandWait.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QTimer>

#include <memory>
#include <sys/stat.h>

namespace {

constexpr int kParseError = -32700;
constexpr int kInvalidRequest = -32600;
constexpr int kMethodNotFound = -32601;
constexpr int kCannotBeDone = -32000;
constexpr int kPollMs = 10;
constexpr int kDefaultTimeoutMs = 5000;
constexpr int kFrontTries = 20;          // polls that a window has to come to the front in
constexpr int kKnockMs = 500;            // that a living viewer has to answer in
constexpr int kMostClients = 16;         // at a time
constexpr qint64 kLongestLine = 8 << 20; // bytes of a request
constexpr qint64 kMostUnread = 64 << 20; // bytes of answers that a client has not taken

QJsonObject answerTo(const QJsonValue& id, const QJsonValue& result) {
    return {{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
            {QStringLiteral("id"), id},
            {QStringLiteral("result"), result}};
}

QJsonObject errorTo(const QJsonValue& id, int code, const QString& message) {
    return {{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
            {QStringLiteral("id"), id},
            {QStringLiteral("error"),
             QJsonObject{{QStringLiteral("code"), code}, {QStringLiteral("message"), message}}}};
}

bool isTrue(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return value.toDouble() != 0;
    case QJsonValue::String:
        return !value.toString().isEmpty();
    default:
        return value.isObject() || value.isArray();
    }
}

} // namespace

Console::Console(ConsoleTarget& target, QObject* parent) : QObject(parent), m_target(target) {
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &Console::accept);
    addPageMethods();
    addWindowMethods();
    addHostMethods();
    addCameraMethods();
    addRecordingMethods();
    addProgramMethods();
    addImageMethods();
    addJobMethods();
}

Console::~Console() {
    // They would report their end to what is half gone.
    for (QLocalSocket* const socket : m_server.findChildren<QLocalSocket*>()) {
        socket->disconnect(this);
    }
}

// Only the socket of a viewer that has gone is in nobody's way.
static void removeDeadSocket(const QString& path) {
    struct stat found {};
    if (::lstat(QFile::encodeName(path).constData(), &found) != 0) {
        return;
    }
    if (!S_ISSOCK(found.st_mode)) {
        throw ConsoleError(QStringLiteral("can't listen at %1: there is a file").arg(path));
    }
    QLocalSocket other;
    other.connectToServer(path);
    if (other.waitForConnected(kKnockMs)) {
        throw ConsoleError(QStringLiteral("can't listen at %1: another viewer does").arg(path));
    }
    QLocalServer::removeServer(path);
}

void Console::listen(const QString& path) {
    removeDeadSocket(path);
    if (!m_server.listen(path)) {
        throw ConsoleError(QStringLiteral("can't listen at %1: %2").arg(path, m_server.errorString()));
    }
}

QStringList Console::methods() const {
    QStringList names = m_methods.keys();
    names.append(QStringLiteral("page.wait"));
    names.sort();
    return names;
}

QJsonValue Console::call(const QString& method, const QJsonObject& params) {
    const auto found = m_methods.constFind(method);
    if (found == m_methods.constEnd()) {
        throw ConsoleError(QStringLiteral("there is no method %1").arg(method));
    }
    return (*found)(params);
}

PageDriver Console::page(const QJsonObject& params) {
    if (!params.value(QLatin1String("dialog")).toBool()) {
        return PageDriver(m_target.panel());
    }
    QWebView* const view = windows::topDialogPage();
    if (!view) {
        throw ConsoleError(QStringLiteral("no web dialog is open"));
    }
    return PageDriver(view);
}

bool Console::bringToFront(const QString& method, const QJsonObject& params) {
    static const QStringList kInput{QStringLiteral("page.click"), QStringLiteral("page.type"),
                                    QStringLiteral("page.key"), QStringLiteral("page.drag")};
    // Keys without a selector go where the focus is.
    const bool isAimed = !params.value(QLatin1String("selector")).toString().isEmpty();
    return !kInput.contains(method) || !isAimed || page(params).bringToFront();
}

// No events may run within a request: what opens a dialog would keep the answer until that closes.
bool Console::waitsForFront(QLocalSocket* socket, const QByteArray& line, const QString& method,
                            const QJsonObject& params) {
    int& tries = m_frontTries[socket];
    try {
        if (bringToFront(method, params) || ++tries > kFrontTries) {
            tries = 0;
            return false;
        }
    } catch (const ConsoleError&) {
        return false; // told by the method itself
    }
    m_waiting[socket] = true;
    QTimer::singleShot(kPollMs, socket, [this, socket, line] {
        m_waiting.remove(socket);
        const QPointer<QLocalSocket> alive(socket);
        handle(socket, line);
        if (alive) {
            read(socket);
        }
    });
    return true;
}

void Console::accept() {
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        if (m_server.findChildren<QLocalSocket*>().size() > kMostClients) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        socket->setReadBufferSize(kLongestLine);
        // Queued: a method may run an event loop in which the other side leaves, and the socket must not be
        // at work below when it goes.
        const QPointer<QLocalSocket> alive(socket);
        connect(
            socket, &QLocalSocket::readyRead, this, [this, alive] { read(alive); }, Qt::QueuedConnection);
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            m_waiting.remove(socket);
            m_frontTries.remove(socket);
            socket->deleteLater();
        });
        read(socket);
    }
}

void Console::read(QLocalSocket* socket) {
    const QPointer<QLocalSocket> alive(socket); // a method may end the connection
    while (alive && !m_waiting.value(socket) && socket->canReadLine()) {
        const QByteArray line = socket->readLine().trimmed();
        if (!line.isEmpty()) {
            handle(socket, line);
        }
    }
    if (alive && !socket->canReadLine() && socket->bytesAvailable() >= kLongestLine) {
        send(socket, errorTo(QJsonValue::Null, kInvalidRequest, QStringLiteral("the line is too long")));
        socket->abort();
    }
}

void Console::handle(QLocalSocket* socket, const QByteArray& line) {
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(line, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        send(socket, errorTo(QJsonValue::Null, kParseError, parseError.errorString()));
        return;
    }
    const QJsonObject request = document.object();
    const QJsonValue id =
        request.contains(QLatin1String("id")) ? request.value(QLatin1String("id")) : QJsonValue();
    const QString method = request.value(QLatin1String("method")).toString();
    if (!document.isObject() || method.isEmpty()) {
        send(socket, errorTo(id, kInvalidRequest, QStringLiteral("a request is an object with a method")));
        return;
    }
    const QJsonObject params = request.value(QLatin1String("params")).toObject();
    if (method == QLatin1String("page.wait")) {
        handleWait(socket, id, params);
        return;
    }
    if (!m_methods.contains(method)) {
        send(socket, errorTo(id, kMethodNotFound, QStringLiteral("there is no method %1").arg(method)));
        return;
    }
    const QPointer<QLocalSocket> alive(socket);
    if (method == QLatin1String("page.eval") && CommandWait::get().isWaiting()) {
        // A script may call what sends commands: not in the middle of another one that does.
        m_waiting[socket] = true;
        CommandWait::get().afterwards(this, [this, alive, line] {
            if (alive) {
                m_waiting.remove(alive);
                handle(alive, line);
                read(alive);
            }
        });
        return;
    }
    if (waitsForFront(socket, line, method, params)) {
        return;
    }
    QJsonObject answer;
    m_asker = socket;
    try {
        answer = answerTo(id, call(method, params));
    } catch (const std::exception& error) {
        answer = errorTo(id, kCannotBeDone, QString::fromUtf8(error.what()));
    }
    m_asker = nullptr;
    if (alive) {
        send(socket, answer);
    }
}

// Without a nested event loop, so that dialogs which open meanwhile are no trouble.
void Console::handleWait(QLocalSocket* socket, const QJsonValue& id, const QJsonObject& params) {
    const int timeoutMs = params.value(QLatin1String("timeoutMs")).toInt(kDefaultTimeoutMs);
    const QString script = params.value(QLatin1String("script")).toString();
    auto* const timer = new QTimer(socket);
    const QPointer<QLocalSocket> alive(socket);
    const auto running = std::make_shared<QElapsedTimer>();
    running->start();
    m_waiting[socket] = true;
    connect(timer, &QTimer::timeout, this, [=] {
        QString failure;
        bool done = false;
        try {
            done = !CommandWait::get().isWaiting() && isTrue(page(params).evaluate(script));
        } catch (const std::exception& error) {
            failure = QString::fromUtf8(error.what());
        }
        if (!alive || (!done && running->elapsed() < timeoutMs)) {
            return;
        }
        timer->stop();
        timer->deleteLater();
        m_waiting.remove(socket);
        if (done) {
            send(socket, answerTo(id, true));
        } else {
            const QString reason = failure.isEmpty() ? QStringLiteral("it stayed false") : failure;
            send(socket,
                 errorTo(id, kCannotBeDone,
                         QStringLiteral("not true after %1 ms: %2 (%3)").arg(timeoutMs).arg(script, reason)));
        }
        read(socket);
    });
    timer->start(kPollMs);
}

void Console::send(QLocalSocket* socket, const QJsonObject& answer) {
    if (answer.value(QLatin1String("id")).isNull() && !answer.contains(QLatin1String("error"))) {
        return; // a notification has no answer
    }
    socket->write(QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n');
    socket->flush();
    if (socket->bytesToWrite() > kMostUnread) {
        socket->abort();
    }
}

#pragma once

#include "viewer/console/PageDriver.h"

#include <QHash>
#include <QJsonObject>
#include <QLocalServer>
#include <QObject>
#include <QPointer>
#include <functional>

class ConsoleTarget;
class QLocalSocket;
class QTimer;

/// The viewer's console: JSON-RPC 2.0 on a local socket, one message a line, answered in order.
///
/// The socket is the user's own. A script that opens a modal dialog itself (`page.eval`) is answered when the
/// dialog ends; clicks are posted, so they are answered before.
class Console : public QObject {
    Q_OBJECT

public:
    explicit Console(ConsoleTarget& target, QObject* parent = nullptr);
    ~Console() override;

    /// Listens at `path`; a stale socket there is replaced. Throws ConsoleError if it can't.
    void listen(const QString& path);

    /// Runs one method as a message would; for tests of the same process. Throws ConsoleError. `page.wait`
    /// only works through the socket.
    QJsonValue call(const QString& method, const QJsonObject& params);
    QStringList methods() const;
    /// Whether the page that a method gives input to has the window in front; if not, it will have soon.
    bool bringToFront(const QString& method, const QJsonObject& params);

private:
    using Method = std::function<QJsonValue(const QJsonObject&)>;

    void addPageMethods();
    void addWindowMethods();
    void addHostMethods();
    void addCameraMethods();
    void addRecordingMethods();
    void saveRecording(const QJsonObject& params);
    void addProgramMethods();
    void addImageMethods();
    void addJobMethods();

    void accept();
    void read(QLocalSocket* socket);
    void handle(QLocalSocket* socket, const QByteArray& line);
    bool waitsForFront(QLocalSocket* socket, const QByteArray& line, const QString& method,
                       const QJsonObject& params);
    void handleWait(QLocalSocket* socket, const QJsonValue& id, const QJsonObject& params);
    void send(QLocalSocket* socket, const QJsonObject& answer);

    PageDriver page(const QJsonObject& params);

    ConsoleTarget& m_target;
    QLocalServer m_server;
    QHash<QString, Method> m_methods;
    QPointer<QLocalSocket> m_asker; // whose request runs; null in a call of the same process
    QHash<QLocalSocket*, bool>
        m_waiting; ///< Connections whose `page.wait` has not ended: their next lines wait too.
    QHash<QLocalSocket*, int> m_frontTries; // polls that a window has been asked to the front for
};

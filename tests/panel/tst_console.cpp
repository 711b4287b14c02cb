// The console from outside: the viewer's own program, a socket, one JSON message a line.

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QRasterWindow>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <poll.h>

class tst_Console : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QProcess m_viewer;
    QLocalSocket m_socket;
    int m_id = 0;

    QJsonObject nextAnswer() {
        while (!m_socket.canReadLine()) {
            if (!m_socket.waitForReadyRead(15000)) {
                return {};
            }
        }
        return QJsonDocument::fromJson(m_socket.readLine()).object();
    }
    QJsonObject answerTo(const QByteArray& line) {
        m_socket.write(line + '\n');
        return nextAnswer();
    }

    /// One line, without its end. Counts the id up.
    QByteArray lineFor(const char* method, const QJsonObject& params) {
        const QJsonObject message{{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
                                  {QStringLiteral("id"), ++m_id},
                                  {QStringLiteral("method"), QLatin1String(method)},
                                  {QStringLiteral("params"), params}};
        return QJsonDocument(message).toJson(QJsonDocument::Compact);
    }

    QJsonObject request(const char* method, const QJsonObject& params = {}) {
        const QJsonObject answer = answerTo(lineFor(method, params));
        if (answer[QStringLiteral("id")].toInt() != m_id) {
            qWarning() << "answer out of order" << answer;
        }
        return answer;
    }
    QString error(const QJsonObject& answer) {
        return answer[QStringLiteral("error")].toObject()[QStringLiteral("message")].toString();
    }

    bool waitForModal() {
        for (int i = 0; i < 50; ++i) {
            for (const QJsonValue window : request("windows.list")[QStringLiteral("result")].toArray()) {
                if (window.toObject()[QStringLiteral("modal")].toBool()) {
                    return true;
                }
            }
        }
        return false;
    }

private slots:
    void initTestCase() {
        const QString socket = m_folder.filePath(QStringLiteral("console"));
        m_viewer.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_viewer.start(QStringLiteral(VIEWER_PROGRAM),
                       {QStringLiteral("--console"), socket, QStringLiteral("--settings"), m_folder.path(),
                        QStringLiteral("--scale"), QStringLiteral("1.25"), QStringLiteral("--rig"),
                        QStringLiteral(RIGS_FOLDER "/two-alike.json")});
        QVERIFY(m_viewer.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(
            [&] {
                m_socket.connectToServer(socket);
                return m_socket.waitForConnected(200);
            }(),
            15000);
        QVERIFY(QFile::permissions(socket).testFlag(QFile::ReadOwner));
        QVERIFY(!QFile::permissions(socket).testFlag(QFile::ReadOther));
        const QJsonObject ready = request(
            "page.wait", {{QStringLiteral("script"), QStringLiteral("$('#panels section:visible').length")},
                          {QStringLiteral("timeoutMs"), 15000}});
        QVERIFY2(ready[QStringLiteral("result")].toBool(), qPrintable(error(ready)));
    }

    // Neither a file nor another viewer's socket is taken away.
    void anotherViewerTakesNothingAway() {
        const QString file = m_folder.filePath(QStringLiteral("notes.txt"));
        QFile notes(file);
        QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("mine") == 4);
        notes.close();
        for (const QString& path : {file, m_folder.filePath(QStringLiteral("console"))}) {
            QProcess other;
            other.start(QStringLiteral(VIEWER_PROGRAM),
                        {QStringLiteral("--console"), path, QStringLiteral("--settings"),
                         m_folder.filePath(QStringLiteral("other"))});
            QVERIFY(other.waitForFinished(60000));
            QCOMPARE(other.exitCode(), 2);
            QVERIFY(other.readAllStandardError().contains(path.toUtf8()));
        }
        QVERIFY(notes.open(QIODevice::ReadOnly));
        QCOMPARE(notes.readAll(), QByteArray("mine"));
        QVERIFY(request("app.info").contains(QStringLiteral("result")));
    }

    // A wait holds back what came with it, and no longer.
    void answersInOrderWhatComesAtOnce() {
        const int first = m_id + 1;
        const QByteArray wait = lineFor(
            "page.wait", {{QStringLiteral("script"), QStringLiteral("document.title = 'waited', 1")}});
        const QByteArray look =
            lineFor("page.eval", {{QStringLiteral("script"), QStringLiteral("document.title")}});
        m_socket.write(wait + '\n' + look + '\n' + lineFor("app.info", {}) + '\n');
        QCOMPARE(nextAnswer()[QStringLiteral("id")].toInt(), first);
        QCOMPARE(nextAnswer()[QStringLiteral("result")].toString(), QStringLiteral("waited"));
        QCOMPARE(nextAnswer()[QStringLiteral("id")].toInt(), first + 2);
    }

    // Places are kept whatever ends the program, and nobody is asked: who would answer may have gone.
    void endsInOrderWhenTheSystemAsks_data() {
        QTest::addColumn<int>("signal");
        QTest::newRow("an end") << SIGTERM;
        QTest::newRow("Ctrl+C") << SIGINT;
        QTest::newRow("a session that is lost") << SIGHUP;
    }
    void endsInOrderWhenTheSystemAsks() {
        QFETCH(int, signal);
        const QString folder = m_folder.filePath(QStringLiteral("ended-%1").arg(signal));
        const QString path = m_folder.filePath(QStringLiteral("ended-console-%1").arg(signal));
        QProcess other;
        other.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        other.start(QStringLiteral(VIEWER_PROGRAM),
                    {QStringLiteral("--settings"), folder, QStringLiteral("--console"), path});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), 60000);
        QLocalSocket socket;
        socket.connectToServer(path);
        QVERIFY(socket.waitForConnected(15000));
        const auto ask = [&](const char* method, const QJsonObject& params) -> QJsonValue {
            socket.write(lineFor(method, params) + '\n');
            while (!socket.canReadLine() && socket.waitForReadyRead(15000)) {
            }
            return QJsonDocument::fromJson(socket.readLine()).object()[QStringLiteral("result")];
        };
        // A recording that a user who quits is asked about.
        ask("prefs.set", {{QStringLiteral("name"), QStringLiteral("recording/AutoDownload")},
                          {QStringLiteral("value"), false}});
        for (const char* const action : {"ready", "record"}) {
            const auto choose = [&] {
                return ask("windows.choose", {{QStringLiteral("action"), QLatin1String(action)}}).toBool();
            };
            QVERIFY2(QTest::qWaitFor(choose, 30000), action);
        }
        const QJsonValue key = ask("camera.list", {}).toArray().at(0).toObject()[QStringLiteral("key")];
        QTRY_VERIFY_WITH_TIMEOUT(ask("camera.state", {{QStringLiteral("key"), key}})
                                         .toObject()[QStringLiteral("head")]
                                         .toObject()[QStringLiteral("recording")]
                                         .toObject()[QStringLiteral("frames")]
                                         .toInt() > 0,
                                 30000);
        QCOMPARE(::kill(static_cast<pid_t>(other.processId()), signal), 0);
        QVERIFY(other.waitForFinished(60000));
        QCOMPARE(other.exitStatus(), QProcess::NormalExit);
        QVERIFY(!QFile::exists(path));
        QFile settings(folder + QStringLiteral("/settings.ini"));
        QVERIFY(settings.open(QIODevice::ReadOnly));
        QVERIFY(settings.readAll().contains("geometry="));
    }

    void refusesWhatWouldStopIt() {
        const QString picture = m_folder.filePath(QStringLiteral("a.png"));
        for (const QSize& size : {QSize(30000, 100), QSize(100, 30000), QSize(-1, 100), QSize(100, -1)}) {
            QVERIFY(!error(request("screenshot", {{QStringLiteral("path"), picture},
                                                  {QStringLiteral("width"), size.width()},
                                                  {QStringLiteral("height"), size.height()}}))
                         .isEmpty());
        }
        const QJsonArray cameras = request("camera.list")[QStringLiteral("result")].toArray();
        const QJsonValue key = cameras.first().toObject()[QStringLiteral("key")];
        for (const double ms : {-1.0, 1e300}) {
            QVERIFY(
                !error(request("camera.delay", {{QStringLiteral("key"), key}, {QStringLiteral("ms"), ms}}))
                     .isEmpty());
        }
    }

    void aLineWithoutEndEndsItsConnection() {
        QLocalSocket other;
        other.connectToServer(m_socket.fullServerName());
        QVERIFY(other.waitForConnected(15000));
        other.write(QByteArray(8 << 20, ' '));
        QTRY_COMPARE_WITH_TIMEOUT(other.state(), QLocalSocket::UnconnectedState, 15000);
        QVERIFY(other.readLine().contains("too long"));
        QVERIFY(request("app.info").contains(QStringLiteral("result")));
    }

    // Answers that nobody takes would fill the memory.
    void aClientThatTakesNoAnswersIsLetGo() {
        QLocalSocket other;
        other.setReadBufferSize(1);
        other.connectToServer(m_socket.fullServerName());
        QVERIFY(other.waitForConnected(15000));
        const QByteArray line =
            lineFor("page.eval",
                    {{QStringLiteral("script"), QStringLiteral("new Array(8 << 20).join('x')")}}) +
            '\n';
        other.write(line.repeated(10)); // 80 MB of answers
        const auto isGone = [&other] {
            pollfd connection{static_cast<int>(other.socketDescriptor()), 0, 0};
            return ::poll(&connection, 1, 0) == 1 && (connection.revents & POLLHUP) != 0;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isGone(), 60000);
        QVERIFY(request("app.info").contains(QStringLiteral("result")));
    }

    void drivesTheWholeRoad() {
        request("log.lines", {{QStringLiteral("clear"), true}});
        request("page.eval",
                {{QStringLiteral("script"),
                  QStringLiteral("$('#livecontrol_shutterspeed')[0].sumo.select.attr('id', 'box'), 1")}});
        QVERIFY(request("page.click", {{QStringLiteral("selector"), QStringLiteral("#box .CaptionCont")}})
                    .contains(QStringLiteral("result")));
        const QJsonObject clicked =
            request("page.click",
                    {{QStringLiteral("selector"), QStringLiteral("#box li.opt:contains('sec'):eq(2)")}});
        QVERIFY2(clicked.contains(QStringLiteral("result")), qPrintable(error(clicked)));
        QVERIFY(request("page.wait", {{QStringLiteral("script"),
                                       QStringLiteral("$('#livecontrol_shutterspeed').val() === '2'")}})
                    .contains(QStringLiteral("result")));
        QStringList trace;
        for (const QJsonValue line : request("log.lines")[QStringLiteral("result")].toArray()) {
            const QString text = line.toObject()[QStringLiteral("text")].toString();
            if (text.contains(QStringLiteral("LiveControl::setShutterSpeed"))) {
                trace.append(text.left(7));
            }
        }
        QCOMPARE(trace, QStringList({QStringLiteral("[ENTER]"), QStringLiteral("[LEAVE]")}));
    }

    void answersAClickThatOpensAModalDialogBeforeItEnds() {
        QVERIFY(
            request("page.click", {{QStringLiteral("selector"), QStringLiteral("#livecontrol_io_setting")}})
                .contains(QStringLiteral("result")));
        QVERIFY(waitForModal());
        // What it covers gets nothing, as from a hand.
        const QJsonArray windows = request("windows.list")[QStringLiteral("result")].toArray();
        QVERIFY(windows.first().toObject()[QStringLiteral("modal")].toBool());
        const QJsonValue covered = windows.last().toObject()[QStringLiteral("title")];
        QVERIFY(error(request("windows.close", {{QStringLiteral("title"), covered}}))
                    .contains(QStringLiteral("stands before")));
        QVERIFY(request("windows.press", {{QStringLiteral("button"), QStringLiteral("Cancel")}})
                    .contains(QStringLiteral("result")));
    }

    // The window has to come to the front for a click, and what happens until then is not a part of it. The
    // timer is due before the second request is read, and its box can come up only while that one is at work.
    void answersAClickIntoAWindowThatIsNotInFront() {
        QRasterWindow other;
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(request("page.wait", {{QStringLiteral("script"), QStringLiteral("!document.hasFocus()")}})
                    .contains(QStringLiteral("result")));
        const QString script =
            QStringLiteral("var due = Date.now() + 20; setTimeout(livecontrol.alert, 0, 'stop');"
                           "while (Date.now() < due) {} 1");
        const QByteArray eval = lineFor("page.eval", {{QStringLiteral("script"), script}});
        const QByteArray click = lineFor(
            "page.click", {{QStringLiteral("selector"), QStringLiteral("#panels section:visible h2")}});
        QCOMPARE(answerTo(eval + '\n' + click)[QStringLiteral("id")].toInt(), m_id - 1);
        const QJsonObject clicked = nextAnswer();
        QCOMPARE(clicked[QStringLiteral("id")].toInt(), m_id);
        QVERIFY2(clicked.contains(QStringLiteral("result")), qPrintable(error(clicked)));
        QVERIFY(waitForModal());
        request("windows.press", {{QStringLiteral("button"), QStringLiteral("OK")}});
    }

    void outlivesAClientThatLeavesInAScript() {
        QLocalSocket other;
        other.connectToServer(m_socket.fullServerName());
        QVERIFY(other.waitForConnected(2000));
        other.write("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"page.eval\","
                    "\"params\":{\"script\":\"livecontrol.alert('stop')\"}}\n");
        other.flush();
        QVERIFY(waitForModal());
        other.abort();
        QTest::qWait(100);
        request("windows.press", {{QStringLiteral("button"), QStringLiteral("OK")}});
        QVERIFY(request("app.info").contains(QStringLiteral("result")));
    }

    void saysWhyAThingCannotBeDone() {
        QVERIFY(error(request("page.click", {{QStringLiteral("selector"), QStringLiteral("#no_such")}}))
                    .contains(QStringLiteral("no element")));
        QVERIFY(error(request("page.click", {{QStringLiteral("selector"),
                                              QStringLiteral("#livecontrol_page_variable h2")}}))
                    .contains(QStringLiteral("hidden")));
        QVERIFY(error(request("page.eval", {{QStringLiteral("script"), QStringLiteral("nothing.here")}}))
                    .contains(QStringLiteral("ReferenceError")));
        QVERIFY(error(request("page.eval", {{QStringLiteral("script"), QStringLiteral("1")},
                                            {QStringLiteral("dialog"), true}}))
                    .contains(QStringLiteral("dialog")));
        QVERIFY(
            error(request("camera.state", {{QStringLiteral("key"), 9999}})).contains(QStringLiteral("9999")));
        QVERIFY(
            error(request("jobs.cancel", {{QStringLiteral("id"), 9999}})).contains(QStringLiteral("9999")));
        QVERIFY(error(request("windows.choose", {{QStringLiteral("action"), QStringLiteral("nope")}}))
                    .contains(QLatin1String("no menu offers")));
        QVERIFY(error(request("windows.press", {{QStringLiteral("button"), QStringLiteral("Nope")}}))
                    .contains(QStringLiteral("Nope")));
        QCOMPARE(request("no.such")[QStringLiteral("error")].toObject()[QStringLiteral("code")].toInt(),
                 -32601);
        QCOMPARE(answerTo("{broken")[QStringLiteral("error")].toObject()[QStringLiteral("code")].toInt(),
                 -32700);
        QCOMPARE(answerTo("[1]")[QStringLiteral("error")].toObject()[QStringLiteral("code")].toInt(), -32600);
        const QJsonObject waited = request("page.wait", {{QStringLiteral("script"), QStringLiteral("false")},
                                                         {QStringLiteral("timeoutMs"), 50}});
        QVERIFY(error(waited).contains(QStringLiteral("50 ms")));
    }

    void takesPictures() {
        const QString path = m_folder.filePath(QStringLiteral("panel.png"));
        const QJsonObject size =
            request("screenshot",
                    {{QStringLiteral("path"), path},
                     {QStringLiteral("what"), QStringLiteral("panel")}})[QStringLiteral("result")]
                .toObject();
        QVERIFY(size[QStringLiteral("width")].toInt() >= 300);
        QVERIFY(QFile::exists(path));
    }

    // Of a sequence that fails the picture is named, not only what it all was to be called.
    void jobsTellWhatBecameOfThem() {
        const auto path = [this](const char* name) { return m_folder.filePath(QLatin1String(name)); };
        QImage picture(4, 4, QImage::Format_Grayscale8);
        picture.fill(100);
        for (const char* const name : {"shot_000000.png", "shot_000001.png", "copy_000001.png"}) {
            QVERIFY(picture.save(path(name)));
        }
        const auto result = [this](const char* method, const QJsonObject& params) {
            return request(method, params).value(QLatin1String("result"));
        };
        const QJsonValue key =
            result("recording.open", {{QStringLiteral("path"), path("shot_000000.png")}}).toArray().first();
        const auto save = [&](const char* name) {
            return request("recording.save",
                           {{QStringLiteral("key"), key}, {QStringLiteral("path"), path(name)}});
        };
        QCOMPARE(error(save("whole.rchx")), QString());
        const QString told = error(save("copy.png"));
        const QJsonArray jobs = result("jobs.list", {}).toArray();
        QCOMPARE(jobs.size(), 2);
        const QJsonObject whole = jobs.first().toObject();
        const QJsonObject failed = jobs.last().toObject();
        QCOMPARE(whole[QStringLiteral("state")].toString(), QStringLiteral("done"));
        QCOMPARE(whole[QStringLiteral("path")].toString(), path("whole.rchx"));
        QVERIFY(whole[QStringLiteral("done")].toInt() == 2 && whole[QStringLiteral("total")].toInt() == 2);
        QVERIFY(!whole.contains(QStringLiteral("file")) && !whole.contains(QStringLiteral("reason")));
        QCOMPARE(failed[QStringLiteral("state")].toString(), QStringLiteral("failed"));
        QCOMPARE(failed[QStringLiteral("path")].toString(), path("copy.png"));
        QCOMPARE(failed[QStringLiteral("file")].toString(), path("copy_000001.png"));
        QCOMPARE(told, path("copy_000001.png") + QStringLiteral(": ") +
                           failed[QStringLiteral("reason")].toString());
        const QJsonObject late =
            request("jobs.cancel", {{QStringLiteral("id"), failed[QStringLiteral("id")]}});
        QVERIFY(error(late).startsWith(QStringLiteral("no job")));
    }

    // Enlarged, the window would like to be larger than the screen is.
    void theWindowFitsTheScreen() {
        constexpr QSize kScreen(1600, 1000); // of tools/headless.sh
        const QJsonObject size =
            request("screenshot",
                    {{QStringLiteral("path"),
                      m_folder.filePath(QStringLiteral("window.png"))}})[QStringLiteral("result")]
                .toObject();
        const int width = size[QStringLiteral("width")].toInt();
        const int height = size[QStringLiteral("height")].toInt();
        QVERIFY2(width > 1500 && width <= kScreen.width(), qPrintable(QString::number(width)));
        QVERIFY2(height > 900 && height <= kScreen.height(), qPrintable(QString::number(height)));
    }

    void cleanupTestCase() {
        request("app.quit");
        QVERIFY(m_viewer.waitForFinished(10000));
        QCOMPARE(m_viewer.exitCode(), 0);
    }
};

QTEST_MAIN(tst_Console)
#include "tst_console.moc"

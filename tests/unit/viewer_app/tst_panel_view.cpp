// The life of a plug-in's page in the side panel, with a plug-in of the test's own.

#include "livecontrol/bridge/JS_Mediator_Plugin.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/plugin/PLG_HTML.h"
#include "tests/support/FakeHost.h"
#include "viewer/app/LoadedPlugin.h"
#include "viewer/app/PageMediators.h"
#include "viewer/app/panes/PanelView.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QWebFrame>

namespace {

/// A plug-in that notes what the panel does with it.
class TestPlugin : public PLG_HTML {
public:
    explicit TestPlugin(HostObject* host) : mediator(host, QStringLiteral("tested"), this) {
        init(host);
        QObject::connect(&mediator, &JS_Mediator::open, this, [this] { events += "open"; });
        QObject::connect(&mediator, &JS_Mediator::close, this, [this] { events += "close"; });
    }

    QString getHtml() override { return html; }
    JS_Mediator* getMediator() override { return &mediator; }

    JS_Mediator_Plugin mediator;
    QString html =
        QStringLiteral("<div id='it'>page</div>"
                       "<script>window.atLoad = typeof tested;"
                       "$(function () { tested.open.connect(function () { window.opened = true; }); });"
                       "</script>");
    QList<QByteArray> events;
};

} // namespace

class TestPanelView : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_host = std::make_unique<FakeHost>();
        m_host->onTranslate = [](const QString& text, const char*, int) { return text; };
        m_mediators = std::make_unique<PageMediators>();
        m_panel = std::make_unique<PanelView>(m_host.get(), *m_mediators);
        m_plugin = std::make_unique<TestPlugin>(m_host.get());
        m_panel->addMediator(&m_plugin->mediator);
        m_panel->show();
    }

    void cleanup() {
        m_panel.reset();
        m_plugin.reset();
    }

    // The mediator is there before the page's scripts run, and `open` comes after the page's own ready
    // handlers.
    void pageIsOpenedWhenItIsReady() {
        openPlugin();
        QCOMPARE(run("window.atLoad").toString(), QStringLiteral("object"));
        QTRY_COMPARE(run("window.opened").toBool(), true);
        QCOMPARE(run("$('#it').text()").toString(), QStringLiteral("page"));
        QCOMPARE(m_plugin->events, QList<QByteArray>{"open"});
        QCOMPARE(m_plugin->mediator.view(), static_cast<QWebView*>(&m_panel->view()));
    }

    void closingTellsThePageFirst() {
        openPlugin();
        m_panel->showPlugin(nullptr);
        QCOMPARE(m_plugin->events, (QList<QByteArray>{"open", "close"}));
        QCOMPARE(run("$('#it').length").toInt(), 0);
        QVERIFY(!m_panel->isPageOpen());
        openPlugin();
        QCOMPARE(m_plugin->events, (QList<QByteArray>{"open", "close", "open"}));
    }

    // A page that was replaced before it got ready is never opened, but its scripts are told to go.
    void onlyTheLastPageIsOpened() {
        openPlugin();
        m_plugin->events.clear();
        m_panel->showPlugin(m_plugin.get());
        m_panel->showPlugin(nullptr);
        QTest::qWait(200);
        QCOMPARE(m_plugin->events, (QList<QByteArray>{"close", "close"}));
    }

    void aParkedPageComesBackAsItWas() {
        openPlugin();
        run("$('#it').text('touched')");
        m_plugin->events.clear();
        m_panel->park();
        m_panel->showPlugin(nullptr);
        QVERIFY(!m_panel->isPageOpen() && !m_panel->plugin());
        QSignalSpy opened(m_panel.get(), &PanelView::pageOpened);
        m_panel->showPlugin(m_plugin.get());
        QVERIFY(m_panel->isPageOpen());
        QCOMPARE(opened.count(), 1);
        QCOMPARE(run("$('#it').text()").toString(), QStringLiteral("touched"));
        QVERIFY(m_plugin->events.isEmpty());
        m_panel->park(); // and closed for good, as at the end of the program
        m_panel->showPlugin(nullptr);
        m_panel->drop();
        QCOMPARE(m_plugin->events, QList<QByteArray>{"close"});
    }

    void pluginMayGoWhileItsPageShows() {
        openPlugin();
        m_plugin.reset();
        m_panel->showPlugin(nullptr);
        QCOMPARE(run("$('#it').length").toInt(), 0);
    }

    // Objects go with the page's scripts; a load of the document brings them and the page back.
    void aDocumentThatIsLoadedAnewComesUpAgain() {
        openPlugin();
        m_panel->view().load(m_panel->view().url());
        QTRY_COMPARE(m_plugin->events, (QList<QByteArray>{"open", "close", "open"}));
        QCOMPARE(run("typeof tested").toString(), QStringLiteral("object"));
        QCOMPARE(run("$('#it').text()").toString(), QStringLiteral("page"));
    }

    void noKeyLoadsThePageAnewOrLeadsAway() {
        openPlugin();
        QSignalSpy begun(&m_panel->view(), &QWebView::loadStarted);
        m_panel->view().setFocus();
        for (const Qt::Key key :
             {Qt::Key_Refresh, Qt::Key_Back, Qt::Key_Forward, Qt::Key_Stop, Qt::Key_F5, Qt::Key_Backspace}) {
            QTest::keyClick(&m_panel->view(), key);
        }
        m_panel->view().triggerPageAction(QWebPage::ReloadAndBypassCache);
        QCoreApplication::processEvents();
        QCOMPARE(begun.count(), 0);
        QCOMPARE(run("$('#it').text()").toString(), QStringLiteral("page"));
    }

    // A slip in a page must not become somebody else's hand on the cameras.
    void aPageReachesNothingOutside() {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QString address = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
        openPlugin();
        const QString before = m_panel->view().url().toString();
        for (const char* const script :
             {"new Image().src = '%1a.png'", "$('body').append($('<iframe>').attr('src', '%1b'))",
              "$.getScript('%1c.js')", "$.get('%1d')", "location.href = '%1e'",
              "$('<form method=post>').attr('action', '%1f').appendTo('body')[0].submit()",
              "location.href = 'file:///etc/hostname'"}) {
            run(QString::fromLatin1(script).arg(address).toUtf8().constData());
        }
        run("window.imageEnded = false; var own = new Image(); own.onerror = own.onload = function () { "
            "window.imageEnded = true; }; own.src = 'qrc:/nothing.png'");
        QTRY_VERIFY(run("window.imageEnded").toBool()); // what was asked before has been answered
        QVERIFY(!server.waitForNewConnection(200));
        QCOMPARE(m_panel->view().url().toString(), before);
        QCOMPARE(run("typeof tested").toString(), QStringLiteral("object"));
    }

    // What lies on the disk is no business of a page's, not even whether it is there.
    void aPageReadsNoFile() {
        const QTemporaryDir folder;
        const QString picture = folder.filePath(QStringLiteral("own.png"));
        QImage image(3, 2, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(picture));
        openPlugin();
        run(QStringLiteral("window.seen = []; var own = new Image();"
                           "own.onload = function () { seen.push('picture ' + own.width); };"
                           "own.onerror = function () { seen.push('none'); }; own.src = '%1'")
                .arg(QUrl::fromLocalFile(picture).toString())
                .toUtf8()
                .constData());
        QTRY_COMPARE(run("seen.join()").toString(), QStringLiteral("none"));
    }

    // Should one get past the refusal of the panel's own page: it finds nothing to call.
    void aForeignPageHasNoObjects() {
        QWebView view;
        QObject object;
        m_mediators->add(&view, QStringLiteral("tested"), &object);
        QWebFrame* const frame = view.page()->mainFrame();
        const auto isThere = [&](const char* address) {
            frame->setHtml(QStringLiteral("<script>var there = typeof tested</script>"),
                           QUrl(QLatin1String(address)));
            return frame->evaluateJavaScript(QStringLiteral("there")).toString() == QLatin1String("object");
        };
        QVERIFY(isThere("qrc:/ours.html"));
        QVERIFY(!isThere("http://127.0.0.1:1/"));
        QVERIFY(!isThere("file:///tmp/page.html"));
        QVERIFY(isThere("about:blank"));
    }

    void aScriptCannotDeleteItsObjects() {
        openPlugin();
        run("tested.deleteLater(); zelpanel_signals.deleteLater()");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        QCOMPARE(run("typeof tested.update.connect").toString(), QStringLiteral("function"));
        QCOMPARE(m_plugin->mediator.view(), static_cast<QWebView*>(&m_panel->view()));
    }

    void anyTextOfAPageArrives() {
        m_plugin->html = QString::fromUtf8("<p id='it'>\"quotes' \\ カメラ </p><!-- ") + QChar(0x2028) +
                         QStringLiteral("-->");
        openPlugin();
        QCOMPARE(run("$('#it').text()").toString().trimmed(), QString::fromUtf8("\"quotes' \\ カメラ"));
    }

    void scriptErrorsAreGivenOnce() {
        openPlugin();
        QVERIFY(m_panel->takeScriptErrors().isEmpty());
        run("setTimeout(function () { noSuchThing(); }, 0)");
        QStringList errors;
        QVERIFY(QTest::qWaitFor([&] { return !(errors += m_panel->takeScriptErrors()).isEmpty(); }));
        QVERIFY2(errors.first().contains(QStringLiteral("noSuchThing")), qPrintable(errors.first()));
        QVERIFY(m_panel->takeScriptErrors().isEmpty());
    }

    void updateSkipsThePanelAndTheDead() {
        QSignalSpy own(&m_plugin->mediator, &JS_Mediator::update);
        auto other = std::make_unique<JS_Mediator>(m_host.get(), QStringLiteral("other"));
        auto dead = std::make_unique<JS_Mediator>(m_host.get(), QStringLiteral("dead"));
        QSignalSpy spy(other.get(), &JS_Mediator::update);
        GUI_WebView dialog(m_host.get());
        m_mediators->addMediator(&dialog, other.get());
        m_mediators->addMediator(&dialog, dead.get());
        dead.reset();
        m_mediators->updateAllBut(&m_panel->view());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(own.count(), 0);
    }

    void wrongModuleIsExplained() {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("no.zel"));
        for (const bool exists : {false, true}) {
            if (exists) {
                QFile file(path);
                QVERIFY(file.open(QIODevice::WriteOnly));
                file.write("this is no library");
            }
            try {
                const LoadedPlugin plugin(path);
                QFAIL("a file that is no module was loaded");
            } catch (const PluginError& error) {
                QVERIFY2(QString::fromStdString(error.what()).contains(QStringLiteral("no.zel")),
                         error.what());
            }
        }
    }

private:
    void openPlugin() {
        QSignalSpy opened(m_panel.get(), &PanelView::pageOpened);
        m_panel->showPlugin(m_plugin.get());
        QTRY_COMPARE(opened.count(), 1);
    }

    QVariant run(const char* script) { return m_panel->evaluate(QString::fromUtf8(script)); }

    std::unique_ptr<FakeHost> m_host;
    std::unique_ptr<PageMediators> m_mediators;
    std::unique_ptr<PanelView> m_panel;
    std::unique_ptr<TestPlugin> m_plugin;
};

QTEST_MAIN(TestPanelView)
#include "tst_panel_view.moc"

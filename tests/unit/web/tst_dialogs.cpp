#include "livecontrol/bridge/JS_Mediator_Dialog.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/web/GUI_QFileDialog.h"
#include "livecontrol/web/GUI_WebPage.h"
#include "livecontrol/web/GUI_WebViewDialog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QScreen>
#include <QTimer>
#include <QtTest>

#include <stdexcept>

namespace {

const QString kPage = QStringLiteral("data:text/html,<script>m = {}</script><input id='name' autofocus>");
const QString kMissing = QStringLiteral("qrc:/no_such_page.html");
const QString kUser = QStringLiteral("[USER]");

QString hostCall(const char* name) { return QStringLiteral("HostApplication.") + QLatin1String(name); }

QString closeLine(const char* className) {
    return QStringLiteral("[USER] \"[URL:%1] [ID:close] [Control:Button] [Operation:clicked] [Value:] \"")
        .arg(QLatin1String(className));
}

/// A web dialog over the rig's host, with its mediator in reach.
struct Opened {
    explicit Opened(TestRig& rig, const QString& url = kPage)
        : mediator(new JS_Mediator_Dialog(&rig.host, QStringLiteral("m"))),
          dialog(std::make_unique<GUI_WebViewDialog>(&rig.host, QStringLiteral("Custom info"), url,
                                                     std::unique_ptr<JS_Mediator_Dialog>(mediator), nullptr)),
          rejected(mediator, &JS_Mediator_Dialog::rejected), loaded(dialog->view(), &QWebView::loadFinished) {
    }

    /// Shows the dialog and waits for its page; gives what the engine said of the load.
    bool show() {
        dialog->show();
        return (loaded.count() > 0 || loaded.wait(5000)) && loaded.first().first().toBool();
    }

    QPointer<JS_Mediator_Dialog> mediator;
    std::unique_ptr<GUI_WebViewDialog> dialog;
    QSignalSpy rejected;
    QSignalSpy loaded;
};

/// Counts what a window got of one kind of event.
class EventCounter : public QObject {
public:
    EventCounter(QObject* watched, QEvent::Type type) : m_type(type) { watched->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }
    int count = 0;

private:
    QEvent::Type m_type;
};

} // namespace

class tst_Dialogs : public QObject {
    Q_OBJECT

private slots:
    void keepsEscapeOutOfAWebDialog() {
        TestRig rig;
        Opened opened(rig);
        QVERIFY(opened.show());
        QTest::keyClick(opened.dialog.get(), Qt::Key_Escape);
        QTest::keyClick(opened.dialog->view(), Qt::Key_Escape);
        QVERIFY(opened.dialog->isVisible());
        QCOMPARE(opened.rejected.count(), 0);
    }

    // A host that adds no script objects: nothing on the page would answer.
    void closesADialogWhosePageCantWork() {
        TestRig rig;
        QStringList failures;
        int held = 0;
        rig.host.onDeterUpdateUI = [&](bool hold) { held += hold ? 1 : -1; };
        rig.host.onHandleError = [&](std::exception& error) {
            failures += QString::fromUtf8(error.what());
            QCOMPARE(held, 0); // other pages live on while the user reads it
        };
        Opened opened(rig, QStringLiteral("data:text/html,<input>"));
        QVERIFY(opened.show());
        QCOMPARE(failures, QStringList(QStringLiteral(
                               "The page of \"Custom info\" can't work: its script object is missing.")));
        QVERIFY(!opened.dialog->isVisible());
        QCOMPARE(opened.rejected.count(), 1);
    }

    void closesAPlainDialogByEscapeIfItMay() {
        for (const bool ignore : {false, true}) {
            GUI_Dialog dialog(nullptr, Qt::WindowFlags(), ignore);
            dialog.show();
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QCOMPARE(dialog.isVisible(), ignore);
        }
    }

    void takesACloseByTheFrameForACancelAndLogsIt() {
        TestRig rig;
        Opened opened(rig);
        QVERIFY(opened.show());
        LogCapture log;
        opened.dialog->close();
        QVERIFY(!opened.dialog->isVisible());
        QCOMPARE(opened.dialog->result(), int(QDialog::Rejected));
        QCOMPARE(opened.rejected.count(), 1);
        QCOMPARE(log.with(kUser), QStringList(closeLine("GUI_WebViewDialog")));
        QCOMPARE(log.with(QStringLiteral("\"GUI_WebViewDialog::closeEvent\"")).size(), 2);
    }

    void endsByItsPageWithoutALogLine() {
        TestRig rig;
        Opened opened(rig);
        QVERIFY(opened.show());
        LogCapture log;
        emit opened.mediator->accept();
        QVERIFY(!opened.dialog->isVisible());
        QCOMPARE(opened.dialog->result(), int(QDialog::Accepted));
        QCOMPARE(opened.rejected.count(), 0);
        opened.dialog->show();
        emit opened.mediator->reject();
        QVERIFY(!opened.dialog->isVisible());
        QCOMPARE(opened.rejected.count(), 1);
        QVERIFY(log.with(kUser).isEmpty());
    }

    void switchesTheCloseButtonOffAndOn() {
        TestRig rig;
        Opened opened(rig);
        QVERIFY(opened.show());
        EventCounter hidden(opened.dialog.get(), QEvent::Hide); // once for each change of the flags
        for (int i = 0; i < 2; ++i) {
            emit opened.dialog->signalDisableCloseButton();
            QVERIFY(opened.dialog->isVisible());
            QVERIFY(!opened.dialog->windowFlags().testFlag(Qt::WindowCloseButtonHint));
        }
        QCOMPARE(hidden.count, 1);
        for (int i = 0; i < 2; ++i) {
            emit opened.dialog->signalEnableCloseButton();
            QVERIFY(opened.dialog->isVisible());
            QVERIFY(opened.dialog->windowFlags().testFlag(Qt::WindowCloseButtonHint));
        }
        QCOMPARE(hidden.count, 2);
    }

    void staysModalWhileTheCloseButtonIsSwitched() {
        TestRig rig;
        Opened opened(rig);
        bool wasVisible = false;
        QTimer::singleShot(0, opened.dialog.get(), [&] {
            emit opened.dialog->signalDisableCloseButton();
            emit opened.dialog->signalEnableCloseButton();
            QTimer::singleShot(0, opened.dialog.get(), [&] {
                wasVisible = opened.dialog->isVisible();
                emit opened.mediator->accept();
            });
        });
        QCOMPARE(opened.dialog->exec(), int(QDialog::Accepted));
        QVERIFY(wasVisible);
    }

    void holdsUpdatesUntilThePageIsThereAndFadesIn_data() {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("refresh");
        QTest::newRow("page") << kPage << true;
        QTest::newRow("missing page") << kMissing << true;
        QTest::newRow("no refresh") << kPage << false;
    }
    void holdsUpdatesUntilThePageIsThereAndFadesIn() {
        QFETCH(QString, url);
        QFETCH(bool, refresh);
        TestRig rig;
        Opened opened(rig, url);
        opened.dialog->setRefreshOnLoad(refresh);
        opened.dialog->setFixedSize(300, 200);
        opened.dialog->move(3, 3);
        if (rig.host.calls.count(hostCall("deterUpdateUI")) > 0) {
            QCOMPARE(opened.dialog->windowOpacity(), 0.0);
        }
        QCOMPARE(opened.show(), url == kPage);
        QStringList expected{hostCall("deterUpdateUI"), hostCall("getDialogParent"), hostCall("getPrefInt"),
                             hostCall("deterUpdateUI")};
        if (refresh) {
            expected.append(hostCall("updateAll"));
            QCOMPARE(rig.host.calls.lastArgs(hostCall("updateAll")), QVariantList({-1, true}));
        }
        const QStringList names = rig.host.calls.names();
        QCOMPARE(names.mid(names.indexOf(hostCall("deterUpdateUI"))), expected);
        QCOMPARE(rig.host.calls.lastArgs(hostCall("deterUpdateUI")), QVariantList({false}));
        const QPoint middle = QGuiApplication::primaryScreen()->geometry().center();
        QVERIFY((opened.dialog->geometry().center() - middle).manhattanLength() < 4);
        QVERIFY(opened.dialog->windowOpacity() < 0.5);
        QCOMPARE(opened.dialog->focusWidget(), opened.dialog->view());
        QTRY_COMPARE_WITH_TIMEOUT(opened.dialog->windowOpacity(), 1.0, 3000);
    }

    void letsUpdatesGoIfItIsClosedWhileThePageLoads() {
        TestRig rig;
        for (const bool closing : {false, true}) {
            rig.host.onIsClosing = [closing] { return closing; };
            rig.host.calls.clear();
            Opened opened(rig);
            opened.dialog->loadStarted(); // the engine may not have begun yet
            opened.dialog.reset();
            int held = 0;
            for (const CallRecorder::Call& call : rig.host.calls.calls()) {
                if (call.name() == hostCall("deterUpdateUI")) {
                    held += call.args.first().toBool() ? 1 : -1;
                }
            }
            QVERIFY(closing ? held > 0 : held == 0);
        }
    }

    // A hold of somebody else may be in force at that time.
    void releasesNoHoldThatTheHostRefused() {
        TestRig rig;
        rig.host.calls.failNext(hostCall("deterUpdateUI"), throwing(std::runtime_error("x")));
        Opened opened(rig);
        QVERIFY(opened.show());
        opened.dialog->loadStarted();
        opened.dialog->loadFinished(true); // the next load is held as ever
        opened.dialog.reset();
        int held = 0;
        int failed = 1;
        for (const CallRecorder::Call& call : rig.host.calls.calls()) {
            if (call.name() == hostCall("deterUpdateUI")) {
                const bool hold = call.args.first().toBool();
                held += hold && failed-- > 0 ? 0 : hold ? 1 : -1;
            }
        }
        QCOMPARE(held, 0);
        QCOMPARE(rig.host.calls.lastArgs(hostCall("deterUpdateUI")), QVariantList{false});
    }

    void tellsTheHostOfItsModalTime_data() {
        QTest::addColumn<bool>("canStart");
        QTest::addColumn<bool>("closing");
        QTest::addColumn<int>("begun");
        QTest::addColumn<int>("ended");
        QTest::newRow("modal") << true << false << 1 << 1;
        QTest::newRow("host closes") << true << true << 1 << 0;
        QTest::newRow("may not begin") << false << false << 0 << 0;
    }
    void tellsTheHostOfItsModalTime() {
        QFETCH(bool, canStart);
        QFETCH(bool, closing);
        TestRig rig;
        rig.host.onCanStartModal = [canStart] { return canStart; };
        Opened opened(rig);
        QVERIFY(opened.show());
        QCOMPARE(rig.host.calls.count(hostCall("endModal")), 0);
        rig.host.onIsClosing = [closing] { return closing; };
        rig.host.onCanStartModal = [] { return true; }; // asked at the start only
        bool mediatorLives = true;
        rig.host.onEndModal = [&] { mediatorLives = !opened.mediator.isNull(); };
        opened.dialog.reset();
        QTEST(rig.host.calls.count(hostCall("beginModal")), "begun");
        QTEST(rig.host.calls.count(hostCall("endModal")), "ended");
        QVERIFY(mediatorLives && opened.mediator.isNull());
    }

    void endsItsModalTimeWhenItCannotBeBuilt() {
        TestRig rig;
        rig.host.onCanStartModal = [] { return true; };
        rig.host.calls.failNext(hostCall("translate"), throwing(std::runtime_error("x")));
        QVERIFY_EXCEPTION_THROWN(Opened opened(rig), std::runtime_error);
        QCOMPARE(rig.host.calls.count(hostCall("endModal")), 1);
    }

    void goesOnWhenTheHostFails() {
        TestRig rig;
        rig.host.onCanStartModal = [] { return true; };
        rig.host.calls.failNext(hostCall("getDialogParent"), throwing(std::runtime_error("x")));
        rig.host.calls.failNext(hostCall("updateAll"), throwing(std::runtime_error("x")));
        rig.host.calls.failNext(hostCall("endModal"), throwing(std::runtime_error("x")));
        Opened opened(rig);
        QVERIFY(opened.show());
        QCOMPARE(rig.host.calls.lastArgs(hostCall("deterUpdateUI")), QVariantList({false}));
        QTRY_COMPARE_WITH_TIMEOUT(opened.dialog->windowOpacity(), 1.0, 3000);
        opened.dialog.reset();
        QCOMPARE(rig.host.calls.count(hostCall("handleError")), 3);
    }

    void ownsEveryScriptObjectOfItsPage() {
        TestRig rig;
        Opened opened(rig);
        const QPointer<JS_Mediator> extra(new JS_Mediator(&rig.host, QStringLiteral("extra")));
        opened.dialog->addMediator(std::unique_ptr<JS_Mediator>(extra.data()));
        QCOMPARE(rig.host.calls.count(hostCall("attachMediator")), 2);
        opened.dialog.reset();
        QVERIFY(extra.isNull() && opened.mediator.isNull());
    }

    void asksForAFileInAWindowOfItsOwn() {
        TestRig rig;
        LogCapture log;
        GUI_QFileDialog dialog(nullptr, &rig.host, QStringLiteral("Open"), QDir::tempPath(), QString());
        QVERIFY(dialog.testOption(QFileDialog::DontUseNativeDialog));
        QVERIFY(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        dialog.show();
        dialog.close();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(log.with(kUser), QStringList(closeLine("GUI_QFileDialog")));
    }

    void embedsTheWidgetsOfKnownClassesOnly() {
        TestRig rig;
        QWidget area;
        rig.host.onGetMdiArea = [&area] { return &area; };
        GUI_WebPage page(&rig.host);
        const auto widgetOf = [&page](const char* classId) {
            return page.createPlugin(QLatin1String(classId), QUrl(), {}, {});
        };
        QCOMPARE(widgetOf("mdi"), &area);
        QCOMPARE(widgetOf("unknown"), nullptr);
        QCOMPARE(widgetOf(""), nullptr);
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostPlugins.findPlugin")), 0);
        QCOMPARE(widgetOf("sensorlut"), nullptr); // a host without that plug-in
        QCOMPARE(rig.host.calls.lastArgs(QStringLiteral("HostPlugins.findPlugin")),
                 QVariantList({QStringLiteral("m_sensorlut")}));
        rig.host.calls.failNext(hostCall("getMdiArea"), throwing(std::runtime_error("x")));
        QCOMPARE(widgetOf("mdi"), nullptr);
        QCOMPARE(rig.host.calls.count(hostCall("handleError")), 1);
    }

    void hasNoHabitsOfABrowser() {
        TestRig rig;
        Opened opened(rig);
        QVERIFY(opened.show());
        GUI_WebView* const view = opened.dialog->view();
        QVERIFY(!view->acceptDrops());
        QTest::mouseClick(view, Qt::RightButton);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(10, 10), view->mapToGlobal(QPoint(10, 10)));
        QCoreApplication::sendEvent(view, &event);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        view->showCustomContextMenu(QPoint(10, 10)); // an empty menu doesn't show
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
    }
};

QTEST_MAIN(tst_Dialogs)
#include "tst_dialogs.moc"

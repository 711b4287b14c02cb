// The native list over a page: when it appears, and where the row that is picked goes.

#include "livecontrol/bridge/JS_Mediator_Plugin.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "livecontrol/web/GUI_SelectBox.h"
#include "livecontrol/web/JS_Mediator_SelectBox.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QWebFrame>
#include <QtTest>
#include <stdexcept>

namespace {
const QUrl kPage(QStringLiteral("data:text/html,<p>list</p>"));
const QString kHandleError = QStringLiteral("HostApplication.handleError");
} // namespace

class tst_SelectBox : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<JS_Mediator_SelectBox> m_items;
    std::unique_ptr<QSignalSpy> m_closed;

    int count(const char* name) { return m_rig->host.calls.count(QLatin1String(name)); }

private slots:
    void init() {
        m_rig = std::make_unique<TestRig>();
        m_rig->camera.onGetPartitionCount = [](bool, bool) { return 4; };
        m_rig->host.onGetSelectedKeys = [](bool) { return QList<DOCKEY>{TestRig::kKey, 99}; };
        m_items = std::make_unique<JS_Mediator_SelectBox>(&m_rig->host);
        m_closed = std::make_unique<QSignalSpy>(m_items.get(), &JS_Mediator::close);
    }
    void cleanup() {
        m_closed.reset();
        m_items.reset();
        m_rig.reset();
    }

    void takesAPartition() {
        const LogCapture log;
        m_items->slotNotifyPartition(QStringLiteral("4"));
        QCOMPARE(m_closed->count(), 1);
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostCameraControl.setCurrentPartition")),
                 (QVariantList{4, true}));
        QCOMPARE(count("DOC_Settings.refreshPartition"), 1); // a key without a document is passed over
        QCOMPARE(log.with(QStringLiteral("[ENTER]")).at(0).count(QStringLiteral("[value:4]")), 1);
        QCOMPARE(count("HostApplication.updateAll"), 1);
    }

    void leadsToTheSettingsForOneMore_data() {
        QTest::addColumn<bool>("live");
        QTest::addColumn<bool>("document");
        QTest::addColumn<QString>("page");
        QTest::newRow("live") << true << true << QStringLiteral("s_record");
        QTest::newRow("playback") << false << true << QString();
        QTest::newRow("no document") << true << false << QString();
    }
    void leadsToTheSettingsForOneMore() {
        QFETCH(bool, live);
        QFETCH(bool, document);
        m_rig->host.onIsLiveMode = [live] { return live; };
        if (!document) {
            m_rig->host.onCurrentDocument = [] { return nullptr; };
        }
        m_items->slotNotifyPartition(QStringLiteral("5"));
        QTEST(m_rig->prefsDialog.page, "page");
        QCOMPARE(count("HostCameraControl.setCurrentPartition"), 0);
        QCOMPARE(m_closed->count(), 1);
    }

    void tellsThePartition() {
        m_rig->camera.onGetPartitionNumber = [](bool device) { return device ? 3 : 1; };
        QCOMPARE(m_items->getCurrentPartition(), 3);
        m_rig->host.calls.failNext(QStringLiteral("DOC_Settings.getPartitionNumber"),
                                   throwing(std::runtime_error("no")));
        QCOMPARE(m_items->getCurrentPartition(), 0);
        QCOMPARE(count("HostApplication.handleError"), 1);
        m_rig->host.onCurrentDocument = [] { return nullptr; };
        QCOMPARE(m_items->getCurrentPartition(), 0);
    }

    void takesAChannelInASuspendedLive() {
        m_items->slotNotifyVariable(QStringLiteral("12"));
        QVERIFY(m_rig->host.calls.calledInOrder({QStringLiteral("HostLive.suspendLive"),
                                                 QStringLiteral("HostCameraControl.setVariableChannel"),
                                                 QStringLiteral("HostLive.resumeLive")}));
        QCOMPARE(
            m_rig->host.calls.lastArgs(QStringLiteral("HostCameraControl.setVariableChannel")).at(0).toUInt(),
            12U);
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.setVariableChannel"),
                                   throwing(std::runtime_error("no")));
        m_items->slotNotifyVariable(QStringLiteral("3"));
        QCOMPARE(m_rig->host.calls.count(kHandleError), 1);
        QCOMPARE(count("HostLive.resumeLive"), 2);
    }

    void goesToTheLiveControlOnly_data() {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<bool>("live");
        QTest::addColumn<int>("expected");
        QTest::newRow("open, live") << QStringLiteral("livecontrol") << true << 1;
        QTest::newRow("open, not live") << QStringLiteral("livecontrol") << false << 0;
        QTest::newRow("another one is open") << QStringLiteral("histogram") << true << 0;
        QTest::newRow("none is open") << QString() << true << 0;
    }
    void goesToTheLiveControlOnly() {
        QFETCH(QString, plugin);
        QFETCH(bool, live);
        QFETCH(int, expected);
        struct Named : PLG_livecontrol {
            explicit Named(const QString& name) { m_name = name; }
        } open(plugin);
        open.init(&m_rig->host);
        m_rig->host.onGetCurrentPlugin = [&]() -> PLG_Interface* {
            return plugin.isEmpty() ? nullptr : &open;
        };
        m_rig->host.onIsLiveMode = [live] { return live; };
        QSignalSpy page(open.getMediator(), SIGNAL(signalCallLiveControlPage(int)));
        QSignalSpy regist(open.getMediator(), SIGNAL(signalSetVariableRegist(QString)));
        m_items->slotNotifyVariable(QStringLiteral("go-variable"));
        m_items->slotNotifyVariableRegist(QStringLiteral("17"));
        QCOMPARE(page.count(), expected);
        QCOMPARE(regist.count(), expected);
        if (expected > 0) {
            QCOMPARE(page.at(0).at(0).toInt(), 2);
            QCOMPARE(regist.at(0).at(0).toString(), QStringLiteral("17"));
        }
        QCOMPARE(m_closed->count(), 2);
        QCOMPARE(count("HostCameraControl.setVariableChannel"), 0);
        // The case of the word counts: another one is no number, and stands for no channel.
        m_items->slotNotifyVariable(QStringLiteral("Go-Variable"));
        QCOMPARE(count("HostCameraControl.setVariableChannel"), 1);
    }

    void appearsOnceItsPageStands() {
        QObject app;
        QObject mainObject;
        m_rig->host.onGetAppScriptObject = [&] { return &app; };
        m_rig->host.onGetMainScriptObject = [&] { return &mainObject; };
        GUI_SelectBox box(&m_rig->host, kPage);
        QSignalSpy loaded(&box.view(), &QWebView::loadFinished);
        box.show();
        QVERIFY(!box.isVisible());
        QVERIFY(loaded.wait(5000));
        QVERIFY(box.isVisible());
        const QVariant kinds = box.view().page()->mainFrame()->evaluateJavaScript(QStringLiteral(
            "[typeof app, typeof main, typeof items.slotNotifyVariable, items.getCurrentPartition()]"));
        QCOMPARE(kinds.toStringList(), (QStringList{QStringLiteral("object"), QStringLiteral("object"),
                                                    QStringLiteral("function"), QStringLiteral("0")}));
        emit box.items().close();
        QVERIFY(!box.isVisible());

        // A load that fails hides it; one that was hidden meanwhile stays away.
        box.show();
        box.onLoadFinish(false);
        QVERIFY(!box.isVisible());
        box.hide();
        box.onLoadFinish(true);
        QVERIFY(!box.isVisible());
    }

    void followsTheStyle() {
        GUI_SelectBox box(&m_rig->host, kPage);
        QString style;
        m_rig->host.onGetPrefString = [&](const QString& name, const QVariant&, int) {
            return name == QLatin1String("env/style") ? style : QString();
        };
        for (const auto& [name, ground] : {std::make_pair("light", "#eee"), std::make_pair("dark", "#333"),
                                           std::make_pair("plum", "#333")}) {
            style = QLatin1String(name);
            emit box.items().update();
            QCOMPARE(box.view().styleSheet(), QStringLiteral("background:%1;").arg(QLatin1String(ground)));
        }
    }
};

QTEST_MAIN(tst_SelectBox)
#include "tst_select_box.moc"

#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/interface/records.h"
#include "tests/support/LogCapture.h"
#include "tests/unit/live/LiveSlotsTest.h"

#include <QtTest>
#include <stdexcept>

class tst_LensSlots : public QObject, private LiveSlotsTest {
    Q_OBJECT

    QJsonObject settings() { return parsed(m_live->getLensControlSettings()); }

    void fillHost() {
        m_rig->host.onGetLensControlInfo = [](LensAxisInfo& iris, LensAxisInfo& focus, LensAxisInfo& zoom) {
            iris = {220, 28, 56, 9, 221, 29, 57, 1, 10, 1, 0};
            focus = {1000, 10, 400, 9, 990, 5, 395, 4, 40, 1, 1};
            zoom = {700, 240, 350, 9, 701, 241, 351, 5, 50, 0, 1};
        };
        m_rig->host.onGetLensName = [] { return QStringLiteral("Meadow"); };
        m_rig->host.onExistLensControl = [] { return 2; };
    }

private slots:
    void init() {
        setUp();
        fillHost();
    }
    void cleanup() { tearDown(); }

    void tellsTheAxes() {
        m_rig->host.onGetLensType = [] { return 4; };
        m_rig->camera.onGetCameraName = [](bool device) {
            return device ? QStringLiteral("body") : QStringLiteral("head");
        };
        const QJsonObject all = settings();
        QCOMPARE(all[QStringLiteral("ExistLensControl")], QJsonValue(2));
        QCOMPARE(all[QStringLiteral("CameraName")].toString(), QStringLiteral("head"));
        QCOMPARE(all[QStringLiteral("LensName")].toString(), QStringLiteral("Meadow"));
        const QJsonDocument iris = QJsonDocument::fromJson(
            R"({"SliderMax":220,"SliderMin":28,"SliderValue":56,"SpinnerMax":221,"SpinnerMin":29,)"
            R"("SpinnerValue":57,"SmallTick":1,"LargeTick":10,"Enable":1})");
        QCOMPARE(all[QStringLiteral("Iris")].toObject(), iris.object());
        const QJsonObject focus = all[QStringLiteral("Focus")].toObject();
        QCOMPARE(focus[QStringLiteral("SpinnerValue")], QJsonValue(395));
        QCOMPARE(focus[QStringLiteral("Enable")], QJsonValue(true));
        QCOMPARE(focus[QStringLiteral("AutoFocusEnable")], QJsonValue(true));
        const QJsonObject zoom = all[QStringLiteral("Zoom")].toObject();
        QCOMPARE(zoom[QStringLiteral("LargeTick")], QJsonValue(50));
        QCOMPARE(zoom[QStringLiteral("Enable")], QJsonValue(false));
        QVERIFY(!zoom.contains(QStringLiteral("AutoFocusEnable")));
    }

    void namesTheLensTypes() {
        const QStringList names =
            QStringLiteral("NONE EF MYUTRON FOURTHIRDS EF2 NONE").split(QLatin1Char(' '));
        for (int type = 0; type < names.size(); ++type) {
            m_rig->host.onGetLensType = [type] { return type; };
            QCOMPARE(settings()[QStringLiteral("LensType")].toString(), names.at(type));
        }
        m_rig->host.onIsLensControlUnable = [] { return true; };
        QCOMPARE(settings()[QStringLiteral("LensType")].toString(), QStringLiteral("Unable"));
        m_rig->host.onGetLensType = [] { return 1; };
        QCOMPARE(settings()[QStringLiteral("LensType")].toString(), QStringLiteral("EF"));
    }

    void answersWithoutACameraAndAfterAFailure() {
        m_rig->host.onCurrentDocument = [] { return nullptr; };
        QCOMPARE(settings()[QStringLiteral("CameraName")], QJsonValue(QString()));
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.getLensControlInfo"),
                                   throwing(std::runtime_error("mute")));
        QCOMPARE(m_live->getLensControlSettings(), QString());
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.isLensControlUnable"),
                                   throwing(std::runtime_error("mute")));
        QCOMPARE(m_live->getLensControlSettings(), QString());
        QCOMPARE(count("HostApplication.handleError"), 2);
    }

    void drivesTheAxesWithoutAnUpdate() {
        LogCapture log;
        m_rig->host.onGetLensControlCommandTime = [] { return 80; };
        QCOMPARE(m_live->getLensControlCommandTime(), 80); // the page waits as long between two
        m_live->setIrisValue(56);
        m_live->setFocusValue(-7);
        m_live->setZoomValue(350);
        m_live->setIrisIncremental(-1, 1);
        m_live->setFocusIncremental(12, 0);
        m_live->setZoomIncremental(3, 1);
        const auto args = [this](const char* operation) {
            return m_rig->host.calls.lastArgs(QLatin1String(operation));
        };
        QCOMPARE(args("HostCameraControl.setIrisValue"), QVariantList{56});
        QCOMPARE(args("HostCameraControl.setFocusValue"), QVariantList{-7});
        QCOMPARE(args("HostCameraControl.setZoomValue"), QVariantList{350});
        QCOMPARE(args("HostCameraControl.setIrisIncremental"), (QVariantList{-1, 1}));
        QCOMPARE(args("HostCameraControl.setFocusIncremental"), (QVariantList{12, 0}));
        QCOMPARE(args("HostCameraControl.setZoomIncremental"), (QVariantList{3, 1}));
        QCOMPARE(count("HostApplication.updateAll"), 0);
        QVERIFY(log.lines().at(0).text.contains(QStringLiteral("[value:56]")));
        const QString enter = log.lines().at(6).text;
        QVERIFY2(enter.contains(QStringLiteral("[coef:-1] [size:1]")), qPrintable(enter));
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.setZoomValue"),
                                   throwing(std::runtime_error("stuck")));
        m_live->setZoomValue(1);
        QCOMPARE(count("HostApplication.handleError"), 1);
    }

    void showsThatTheLensIsReadAnew() {
        // Another camera becomes the current one meanwhile; the lens answers, or it doesn't.
        constexpr DOCKEY kOther = 9;
        const QString show = QStringLiteral("HostApplication.showBusyText");
        const QString reset = QStringLiteral("HostCameraControl.resetLens");
        const QString hide = QStringLiteral("HostApplication.hideBusyText");
        DOCKEY current = TestRig::kKey;
        m_rig->host.onGetCurrentKey = [&current] { return current; };
        m_rig->host.onTranslate = [](const QString& text, const char*, int) { return text + u'!'; };
        m_rig->host.onResetLens = [&current](int) { current = kOther; };
        m_live->resetLens();
        QVERIFY(m_rig->host.calls.calledInOrder(
            {show, reset, hide, QStringLiteral("HostApplication.updateAll")}));
        QCOMPARE(lastArgs(show), (QVariantList{QStringLiteral("Updating!"), TestRig::kKey}));
        QCOMPARE(lastArgs(hide), QVariantList{TestRig::kKey});

        m_rig->host.calls.clear();
        m_rig->host.calls.failNext(reset, throwing(std::runtime_error("mute")));
        m_live->resetLens();
        // Behind the message of the failure nothing is being updated any more.
        QVERIFY(m_rig->host.calls.calledInOrder({show, reset, hide, kHandleError}));
        QCOMPARE(count("HostApplication.hideBusyText"), 1);
        m_live->closeLens();
        QCOMPARE(count("HostCameraControl.closeLens"), 1);
        QCOMPARE(count("HostApplication.updateAll"), 2);
    }

    void opensTheAutofocus() {
        m_rig->host.onIsAutoFocusActive = [](bool anyView) { return !anyView; };
        QVERIFY(m_live->isAutoFocusActive());
        m_rig->host.onListViewKeys = [](int) { return QList<DOCKEY>{TestRig::kKey, 4711}; };
        m_live->openAutofocus();
        QCOMPARE(count("DOC_Transfer.beginViewSelection"), 1); // a view may have lost its document
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostPlugins.openPlugin")).at(0).toString(),
                 QStringLiteral("autofocus"));
    }
};

QTEST_MAIN(tst_LensSlots)
#include "tst_lens_slots.moc"

// Variable channels and partitions as the host offers them.

#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/records.h"
#include "tests/unit/viewer_host/HostTest.h"

#include <QtTest>

class tst_HostVariable : public QObject {
    Q_OBJECT

    std::unique_ptr<HostTest> m_test;

    ViewerHost& host() { return m_test->host; }
    SimulatedHead& head(const char* name) { return *m_test->body(name)->head(); }
    DOC_Interface* face(const char* name) { return m_test->list.find(&head(name))->face(); }
    void makeCurrent(const char* name) { m_test->list.setSelection({m_test->list.find(&head(name))}); }
    static VariableChannelInfo content(quint32 rate, quint32 width, quint32 height) {
        VariableChannelInfo info;
        info.rate = rate;
        info.width = width;
        info.height = height;
        return info;
    }

private slots:
    void init() {
        m_test = std::make_unique<HostTest>();
        makeCurrent("Mono");
    }
    void cleanup() { m_test.reset(); }

    void offersWhatTheCurrentCameraCan() {
        VariableRestriction limits;
        QList<unsigned long> rates;
        host().getVariableRestriction(limits);
        host().getVariableRateList(rates);
        QCOMPARE(QSize(int(limits.widthMax), int(limits.heightMax)), QSize(1280, 1024));
        QVERIFY(limits.posXFree && limits.posYFree);
        QCOMPARE(rates.last(), 200000UL);
        QVERIFY(docAs<DOC_Settings>(face("Mono")).isFunctionSupported(14, true));
        QVERIFY(docAs<DOC_Settings>(face("Mono")).isValidVariableSize(3000, 640, 480));
        QVERIFY(!docAs<DOC_Settings>(face("Mono")).isValidVariableSize(3000, 640, 488));

        makeCurrent("Colour");
        host().getVariableRestriction(limits);
        QVERIFY(!limits.posXFree && !limits.posYFree);

        makeCurrent("Plain"); // has no channels: the neutral values keep a page from dividing by 0
        host().getVariableRestriction(limits);
        host().getVariableRateList(rates);
        QCOMPARE(limits.widthStep, 1U);
        QVERIFY(rates.isEmpty());
        QVERIFY(!docAs<DOC_Settings>(face("Plain")).isFunctionSupported(14, true));
        QVERIFY_EXCEPTION_THROWN(host().setVariableChannel(1), CameraFailure);
    }

    void storesInTheTargets() {
        BodyDescription description;
        description.name = QStringLiteral("Mono 2");
        description.model = QStringLiteral("mono12");
        description.address = QStringLiteral("192.168.0.99");
        SimulatedBody* const second = m_test->rig.addBody(description);
        m_test->list.addCamera(second);
        QList<DOC_Interface*> targets;
        host().listVariableTargets(targets, false);
        QCOMPARE(targets, QList<DOC_Interface*>{face("Mono")});
        host().listVariableTargets(targets, true);
        QCOMPARE(targets, (QList<DOC_Interface*>{face("Mono"), face("Mono 2")}));
        host().setVariableChannelInfoOf(targets, 9, content(10000, 256, 256));
        host().setVariableChannelOf(targets, 9);
        QCOMPARE(second->head()->settings().channel, 9);
        QCOMPARE(host().getVariableChannel(), 9U);

        QString text;
        bool registered = false;
        docAs<DOC_Settings>(face("Mono")).getVariableChannelText(9, text, &registered, 0);
        QVERIFY(registered && text.startsWith(QStringLiteral("9: 256 x 256")));
        docAs<DOC_Settings>(face("Mono")).getVariableChannelText(8, text, &registered, 0);
        QVERIFY(!registered && text.startsWith(QStringLiteral("8: ")));
        docAs<DOC_Settings>(face("Mono")).getVariableChannelText(99, text, nullptr, 0);

        // A camera that is away is no target; erasing touches the current camera alone.
        second->unplug();
        host().listVariableTargets(targets, true);
        QCOMPARE(targets.size(), 1);
        host().eraseVariableChannel(9);
        QCOMPARE(head("Mono").settings().channel, 0);
        QVERIFY(second->variableChannel(9).isStored());
    }

    void keepsAChannelWhosePlaceTheCameraMoved() {
        VariableChannelInfo info = content(10000, 256, 256);
        info.posX = 3;
        host().setVariableChannelInfoOf({face("Mono")}, 1, info);
        VariableChannelInfo stored;
        host().getVariableChannelInfo(1, stored);
        QCOMPARE(stored.posX, 0U);
        QCOMPARE(stored.rate, 10000U);
    }

    void marksTheDualSlopeOfTheChannelInForce() {
        host().setVariableChannelInfoOf({face("Mono")}, 1, content(5000, 256, 256));
        host().setVariableChannel(1);
        host().setDSShutterValue(20);
        VariableChannelInfo info;
        host().getVariableChannelInfo(1, info);
        QCOMPARE(info.shutterMode, 18U);
        host().setVariableChannel(0);
        host().getVariableChannelInfo(1, info);
        QCOMPARE(info.shutterMode, 0U);
    }

    void aChannelThatIsLeftTellsWhatItHasLeftBehind() {
        const HeadSettings before = head("Mono").settings();
        const QSignalSpy told(&host().changeNotes(), &ChangeNotes::told);
        host().setVariableChannelInfoOf({face("Mono")}, 1, content(50, 512, 256));
        host().setVariableChannel(1);
        QVERIFY(told.isEmpty()); // rate and size are what a channel is
        host().setVariableChannel(0);
        QCOMPARE(told.size(), 1);
        const QString line = told.last().first().toString();
        QVERIFY2(line.contains(QStringLiteral("Frame rate: %1 fps \u2192 50 fps").arg(before.rate)) &&
                     line.contains(QStringLiteral("\u2192 512 x 256")),
                 qPrintable(line));
        host().changeNotes().undo();
        QCOMPARE(head("Mono").settings().rate, before.rate);
        QCOMPARE(head("Mono").settings().resolution, before.resolution);
        QCOMPARE(told.last().first().toString(), QString());
    }

    // Undo would fail, and when the camera is back it may have been changed elsewhere.
    void whatACameraTookAlongIsForgottenWithItsLink() {
        const QSignalSpy told(&host().changeNotes(), &ChangeNotes::told);
        host().setRecordRate(200000);
        QCOMPARE(told.size(), 1);
        QVERIFY(!told.last().first().toString().isEmpty());
        m_test->body("Colour")->unplug(); // not its camera
        QCOMPARE(told.size(), 1);
        m_test->body("Mono")->unplug();
        QCOMPARE(told.last().first().toString(), QString());
    }

    void leavesNoCameraAtItsWholeSensor() {
        SimulatedHead& mono = head("Mono");
        mono.setResolution({256, 64}).result();
        mono.setRate(20000).result();
        const HeadSettings before = mono.settings();
        host().setVariableSetting(true);
        host().beginVariableSetting();
        QVERIFY(mono.settings().rate < 20000);
        mono.body()->faults().refuse = 1;
        QVERIFY_EXCEPTION_THROWN(host().setVariableChannelInfoOf({face("Mono")}, 1, content(10000, 256, 256)),
                                 CameraFailure);
        host().setVariableSetting(false); // the page leaves all the same
        QVERIFY(mono.settings() == before);

        // A channel that was taken stays.
        host().setVariableSetting(true);
        host().beginVariableSetting();
        host().setVariableChannelInfoOf({face("Mono")}, 1, content(10000, 256, 256));
        host().setVariableChannelOf({face("Mono")}, 1);
        host().setVariableSetting(false);
        QCOMPARE(mono.settings().channel, 1);

        // A camera that refuses from the start leaves no mode behind.
        host().setProcessingDisabled(true, {QStringLiteral("binning")});
        host().setVariableSetting(true);
        mono.body()->faults().refuse = 1;
        QVERIFY_EXCEPTION_THROWN(host().beginVariableSetting(), CameraFailure);
        QVERIFY(!host().isVariableSetting());
        QVERIFY(m_test->list.tools().isAllowed(QStringLiteral("binning")));

        // One that is gone can't be asked any more, and nobody is told so.
        host().setVariableSetting(true);
        host().beginVariableSetting();
        mono.body()->disconnectLink();
        host().setVariableSetting(false);
        QVERIFY(!host().isVariableSetting() && m_test->messages.failures.isEmpty());
    }

    void restoresTheCameraThatWasWidened() {
        head("Mono").setResolution({256, 256}).result();
        head("Mono").setShutter(1000).result();
        head("Mono").setShutterLock(true).result();
        head("Mono").setRate(4000).result(); // the lock goes back to the longer exposure
        head("Mono").changeFromOutside(QStringLiteral("autoExposure"), true);
        const HeadSettings before = head("Mono").settings();
        host().setVariableSetting(true);
        host().beginVariableSetting();
        makeCurrent("Colour"); // another window was clicked
        const HeadSettings color = head("Colour").settings();
        VariableBackup backup;
        backup.recordRate = before.rate;
        backup.width = quint32(before.resolution.width());
        backup.height = quint32(before.resolution.height());
        backup.shutter = before.shutter;
        backup.trigger.mode = before.triggerMode;
        backup.trigger.afterFrames = before.afterFrames;
        backup.trigger.randomFrames = before.randomFrames;
        backup.trigger.randomCount = before.randomCount;
        host().restoreVariableSetting(backup);
        QVERIFY(head("Mono").settings() == before);
        QVERIFY(head("Colour").settings() == color);
    }

    void switchesPartitions() {
        auto& settings = docAs<DOC_Settings>(face("Mono"));
        QCOMPARE(settings.getPartitionCount(false, false), 4);
        QCOMPARE(settings.getPartitionCount(false, true), 0);
        host().setCurrentPartition(2, true);
        QCOMPARE(settings.getPartitionNumber(true), 2);
        QVERIFY_EXCEPTION_THROWN(host().setCurrentPartition(5, true), CameraFailure);
        QCOMPARE(docAs<DOC_Settings>(face("Plain")).getPartitionCount(false, false), 1);
    }
};

QTEST_MAIN(tst_HostVariable)
#include "tst_host_variable.moc"

// The slots of the trigger: what the page reads, and which host operations a change of mode or parameter
// makes.

#include "tests/support/LogCapture.h"
#include "tests/unit/live/LiveSlotsTest.h"

#include <QtTest>
#include <stdexcept>

namespace {
const QString kSetTimes = QStringLiteral("HostCameraControl.setRandomTimesEnable");
const QString kSetMode = QStringLiteral("HostCameraControl.setTriggerModeParameters");
const QString kApply = QStringLiteral("HostCameraControl.applyTriggerParameter");

/// The plug-in that records beside the cameras.
struct DaqPlugin : PLG_livecontrol {
    int applied = 0;
    void onTriggerParameterApplied() override { ++applied; }
};
} // namespace

class tst_TriggerSlots : public QObject, private LiveSlotsTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void namesTheModes() {
        m_rig->host.onGetTriggerModeList = [](QList<int>& list) { list = {14, 0, 11, 15, 99, -1}; };
        m_rig->host.onTranslate = [](const QString& text, const char*, int) {
            return text + QLatin1Char('!');
        };
        m_rig->host.onGetTriggerMode = [] { return 11; };
        m_rig->host.onIsTriggerModeDifferent = [] { return true; };
        m_rig->host.onExistSupportImageTrigger = [] { return 2; };
        m_rig->host.onIsImageTriggerOn = [] { return true; };
        const QString text = m_live->getTriggerModeSettings();
        QVERIFY(!text.contains(QLatin1Char('\n')));
        const QJsonObject settings = parsed(text);
        QStringList names;
        for (const QJsonValue row : settings[QStringLiteral("TriggerMode")].toArray()) {
            names << QString::number(row.toObject()[QStringLiteral("Value")].toInt(-99)) +
                         row.toObject()[QStringLiteral("Name")].toString();
        }
        QCOMPARE(names, QStringList({QStringLiteral("14Random Loop Trg!"), QStringLiteral("0Start Trg!"),
                                     QStringLiteral("11Twostage Oneeighth Trg!"),
                                     QStringLiteral("15None Error Trg!"), QStringLiteral("99None Error Trg!"),
                                     QStringLiteral("-1None Error Trg!")}));
        QCOMPARE(settings[QStringLiteral("SelectValue")].toInt(), 11);
        QVERIFY(settings[QStringLiteral("DifferentTriger")].toBool());
        QCOMPARE(settings[QStringLiteral("ExistSupportImageTrigger")].toInt(), 2);
        QVERIFY(settings[QStringLiteral("HWImageTriggerOn")].toBool());
    }

    void tellsTheParameters() {
        m_rig->host.onGetTriggerParameters = [](int& after, int& frames, int& times) {
            after = 300;
            frames = 100;
            times = 7;
        };
        m_rig->host.onGetTotalFrames = [] { return 12345; };
        m_rig->host.onGetRandomFramesOffset = [] { return 4; };
        m_rig->host.onIsRandomTimesEnable = [] { return true; };
        m_rig->host.onGetMaxRandomTrgCount = [] { return 100; };
        m_rig->host.onGetMaxRandomEndlessTrgCount = [] { return 40; };
        m_rig->host.onExistSupportRandomTrgTimes = [] { return 3; };
        m_rig->host.onGetLockTriggerParam = [] { return 1; };
        const QJsonObject settings = parsed(m_live->getTriggerParameterSettings());
        const QJsonObject expected{{QStringLiteral("TotalFrames"), 12345},
                                   {QStringLiteral("TotalFramesLabel"), QStringLiteral("12345")},
                                   {QStringLiteral("TrgAfterFrame"), 300},
                                   {QStringLiteral("RandomFrames"), 100},
                                   {QStringLiteral("RandomTimesMax"), 7},
                                   {QStringLiteral("RandomFramesOffset"), 4},
                                   {QStringLiteral("RandomTimesEnable"), true},
                                   {QStringLiteral("MaxRandomTrgCount"), 100},
                                   {QStringLiteral("MaxRandomEndlessTrgCount"), 40},
                                   {QStringLiteral("ExistSupportRandomTrgTimes"), 3},
                                   {QStringLiteral("LockTriggerParam"), 1},
                                   {QStringLiteral("TriggerMode"), settings[QStringLiteral("TriggerMode")]}};
        QCOMPARE(settings, expected);
        // All modes, whatever the camera has, so that the index is the number.
        const QJsonArray modes = settings[QStringLiteral("TriggerMode")].toArray();
        QCOMPARE(modes.size(), 15);
        QCOMPARE(modes.at(7).toObject()[QStringLiteral("Identifier")].toString(),
                 QStringLiteral("RANDOM_MANUAL_TRG"));
        QCOMPARE(modes.at(13).toObject()[QStringLiteral("Identifier")].toString(),
                 QStringLiteral("REC_ON_CMD_TRG"));
    }

    void groupsTheTotalIfWanted() {
        QLocale::setDefault(QLocale(QLocale::English));
        m_rig->host.onGetTotalFrames = [] { return 12345; };
        m_rig->host.onGetPrefBool = [](const QString& name, const QVariant& value) {
            return name == QLatin1String("display/frameInsertDelimiter") && !value.isValid();
        };
        QCOMPARE(parsed(m_live->getTriggerParameterSettings())[QStringLiteral("TotalFramesLabel")].toString(),
                 QStringLiteral("12,345"));
        m_rig->host.onGetTotalFrames = [] { return 0; };
        QCOMPARE(parsed(m_live->getTriggerParameterSettings())[QStringLiteral("TotalFramesLabel")].toString(),
                 QStringLiteral("0"));
    }

    void setsAModeAndUpdates() {
        LogCapture log;
        m_live->setTriggerMode(7, 10, 20, 33.33F, 30, 4);
        QCOMPARE(m_rig->host.calls.names(), QStringList({kSetTimes, kSetMode, kUpdateAll}));
        QCOMPARE(lastArgs(kSetTimes).at(0).toBool(), true);
        const QVariantList args = lastArgs(kSetMode);
        QCOMPARE(args.mid(0, 3), QVariantList({7, 10, 20}));
        QCOMPARE(args.at(3).toFloat(), 33.33F);
        QCOMPARE(args.mid(4), QVariantList({30, 4}));
        QCOMPARE(log.lines().at(0).text,
                 QStringLiteral("[ENTER] \"JS_Mediator_LiveControl::setTriggerMode\" \"[zelTrigerMode:7] "
                                "[beforeFrames:10] [afterFrames:20] [beforePercent:33.33] [randomFrames:30] "
                                "[randomCount:4]\""));
    }

    void aCountBelowOneSwitchesItOff() {
        for (const int count : {0, -5}) {
            m_live->setTriggerMode(3, 0, 1, 0, 100, count);
            QCOMPARE(lastArgs(kSetTimes).at(0).toBool(), false);
            QCOMPARE(lastArgs(kSetMode).at(5).toInt(), 1);
            m_live->applyTriggerParameter(-1, 3, 0, 1, 0, 100, count);
            QCOMPARE(lastArgs(kSetTimes).at(0).toBool(), false);
            QCOMPARE(lastArgs(kApply).at(6).toInt(), 1);
        }
    }

    void appliesWithoutUpdateAndTellsTheRecorder() {
        LogCapture log;
        DaqPlugin daq;
        m_rig->host.onFindPlugin = [&daq](const QString& name) {
            return name == QLatin1String("daq") ? &daq : nullptr;
        };
        m_live->applyTriggerParameter(2, 4, 10, 20, 33.33F, 30, 4);
        QCOMPARE(m_rig->host.calls.names(),
                 QStringList({QStringLiteral("HostCameraControl.isLowLight"), kSetTimes, kApply,
                              QStringLiteral("HostPlugins.findPlugin")}));
        QCOMPARE(lastArgs(kApply), QVariantList({2, 4, 10, 20, 33.33F, 30, 4}));
        QCOMPARE(daq.applied, 1);
        QVERIFY(log.lines().at(0).text.contains(QStringLiteral("[lock:2] [zelTrigerMode:4]")));
        QCOMPARE(log.lines().size(), 2);
    }

    void doesNothingInLowLightButLog() {
        LogCapture log;
        m_rig->host.onIsLowLight = [] { return true; };
        m_live->applyTriggerParameter(2, 4, 10, 20, 33.33F, 30, 4);
        QCOMPARE(m_rig->host.calls.names(), QStringList({QStringLiteral("HostCameraControl.isLowLight")}));
        QCOMPARE(log.lines().size(), 2);
    }

    void aFailureSkipsWhatComesBehindIt() {
        LogCapture log;
        m_rig->host.calls.failNext(kSetTimes, throwing(std::runtime_error("refused")));
        m_live->setTriggerMode(3, 0, 1, 0, 100, 2);
        QCOMPARE(m_rig->host.calls.names(), QStringList({kSetTimes, kHandleError, kUpdateAll}));
        DaqPlugin daq;
        m_rig->host.onFindPlugin = [&daq](const QString&) { return &daq; };
        m_rig->host.calls.failNext(kApply, throwing(std::runtime_error("refused")));
        m_live->applyTriggerParameter(0, 4, 10, 20, 33.33F, 30, 4);
        QCOMPARE(daq.applied, 0);
        m_rig->host.calls.failNext(QStringLiteral("HostDocuments.getLockTriggerParam"),
                                   throwing(std::runtime_error("gone")), 2);
        QCOMPARE(m_live->getLockTriggerParam(), 0);
        QVERIFY(m_live->getTriggerParameterSettings().isEmpty());
    }

    void handsTheLockToTheHost() {
        LogCapture log;
        m_live->setLockTriggerParam(1);
        QCOMPARE(m_rig->host.calls.names(),
                 QStringList({QStringLiteral("HostDocuments.setLockTriggerParam"), kUpdateAll}));
        QCOMPARE(lastArgs(QStringLiteral("HostDocuments.setLockTriggerParam")).at(0).toInt(), 1);
        QCOMPARE(log.lines().at(0).text,
                 QStringLiteral("[ENTER] \"JS_Mediator_LiveControl::setLockTriggerParam\" \"\""));
    }
};

QTEST_MAIN(tst_TriggerSlots)
#include "tst_trigger_slots.moc"

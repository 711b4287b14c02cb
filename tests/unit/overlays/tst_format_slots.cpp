// The dialogs that say how a value over the image and the time code are written, and the one of the digits in
// names, without their pages.

#include "livecontrol/overlays/formats/GUI_AddNumberDialog.h"
#include "livecontrol/overlays/formats/GUI_RecordRateFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_RectimeFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_ShutterSpeedFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_TimeCodeCustomDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_AddNumberDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_FrameFormatDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_RecordRateFormatDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_RectimeFormatDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_ShutterSpeedFormatDialog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <stdexcept>
#include <tuple>

namespace {
const QString kFormat = QStringLiteral("display/ShutterSpeed");
const QString kUnit = QStringLiteral("display/ShutterSpeedUnit");
const QString kShutterDelimiter = QStringLiteral("display/shutterSpeedInsertDelimiter");
const QString kRateDelimiter = QStringLiteral("display/recordRateInsertDelimiter");
const QString kFrameDelimiter = QStringLiteral("display/frameInsertDelimiter");
const QString kRecTime = QStringLiteral("info/RecTimeUnit");

/// All that is kept of it.
auto timecodeOf(const TimeCodeSetting& it) {
    return std::make_tuple(it.index, it.displayUnit, it.oneFrame, it.startValue, it.reset, it.resetValue,
                           it.scopeDisplayIndex, it.decimalPlaceIndex, it.decimalDivide, it.usingRchFileInfo,
                           it.overwrite, it.realTime);
}
} // namespace

class tst_FormatSlots : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;
    QVariantMap m_prefs;
    QStringList m_written;

    int count(const char* operation) { return m_rig->host.calls.count(QLatin1String(operation)); }
    void write(const QString& name, const QVariant& value) {
        m_prefs[name] = value;
        m_written.append(name);
    }

private slots:
    void init() {
        m_rig = std::make_unique<TestRig>();
        m_prefs = {
            {kFormat, 2}, {kUnit, 3}, {kShutterDelimiter, true}, {kRecTime, 2}, {kFrameDelimiter, true}};
        m_written.clear();
        FakeHost& host = m_rig->host;
        host.onGetPrefInt = [this](const QString& name, const QVariant& value) {
            return m_prefs.value(name, value).toInt();
        };
        host.onGetPrefBool = [this](const QString& name, const QVariant& value) {
            return m_prefs.value(name, value).toBool();
        };
        host.onSetPrefInt = [this](const QString& name, int value) { write(name, value); };
        host.onSetPrefBool = [this](const QString& name, bool value) { write(name, value); };
    }
    void cleanup() { m_rig.reset(); }

    void theShutterFormatIsStoredAtOnceAndGivenBack() {
        JS_Mediator_ShutterSpeedFormatDialog dialog(&m_rig->host);
        QSignalSpy rejected(&dialog, &JS_Mediator_Dialog::reject);
        dialog.setShutterSpeedFormat(1);
        dialog.setShutterSpeedTimeUnit(0);
        dialog.setShutterSpeedInsertDelimiter(false);
        QCOMPARE(count("HostApplication.updateAll"), 3);
        QVERIFY(dialog.getShutterSpeedFormat() == 1 && dialog.getShutterSpeedTimeUnit() == 0 &&
                !dialog.isShutterSpeedInsertDelimiter());
        m_written.clear();
        dialog.cancel();
        QCOMPARE(m_written, (QStringList{kFormat, kUnit, kShutterDelimiter}));
        QVERIFY(m_prefs.value(kFormat) == 2 && m_prefs.value(kUnit) == 3 &&
                m_prefs.value(kShutterDelimiter) == true);
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(count("HostApplication.updateAll"), 4);
    }

    // Which is a value like any other: it is stored too.
    void aDefaultIsGivenBackToo() {
        m_prefs.clear();
        JS_Mediator_RecordRateFormatDialog rate(&m_rig->host);
        rate.setRecordRateInsertDelimiter(true);
        QVERIFY(rate.isRecordRateInsertDelimiter());
        rate.cancel();
        QCOMPARE(m_prefs.value(kRateDelimiter), QVariant(false));
        JS_Mediator_ShutterSpeedFormatDialog shutter(&m_rig->host);
        QCOMPARE(shutter.getShutterSpeedFormat(), 1);
    }

    void okKeepsWhatWasSet() {
        const LogCapture log;
        JS_Mediator_FrameFormatDialog dialog(&m_rig->host);
        QSignalSpy accepted(&dialog, &JS_Mediator_Dialog::accept);
        dialog.setFrameInsertDelimiter(false);
        dialog.ok();
        QCOMPARE(m_prefs.value(kFrameDelimiter), QVariant(false));
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(count("HostApplication.updateAll"), 2);
        QCOMPARE(log.with(QStringLiteral("JS_Mediator_FrameFormatDialog::setFrameInsertDelimiter")).size(),
                 2);
    }

    void theRecordingTimeTellsTheToolsAndUpdatesNothing() {
        JS_Mediator_RectimeFormatDialog dialog(&m_rig->host);
        dialog.setRecTimeUnit(1);
        QCOMPARE(dialog.getRecTimeUnit(), 1);
        QCOMPARE(count("HostDocuments.setToolsDisabled"), 1);
        dialog.cancel();
        QCOMPARE(m_prefs.value(kRecTime), QVariant(2));
        QCOMPARE(count("HostDocuments.setToolsDisabled"), 2);
        QCOMPARE(count("HostApplication.updateAll"), 0);
    }

    // The window has no close button, but a window manager may have a key for it.
    void closingTheWindowIsACancel() {
        GUI_ShutterSpeedFormatDialog dialog(&m_rig->host);
        QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        QSignalSpy rejected(&dialog, &QDialog::rejected);
        static_cast<JS_Mediator_ShutterSpeedFormatDialog*>(dialog.mediator())->setShutterSpeedFormat(1);
        dialog.show();
        const int updates = count("HostApplication.updateAll");
        dialog.close();
        QCOMPARE(m_prefs.value(kFormat), QVariant(2));
        QCOMPARE(count("HostApplication.updateAll"), updates + 1);
        QCOMPARE(rejected.count(), 1);

        GUI_RectimeFormatDialog times(&m_rig->host); // whose slots update no page
        times.show();
        times.close();
        QCOMPARE(count("HostApplication.updateAll"), updates + 1);
        QCOMPARE(count("HostDocuments.setToolsDisabled"), 1);
    }

    void aSettingThatCantBeWrittenCostsTheOthersNothing() {
        JS_Mediator_ShutterSpeedFormatDialog dialog(&m_rig->host);
        QSignalSpy rejected(&dialog, &JS_Mediator_Dialog::reject);
        dialog.setShutterSpeedInsertDelimiter(false);
        m_rig->host.onSetPrefInt = [](const QString&, int) { throw std::runtime_error("disk"); };
        dialog.cancel();
        QCOMPARE(count("HostApplication.handleError"), 2);
        QCOMPARE(m_prefs.value(kShutterDelimiter), QVariant(true));
        QCOMPARE(rejected.count(), 1);
    }

    void numbersHaveTheDigitsThatAreAskedFor() {
        JS_Mediator_AddNumberDialog dialog(&m_rig->host, 2, 12, 1);
        QCOMPARE(dialog.getCallbackType(), 2);
        QCOMPARE(dialog.getAutoDeviceDigits(), 2);
        QCOMPARE(dialog.getAutoHeadDigits(), 0);
        QCOMPARE(dialog.preview(3, 3, 4), QStringLiteral("C001H001S0001"));
        QCOMPARE(dialog.preview(0, 2, 0), QStringLiteral("H01"));
        QCOMPARE(JS_Mediator_AddNumberDialog(&m_rig->host, 2, 1, 10).getAutoHeadDigits(), 2);
        m_rig->host.onIsFileMode = [] { return true; };
        QVERIFY(dialog.isFileMode());
        QCOMPARE(dialog.preview(3, 3, 4), QStringLiteral("S0001"));
    }

    void namesOfAConversionHaveNoCamera() {
        for (int target = 0; target < 17; ++target) {
            JS_Mediator_AddNumberDialog dialog(&m_rig->host, target, 1, 1);
            QCOMPARE(dialog.isFileMode(), target >= 3 && target <= 5);
        }
        GUI_AddNumberDialog dialog(&m_rig->host, nullptr, 4, 1, 1);
        QCOMPARE(dialog.size(), QSize(540, 270));
        QCOMPARE(static_cast<JS_Mediator_AddNumberDialog*>(dialog.mediator())->preview(3, 3, 2),
                 QStringLiteral("S01"));
    }

    // Past what 99999 frames make of it, in the direction of the frames; to a whole frame otherwise.
    void aResetValueStopsAtTheLimit_data() {
        QTest::addColumn<QString>("oneFrame");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        QTest::newRow("above") << "0.5"
                               << "0"
                               << "60000"
                               << "49999.5000";
        QTest::newRow("below") << "-0.5"
                               << "0"
                               << "-60000"
                               << "-49999.5000";
        QTest::newRow("the limit") << "0.5"
                                   << "0"
                                   << "49999.5"
                                   << "49999.5000";
        QTest::newRow("never reached, above") << "-0.5"
                                              << "0"
                                              << "60000"
                                              << "-0.5000";
        QTest::newRow("never reached, below") << "0.5"
                                              << "0"
                                              << "-60000"
                                              << "0.5000";
        QTest::newRow("all below zero") << "0.5"
                                        << "-60000"
                                        << "-70000"
                                        << "-10000.5000";
        QTest::newRow("between") << "0.5"
                                 << "10"
                                 << "20.2"
                                 << "20.5000";
    }
    void aResetValueStopsAtTheLimit() {
        QFETCH(QString, typed);
        QFETCH(QString, oneFrame);
        QFETCH(QString, start);
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        dialog.setTimeCodeReset(true);
        dialog.setTimeCodeOneFrame(oneFrame);
        dialog.setTimeCodeStartValue(start);
        dialog.setTimeCodeResetUnitIndex(1);
        dialog.setTimeCodeResetValue(typed);
        QTEST(dialog.getTimeCodeResetValue(), "kept");
    }

    void allOfATimeCodeSettingIsReadAndStored() {
        TimeCodeSetting stored{0, QStringLiteral("mm"), 0.5, 2, true, 12, 3, 4, true, false, true, true};
        const TimeCodeSetting was = stored;
        m_rig->host.onGetTimeCodeSetting = [&] { return stored; };
        m_rig->host.onSetTimeCodeSetting = [&](const TimeCodeSetting& setting) { stored = setting; };
        GUI_TimeCodeCustomDialog untouched(&m_rig->host, nullptr);
        QVERIFY(untouched.getTimeCodeOverWrite() && untouched.getTimeCodeRealTime());
        QCOMPARE(untouched.getTimeCodeDecimalPlaceIndex(), 4);
        untouched.ok();
        QVERIFY(timecodeOf(stored) == timecodeOf(was));
        stored = TimeCodeSetting();
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        dialog.setTimeCodeOneFrame(QStringLiteral("0.5"));
        dialog.setTimeCodeStartValue(QStringLiteral("2"));
        dialog.setTimeCodeDisplayUnit(was.displayUnit);
        dialog.setTimeCodeReset(true);
        dialog.setTimeCodeResetValue(QStringLiteral("20")); // frames
        dialog.setTimeCodeScopeDisplayIndex(was.scopeDisplayIndex);
        dialog.setTimeCodeDecimalPlaceIndex(was.decimalPlaceIndex);
        dialog.setTimeCodeDecimalDivide(true);
        dialog.setTimeCodeUsingRchFileInfo(false);
        dialog.setTimeCodeOverWrite(true);
        dialog.setTimeCodeRealTime(true);
        dialog.ok();
        QVERIFY(timecodeOf(stored) == timecodeOf(was));
    }
};

QTEST_MAIN(tst_FormatSlots)
#include "tst_format_slots.moc"

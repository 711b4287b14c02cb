// The dialogs of the comment and of the custom time code, without their pages.

#include "livecontrol/foundation/TimeCodeMath.h"
#include "livecontrol/overlays/formats/GUI_TimeCodeCustomDialog.h"
#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"
#include "livecontrol/overlays/notes/GUI_CommentDialog.h"
#include "tests/support/TestRig.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>
#include <stdexcept>

using timecode::countFromValue;
using timecode::valueFromCount;

class tst_OverlaySlots : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<FakeCamera> m_other; // under the key 8
    TimeCodeSetting m_setting;

    int count(const char* operation) { return m_rig->host.calls.count(QLatin1String(operation)); }

    void setUpComments() {
        FakeHost& host = m_rig->host;
        m_other = std::make_unique<FakeCamera>(host.calls);
        host.onGetSelectedKeys = [](bool) { return QList<DOCKEY>{8, 99, TestRig::kKey}; };
        host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>{TestRig::kKey, 8}; };
        host.onDocByKey = [this](DOCKEY key, bool) -> DOC_Interface* {
            return key == TestRig::kKey ? &m_rig->camera : key == 8 ? m_other.get() : nullptr;
        };
        host.onKeyOfDocument = [this](DOC_Interface* document) {
            return document == &m_rig->camera ? TestRig::kKey : DOCKEY(8);
        };
        m_rig->camera.onGetComment = [] { return QStringLiteral("one{Separator}two"); };
        m_rig->camera.onGetDisplayName = [] { return QStringLiteral("<b>Marlin</b>"); };
        m_other->onGetDisplayName = [] { return QStringLiteral("Plover"); };
    }
    /// What the documents got, in order.
    QStringList comments() {
        QStringList texts;
        const QList<CallRecorder::Call> calls = m_rig->host.calls.calls();
        for (const CallRecorder::Call& call : calls) {
            if (call.name().endsWith(QLatin1String(".setComment"))) {
                texts.append(call.args.value(0).toString());
            }
        }
        return texts;
    }

private slots:
    void init() {
        m_rig = std::make_unique<TestRig>();
        m_setting = TimeCodeSetting();
        m_rig->host.onGetTimeCodeSetting = [this] { return m_setting; };
        m_rig->host.onSetTimeCodeSetting = [this](const TimeCodeSetting& setting) { m_setting = setting; };
        setUpComments();
    }
    void cleanup() {
        m_other.reset();
        m_rig.reset();
    }

    // --- Comments ---

    void commentsAreThoseOfTheSelection() {
        GUI_CommentDialog dialog(&m_rig->host);
        QCOMPARE(
            dialog.getDocInfos(),
            QStringLiteral(
                R"({"InitSelect":2,"Records":[{"name":"Plover","recid":1},{"name":"<b>Marlin</b>","recid":2}]})"));
        QCOMPARE(dialog.getComment(), QString());
        dialog.setComment(QStringLiteral("lost")); // nothing is selected
        dialog.setSelectedItems({2});
        QCOMPARE(dialog.getComment(), QStringLiteral("one\ntwo"));
        dialog.setSelectedItems({2, 1});
        QCOMPARE(dialog.getComment(), QString());
        QCOMPARE(dialog.getSelectedItems(), (QList<int>{2, 1}));
        dialog.setComment(QStringLiteral("both\nlines"));
        dialog.setSelectedItems({2});
        QCOMPARE(dialog.getComment(), QStringLiteral("both\nlines"));
        dialog.setSelectedItems({7, -1}); // no such records
        dialog.setComment(QStringLiteral("lost"));
        QCOMPARE(dialog.getComment(), QString());
        QVERIFY(comments().isEmpty()); // nothing before OK
        dialog.comment_ok();
        QCOMPARE(comments(), (QStringList{QStringLiteral("both\nlines"), QStringLiteral("both\nlines")}));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void aGivenDocumentIsOneOfAllThatAreOpen() {
        GUI_CommentDialog dialog(&m_rig->host, m_other.get());
        QVERIFY(!dialog.isForSelection());
        QVERIFY(dialog.getDocInfos().startsWith(QLatin1String(R"({"InitSelect":2,)")));
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostDocuments.listCameraKeys")),
                 (QVariantList{true, false}));
        m_rig->host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>(); };
        QCOMPARE(GUI_CommentDialog(&m_rig->host, m_other.get()).getDocInfos(),
                 QStringLiteral(R"({"InitSelect":0,"Records":[]})"));
    }

    void cancellingLeavesEveryDocument() {
        GUI_CommentDialog dialog(&m_rig->host);
        QCOMPARE(dialog.windowOpacity(), 0.0);
        QTRY_COMPARE(dialog.windowOpacity(), 1.0); // once its page stands
        dialog.setSelectedItems({1, 2});
        dialog.setComment(QStringLiteral("lost"));
        dialog.comment_cancel();
        QVERIFY(comments().isEmpty());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void aDocumentThatGoesOrRefusesCostsTheOthersNothing() {
        GUI_CommentDialog dialog(&m_rig->host);
        QSignalSpy accepted(&dialog, &QDialog::accepted);
        dialog.setSelectedItems({1, 2});
        dialog.setComment(QStringLiteral("new"));
        m_other->onSetComment = [](const QString&) { throw std::runtime_error("cable"); };
        dialog.comment_ok();
        QCOMPARE(count("HostApplication.handleError"), 1);
        QCOMPARE(comments().size(), 2);
        QCOMPARE(accepted.count(), 0); // what was typed is still there
        m_rig->host.onDocByKey = [this](DOCKEY key, bool) { return key == 8 ? nullptr : &m_rig->camera; };
        QVERIFY(dialog.getDocInfos().contains(QLatin1String(R"({"name":"","recid":1})")));
        dialog.comment_ok();
        QCOMPARE(accepted.count(), 1);
    }

    // The comment of all others is none of its own.
    void theInformationOfADocumentThatWentHasNoComment() {
        m_rig->host.onCurrentDocument = [this] { return &m_rig->camera; };
        GUI_EditInfoDialog dialog(&m_rig->host);
        m_rig->host.onDocByKey = [](DOCKEY, bool) -> DOC_Interface* { return nullptr; };
        QTimer closing; // of what should not open
        connect(&closing, &QTimer::timeout, [] { QApplication::closeAllWindows(); });
        closing.start(0);
        dialog.editComment();
        QCOMPARE(count("HostDocuments.getSelectedKeys"), 0);
    }

    void theStyleIsLightWhereItCantBeRead() {
        GUI_CommentDialog dialog(&m_rig->host);
        m_rig->host.onGetPref = [](const QString&, const QVariant& none) { return none; };
        QCOMPARE(dialog.getStyle(), QStringLiteral("dark"));
        m_rig->host.onGetPref = [](const QString&, const QVariant&) -> QVariant {
            throw std::runtime_error("disk");
        };
        QCOMPARE(dialog.getStyle(), QStringLiteral("light"));
        QCOMPARE(count("HostApplication.handleError"), 1);
    }

    // --- The time code's arithmetic ---

    void exactlyHalfAStepIsCutOff() {
        QCOMPARE(timecode::scaled(0.00005), 0);
        QCOMPARE(timecode::scaled(0.000051), 1);
        QCOMPARE(timecode::scaled(0.0003), 3);   // a little less in binary
        QCOMPARE(timecode::scaled(-0.0003), -2); // which is cut where the number is negative
        QCOMPARE(timecode::scaled(-2.5), -25000);
        QCOMPARE(timecode::scaled(std::numeric_limits<double>::quiet_NaN()), 0);
        QVERIFY(timecode::scaled(1e300) > 1000000000000000LL);
        QVERIFY(timecode::scaled(-1e300) < -1000000000000000LL);
    }

    void countsUpToTheFrameThatReachesTheValue() {
        QCOMPARE(countFromValue(true, 0.5, 10, 0), 20);
        QCOMPARE(countFromValue(true, 3, 10, 0), 4); // the last one counts whole
        QCOMPARE(countFromValue(true, -2, -10, 0), 5);
        QCOMPARE(countFromValue(true, -3, -10, 0), 4);
        QCOMPARE(countFromValue(true, -2, 10, 0), 1);
        QCOMPARE(countFromValue(true, 2, -10, 0), 1);
        QCOMPARE(countFromValue(true, 2, 5, 5), 1);
        QCOMPARE(countFromValue(true, 0, 10, 0), 1);
        QCOMPARE(countFromValue(false, 0.5, 10, 0), 1);
        QCOMPARE(valueFromCount(0, 7, 2.5), 2.5);
        QCOMPARE(timecode::guardedValueFromCount(10, 100000000, 0), 900000000.0);
    }

    void countAndValueAreInverse() {
        QRandomGenerator random(1);
        for (int i = 0; i < 20000; ++i) {
            // Of a negative number a step can get lost, so each frame has three, and none that counts up
            // begins there.
            const double step = (random.bounded(2) ? 1 : -1) * (3 + random.bounded(90000000)) / 1e4;
            const int origin = random.bounded(step > 0 ? 0 : -1000000000, 1000000000);
            const double start = origin / 1e4;
            const int frames = 1 + random.bounded(99999);
            const QString text = timecode::fourDecimals(valueFromCount(frames, step, start));
            QCOMPARE(countFromValue(true, step, timecode::numberOf(text), start), qint64(frames));
        }
    }

    void writesTimesAsChosen_data() {
        QTest::addColumn<int>("scope");
        QTest::addColumn<int>("places");
        QTest::addColumn<bool>("divided");
        QTest::addColumn<QString>("text");
        const char* const starts[] = {"+00:00:00", "+00:00", "+000", "+002", "+2000", "+2000000"};
        const char* const units[] = {" ", " ", " sec", " msec", " usec", " nsec"};
        const char* const seconds[] = {".002",   ".0",      ".00",      ".002",      ".0020",
                                       ".00200", ".002000", ".0020000", ".00200000", ".002000000"};
        const char* const thirds[] = {".002",    ".0",       ".00",        ".002",        ".002 0",
                                      ".002 00", ".002 000", ".002 000 0", ".002 000 00", ".002 000 000"};
        const char* const zeros[] = {"",        ".0",       ".00",        ".000",        ".000 0",
                                     ".000 00", ".000 000", ".000 000 0", ".000 000 00", ".000 000 000"};
        for (int scope = 0; scope < 6; ++scope) {
            for (int places = 0; places < 10; ++places) {
                for (const bool divided : {false, true}) {
                    QString fraction = QLatin1String((scope > 2 ? zeros
                                                      : divided ? thirds
                                                                : seconds)[places]);
                    if (!divided) {
                        fraction.remove(QLatin1Char(' '));
                    }
                    QTest::addRow("scope %d, %d places, %d", scope, places, int(divided))
                        << scope << places << divided
                        << QString::fromLatin1(starts[scope]) + fraction + QLatin1String(units[scope]);
                }
            }
        }
        QTest::newRow("no such scope") << 7 << 0 << false << QStringLiteral("+00:00:00.002 ");
        QTest::newRow("more than there are") << 2 << 40 << false << QStringLiteral("+000.002000000 sec");
    }
    void writesTimesAsChosen() {
        QFETCH(int, scope);
        QFETCH(int, places);
        QFETCH(bool, divided);
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        dialog.setTimeCodeScopeDisplayIndex(scope, false);
        dialog.setTimeCodeDecimalPlaceIndex(places, false);
        dialog.setTimeCodeDecimalDivide(divided);
        QTEST(dialog.getTimeCodeSample(), "text");
    }

    void longTimesAreWrittenToo() {
        const qint64 time = (25LL * 3600 + 61) * 1000000000 + 1234;
        QCOMPARE(timecode::timeText(time, {0, 0, false}), QStringLiteral("25:01:01.000001234 "));
        QCOMPARE(timecode::timeText(time, {1, 3, false}), QStringLiteral("1501:01.000 "));
        QCOMPARE(timecode::timeText(1234567, {4, 3, true}), QStringLiteral("1234.567 usec"));
    }

    // --- The time code's dialog ---

    void textsThatAreNoNumbersCountAsZero_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("kept");
        QTest::newRow("empty") << QString() << QStringLiteral("0.0000");
        QTest::newRow("nan") << QStringLiteral("nan") << QStringLiteral("0.0000");
        QTest::newRow("infinite") << QStringLiteral("-inf") << QStringLiteral("0.0000");
        QTest::newRow("too large") << QStringLiteral("1e400") << QStringLiteral("0.0000");
        QTest::newRow("comma") << QStringLiteral("1,5") << QStringLiteral("0.0000");
        QTest::newRow("point") << QStringLiteral("1.5") << QStringLiteral("1.5000");
        QTest::newRow("tiny") << QStringLiteral("-0.00001") << QStringLiteral("-0.0000");
        QTest::newRow("negative") << QStringLiteral("-2.34567") << QStringLiteral("-2.3457");
    }
    // In a country that writes a comma, too: what is kept and read has a point.
    void textsThatAreNoNumbersCountAsZero() {
        QFETCH(QString, text);
        QFETCH(QString, kept);
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        dialog.setTimeCodeOneFrame(text);
        dialog.setTimeCodeStartValue(text);
        dialog.setTimeCodeIndex(1);
        QLocale::setDefault(before);
        QCOMPARE(dialog.getTimeCodeOneFrame(), kept);
        QCOMPARE(dialog.getTimeCodeStartValue(), kept);
        QCOMPARE(dialog.getTimeCodeSample().at(0),
                 QLatin1Char(
                     kept.startsWith(QLatin1Char('-')) || text.contains(QLatin1String("-0.0")) ? '-' : '+'));
    }

    void valuesPastAllLimitsAreSurvived() {
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        dialog.setTimeCodeReset(true);
        for (const char* const step : {"1e300", "-1e300", "0.0001"}) {
            dialog.setTimeCodeOneFrame(QLatin1String(step));
            for (const char* const value : {"1e300", "-1e300", "nan", ""}) {
                dialog.setTimeCodeStartValue(QLatin1String(value));
                dialog.setTimeCodeResetUnitIndex(1);
                dialog.setTimeCodeResetValue(QLatin1String(value));
                dialog.setTimeCodeResetUnitIndex(0);
                const int frames = dialog.getTimeCodeResetValue().toInt();
                QVERIFY(frames >= 1 && frames <= 99999);
            }
        }
        QVERIFY(dialog.saveTimeCodeSetting());
        QVERIFY(std::isfinite(m_setting.resetValue));
    }

    void theResetCountsFramesWithinItsLimits() {
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        const std::pair<const char*, const char*> cases[] = {
            {"0", "1"},       {"-3", "1"},        {"", "1"},           {"12", "12"},
            {"12.7", "12.7"}, {"99999", "99999"}, {"100000", "99999"}, {"1e300", "99999"}};
        for (const auto& [typed, kept] : cases) {
            dialog.setTimeCodeResetValue(QLatin1String(typed));
            QCOMPARE(dialog.getTimeCodeResetValue(), QLatin1String(kept));
        }
    }

    // What the rule made of a value it leaves as it is, and the way to frames and back changes nothing.
    void theResetValueIsAFixedPoint() {
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        QRandomGenerator random(2);
        dialog.setTimeCodeReset(true);
        for (int i = 0; i < 3000; ++i) {
            const int sign = random.bounded(2) ? 1 : -1;
            const double step = sign * (3 + random.bounded(50000000)) / 1e4;
            dialog.setTimeCodeOneFrame(QString::number(step, 'f', 4));
            dialog.setTimeCodeStartValue(QString::number((random.bounded(2000000) - 1000000) / 1e4, 'f', 4));
            dialog.setTimeCodeResetUnitIndex(1);
            dialog.setTimeCodeResetValue(QString::number(sign * random.bounded(2e9) - 1e3, 'f', 4));
            const QString once = dialog.getTimeCodeResetValue();
            dialog.setTimeCodeResetValue(once);
            QCOMPARE(dialog.getTimeCodeResetValue(), once);
            dialog.setTimeCodeResetUnitIndex(0);
            const int frames = dialog.getTimeCodeResetValue().toInt();
            dialog.setTimeCodeResetUnitIndex(1);
            if (frames < 99999) {
                QCOMPARE(dialog.getTimeCodeResetValue(), once);
            }
        }
    }

    void aValueAboveTheLimitBecomesTheLimit() {
        m_setting.oneFrame = 0.5;
        m_setting.reset = true;
        m_setting.resetValue = 50000;
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        QCOMPARE(dialog.getTimeCodeResetValue(), QStringLiteral("99999"));
        dialog.setTimeCodeResetUnitIndex(1);
        QCOMPARE(dialog.getTimeCodeResetValue(), QStringLiteral("49999.5000"));
        dialog.setTimeCodeResetValue(QStringLiteral("10.2"));
        QCOMPARE(dialog.getTimeCodeResetValue(), QStringLiteral("10.5000"));
        dialog.setTimeCodeOneFrame(QStringLiteral("0"));
        dialog.setTimeCodeResetUnitIndex(0);
        QCOMPARE(dialog.getTimeCodeResetValue(), QStringLiteral("1"));
    }

    void savesWhatWasEditedAndNothingBefore() {
        m_setting.oneFrame = -0.25;
        m_setting.startValue = 90;
        m_setting.reset = true;
        m_setting.resetValue = 0;
        m_setting.index = 1;
        m_setting.displayUnit = QStringLiteral("\u00b0");
        const TimeCodeSetting before = m_setting;
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        QCOMPARE(dialog.getTimeCodeSample(), QStringLiteral("-000.2500 \u00b0"));
        QCOMPARE(dialog.getTimeCodeResetValue(), QStringLiteral("360"));
        dialog.setTimeCodeResetValue(QStringLiteral("720"));
        dialog.setTimeCodeOverWrite(true);
        QCOMPARE(m_setting.resetValue, before.resetValue);
        m_rig->host.onSetTimeCodeSetting = [](const TimeCodeSetting&) { throw std::runtime_error("disk"); };
        QSignalSpy accepted(&dialog, &QDialog::accepted);
        dialog.ok();
        QCOMPARE(accepted.count(), 0);
        m_rig->host.onSetTimeCodeSetting = [this](const TimeCodeSetting& setting) { m_setting = setting; };
        dialog.ok();
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(m_setting.resetValue, -90.0);
        QVERIFY(m_setting.overwrite && m_setting.usingRchFileInfo && m_setting.reset);
        QCOMPARE(m_setting.displayUnit, before.displayUnit);
    }

    void resetBeginsFromScratch() {
        m_setting.index = 1;
        m_setting.oneFrame = -3;
        m_setting.reset = m_setting.overwrite = m_setting.realTime = true;
        m_setting.scopeDisplayIndex = 4;
        GUI_TimeCodeCustomDialog dialog(&m_rig->host, nullptr);
        dialog.setTimeCodeResetUnitIndex(1);
        dialog.reset();
        QCOMPARE(dialog.getTimeCodeResetUnitIndex(), 0); // what is set anew is a count
        QCOMPARE(dialog.getTimeCodeSample(), QStringLiteral("+00:00:00.002 "));
        QCOMPARE(dialog.getTimeCodeOneFrame(), QStringLiteral("0.0000"));
        QCOMPARE(dialog.getTimeCodeResetValue(), QStringLiteral("1"));
        QVERIFY(!dialog.getTimeCodeReset() && !dialog.getTimeCodeOverWrite() &&
                !dialog.getTimeCodeRealTime());
        QCOMPARE(m_setting.index, 1);
        dialog.loadTimeCodeSetting();
        QCOMPARE(dialog.getTimeCodeSample(), QStringLiteral("-003.0000 deg"));
    }
};

QTEST_MAIN(tst_OverlaySlots)
#include "tst_overlay_slots.moc"

#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/UTL_DateTime.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/foundation/UTL_MapRect.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/foundation/UTL_Network.h"
#include "livecontrol/foundation/UTL_Numbers.h"
#include "livecontrol/interface/APP_Exception.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QStorageInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

class tst_Utilities : public QObject {
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale(QLocale::German)); } // whose decimal sign is a comma

    void formatsFileSizes_data() {
        QTest::addColumn<quint64>("bytes");
        QTest::addColumn<QString>("text");
        constexpr quint64 kKilo = 1024;
        QTest::newRow("nothing") << quint64(0) << "0.00KB";
        QTest::newRow("rounded") << quint64(1029) << "1.00KB"; // 1.0049
        QTest::newRow("rounded up") << quint64(1030) << "1.01KB";
        QTest::newRow("below a megabyte") << kKilo * kKilo - 1 << "1024.00KB";
        QTest::newRow("a megabyte") << kKilo * kKilo << "1.00MB";
        QTest::newRow("below a gigabyte") << kKilo * kKilo * kKilo - 1 << "1024.00MB";
        QTest::newRow("a gigabyte") << kKilo * kKilo * kKilo << "1.00GB";
        QTest::newRow("a terabyte") << kKilo * kKilo * kKilo * kKilo << "1.00TB";
        QTest::newRow("all") << std::numeric_limits<quint64>::max() << "16777216.00TB";
    }
    void formatsFileSizes() {
        QFETCH(quint64, bytes);
        QTEST(formatFileSize(bytes), "text");
    }

    void formatsPackedDatesAndTimes() {
        QCOMPARE(formatPackedDate(0), QString());
        QCOMPARE(formatPackedDate(0x180503), QStringLiteral("2018/5/3"));
        QCOMPARE(formatPackedDate(0x251231), QStringLiteral("2025/12/31"));
        QCOMPARE(formatPackedDate(0x050101), QStringLiteral("2005/1/1"));
        QCOMPARE(formatPackedDate(0x1000007), QStringLiteral("007"));
        QCOMPARE(formatPackedDate(0xFFFF016D), QStringLiteral("365"));
        QCOMPARE(formatPackedTime(0, 0), QString());
        QCOMPARE(formatPackedTime(0x180503, 0), QStringLiteral("00:00:00"));
        QCOMPARE(formatPackedTime(0, 0xFF120509), QStringLiteral("12:05:09"));
    }

    void readsDatesAndTimes() {
        const QString date = QStringLiteral("2018/5/3");
        const QDateTime expected(QDate(2018, 5, 3), QTime(12, 5, 9));
        QCOMPARE(dateTimeFromStrings(date, QStringLiteral("12:05:09")), expected);
        QCOMPARE(dateTimeFromStrings(date, QStringLiteral("12:05")), expected.addSecs(-9));
        QVERIFY(!dateTimeFromStrings(date, QString()).isValid());
        QVERIFY(!dateTimeFromStrings(date, QStringLiteral("25:05")).isValid());
        // What the camera's packed values say comes back whole.
        QCOMPARE(dateTimeFromStrings(formatPackedDate(0x180503), formatPackedTime(0x180503, 0x120509)),
                 expected);
    }

    void readsAddresses_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<quint32>("value");
        QTest::newRow("address") << "192.168.0.10" << true << 0xC0A8000AU;
        QTest::newRow("highest") << "255.255.255.255" << true << 0xFFFFFFFFU;
        QTest::newRow("text after it") << "10.0.0.1:8080" << true << 0x0A000000U;
        QTest::newRow("numbers too large") << "999.0.0.1" << true << (999U << 24) + 1;
        QTest::newRow("three parts") << "300.1.1" << false << (300U << 16) + 0x101;
        QTest::newRow("four digits") << "1234.1.1.1" << false << (1234U << 24) + 0x10101;
        QTest::newRow("not at the start") << " 10.0.0.1" << false << 0x0A000001U;
        QTest::newRow("letters") << "camera" << false << 0U;
        QTest::newRow("other digits") << QStringLiteral("\u0661.\u0661.\u0661.\u0661") << false << 0U;
        QTest::newRow("empty") << QString() << false << 0U;
    }
    void readsAddresses() {
        QFETCH(QString, text);
        QTEST(isValidIPAddress(text), "valid");
        QTEST(parseIPv4(text), "value");
    }

    void refusesWhatNoFileCanBeCalled() {
        for (const QChar c : QStringLiteral("\\/*?|\t\n\":<>%")) {
            const QString name = QStringLiteral("a%1b").arg(c);
            QVERIFY2(!isValidFileName(name), qPrintable(name));
            const bool isSeparator = QStringLiteral("\\/:").contains(c);
            QVERIFY2(isValidPath(name) == isSeparator, qPrintable(name));
            QCOMPARE(isValidFilePath(name), isValidPath(name));
        }
        for (const QString& name : {QString(), QStringLiteral("  "), QStringLiteral("C001.a_b-(1)&'#"),
                                    QStringLiteral("\u30ab\u30e1\u30e9 \u05d0 \U0001F4F7")}) {
            QVERIFY2(isValidFileName(name) && isValidPath(name), qPrintable(name));
        }
    }

    void makesNamesThatFilesCanBear_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("clean");
        QTest::addColumn<QString>("withNothing");
        const auto row = [](const char* tag, const char* name, const char* clean, const char* withNothing) {
            QTest::newRow(tag) << name << clean << withNothing;
        };
        row("good", "a.b", "a.b", "a.b");
        row("colon", "a:b", "a_b", "ab");
        row("all", "\\/:*?\"<>|%", "__________", "");
        row("here", ".", "_", "");
        row("folder above", "..", "__", "");
        row("becomes the folder above", ".:.", "._.", "");
        row("three points", "...", "...", "...");
        row("tab stays", "a\tb%", "a\tb_", "a\tb");
    }
    void makesNamesThatFilesCanBear() {
        QFETCH(QString, name);
        QTEST(sanitizeFileName(name, QStringLiteral("_")), "clean");
        QTEST(sanitizeFileName(name, QString()), "withNothing");
    }

    void namesStandAsAUserCounts() {
        const QLocale before;
        for (const QLocale& locale : {QLocale(QLocale::English), QLocale(QLocale::Japanese)}) {
            QLocale::setDefault(locale);
            QStringList names{QStringLiteral("g10"), QStringLiteral("g9"), QStringLiteral("a100")};
            std::sort(names.begin(), names.end(), countingOrder());
            QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("a100 g9 g10"));
        }
        QLocale::setDefault(before);
    }

    void measuresTheVolumeOfAPath() {
        const auto free = static_cast<double>(QStorageInfo::root().bytesFree());
        const auto measured = static_cast<double>(freeBytes(QStringLiteral("/no/such/folder")));
        QVERIFY(free > 0.0);
        QVERIFY(std::abs(measured - free) < 0.05 * free); // others write to the disk meanwhile
        QCOMPARE(freeBytes(QStringLiteral("Q:/videos")), quint64(0));
        QCOMPARE(freeBytes(QString()), quint64(0));
    }

    void findsTheGreatestCommonDivisor() {
        QCOMPARE(greatestCommonDivisor(1000, 750), 250U);
        QCOMPARE(greatestCommonDivisor(0, 125), 125U);
        QCOMPARE(greatestCommonDivisor(125, 0), 125U);
        QCOMPARE(greatestCommonDivisor(4294967291U, 4294967279U), 1U);
    }

    void roundsToDigits() {
        QCOMPARE(roundToDigits(1.2345, 4), 1.235);
        QCOMPARE(roundToDigits(2.5, 1), 3.0);
        QCOMPARE(roundToDigits(2.5, 0), 3.0);
        QCOMPARE(roundToDigits(-2.5, 1), -3.0);
        QCOMPARE(floorToDigits(2.5, 0), 3.0);
        QCOMPARE(floorToDigits(-2.5, 1), -2.0);
        QCOMPARE(floorToDigits(1.96, 2), 2.0);
        QCOMPARE(floorToDigits(0.12345, 5), 0.1235);
        QCOMPARE(floorToDigits(1e15, 5), 1e15);
    }

    void findsTheNearestValue() {
        QCOMPARE(nearestValue(3.2, {1.0, 3.0, 5.0}), 3.0);
        QCOMPARE(nearestValue(4.0, {1.0, 3.0, 5.0}), 5.0); // of equal distances the later one
        QCOMPARE(nearestValue(4.0, {5.0, 3.0}), 3.0);
        QCOMPARE(nearestValue(0.0, {0.00004, 0.00003, 0.5}), 0.0); // equal, and rounded
        QCOMPARE(nearestValue(2.0, {2.00006}), 2.0001);
        QCOMPARE(nearestValue(2.5, {}), 2.5);
    }

    void mapsARectangleIntoTheUsersViewAndBack() {
        TestRig rig;
        // A turn by 90 degrees of an image that is 600 pixels high.
        rig.camera.onMapOriginalToUserview = [](const QPointF& p, int) {
            return QPointF(600 - p.y(), p.x());
        };
        rig.camera.onMapUserviewToOriginal = [](const QPointF& p) { return QPointF(p.y(), 600 - p.x()); };
        const QRect original(10, 20, 300, 200);
        const QRect view = mapRectToUserview(&rig.host, &rig.camera, original);
        QCOMPARE(view, QRect(380, 10, 200, 300));
        QCOMPARE(mapRectToOriginal(&rig.host, &rig.camera, view), original);
    }

    void takesTheSizeInAReducedImageFromTheInput() {
        TestRig rig;
        rig.camera.onHasImageScale = [](int) { return true; };
        rig.camera.onGetImageScale = [] { return 2; };
        rig.host.onIsToolActive3 = [](const QString& name, DOC_Interface*, bool) {
            return name == QLatin1String("binning");
        };
        rig.camera.onGetBinningLevel = [] { return 1; };
        rig.camera.onMapOriginalToUserview = [](const QPointF& p, int) { return p / 4; };
        rig.camera.onMapUserviewToOriginal = [](const QPointF& p) { return p * 4; };
        QCOMPARE(mapRectToUserview(&rig.host, &rig.camera, {40, 80, 203, 3}), QRect(10, 20, 50, 1));
        QCOMPARE(mapRectToOriginal(&rig.host, &rig.camera, {10, 20, 50, 1}), QRect(40, 80, 200, 4));
        rig.camera.onIsAxisSwapped = [] { return true; };
        QCOMPARE(mapRectToUserview(&rig.host, &rig.camera, {40, 80, 400, 80}), QRect(10, 20, 20, 100));
        QCOMPARE(mapRectToOriginal(&rig.host, &rig.camera, {10, 20, 20, 100}), QRect(40, 80, 400, 80));
        // From a page that sends nonsense.
        QCOMPARE(mapRectToOriginal(&rig.host, &rig.camera, {0, 0, 1 << 30, -5}), QRect(0, -20, 1, 1 << 24));
    }

    void failsWithoutADocument() {
        TestRig rig;
        LogCapture log;
        QVERIFY_EXCEPTION_THROWN(mapRectToUserview(&rig.host, nullptr, {0, 0, 1, 1}), DOC_Exception);
        QVERIFY_EXCEPTION_THROWN(mapRectToOriginal(&rig.host, nullptr, {0, 0, 1, 1}), DOC_Exception);
    }

    void aCameraThatCantRestartLeavesTheOthersTo() {
        TestRig rig;
        FakeCamera broken(rig.host.calls);
        broken.onRestartTransfer = [](bool) { throw std::runtime_error("no transfer"); };
        constexpr DOCKEY kBroken = 8;
        rig.host.onDocByKey = [&](DOCKEY key, bool) -> DOC_Interface* {
            return key == kBroken ? &broken : &rig.camera;
        };
        rig.host.onIsRestartNeeded = [] { return true; };
        rig.host.onGetSelectedCameraKeys = [](int) { return QList<DOCKEY>{kBroken, TestRig::kKey}; };
        { const LiveSuspendGuard guard(&rig.host, false, true); }
        QCOMPARE(rig.host.calls.count(QStringLiteral("DOC_Transfer.restartTransfer")), 2);
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostApplication.handleError")), 1);
    }
};

QTEST_MAIN(tst_Utilities)
#include "tst_utilities.moc"

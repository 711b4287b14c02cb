#include "livecontrol/foundation/DeviceOperations.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/interface/APP_Exception.h"
#include "tests/support/LogCapture.h"

#include <QLocale>
#include <QtTest>

class tst_Exceptions : public QObject {
    Q_OBJECT

private slots:
    void logsEachClassOfItsOwnAtItsSource() {
        LogCapture log;
        const DOC_ReadFileException error(QStringLiteral("/images/\u30ab\u30e1\u30e9.txt"));
        QCOMPARE(QByteArray(error.what()), QByteArray("File read failed."));
        QCOMPARE(error.errorCode(), 1);
        QCOMPARE(log.lines().size(), 2);
        QCOMPARE(log.lines().at(0).text,
                 QStringLiteral("APP_Exception : [message:File read failed.] [errorCode:1] "));
        QVERIFY(log.lines().at(1).text.startsWith(QStringLiteral("DOC_FileException : ")));
        QVERIFY(log.lines().at(1).text.contains(QStringLiteral("[path:/images/\u30ab\u30e1\u30e9.txt]")));
        for (const LogCapture::Line& line : log.lines()) {
            QCOMPARE(line.type, QtCriticalMsg);
            QVERIFY(!line.hasPlace);
        }
    }

    void keepsTheMessageOfACameraFailureOutOfWhat() {
        LogCapture log;
        const DOC_DeviceException error(QStringLiteral("shutter refused"), 12);
        QCOMPARE(QByteArray(error.what()), QByteArray("Doc Error."));
        QCOMPARE(error.errorCode(), 12);
        QCOMPARE(log.with(QStringLiteral("[message:shutter refused] [errorCode:12]")).size(), 1);
    }

    void survivesTheWayOutOfAPoolThread() {
        LogCapture log;
        const APP_ConcurrentException carrier(UTL_Exception(QStringLiteral("Invalid filename."), 3));
        const std::unique_ptr<APP_ConcurrentException> copy(carrier.clone());
        QVERIFY_EXCEPTION_THROWN(copy->raise(), APP_ConcurrentException);
        QCOMPARE(QByteArray(copy->exception().what()), QByteArray("Invalid filename."));
        QCOMPARE(copy->exception().errorCode(), 3);
    }

    void namesEveryCameraOperation() {
        const QMap<QString, QString>& operations = deviceOperations();
        QCOMPARE(operations.size(), 91); // with the empty key
        QCOMPARE(operations.value(QString()), QString());
        QCOMPARE(operations.value(QStringLiteral("KVC_SetShutterSpeedFps")),
                 QStringLiteral("Set the shutter speed"));
        const QList<QString> texts = operations.values();
        QCOMPARE(texts.count(QStringLiteral("?")), 16);
        QCOMPARE(texts.count(QString()), 1);
    }

    void tracesAnOperation() {
        LogCapture log;
        { const OperationTrace trace(QStringLiteral("A::b"), traceArgs({{"docKey", -1}, {"on", true}})); }
        QCOMPARE(log.lines().size(), 2);
        QCOMPARE(log.lines().at(0).text, QStringLiteral("[ENTER] \"A::b\" \"[docKey:Invalid] [on:true]\""));
        QCOMPARE(log.lines().at(1).text, QStringLiteral("[LEAVE] \"A::b\""));
        QCOMPARE(log.lines().at(0).type, QtInfoMsg);
    }

    void groupsDigitsByTheLocaleOnlyIfWanted() {
        QLocale::setDefault(QLocale(QLocale::English));
        QCOMPARE(formatCount(10000, QStringLiteral("fps"), true), QStringLiteral("10,000 fps"));
        QCOMPARE(formatCount(10000, QStringLiteral("fps"), false), QStringLiteral("10000 fps"));
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(formatCount(10000, QString(), true), QStringLiteral("10.000"));
        QCOMPARE(formatCount(10000, QString(), false), QStringLiteral("10000"));
        QCOMPARE(formatCount(0, QStringLiteral("fps"), false), QStringLiteral("0 fps"));
        QVERIFY(formatCountNonZero(0, QStringLiteral("fps"), false).isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_Exceptions)
#include "tst_exceptions.moc"

#include "tests/support/FakeDocument.h"
#include "tests/support/FakeHost.h"
#include "tests/support/operations.h"

#include <QTest>

#include <stdexcept>

class tst_fakes : public QObject {
    Q_OBJECT

private slots:
    void recordsCallsInOrderWithArguments();
    void failsAsOftenAsTold();
    void callsTheFunctionThatWasSet();
    void tellsOverloadsAndSharedOperationsApart();
    void cameraIsADocumentWithAllInterfaces();
    void listsEveryOperationOnce();
};

void tst_fakes::recordsCallsInOrderWithArguments() {
    FakeHost host;
    FakeDocument document(host.calls);
    host.setPref(QStringLiteral("env/style"), 3);
    host.importTargets({1, kInvalidDockey});
    host.setHeadLedLaser(true, 4000000000UL);
    document.setConnected(false);
    host.info(QStringLiteral("text"), nullptr);

    QCOMPARE(
        host.calls.names(),
        QStringList({QStringLiteral("HostApplication.setPref"), QStringLiteral("HostPlayer.importTargets"),
                     QStringLiteral("HostApplication.setHeadLedLaser"),
                     QStringLiteral("DOC_Interface.setConnected"), QStringLiteral("HostApplication.info")}));
    QCOMPARE(host.calls.calls().at(0).args, QVariantList({QStringLiteral("env/style"), 3}));
    const QVariantList keys = {1U, kInvalidDockey};
    QCOMPARE(host.calls.calls().at(1).args, QVariantList({QVariant(keys)}));
    QCOMPARE(host.calls.lastArgs(QStringLiteral("HostApplication.setHeadLedLaser")).at(1).toULongLong(),
             4000000000ULL);
    QCOMPARE(host.calls.lastArgs(QStringLiteral("HostApplication.info")).at(1).toString(),
             QStringLiteral("null"));

    host.calls.clear();
    QCOMPARE(host.calls.count(QStringLiteral("HostApplication.setPref")), 0);
}

void tst_fakes::failsAsOftenAsTold() {
    FakeHost host;
    bool reached = false;
    host.onIsRecording = [&reached] { return reached = true; };
    host.calls.failNext(QStringLiteral("HostRecorder.isRecording"), throwing(std::out_of_range("cable")), 2);

    QVERIFY_EXCEPTION_THROWN(host.isRecording(), std::out_of_range);
    QVERIFY_EXCEPTION_THROWN(host.isRecording(), std::out_of_range);
    QVERIFY(!reached);
    QVERIFY(host.isRecording());
    QCOMPARE(host.calls.count(QStringLiteral("HostRecorder.isRecording")), 3);

    host.calls.failNext(QStringLiteral("HostHistory.undo"), throwing(std::runtime_error("always")), -1);
    for (int i = 0; i < 5; ++i) {
        QVERIFY_EXCEPTION_THROWN(host.undo(), std::runtime_error);
    }
    host.calls.failNext(QStringLiteral("HostHistory.undo"), nullptr, 0);
    host.undo();
}

void tst_fakes::callsTheFunctionThatWasSet() {
    FakeHost host;
    QCOMPARE(host.getMode(), 0);
    QCOMPARE(host.currentDocument(), nullptr);
    host.onGetPrefInt = [](const QString& name, const QVariant& defaultValue) {
        return name.size() + defaultValue.toInt();
    };
    host.onCollectSupportFiles = [](QStringList& files) { files.append(QStringLiteral("log.txt")); };

    QCOMPARE(host.getPrefInt(QStringLiteral("abc"), 4), 7);
    QStringList files;
    host.collectSupportFiles(files);
    QCOMPARE(files, QStringList(QStringLiteral("log.txt")));
}

void tst_fakes::tellsOverloadsAndSharedOperationsApart() {
    FakeHost host;
    host.onIsToolActive1 = [](const QString&) { return true; };
    QVERIFY(host.isToolActive(QStringLiteral("binning")));
    QVERIFY(!host.isToolActive(QStringLiteral("binning"), nullptr, false));

    host.onIsCycleView = [] { return true; };
    HostViews& views = host;
    HostApplication& application = host;
    QVERIFY(views.isCycleView() && application.isCycleView());
    QCOMPARE(host.calls.count(QStringLiteral("HostApplication.isCycleView")), 2);
}

void tst_fakes::cameraIsADocumentWithAllInterfaces() {
    CallRecorder log;
    FakeCamera camera(log);
    FakeDocument file(log);
    DOC_Interface* const cameraDocument = &camera;
    DOC_Interface* const fileDocument = &file;
    QVERIFY(dynamic_cast<DOC_Camera*>(cameraDocument) != nullptr);
    QVERIFY(dynamic_cast<DOC_Camera*>(fileDocument) == nullptr);

    camera.onGetHeadNumber = [] { return 2; };
    auto* const settings = dynamic_cast<DOC_Settings*>(cameraDocument);
    QVERIFY(settings != nullptr);
    QCOMPARE(settings->getHeadNumber(), 2);
    QCOMPARE(log.count(QStringLiteral("DOC_Settings.getHeadNumber")), 1);
}

void tst_fakes::listsEveryOperationOnce() {
    const QStringList& host = hostOperations();
    QCOMPARE(host.first(), QStringLiteral("HostApplication.updateAll"));
    QCOMPARE(host.last(), QStringLiteral("HostHistory.endMacro"));
    QVERIFY(host.contains(QStringLiteral("HostCameraControl.setShutterSpeed")));
    QVERIFY(documentOperations().contains(QStringLiteral("DOC_Settings.getCameraName")));
    for (QStringList names : {host, documentOperations()}) {
        QCOMPARE(names.removeDuplicates(), 0);
    }
}

QTEST_APPLESS_MAIN(tst_fakes)
#include "tst_fakes.moc"

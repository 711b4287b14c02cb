#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "tests/support/SmallRig.h"

#include <QtTest>

class tst_CallRecorder : public QObject {
    Q_OBJECT

private slots:
    void recordsNameAndArguments() {
        SmallRig small;
        CallRecorder& recorder = small.calls;
        recorder.enter("HostX", "set", 5UL, true, QStringLiteral("text"), small.camera("Colour")->face(),
                       QList<quint32>{1, 2}, static_cast<QObject*>(nullptr));
        const QList<CallRecorder::Call> calls = recorder.calls();
        QCOMPARE(calls.size(), 1);
        QCOMPARE(calls.first().name(), QStringLiteral("HostX.set"));
        QCOMPARE(calls.first().args,
                 (QVariantList{5ULL, true, QStringLiteral("text"), small.camera("Colour")->key(),
                               QVariantList{1U, 2U}, QVariant()}));
    }

    void whatTheViewerDoesItselfIsNotRecorded() {
        SmallRig small;
        Document* const document = small.camera("Mono");
        small.list.selectAll();
        small.list.setMode(HOST_MODE_MEMORY);
        document->frame();
        QVERIFY(small.calls.calls().isEmpty());
        dynamic_cast<DOC_Settings*>(document->face())->getCameraName(false);
        QCOMPARE(small.calls.count(QStringLiteral("DOC_Settings.getCameraName")), 1);
    }

    void anOrderedFailureComesAsOftenAsOrdered() {
        SmallRig small;
        CallRecorder& recorder = small.calls;
        DOC_Interface* const face = small.camera("Mono")->face();
        recorder.fail(QStringLiteral("DOC_Interface.isConnected"), QStringLiteral("gone"), 407, 2);
        QVERIFY(!face->isSelectedMulti()); // another operation
        for (int i = 0; i < 2; ++i) {
            try {
                face->isConnected();
                QFAIL("nothing was thrown");
            } catch (const APP_Exception& error) {
                QCOMPARE(error.errorCode(), 407);
                QCOMPARE(error.what(), "gone");
            }
        }
        QVERIFY(face->isConnected());
        QCOMPARE(recorder.count(QStringLiteral("DOC_Interface.isConnected")), 3); // failed calls count too
        recorder.fail(QStringLiteral("*"), QStringLiteral("all"), 0, 5);
        QVERIFY_EXCEPTION_THROWN(face->getHeads(false), APP_Exception);
        recorder.fail(QStringLiteral("*"), QString(), 0, 0);
        QVERIFY(face->getHeads(false).isEmpty());
    }

    void theListIsBounded() {
        CallRecorder recorder;
        for (size_t i = 0; i < CallRecorder::Limit + 10; ++i) {
            recorder.enter("HostX", "call", int(i));
        }
        QCOMPARE(recorder.calls().size(), int(CallRecorder::Limit));
        QCOMPARE(recorder.calls().first().args.first().toInt(), 10);
    }
};

QTEST_GUILESS_MAIN(tst_CallRecorder)
#include "tst_call_recorder.moc"

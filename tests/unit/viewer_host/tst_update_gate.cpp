// Updates that are held, that come while another one is sent, and that are asked for from outside.
#include "tests/unit/viewer_host/HostTest.h"

#include <QtTest>

class tst_UpdateGate : public QObject {
    Q_OBJECT

private slots:
    void anUpdateGoesOutAtOnce() {
        QList<int> sent;
        UpdateGate gate([&](int flags) { sent.append(flags); });
        gate.request(63);
        gate.request(1);
        QCOMPARE(sent, (QList<int>{63, 1}));
    }

    void heldUpdatesAreSentOnceAtTheLastRelease() {
        QList<int> sent;
        UpdateGate gate([&](int flags) { sent.append(flags); });
        gate.hold();
        gate.hold();
        gate.request(8);
        gate.request(1);
        gate.release();
        QVERIFY(sent.isEmpty());
        gate.release();
        QCOMPARE(sent, QList<int>{9});
        gate.hold();
        gate.release();
        gate.release(); // one too many
        QCOMPARE(sent.size(), 1);
        gate.request(2);
        QCOMPARE(sent.last(), 2);
    }

    void anUpdateFromWithinAnUpdateComesBehindIt() {
        QList<int> sent;
        int depth = 0;
        UpdateGate* inner = nullptr;
        UpdateGate gate([&](int flags) {
            QCOMPARE(++depth, 1);
            sent.append(flags);
            if (sent.size() < 3) {
                inner->request(16);
                inner->request(32);
            }
            --depth;
        });
        inner = &gate;
        gate.request(8);
        QCOMPARE(sent, QList<int>{8});
        QTRY_COMPARE(sent, (QList<int>{8, 48, 48}));
    }

    void aHoldThatEndsInAnUpdateSendsBehindIt() {
        QList<int> sent;
        int depth = 0;
        UpdateGate* inner = nullptr;
        UpdateGate gate([&](int flags) {
            QCOMPARE(++depth, 1);
            sent.append(flags);
            if (sent.size() == 1) {
                inner->hold();
                inner->request(16);
                inner->release();
            }
            --depth;
        });
        inner = &gate;
        gate.request(8);
        QCOMPARE(sent, QList<int>{8});
        QTRY_COMPARE(sent, (QList<int>{8, 16}));
    }

    void aDialogThatOpensInAnUpdateStillGetsUpdates() {
        int sent = 0;
        UpdateGate* inner = nullptr;
        UpdateGate gate([&](int) {
            if (++sent == 1) {
                inner->request(8);
                QTRY_COMPARE(sent, 2); // runs an event loop
            }
        });
        inner = &gate;
        gate.request(8);
        QCOMPARE(sent, 2);
    }

    void whatIsAskedForSoonComesWithAllElse() {
        QList<int> sent;
        UpdateGate gate([&](int flags) { sent.append(flags); });
        gate.requestSoon(8);
        gate.requestSoon(1);
        QVERIFY(sent.isEmpty());
        QTRY_COMPARE(sent, QList<int>{9});
        gate.hold();
        gate.request(16);
        gate.requestSoon(4);
        QCoreApplication::processEvents();
        QCOMPARE(sent.size(), 1);
        gate.releaseSoon();
        QCOMPARE(sent.size(), 1);
        QTRY_COMPARE(sent, (QList<int>{9, 20}));
    }

    void theHostHoldsBackAndCostsNoCommand() {
        HostTest test;
        const quint64 before = test.body("Mono")->commandCount();
        test.host.deterUpdateUI(true);
        test.host.updateAll(63, true);
        test.host.updateAll(-1, true);
        QCOMPARE(test.shell.pageUpdates, 0);
        test.host.deterUpdateUI(false);
        QCOMPARE(test.shell.pageUpdates, 1);
        test.host.updateAll(ViewerHost::UpdateViews, false);
        QCOMPARE(test.shell.pageUpdates, 1); // views alone
        QCOMPARE(test.shell.viewRefreshes, 2);
        QCOMPARE(test.body("Mono")->commandCount(), before);
    }

    void whatHappensAtACameraReachesThePages() {
        HostTest test;
        QCoreApplication::processEvents();
        const int before = test.shell.pageUpdates;
        test.head("Mono").changeFromOutside(QStringLiteral("rate"), 2000);
        test.body("Colour")->unplug();
        QTRY_COMPARE(test.shell.pageUpdates, before + 1); // both in one
        test.host.setClosing(true);
        test.host.updateAll(-1, true);
        QCOMPARE(test.shell.pageUpdates, before + 1);
        QVERIFY(test.host.isUpdateIgnore());
    }
};

QTEST_GUILESS_MAIN(tst_UpdateGate)
#include "tst_update_gate.moc"

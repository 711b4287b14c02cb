#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "simulator/device/WifiUnit.h"
#include "viewer/cameras/CameraError.h"
#include "viewer/cameras/Network.h"

#include <QtTest>
#include <thread>

class tst_Network : public QObject {
    Q_OBJECT

private slots:
    void tellsWhyACameraCannotBeReached_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("reason");
        QTest::newRow("same network") << QStringLiteral("192.168.0.10") << QString();
        QTest::newRow("another network")
            << QStringLiteral("192.168.1.10") << QStringLiteral("not in the network");
        QTest::newRow("taken") << QStringLiteral("192.168.0.1") << QStringLiteral("same address");
        QTest::newRow("no address") << QStringLiteral("300.1.1") << QStringLiteral("no valid address");
    }
    void tellsWhyACameraCannotBeReached() {
        QFETCH(QString, address);
        QFETCH(QString, reason);
        const NetworkAdapter adapter{QStringLiteral("A"), QStringLiteral("192.168.0.1"),
                                     QStringLiteral("255.255.255.0")};
        const QString told = network::whyUnreachable(adapter, address).english();
        QCOMPARE(told.isEmpty(), reason.isEmpty());
        QVERIFY2(told.contains(reason), qPrintable(told));
    }

    void findsWhatIsPluggedInAndSwitchedOn() {
        const std::unique_ptr<Rig> rig =
            Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        const int all = rig->search().size();
        QCOMPARE(all, 3); // the dummy answers nothing
        rig->bodies().at(0)->unplug();
        rig->bodies().at(1)->powerOff();
        const QList<FoundCamera> left = rig->search();
        QCOMPARE(left.size(), 1);
        QVERIFY(left.first().reachable);
        rig->bodies().at(2)->set(QStringLiteral("address"), QStringLiteral("10.0.0.5"));
        QVERIFY(!rig->search().first().reachable);
        QVERIFY(rig->bodies().at(0)->mac() != rig->bodies().at(1)->mac());
    }

    void joinsAnAccessPointOnlyWithItsPassword() {
        WifiUnit unit;
        unit.setTimes(1, 1);
        QVERIFY(unit.found().isEmpty());
        unit.scan();
        QVERIFY(unit.found().size() >= 3);
        unit.join(0);
        QVERIFY(!unit.isConnected());
        unit.setPassword(0, QStringLiteral("wrong"));
        unit.join(0);
        QVERIFY(!unit.isConnected());
        unit.setPassword(0, QStringLiteral("turbine-7"));
        unit.join(0);
        QVERIFY(unit.found().at(0).connected);
        unit.join(1); // an open one, in its place
        QVERIFY(unit.found().at(1).connected && !unit.found().at(0).connected);
        unit.leave();
        QVERIFY(!unit.isConnected());
        QVERIFY_EXCEPTION_THROWN(unit.join(unit.found().size() - 1), CameraError); // gone since the scan
        QVERIFY_EXCEPTION_THROWN(unit.join(99), CameraError);
    }

    void showsItsListWhileAWorkerScans() {
        WifiUnit unit;
        unit.setTimes(200, 1);
        std::thread worker([&unit] { unit.scan(); });
        QElapsedTimer timer;
        timer.start();
        QVERIFY(unit.found().isEmpty());
        QVERIFY(timer.elapsed() < 150);
        worker.join();
        QVERIFY(!unit.found().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_Network)
#include "tst_network.moc"

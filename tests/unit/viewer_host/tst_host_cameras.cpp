// Settings of the current and the selected cameras, support levels, the trigger, the search for cameras.
#include "tests/unit/viewer_host/HostTest.h"

#include "viewer/cameras/Network.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class tst_HostCameras : public QObject {
    Q_OBJECT

    std::unique_ptr<HostTest> m_test;

    QJsonObject rowOf(const char* name) {
        const QJsonArray rows = QJsonDocument::fromJson(m_test->host.discoverySearchAgain().toUtf8()).array();
        for (const QJsonValue& row : rows) {
            if (row[QStringLiteral("name")].toString() == QLatin1String(name)) {
                return row.toObject();
            }
        }
        return {};
    }

private slots:
    void init() { m_test = std::make_unique<HostTest>(); }

    void supportLevelsCompareTheSelectionWithTheCurrentOne() {
        // Dual slope: of "Mono" and "Twin".
        m_test->select({m_test->camera("Plain"), m_test->camera("Colour")});
        QCOMPARE(m_test->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_NOTHING));
        m_test->list.selectKeepCurrent(m_test->camera("Mono"));
        QCOMPARE(m_test->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_NOT_IN_CURRENT));
        m_test->list.setCurrent(m_test->camera("Mono"));
        QCOMPARE(m_test->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_CURRENT_AND_ANY));
        m_test->select({m_test->camera("Mono"), m_test->camera("Twin")});
        QCOMPARE(m_test->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_ALL));
        m_test->body("Mono")->unplug(); // counts no more, though it is current
        QCOMPARE(m_test->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_NOT_IN_CURRENT));
        QCOMPARE(m_test->host.existSupportedAutoExposure(), int(MULTIPLE_DOCS_NOT_IN_CURRENT));
    }

    void aNewCameraIsCalledByItsNumber() {
        const auto offered = [this] { return m_test->host.getDefaultCameraName(0); };
        const int next = m_test->list.devices().size() + 1;
        QCOMPARE(offered(), QStringLiteral("Camera %1").arg(next));
        m_test->rig.addDummy(offered(), QStringLiteral("999.999.999.7")); // in the network, not in the list
        QCOMPARE(offered(), QStringLiteral("Camera %1").arg(next + 1));
        m_test->body("Plain")->setName(offered());
        QCOMPARE(offered(), QStringLiteral("Camera %1").arg(next + 2));
    }

    void shutterRowsStandInTheSameOrderInEachUnit() {
        QList<unsigned long> raw;
        QList<unsigned long> shown;
        m_test->host.getShutterSpeedList(1, raw);
        m_test->host.getShutterSpeedList(0, shown);
        QCOMPARE(raw.size(), shown.size());
        QVERIFY(raw.size() > 10);
        for (int i = 1; i < raw.size(); ++i) {
            QVERIFY(raw.at(i) > raw.at(i - 1));
            QVERIFY(shown.at(i) < shown.at(i - 1));
        }
        m_test->host.setShutterSpeed(raw.at(4), true);
        QCOMPARE(m_test->host.getShutterSpeed(1), raw.at(4));
        QCOMPARE(m_test->host.getShutterSpeed(0), shown.at(4));
        m_test->preferences.setValue(QStringLiteral("display/ShutterSpeed"), 0);
        QVERIFY(
            m_test->host.currentDocument()->formatShutterSpeed(shown.at(4), 0).endsWith(QStringLiteral("s")));
    }

    void settersReachTheSelectedAndGettersTellTheCurrentOne() {
        m_test->select({m_test->camera("Mono"), m_test->camera("Twin", 0), m_test->camera("Twin", 1)});
        m_test->host.setRecordRate(4000);
        QCOMPARE(m_test->host.getRecordRate(), 4000UL);
        QCOMPARE(m_test->head("Twin", 1).settings().rate, 4000U);
        m_test->host.setDSShutterValue(3); // below what "Twin" can: it takes its own
        QCOMPARE(m_test->host.getDSShutterValue(), 3);
        QCOMPARE(m_test->head("Twin").settings().dualSlope, 5);
        // "Twin" has no lock of the resolution; "Mono" is locked all the same.
        QVERIFY_EXCEPTION_THROWN(m_test->host.setResolutionLockMode(true), CameraFailure);
        QVERIFY(m_test->host.getResolutionLockMode());
    }

    void readsNeverTouchTheWire() {
        m_test->host.setRecordRate(2000);
        const quint64 before = m_test->body("Mono")->commandCount();
        const qint64 time = m_test->rig.clock().now();
        QList<unsigned long> list;
        QList<ResolutionEntry> sizes;
        TriggerConfig config;
        m_test->host.getRecordRateList(list);
        m_test->host.getShutterSpeedList(1, list);
        m_test->host.getResolutionList(sizes);
        m_test->host.getTriggerConfig(config);
        m_test->host.existSupportedDSShutter();
        m_test->host.updateAll(-1, true);
        QCOMPARE(m_test->body("Mono")->commandCount(), before);
        QCOMPARE(m_test->rig.clock().now(), time);
    }

    void theTriggerKeepsWhatIsLocked() {
        const int total = m_test->host.getTotalFrames();
        m_test->host.setLockTriggerParam(2);
        m_test->host.applyTriggerParameter(2, 4, 0, 0, 25, 0, 0);
        TriggerConfig config;
        m_test->host.getTriggerConfig(config);
        QCOMPARE(config.lock, 2);
        QCOMPARE(config.mode, 4);
        QCOMPARE(config.beforeFrames + config.afterFrames, total);
        QVERIFY(qAbs(config.beforePercent - 25) < 0.1);
        m_test->host.applyTriggerParameter(0, 4, 100, 0, 0, 0, 0);
        m_test->host.getTriggerConfig(config);
        QCOMPARE(config.beforeFrames, 100);
        m_test->select({m_test->camera("Mono"), m_test->camera("Plain")});
        QVERIFY(m_test->host.isTriggerModeDifferent());
    }

    void aChangedMemoryIsSharedOutAsTheLockSays_data() {
        QTest::addColumn<int>("lock");
        QTest::newRow("before") << 0;
        QTest::newRow("after") << 1;
        QTest::newRow("ratio") << 2;
    }

    void aChangedMemoryIsSharedOutAsTheLockSays() {
        QFETCH(int, lock);
        m_test->host.setLockTriggerParam(lock);
        const int total = m_test->host.getTotalFrames();
        m_test->host.applyTriggerParameter(-1, 4, 0, total / 4, 0, 0, 0);
        m_test->host.setResolution(640, 480);
        const int larger = m_test->host.getTotalFrames();
        QVERIFY(larger > 2 * total);
        const int expected[] = {larger - (total - total / 4), total / 4, larger / 4};
        const int after = m_test->head("Mono").settings().afterFrames;
        QVERIFY2(qAbs(after - expected[lock]) <= 1, qPrintable(QString::number(after)));
        // A mode that shares nothing out costs no second command.
        m_test->host.applyTriggerParameter(-1, 0, 0, 0, 0, 0, 0);
        const quint64 commands = m_test->body("Mono")->commandCount();
        m_test->host.setResolution(1280, 1024);
        QCOMPARE(m_test->body("Mono")->commandCount(), commands + 1);
    }

    void camerasWithoutACountOfRecordingsAreLeftOut() {
        m_test->select({m_test->camera("Mono"), m_test->camera("Plain")});
        QCOMPARE(m_test->host.existSupportRandomTrgTimes(), int(MULTIPLE_DOCS_CURRENT_AND_ANY));
        m_test->host.setRandomTimesEnable(true);
        QVERIFY(m_test->host.isRandomTimesEnable());
        QVERIFY(!m_test->head("Plain").settings().randomTimes);
        const quint64 commands = m_test->body("Mono")->commandCount();
        m_test->host.setRandomTimesEnable(true); // comes with every edit; nothing to do
        QCOMPARE(m_test->body("Mono")->commandCount(), commands);

        int after = 0;
        int frames = 0;
        int count = 0;
        m_test->select({m_test->camera("Mono")});
        m_test->host.setTriggerModeParameters(7, 0, 60, 0, 200, 5);
        m_test->host.getTriggerParameters(after, frames, count);
        QCOMPARE(QList<int>({after, frames, count}), QList<int>({60, 200, 5}));
        m_test->host.applyTriggerParameter(2, 7, 0, 0, 25, 200, 5); // of the recording, not of the memory
        QCOMPARE(m_test->head("Mono").settings().afterFrames, 150);
        TriggerConfig config;
        m_test->host.getTriggerConfig(config);
        QCOMPARE(QList<int>({config.beforeFrames, config.randomFrames, config.randomCount}),
                 QList<int>({50, 200, 5}));
        QVERIFY_EXCEPTION_THROWN(m_test->host.applyTriggerParameter(1, 7, 0, 201, 0, 200, 5), CameraFailure);
    }

    // A mode's own share, made for another memory, is made to fit as the lock says.
    void aModeThatComesBackFitsTheMemoryOfNow_data() { aChangedMemoryIsSharedOutAsTheLockSays_data(); }

    void aModeThatComesBackFitsTheMemoryOfNow() {
        QFETCH(int, lock);
        m_test->host.setLockTriggerParam(lock);
        const int total = m_test->host.getTotalFrames();
        m_test->host.applyTriggerParameter(-1, 4, 0, total / 4, 0, 0, 0);
        m_test->host.setTriggerModeParameters(0, 0, total / 4, 0, 0, 0);
        m_test->host.setResolution(640, 480);
        const int larger = m_test->host.getTotalFrames();
        m_test->host.setTriggerModeParameters(4, 0, total / 4, 0, 0, 0);
        const int expected[] = {larger - (total - total / 4), total / 4, larger / 4};
        const int after = m_test->head("Mono").settings().afterFrames;
        QVERIFY2(qAbs(after - expected[lock]) <= 1, qPrintable(QString::number(after)));
    }

    // By name where not all have lost the same, and also of those that took it while another refused.
    void whatAChangeTookAlongNamesWhoseItWas() {
        QStringList lines;
        QObject::connect(&m_test->host.changeNotes(), &ChangeNotes::told,
                         [&lines](const QString& line) { lines.append(line); });
        m_test->select({m_test->camera("Mono"), m_test->camera("Colour")});
        m_test->body("Colour")->faults().refuseNext(1, QStringLiteral("busy"));
        const quint32 fast = m_test->head("Mono").rateList().last();
        QVERIFY_EXCEPTION_THROWN(m_test->host.setRecordRate(fast), CameraFailure);
        QVERIFY(m_test->head("Mono").settings().resolution != m_test->head("Mono").maxResolution());
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().contains(QStringLiteral("Mono: ")) &&
                     !lines.first().contains(QStringLiteral("Colour")),
                 qPrintable(lines.first()));
        m_test->host.changeNotes().undo();
        QCOMPARE(m_test->head("Mono").settings().resolution, m_test->head("Mono").maxResolution());
        // It goes with the next change of one of its cameras, whoever makes it, and with no other's.
        m_test->select({m_test->camera("Mono")});
        m_test->list.setDisplayFormat([] { // exposure times that fit the value
            DisplayFormat format;
            format.shutter.unit = ShutterFormat::CameraUnit + 1;
            return format;
        });
        m_test->host.setRecordRate(fast);
        QVERIFY2(lines.last().contains(QStringLiteral(": 1.00 ms \u2192 5.00 \u00b5s,")),
                 qPrintable(lines.last()));
        m_test->head("Plain").changeFromOutside(QStringLiteral("rate"),
                                                m_test->head("Plain").rateList().first());
        m_test->head("Mono").moveLens(LensAxis::Focus, 100).result(); // of which no line tells
        m_test->rig.clock().advanceMs(5000);
        QVERIFY(!lines.last().isEmpty());
        m_test->head("Mono").changeFromOutside(QStringLiteral("rate"),
                                               m_test->head("Mono").rateList().first());
        QCOMPARE(lines.last(), QString());
        // Also with a change that takes nothing along.
        m_test->host.setRecordRate(fast);
        m_test->host.setResolution(640, 480);
        m_test->host.setRecordRate(fast);
        QVERIFY(!lines.last().isEmpty());
        m_test->host.setRecordRate(fast);
        QCOMPARE(lines.last(), QString());
    }

    void aSearchTellsWhatItFoundBesideTheListed() {
        QStringList told;
        QObject::connect(&m_test->list, &DocumentList::told,
                         [&told](const QString& text) { told.append(text); });
        m_test->list.remove(m_test->camera("Plain"));
        m_test->body("Colour")->disconnectLink();
        m_test->host.findCameras(QStringLiteral("192.168.0.0"));
        m_test->host.findCameras(QStringLiteral("192.168.0.13"));
        const QString text = QStringLiteral("Cameras found: %1; already in the list: %2");
        QCOMPARE(told, QStringList({text.arg(2).arg(2), text.arg(0).arg(1)}));
    }

    void aSearchByAddressLinksWhatAnswersThere() {
        m_test->list.removeAll();
        for (SimulatedBody* const body : m_test->rig.bodies()) {
            body->disconnectLink();
        }
        m_test->body("Plain")->unplug();
        m_test->host.findCameras(QStringLiteral("192.168.0.0"));
        QCOMPARE(m_test->host.listCameraKeys(true, false).size(), 4); // two heads; not the unplugged one
        m_test->host.findCameras(QStringLiteral("10.0.0.0"));
        QCOMPARE(m_test->host.listCameraKeys(false, false).size(), 4);
        m_test->body("Mono")->unplug();
        m_test->body("Mono")->plug();
        QVERIFY(!m_test->body("Mono")->isConnected());
        m_test->host.updateCameras();
        QVERIFY(m_test->body("Mono")->isConnected());

        m_test->body("Mono")->powerOff();
        m_test->body("Mono")->powerOn();
        m_test->host.updateCameras();
        QVERIFY(!m_test->body("Mono")->isConnected()); // it boots yet
        m_test->rig.clock().advanceMs(m_test->body("Mono")->model().bootTimeMs);
        m_test->host.updateCameras();
        QVERIFY(m_test->body("Mono")->isConnected());
    }

    void aCameraInAForeignNetworkIsFoundCorrectedAndLinked() {
        m_test->body("Colour")->disconnectLink();
        m_test->body("Colour")->assignNetwork(QStringLiteral("10.9.9.9"), QStringLiteral("255.0.0.0"),
                                              QString());
        QJsonObject row = rowOf("Colour");
        QVERIFY(!row[QStringLiteral("reachable")].toBool());
        QVERIFY(!row[QStringLiteral("reason")].toString().isEmpty());
        m_test->host.setDiscoveryNetwork(0, network::toNumber(QStringLiteral("192.168.0.77")),
                                         network::toNumber(QStringLiteral("255.255.255.0")), 0,
                                         row[QStringLiteral("mac")].toString());
        row = rowOf("Colour");
        QVERIFY(row[QStringLiteral("reachable")].toBool());
        QVERIFY(!row[QStringLiteral("connected")].toBool());
        m_test->host.connectCameras({row[QStringLiteral("id")].toString()});
        QVERIFY(rowOf("Colour")[QStringLiteral("connected")].toBool());
        const CameraBody& body = *m_test->body("Colour");
        m_test->host.editCamera(m_test->camera("Colour")->key(), QString(), body.address(), body.mask(),
                                QStringLiteral("192.168.0.250"), true); // the gateway alone
        QCOMPARE(body.gateway(), QStringLiteral("192.168.0.250"));
        m_test->body("Colour")->unplug();
        QVERIFY_EXCEPTION_THROWN(m_test->host.setDiscoveryNetwork(0, 0xC0A8004EU, 0xFFFFFF00U, 0, body.mac()),
                                 CameraFailure);
    }

    void anAddressStandsInTheListOnce() {
        const int before = m_test->list.cameras().size();
        QVERIFY_EXCEPTION_THROWN(
            m_test->host.addCamera(QStringLiteral("Mine"), QStringLiteral("192.168.0.11"), false, true),
            CameraFailure);
        QVERIFY(m_test->body("Mono")); // keeps its name
        QVERIFY_EXCEPTION_THROWN(m_test->host.editCamera(m_test->camera("Plain")->key(), QString(),
                                                         QStringLiteral("192.168.0.11"),
                                                         QStringLiteral("255.255.255.0"), QString(), true),
                                 CameraFailure);
        QCOMPARE(m_test->body("Plain")->address(), QStringLiteral("192.168.0.13"));
        const QString mac = rowOf("Plain")[QStringLiteral("mac")].toString();
        m_test->list.remove(m_test->camera("Mono")); // still answers, though it isn't listed
        QVERIFY_EXCEPTION_THROWN(
            m_test->host.setDiscoveryNetwork(0, network::toNumber(QStringLiteral("192.168.0.11")),
                                             0xFFFFFF00U, 0, mac),
            CameraFailure);
        QCOMPARE(m_test->list.cameras().size(), before - 1);
        m_test->host.addCamera(QStringLiteral("Mine"), QStringLiteral("192.168.0.11"), false, true);
        QCOMPARE(m_test->camera("Mine")->body()->address(), QStringLiteral("192.168.0.11"));
        m_test->list.remove(m_test->camera("Mine"));
        m_test->body("Mine")->disconnectLink();
        m_test->host.addCamera(QStringLiteral("Mine"), QStringLiteral("192.168.0.11"), false, false);
        QVERIFY(!m_test->camera("Mine")->isConnected()); // nobody wished a link
    }

    void theAddressOfferedForANewCameraIsFree() {
        const auto offered = [this](const char* wanted) {
            m_test->preferences.setValue(QStringLiteral("cameraconnection/AddIPDefault"),
                                         QLatin1String(wanted));
            return m_test->host.getPrefString(QStringLiteral("cameraconnection/AddIPDefault"), QString(), 0);
        };
        QCOMPARE(offered("192.168.0.10"), QStringLiteral("192.168.0.10"));
        QCOMPARE(offered("192.168.0.12"), QStringLiteral("192.168.0.15"));
        QCOMPARE(offered("192.168.0.1"), QStringLiteral("192.168.0.2")); // this computer's own
        QCOMPARE(offered("nothing"), QStringLiteral("nothing"));
        m_test->body("Mono")->assignNetwork(QStringLiteral("10.0.0.254"), QString(), QString());
        QCOMPARE(offered("10.0.0.254"), QStringLiteral("10.0.0.1"));
    }

    void aDummyThatWasDeletedLeavesItsNameAndAddress() {
        m_test->list.remove(m_test->camera("Dummy"));
        m_test->host.addCamera(QStringLiteral("Other"), QStringLiteral("999.999.999.1"), true, true);
        m_test->host.addCamera(QStringLiteral("Dummy"), QStringLiteral("999.999.999.2"), true, true);
        QCOMPARE(m_test->camera("Dummy")->body()->address(), QStringLiteral("999.999.999.2"));
        QVERIFY_EXCEPTION_THROWN(
            m_test->host.addCamera(QStringLiteral("New"), QStringLiteral("999.999.999.2"), true, true),
            CameraFailure);
    }

    void aCameraTakesNoAddressThatIsNone_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("mask");
        const auto row = [](const char* address, const char* mask) {
            QTest::newRow(address) << QString::fromLatin1(address) << QString::fromLatin1(mask);
        };
        row("255.1.1.1", "255.255.255.0"); // what is left of 300.1.1.1
        row("127.0.0.1", "255.0.0.0");
        row("192.168.0.255", "255.255.255.0");
        row("10.1.0.0", "255.255.0.0");
        row("192.168.0.20", "255.0.255.0");
        row("192.168.0.21", "0.0.0.0");
        row("192.168.0.22", "255.255.255.255");
        row("192.168.0.1", "255.255.255.0"); // this computer's own
    }
    void aCameraTakesNoAddressThatIsNone() {
        QFETCH(QString, address);
        QFETCH(QString, mask);
        const QString mac = rowOf("Plain")[QStringLiteral("mac")].toString();
        QVERIFY_EXCEPTION_THROWN(m_test->host.editCamera(m_test->camera("Plain")->key(), QString(), address,
                                                         mask, QString(), true),
                                 CameraFailure);
        QVERIFY_EXCEPTION_THROWN(
            m_test->host.setDiscoveryNetwork(0, network::toNumber(address), network::toNumber(mask), 0, mac),
            CameraFailure);
        QCOMPARE(m_test->body("Plain")->address(), QStringLiteral("192.168.0.13"));
        QCOMPARE(m_test->body("Plain")->mask(), QStringLiteral("255.255.255.0"));
    }

    void camerasAreAddedByHandAndEdited() {
        m_test->host.addCamera(QStringLiteral("Stand-in"), QStringLiteral("999.999.999.2"), true, true);
        CameraDocument* const dummy = m_test->camera("Stand-in");
        QVERIFY(dummy && !dummy->isConnected());
        QVERIFY_EXCEPTION_THROWN(
            m_test->host.addCamera(QStringLiteral("None"), QStringLiteral("192.168.0.99"), false, true),
            CameraFailure);
        QVERIFY_EXCEPTION_THROWN(
            m_test->host.addCamera(QStringLiteral("Mono"), QStringLiteral("999.999.999.3"), true, false),
            CameraFailure);
        const QString gateway = m_test->body("Plain")->gateway();
        const quint64 before = m_test->body("Plain")->commandCount();
        m_test->host.editCamera(m_test->camera("Plain")->key(), QStringLiteral("Renamed"),
                                QStringLiteral("192.168.0.13"), QStringLiteral("255.255.255.0"), gateway,
                                true);
        QCOMPARE(m_test->body("Renamed")->commandCount(), before); // the name alone costs no command
        m_test->host.editCamera(m_test->camera("Renamed")->key(), QString(), QStringLiteral("192.168.0.50"),
                                QStringLiteral("255.255.255.0"), gateway, true);
        QCOMPARE(m_test->body("Renamed")->address(), QStringLiteral("192.168.0.50"));
        QCOMPARE(m_test->body("Renamed")->commandCount(), before + 1);
        m_test->host.editCamera(m_test->camera("Renamed")->key(), QString(), QStringLiteral("192.168.0.50"),
                                QStringLiteral("255.255.0.0"), gateway, true); // it may keep its address
        QCOMPARE(m_test->body("Renamed")->mask(), QStringLiteral("255.255.0.0"));
    }
};

QTEST_MAIN(tst_HostCameras)
#include "tst_host_cameras.moc"

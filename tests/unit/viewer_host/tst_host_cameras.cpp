// Settings of the current and the selected cameras, support levels, the trigger, the search for cameras.
#include "tests/unit/viewer_host/HostTest.h"

#include "viewer/cameras/Network.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class tst_HostCameras : public QObject {
    Q_OBJECT

    std::unique_ptr<HostTest> m;

    QJsonObject rowOf(const char* name) {
        const QJsonArray rows = QJsonDocument::fromJson(m->host.discoverySearchAgain().toUtf8()).array();
        for (const QJsonValue& row : rows) {
            if (row[QStringLiteral("name")].toString() == QLatin1String(name)) {
                return row.toObject();
            }
        }
        return {};
    }

private slots:
    void init() { m = std::make_unique<HostTest>(); }

    void supportLevelsCompareTheSelectionWithTheCurrentOne() {
        // Dual slope: of "Mono" and "Twin".
        m->select({m->camera("Plain"), m->camera("Colour")});
        QCOMPARE(m->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_NOTHING));
        m->list.selectKeepCurrent(m->camera("Mono"));
        QCOMPARE(m->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_NOT_IN_CURRENT));
        m->list.setCurrent(m->camera("Mono"));
        QCOMPARE(m->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_CURRENT_AND_ANY));
        m->select({m->camera("Mono"), m->camera("Twin")});
        QCOMPARE(m->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_ALL));
        m->body("Mono")->unplug(); // counts no more, though it is current
        QCOMPARE(m->host.existSupportedDSShutter(), int(MULTIPLE_DOCS_NOT_IN_CURRENT));
        QCOMPARE(m->host.existSupportedAutoExposure(), int(MULTIPLE_DOCS_NOTHING));
    }

    void shutterRowsStandInTheSameOrderInEachUnit() {
        QList<unsigned long> raw;
        QList<unsigned long> shown;
        m->host.getShutterSpeedList(1, raw);
        m->host.getShutterSpeedList(0, shown);
        QCOMPARE(raw.size(), shown.size());
        QVERIFY(raw.size() > 10);
        for (int i = 1; i < raw.size(); ++i) {
            QVERIFY(raw.at(i) > raw.at(i - 1));
            QVERIFY(shown.at(i) < shown.at(i - 1));
        }
        m->host.setShutterSpeed(raw.at(4), true);
        QCOMPARE(m->host.getShutterSpeed(1), raw.at(4));
        QCOMPARE(m->host.getShutterSpeed(0), shown.at(4));
        m->preferences.setValue(QStringLiteral("display/ShutterSpeed"), 0);
        QVERIFY(m->host.currentDocument()->formatShutterSpeed(shown.at(4), 0).endsWith(QStringLiteral("s")));
    }

    void settersReachTheSelectedAndGettersTellTheCurrentOne() {
        m->select({m->camera("Mono"), m->camera("Twin", 0), m->camera("Twin", 1)});
        m->host.setRecordRate(4000);
        QCOMPARE(m->host.getRecordRate(), 4000UL);
        QCOMPARE(m->head("Twin", 1).settings().rate, 4000U);
        m->host.setDSShutterValue(3); // below what "Twin" can: it takes its own
        QCOMPARE(m->host.getDSShutterValue(), 3);
        QCOMPARE(m->head("Twin").settings().dualSlope, 5);
        // "Twin" has no lock of the resolution; "Mono" is locked all the same.
        QVERIFY_EXCEPTION_THROWN(m->host.setResolutionLockMode(true), CameraFailure);
        QVERIFY(m->host.getResolutionLockMode());
    }

    void readsNeverTouchTheWire() {
        m->host.setRecordRate(2000);
        const quint64 before = m->body("Mono")->commandCount();
        const qint64 time = m->rig.clock().now();
        QList<unsigned long> list;
        QList<ResolutionEntry> sizes;
        TriggerConfig config;
        m->host.getRecordRateList(list);
        m->host.getShutterSpeedList(1, list);
        m->host.getResolutionList(sizes);
        m->host.getTriggerConfig(config);
        m->host.existSupportedDSShutter();
        m->host.updateAll(-1, true);
        QCOMPARE(m->body("Mono")->commandCount(), before);
        QCOMPARE(m->rig.clock().now(), time);
    }

    void theTriggerKeepsWhatIsLocked() {
        const int total = m->host.getTotalFrames();
        m->host.setLockTriggerParam(2);
        m->host.applyTriggerParameter(2, 4, 0, 0, 25, 0, 0);
        TriggerConfig config;
        m->host.getTriggerConfig(config);
        QCOMPARE(config.lock, 2);
        QCOMPARE(config.mode, 4);
        QCOMPARE(config.beforeFrames + config.afterFrames, total);
        QVERIFY(qAbs(config.beforePercent - 25) < 0.1);
        m->host.applyTriggerParameter(0, 4, 100, 0, 0, 0, 0);
        m->host.getTriggerConfig(config);
        QCOMPARE(config.beforeFrames, 100);
        m->select({m->camera("Mono"), m->camera("Plain")});
        QVERIFY(m->host.isTriggerModeDifferent());
    }

    void aSearchByAddressLinksWhatAnswersThere() {
        m->list.removeAll();
        for (CameraBody* const body : m->rig.bodies()) {
            body->disconnectLink();
        }
        m->body("Plain")->unplug();
        m->host.findCameras(QStringLiteral("192.168.0.0"));
        QCOMPARE(m->host.listCameraKeys(true, false).size(), 4); // two heads; not the unplugged one
        m->host.findCameras(QStringLiteral("10.0.0.0"));
        QCOMPARE(m->host.listCameraKeys(false, false).size(), 4);
        m->body("Mono")->unplug();
        m->body("Mono")->plug();
        QVERIFY(!m->body("Mono")->isConnected());
        m->host.updateCameras();
        QVERIFY(m->body("Mono")->isConnected());
    }

    void aCameraInAForeignNetworkIsFoundCorrectedAndLinked() {
        m->body("Colour")->disconnectLink();
        m->body("Colour")->assignNetwork(QStringLiteral("10.9.9.9"), QStringLiteral("255.0.0.0"), QString());
        QJsonObject row = rowOf("Colour");
        QVERIFY(!row[QStringLiteral("reachable")].toBool());
        QVERIFY(!row[QStringLiteral("reason")].toString().isEmpty());
        m->host.setDiscoveryNetwork(0, network::toNumber(QStringLiteral("192.168.0.77")),
                                    network::toNumber(QStringLiteral("255.255.255.0")), 0,
                                    row[QStringLiteral("mac")].toString());
        row = rowOf("Colour");
        QVERIFY(row[QStringLiteral("reachable")].toBool());
        QVERIFY(!row[QStringLiteral("connected")].toBool());
        m->host.connectCameras({row[QStringLiteral("id")].toString()});
        QVERIFY(rowOf("Colour")[QStringLiteral("connected")].toBool());
    }

    void camerasAreAddedByHandAndEdited() {
        m->host.addCamera(QStringLiteral("Stand-in"), QStringLiteral("999.999.999.2"), true, true);
        CameraDocument* const dummy = m->camera("Stand-in");
        QVERIFY(dummy && !dummy->isConnected());
        QVERIFY_EXCEPTION_THROWN(
            m->host.addCamera(QStringLiteral("None"), QStringLiteral("192.168.0.99"), false, true),
            CameraFailure);
        QVERIFY_EXCEPTION_THROWN(
            m->host.addCamera(QStringLiteral("Mono"), QStringLiteral("999.999.999.3"), true, false),
            CameraFailure);
        const quint64 before = m->body("Plain")->commandCount();
        m->host.editCamera(m->camera("Plain")->key(), QStringLiteral("Renamed"),
                           QStringLiteral("192.168.0.13"), QStringLiteral("255.255.255.0"), QString(), true);
        QCOMPARE(m->body("Renamed")->commandCount(), before); // the name alone costs no command
        m->host.editCamera(m->camera("Renamed")->key(), QString(), QStringLiteral("192.168.0.50"),
                           QStringLiteral("255.255.255.0"), QString(), true);
        QCOMPARE(m->body("Renamed")->address(), QStringLiteral("192.168.0.50"));
        QCOMPARE(m->body("Renamed")->commandCount(), before + 1);
    }
};

QTEST_MAIN(tst_HostCameras)
#include "tst_host_cameras.moc"

// The cards and drives in a camera.
#include "simulator/device/Rig.h"
#include "viewer/cameras/CheckedJson.h"
#include "viewer/cameras/JsonLines.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

class StorageTest : public QObject {
    Q_OBJECT

    static constexpr StorageKind SD = StorageKind::SDCard;
    static constexpr StorageKind Store = StorageKind::DockStore;
    std::unique_ptr<Rig> m_rig;
    SimulatedBody* m_body = nullptr;
    StorageUnit* m_storage = nullptr;

    template <class Action>
    QString reasonOf(Action action) {
        try {
            action();
        } catch (const CameraError& error) {
            return error.reason().english();
        }
        return QString();
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() {
        m_rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        m_body = m_rig->findName(QStringLiteral("Marlin"));
        m_storage = m_body->storage();
    }

    void aRigFileFillsTheSlots() {
        QCOMPARE(m_storage->slotCount(SD), 2);
        QVERIFY(!m_storage->slot(SD, 0).inserted && !m_storage->slot(SD, 2).enabled);
        const StorageRecord record = m_storage->record(SD, 1, 0);
        QVERIFY(record.date == 0x210305 && record.time == 0x094501 && record.frames == 3276);
        QCOMPARE(m_storage->record(SD, 1, 2).frames, 0U);
        QVERIFY(m_storage->slot(Store, 0).locked);
        QVERIFY(!m_rig->findName(QStringLiteral("Gemini"))->storage());
    }

    void aWrongCardIsToldWithItsPlace_data() {
        QTest::addColumn<QByteArray>("card");
        QTest::newRow("kind") << QByteArray(R"({"kind": "tape"})");
        QTest::newRow("slot") << QByteArray(R"({"kind": "cfast", "slot": 2})");
        QTest::newRow("frames") << QByteArray(R"({"kind": "sd", "records": [{"frames": 0}]})");
        QTest::newRow("key") << QByteArray(R"({"kind": "sd", "size": 3})");
    }
    void aWrongCardIsToldWithItsPlace() {
        QFETCH(QByteArray, card);
        const QByteArray text = R"({"cameras": [{"name": "A", "model": "mono12", "address": "10.0.0.1",
            "cards": [)" + card +
                                "]}]}";
        QVERIFY_EXCEPTION_THROWN(RigFile::parse(text, QStringLiteral("cards.json")), RigFileError);
    }

    void aFormatEmptiesTakesTimeAndCanBeRefused() {
        m_storage->setProtected(SD, 1, true);
        QVERIFY(
            reasonOf([&] { m_storage->format(SD, 1).result(); }).contains(QLatin1String("write protected")));
        QCOMPARE(m_storage->slot(SD, 1).records, 2);
        m_storage->setProtected(SD, 1, false);
        m_body->faults().refuseNext(1, reason("busy"));
        QCOMPARE(reasonOf([&] { m_storage->format(SD, 1).result(); }), QStringLiteral("busy"));
        const qint64 before = m_rig->clock().now();
        m_storage->format(SD, 1).result();
        QVERIFY(m_rig->clock().now() - before > qint64(m_body->commandTimeMs() * 1e6));
        QVERIFY(m_storage->slot(SD, 1).records == 0 && m_storage->slot(SD, 1).used == 0);
        m_body->unplug();
        QVERIFY(reasonOf([&] { m_storage->format(SD, 1).result(); }).contains(QLatin1String("no link")));
    }

    void aPulledCardIsMissedByWhatIsDoneWithIt() {
        m_storage->pullDuringNext(SD, 1);
        QCOMPARE(m_storage->record(SD, 1, 0).frames, 3276U);
        const QString gone = QStringLiteral("there is no card in slot 2");
        QCOMPARE(reasonOf([&] { m_storage->record(SD, 1, 1); }), gone);
        QCOMPARE(reasonOf([&] { m_storage->requireReadable(SD, 1); }), gone);
        m_storage->putBack(SD, 1);
        QCOMPARE(m_storage->slot(SD, 1).records, 2); // what was on it
        m_storage->pullDuringNext(SD, 1);
        QCOMPARE(reasonOf([&] { m_storage->format(SD, 1).result(); }), gone);
        m_storage->putBack(SD, 1);
        QCOMPARE(m_storage->slot(SD, 1).records, 2);
        CardContent raw;
        raw.formatted = false;
        m_storage->insert(SD, 0, raw);
        QVERIFY(
            reasonOf([&] { m_storage->requireReadable(SD, 0); }).contains(QLatin1String("not formatted")));
        m_storage->format(SD, 0).result();
        QVERIFY(m_storage->slot(SD, 0).formatted);
    }

    void passwordsStayUntilTheyAreChanged() {
        QVERIFY(!m_storage->unlock(Store, 0, QStringLiteral("wrong")) && m_storage->slot(Store, 0).locked);
        QVERIFY(m_storage->unlock(Store, 0, QStringLiteral("open")) && !m_storage->slot(Store, 0).locked);
        QVERIFY(!m_storage->setPassword(Store, 0, QStringLiteral("wrong"), QString()));
        QVERIFY(m_storage->setPassword(Store, 0, QStringLiteral("open"), QStringLiteral("new")));
        m_storage->pull(Store, 0);
        m_storage->putBack(Store, 0);
        QVERIFY(m_storage->slot(Store, 0).locked);
        QVERIFY(m_storage->unlock(Store, 0, QStringLiteral("new")));
    }

    void aFileOfARecordLiesInTheCardsFolder() {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("a.rch")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("frames") == 6);
        file.close();
        const QDir card(m_storage->slot(SD, 1).folder);
        QVERIFY(!card.exists());
        const quint64 written = m_storage->slot(SD, 1).written;
        m_storage->fill(SD, 1, {QStringLiteral("a"), 3, 0, 0}, file.fileName());
        QCOMPARE(card.entryList(QDir::Files), QStringList(QStringLiteral("a.rch")));
        QVERIFY(!reasonOf([&] { m_storage->fill(SD, 1, {}, file.fileName()); }).isEmpty()); // it is there
        QCOMPARE(m_storage->slot(SD, 1).records, 3);
        QCOMPARE(m_storage->slot(SD, 1).written, written + 3 * 64 * 1024);
        m_storage->format(SD, 1).result();
        QVERIFY(!card.exists());
    }
};

QTEST_GUILESS_MAIN(StorageTest)
#include "tst_storage.moc"

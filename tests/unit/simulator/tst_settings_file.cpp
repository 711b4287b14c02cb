// Settings of cameras as records: in files, whatever they hold, and in presets.

#include "simulator/device/Rig.h"
#include "simulator/settings/SettingBehavior.h"
#include "viewer/cameras/CheckedJson.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/cameras/settings/SettingsRecord.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

namespace {

QList<BodyRecord> recordsOf(const Rig& rig) {
    QList<BodyRecord> records;
    for (const SimulatedBody* const body : rig.bodies()) {
        if (!body->isDummy()) {
            records << SettingsRecord::of(*body);
        }
    }
    return records;
}

/// The state without what no file keeps: what is recorded, seen or turned by hand.
QJsonObject keptState(const SimulatedBody& body) {
    QJsonObject state = body.stateJson();
    QJsonArray heads;
    for (const SimulatedHead* const head : body.heads()) {
        QJsonObject kept = head->state();
        QJsonObject settings = kept[QStringLiteral("settings")].toObject();
        settings.remove(QStringLiteral("aperture"));
        kept[QStringLiteral("settings")] = settings;
        heads << kept;
    }
    state[QStringLiteral("heads")] = heads;
    return state;
}

/// The first line that differs of the two as text.
QString firstDifference(const QJsonObject& actual, const QJsonObject& expected) {
    const QList<QByteArray> now = QJsonDocument(actual).toJson().split('\n');
    const QList<QByteArray> then = QJsonDocument(expected).toJson().split('\n');
    const auto places = std::mismatch(now.begin(), now.end(), then.begin(), then.end());
    return places.first == now.end() ? QString() : QString::fromUtf8(*places.first + " /" + *places.second);
}

void apply(const BodyRecord& record, CameraBody& body) { SettingsRecord::apply(record, body).result(); }

/// Another value of a setting, as one that a camera may have.
QVariant another(const Setting& setting, const SimulatedHead& head) {
    const QVariant now = setting.get(head.settings());
    const SimulatedModel& model = head.model();
    const QLatin1String key(setting.key);
    if (key == QLatin1String("triggerMode")) {
        return model.triggerModes.last();
    }
    if (const auto offers = SettingBehaviors::of(setting).offers) {
        const QVariantList values = offers(head);
        return values.last() == now ? values.first() : values.last();
    }
    switch (setting.kind) {
    case Setting::Kind::OnOff:
        return !now.toBool();
    case Setting::Kind::Area:
        return QRect(0, 0, 64, 64);
    default:
        return now.toInt() == setting.min ? setting.min + 3 : setting.min;
    }
}

/// Another value of everything that the camera can change: of each row of the table, whatever others do to
/// it.
void disturb(SimulatedBody& body) {
    for (SimulatedHead* const head : body.heads()) {
        HeadSettings other = head->settings();
        for (const Setting& row : SettingTable::rows()) {
            const bool lacks = row.needs && !head->model().supports(*row.needs);
            if (!row.isKept() || row.isDerived || lacks) {
                continue;
            }
            const QVariant value = another(row, *head);
            if (SettingBehaviors::refusal(row, *head, other, value).isEmpty()) {
                SettingBehaviors::set(row, *head, other, value);
            }
        }
        head->adopt(other).result();
        if (head->lens().axis(LensAxis::Focus).drivable) {
            head->moveLens(LensAxis::Focus, head->lens().axis(LensAxis::Focus).min).result();
        }
    }
    if (body.model().supports(CameraFunction::FanControl)) {
        body.setFan(!body.isFanAsked()).result();
    }
    if (body.model().supports(CameraFunction::VariableChannels)) {
        body.head()
            ->storeVariableChannel(
                3, {body.model().rates.first(), body.model().resolutions.first(), QPoint(0, 0)})
            .result();
    }
    if (body.partitionCount() > 1) {
        body.setPartition(2).result();
    }
}

QString reasonOf(const QByteArray& text) {
    try {
        SettingsFile::read(text, QStringLiteral("a.zcsx"));
    } catch (const RigFileError& error) {
        return QString::fromUtf8(error.what());
    }
    return QString();
}

} // namespace

class tst_SettingsFile : public QObject {
    Q_OBJECT

    QStringList m_disturbed; // rows that had another value on some camera and came back

    void noteDisturbed(const SimulatedHead& head, const HeadSettings& before) {
        for (const Setting& row : SettingTable::rows()) {
            if (row.get(head.settings()) != row.get(before)) {
                m_disturbed.append(QLatin1String(row.group) + QLatin1Char('.') + QLatin1String(row.key));
            }
        }
    }

private slots:
    void everyRigComesBack_data() {
        QTest::addColumn<QString>("rig");
        const QStringList rigs = QDir(QStringLiteral(RIGS_FOLDER)).entryList({QStringLiteral("*.json")});
        QVERIFY(rigs.size() >= 6);
        for (const QString& rig : rigs) {
            QTest::newRow(qPrintable(rig)) << QStringLiteral(RIGS_FOLDER "/") + rig;
        }
    }
    void everyRigComesBack() {
        QFETCH(QString, rig);
        const auto cameras = Rig::load(rig, Clock::Mode::Stepped);
        for (SimulatedBody* const body : cameras->bodies()) {
            if (body->isDummy() || !body->isConnected()) {
                continue;
            }
            if (body->model().supports(CameraFunction::VariableChannels)) {
                body->head()
                    ->storeVariableChannel(
                        7, {body->model().rates.first(), body->model().resolutions.last(), QPoint(0, 0)})
                    .result();
                body->head()->setVariableChannel(7).result();
            }
            const QJsonObject before = keptState(*body);
            const QByteArray text = SettingsFile::write({SettingsRecord::of(*body)});
            const HeadSettings settings = body->head()->settings();
            disturb(*body);
            noteDisturbed(*body->head(), settings);
            cameras->clock().advanceMs(5000); // the lens comes to rest
            QVERIFY(keptState(*body) != before);
            apply(SettingsFile::read(text, QStringLiteral("a.zcsx")).first(), *body);
            cameras->clock().advanceMs(5000);
            QVERIFY2(keptState(*body) == before, qPrintable(firstDifference(keptState(*body), before)));
        }
    }

    // After all rigs, so that one of them has a camera for each row.
    void noRowIsLeftOut() {
        QStringList missing;
        for (const Setting& row : SettingTable::rows()) {
            const QString name = QLatin1String(row.group) + QLatin1Char('.') + QLatin1String(row.key);
            if (row.isKept() && !row.isDerived && !m_disturbed.contains(name)) {
                missing.append(name);
            }
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char(' '))));
    }

    // A file of another kind of camera gives what fits.
    void takesWhatItCan() {
        const auto rig = Rig::load(QStringLiteral(RIGS_FOLDER "/default.json"), Clock::Mode::Stepped);
        SimulatedBody* const mono = rig->findName(QStringLiteral("Marlin"));
        SimulatedBody* const color = rig->findName(QStringLiteral("Plover"));
        mono->head()->setResolution(QSize(640, 480)).result();
        mono->head()->setDualSlope(30).result();
        mono->head()->setTrigger(TriggerTwoStage, 1).result();
        apply(SettingsRecord::of(*mono), *color);
        const HeadSettings& taken = color->head()->settings();
        QCOMPARE(taken.resolution, QSize(640, 480));
        QCOMPARE(taken.dualSlope, 0);
        QVERIFY(color->model().triggerModes.contains(taken.triggerMode));
        // What is in force when the file is loaded bends nothing.
        BodyRecord faster = SettingsRecord::of(*mono);
        faster.heads.first().settings.rate = color->model().rates.last(); // runs at a small size only
        apply(faster, *color);
        const HeadSettings unbent = taken;
        QVERIFY(unbent.resolution != QSize(640, 480));
        color->head()->setResolutionLock(true).result();
        apply(faster, *color);
        QVERIFY(taken == unbent);
    }

    void refusesWhatIsNoSettingsFile_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("reason");
        const QByteArray good =
            SettingsFile::write(recordsOf(*Rig::load(QStringLiteral(RIGS_FOLDER "/one-camera.json"))));
        const auto changed = [&good](const char* from, const char* to) {
            QByteArray text = good;
            text.replace(from, to);
            Q_ASSERT(text != good);
            return text;
        };
        QTest::newRow("empty") << QByteArray() << QStringLiteral("empty");
        QTest::newRow("cut") << good.left(good.size() / 2) << QStringLiteral("a.zcsx:");
        QTest::newRow("binary") << QByteArray("PK\x03\x04\x00\x00", 6) << QStringLiteral("a.zcsx:");
        QTest::newRow("foreign") << QByteArray(R"({"title": "x", "cameras": []})")
                                 << QStringLiteral("no camera settings file");
        QTest::newRow("newer") << changed("\"version\": 1", "\"version\": 2")
                               << QStringLiteral("version 2, and this program reads version 1");
        QTest::newRow("no heads") << changed("\"heads\"", "\"tails\"") << QStringLiteral("heads");
        QTest::newRow("text for a number")
            << changed("\"triggerMode\": 0", "\"triggerMode\": \"0\"") << QStringLiteral("triggerMode");
        QTest::newRow("out of range")
            << changed("\"triggerMode\": 0", "\"triggerMode\": 99") << QStringLiteral("triggerMode");
        QTest::newRow("deep") << QByteArray(R"({"format": "zcsx", "version": 1, "cameras": )") +
                                     QByteArray(5000, '[')
                              << QStringLiteral("a.zcsx:");
        QTest::newRow("not a list") << QByteArray(R"({"format": "zcsx", "version": 1, "cameras": 7})")
                                    << QStringLiteral("cameras");
    }
    void refusesWhatIsNoSettingsFile() {
        QFETCH(QByteArray, text);
        QFETCH(QString, reason);
        QVERIFY2(reasonOf(text).contains(reason), qPrintable(reasonOf(text)));
    }

    void presetsComeBackAtOnceOrAtTheNextStart() {
        const auto rig = Rig::load(QStringLiteral(RIGS_FOLDER "/default.json"), Clock::Mode::Stepped);
        SimulatedBody& mono = *rig->findName(QStringLiteral("Marlin"));
        QVERIFY_EXCEPTION_THROWN(mono.loadPreset(2).result(), CameraError); // holds nothing
        QVERIFY_EXCEPTION_THROWN(mono.storePreset(mono.presetCount() + 1).result(), CameraError);
        mono.head()->setRate(500).result();
        mono.storePreset(2).result();
        QCOMPARE(mono.currentPreset(), 2);
        mono.head()->setRate(2000).result();
        mono.loadPreset(2).result();
        QCOMPARE(mono.head()->settings().rate, 500U);

        SimulatedBody& color = *rig->findName(QStringLiteral("Plover"));
        color.head()->setRate(250).result();
        color.storePreset(1).result();
        color.head()->setRate(1000).result();
        color.disconnectLink();
        color.loadPreset(1).result();
        QCOMPARE(color.head()->settings().rate, 1000U);
        color.powerOff();
        color.powerOn();
        rig->clock().advanceMs(5000);
        QCOMPARE(color.state(), CameraState::Live);
        QCOMPARE(color.head()->settings().rate, 250U);
        QCOMPARE(color.currentPreset(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsFile)
#include "tst_settings_file.moc"

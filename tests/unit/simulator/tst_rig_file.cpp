// Rig and model files: what they give, and that a wrong one says where it is wrong.
#include "simulator/device/Rig.h"
#include "viewer/cameras/CheckedJson.h"
#include "viewer/cameras/JsonLines.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class RigFileTest : public QObject {
    Q_OBJECT

private slots:
    void builtInRigsLoad_data() {
        QTest::addColumn<int>("bodies");
        QTest::addColumn<int>("heads");
        QTest::newRow("default") << 4 << 5;
        QTest::newRow("one-camera") << 1 << 1;
        QTest::newRow("two-alike") << 2 << 2;
        QTest::newRow("sixty-four") << 64 << 64;
        QTest::newRow("plain") << 2 << 2;
    }

    void builtInRigsLoad() {
        QFETCH(int, bodies);
        QFETCH(int, heads);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const auto rig = Rig::load(QStringLiteral(":/rigs/%1.json").arg(name), Clock::Mode::Stepped);
        QCOMPARE(rig->bodies().size(), bodies);
        QCOMPARE(rig->heads().size(), heads);
        for (SimulatedHead* const head : rig->heads()) {
            if (!head->body()->isDummy()) {
                QVERIFY(!head->liveFrame(QSize(64, 64)).isNull());
            }
        }
    }

    // What the rigs promise: the others are chosen by what they lack.
    void theDefaultRigHasOneOfEach() {
        const auto rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        const SimulatedModel& mono = rig->bodies().at(0)->model();
        QVERIFY(!mono.color && mono.bitDepth == 12 && mono.lens.type == 1 &&
                mono.supports(CameraFunction::DualSlope));
        QVERIFY(rig->bodies().at(1)->model().color);
        QVERIFY(rig->bodies().at(2)->heads().size() == 2 &&
                rig->bodies().at(2)->model().supports(CameraFunction::Wifi));
        QVERIFY(rig->bodies().at(3)->isDummy());
        QVERIFY(SimulatedModel::find(QStringLiteral("plain"))->functions.isEmpty());
        QVERIFY(!SimulatedModel::find(QStringLiteral("nonsense")));
    }

    void countedCamerasDiffer() {
        const auto rig = Rig::load(QStringLiteral(":/rigs/sixty-four.json"), Clock::Mode::Stepped);
        SimulatedBody* const last = rig->findName(QStringLiteral("Cell 64"));
        QVERIFY(last);
        QCOMPARE(last->address(), QStringLiteral("192.168.0.73"));
        QCOMPARE(last->serial(), QStringLiteral("W-0001-64"));
    }

    void settingsApplyInOrder() {
        // Alphabetically the rate would come before the resolution that allows it, and be lost.
        const RigFile file =
            RigFile::parse(R"({ "commandTimeMs": 7, "cameras": [ { "name": "A", "model": "mono12",
            "address": "10.0.0.1", "settings": { "rate": 10000, "resolution": "512x256", "resolutionLock": true,
            "shutter": 20000 } } ] })",
                           QStringLiteral("order.json"));
        Rig rig(Clock::Mode::Stepped);
        SimulatedHead* const head = rig.addBody(file.cameras.first())->head();
        QCOMPARE(head->settings().resolution, QSize(512, 256));
        QCOMPARE(head->settings().rate, quint32(10000));
        QCOMPARE(head->settings().shutter, quint32(20000));
        head->setShutter(30000).result();
        QCOMPARE(rig.clock().now(), qint64(7000000));
    }

    void wrongFilesSayWhere_data() {
        QTest::addColumn<QByteArray>("cameras"); // from line 3 of the file on
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char* name, const char* cameras, int line, const char* problem) {
            QTest::newRow(name) << QByteArray(cameras) << line << QString::fromLatin1(problem);
        };
        row("syntax", "{ \"name\": \"A\",\n  \"address\" \"10.0.0.1\" }", 4, "");
        row("unknown key",
            "{ \"name\": \"A\", \"address\": \"10.0.0.1\", \"model\": \"plain\",\n\n \"colour\": 1 }", 5,
            "\"colour\": unknown key");
        row("no camera", "", 2, "at least one camera");
        row("wrong type", "{ \"name\": \"A\",\n \"address\": 10, \"model\": \"plain\" }", 4, "a text");
        row("missing field", "\n{ \"name\": \"A\", \"address\": \"10.0.0.1\" }", 4, "\"model\" is missing");
        row("unknown model", "{ \"name\": \"A\", \"address\": \"10.0.0.1\",\n \"model\": \"eagle\" }", 4,
            "eagle");
        row("address", "{ \"name\": \"A\",\n \"address\": \"10.0.0.256\", \"model\": \"plain\" }", 4,
            "four numbers");
        row("no object", "\n\n 7", 5, "an object");
        row("duplicate name",
            "{ \"name\": \"A\", \"address\": \"10.0.0.1\", \"model\": \"plain\" },\n"
            "{ \"address\": \"10.0.0.2\", \"model\": \"plain\",\n \"name\": \"A\" }",
            5, "named \"A\"");
        row("duplicate address by count",
            "{ \"name\": \"A\", \"address\": \"10.0.0.1\", \"model\": \"plain\", \"count\": 3 },\n"
            "{ \"name\": \"B\", \"model\": \"plain\",\n \"address\": \"10.0.0.3\" }",
            5, "10.0.0.3");
        row("addresses run out",
            "{ \"name\": \"A\", \"address\": \"10.0.0.250\", \"model\": \"plain\",\n \"count\": 6 }", 4,
            "suffice");
        row("unknown setting",
            "{ \"name\": \"A\", \"address\": \"10.0.0.1\", \"model\": \"plain\",\n \"settings\": {\n "
            "\"hue\": 1 } }",
            5, "hue");
        row("setting that the model lacks",
            "{ \"name\": \"A\", \"address\": \"10.0.0.1\", \"model\": \"plain\", \"settings\": {\n "
            "\"shutterLock\": true } }",
            4, "shutterLock");
        row("settings that don't go together",
            "{ \"name\": \"A\", \"address\": \"10.0.0.1\", \"model\": \"mono12\",\n \"settings\": { "
            "\"dualSlope\": "
            "20, \"autoExposure\": true } }",
            4, "not with a dual slope shutter");
        row("model of a dummy",
            "{ \"name\": \"A\", \"address\": \"999.0.0.1\", \"dummy\": true,\n \"model\": \"plain\" }", 4,
            "unknown key");
        row("fraction",
            "{ \"name\": \"A\", \"address\": \"10.0.0.1\", \"model\": \"plain\",\n \"count\": 1.5 }", 4,
            "whole number");
    }

    void wrongFilesSayWhere() {
        QFETCH(QByteArray, cameras);
        QFETCH(int, line);
        QFETCH(QString, problem);
        try {
            RigFile::parse("{\n\"cameras\": [\n" + cameras + "\n] }\n", QStringLiteral("wrong.json"));
            QFAIL("taken");
        } catch (const RigFileError& error) {
            QCOMPARE(error.file(), QStringLiteral("wrong.json"));
            QVERIFY2(error.problem().english().contains(problem), qPrintable(error.problem().english()));
            QVERIFY2(error.line() == line, error.what());
            QVERIFY(QString::fromUtf8(error.what()).startsWith(QStringLiteral("wrong.json:%1: ").arg(line)));
        }
    }

    void aPipeOrAHugeFileIsRefused() {
        const QTemporaryDir folder;
        const QString pipe = folder.filePath(QStringLiteral("pipe.json"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QFile huge(folder.filePath(QStringLiteral("huge.json")));
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(64 << 20));
        const QMap<QString, QString> reasons{{huge.fileName(), QStringLiteral("The file is too large.")},
                                             {pipe, QStringLiteral("This is no file.")}};
        for (auto it = reasons.begin(); it != reasons.end(); ++it) {
            try {
                Rig::load(it.key());
                QFAIL("loaded");
            } catch (const RigFileError& error) {
                QVERIFY2(QString::fromUtf8(error.what()).contains(it.value()), error.what());
            }
        }
    }

    void aMissingFileIsToldByName() {
        try {
            Rig::load(QStringLiteral("/nowhere/rig.json"));
            QFAIL("loaded");
        } catch (const RigFileError& error) {
            QCOMPARE(error.file(), QStringLiteral("/nowhere/rig.json"));
            QCOMPARE(error.line(), 0);
            QVERIFY(QString::fromUtf8(error.what())
                        .startsWith(QStringLiteral("/nowhere/rig.json: the rig file can't be read: ")));
        }
    }

    void anEmptyFileIsToldToBeEmpty() {
        try {
            RigFile::parse(QByteArray(" \n"), QStringLiteral("empty.json"));
            QFAIL("taken");
        } catch (const RigFileError& error) {
            QCOMPARE(QString::fromUtf8(error.what()), QStringLiteral("empty.json: the file is empty"));
        }
    }

    void wrongModelsSayWhere_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto row = [](const char* from, const char* to) {
            QTest::newRow(to) << QByteArray(from) << QByteArray(to);
        };
        row("\"rates\": [60, 125,", "\"rates\": [125, 60,");
        row("[512, 256]", "[500, 256]");
        row("[512, 512], [512, 256]", "[512, 256], [512, 512]");
        row("\"triggerModes\": [0, 2]", "\"triggerModes\": [0, 15]");
        row("\"memoryMb\": 512", "\"functions\": [\"flight\"]");
        row("\"memoryMb\": 512", "\"functions\": [\"dualSlopeMode\"]");
    }

    void wrongModelsSayWhere() {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        SimulatedModel::ids();
        QFile file(QStringLiteral(":/models/plain.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray text = file.readAll();
        QVERIFY(text.contains(from));
        text.replace(from, to);
        try {
            SimulatedModel::parse(text, QStringLiteral("wrong.json"));
            QFAIL("taken");
        } catch (const RigFileError& error) {
            const int at = 1 + int(text.left(text.indexOf(to)).count('\n'));
            QVERIFY2(error.line() == at, error.what());
        }
    }

    void linesOfPaths() {
        const QByteArray text = "{ \"a\\\"b\": \"}\\\\\",\n\"list\": [ 1,\n {\"x\": [[]],\n\"y\": -1.5e3}, "
                                "true ],\n\"z\": null }";
        QCOMPARE(JsonLines::lineOfPath(text, QString()), 1);
        QCOMPARE(JsonLines::lineOfPath(text, QStringLiteral("/list")), 2);
        QCOMPARE(JsonLines::lineOfPath(text, QStringLiteral("/list/1")), 3);
        QCOMPARE(JsonLines::lineOfPath(text, QStringLiteral("/list/1/y")), 4);
        QCOMPARE(JsonLines::lineOfPath(text, QStringLiteral("/list/1/nothing")), 3);
        QCOMPARE(JsonLines::lineOfPath(text, QStringLiteral("/z")), 5);
        QCOMPARE(JsonLines::lineOfPath(text, QStringLiteral("/li")), 1);
    }
};

QTEST_GUILESS_MAIN(RigFileTest)
#include "tst_rig_file.moc"

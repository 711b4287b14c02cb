#include "viewer/app/Options.h"

#include <QTest>

class TestOptions : public QObject {
    Q_OBJECT

private slots:
    void nothingAskedTakesDefaults() {
        const OptionsResult result = readOptions({QStringLiteral("zelviewer")});
        QVERIFY(result.options);
        QCOMPARE(result.options->rig, QStringLiteral(":/rigs/default.json"));
        QVERIFY(result.options->console.isEmpty());
        QCOMPARE(result.options->scale, 0.0);
    }

    void everyOptionArrives() {
        const OptionsResult result = readOptions(
            QStringLiteral(
                "zelviewer --rig a.json --console=/s --style light --language ja --scale 1.5 --settings /f "
                "--plugin p.zel")
                .split(QLatin1Char(' ')));
        QVERIFY2(result.options, qPrintable(result.text));
        const Options& o = *result.options;
        QCOMPARE(QStringList({o.rig, o.console, o.style, o.language, o.settings, o.plugin}),
                 QStringList({QStringLiteral("a.json"), QStringLiteral("/s"), QStringLiteral("light"),
                              QStringLiteral("ja"), QStringLiteral("/f"), QStringLiteral("p.zel")}));
        QCOMPARE(o.scale, 1.5);
    }

    void wrongLineIsToldAndEndsWith2_data() {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("named");
        QTest::newRow("unknown option") << QStringLiteral("--rigg x") << QStringLiteral("rigg");
        QTest::newRow("value missing") << QStringLiteral("--rig") << QStringLiteral("rig");
        QTest::newRow("unknown style") << QStringLiteral("--style blue") << QStringLiteral("blue");
        QTest::newRow("unknown language") << QStringLiteral("--language de") << QStringLiteral("de");
        QTest::newRow("scale not a number") << QStringLiteral("--scale big") << QStringLiteral("big");
        QTest::newRow("scale too small") << QStringLiteral("--scale 0") << QStringLiteral("0.5");
        QTest::newRow("scale nan") << QStringLiteral("--scale nan") << QStringLiteral("nan");
        QTest::newRow("stray argument") << QStringLiteral("file.json") << QStringLiteral("file.json");
    }

    void wrongLineIsToldAndEndsWith2() {
        QFETCH(QString, arguments);
        QFETCH(QString, named);
        const OptionsResult result =
            readOptions(QStringList(QStringLiteral("zelviewer")) + arguments.split(QLatin1Char(' ')));
        QVERIFY(!result.options);
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.text.contains(named), qPrintable(result.text));
    }

    void helpTellsEveryOption() {
        const OptionsResult result = readOptions({QStringLiteral("zelviewer"), QStringLiteral("--help")});
        QVERIFY(!result.options);
        QCOMPARE(result.exitCode, 0);
        for (const char* name : {"rig", "console", "style", "language", "scale", "settings", "plugin"}) {
            QVERIFY2(result.text.contains(QLatin1String(name)), name);
        }
    }
};

QTEST_GUILESS_MAIN(TestOptions)
#include "tst_options.moc"

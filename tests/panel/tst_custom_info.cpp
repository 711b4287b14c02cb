// Custom items in the viewer: from the button on the panel to the image, with real mouse and key events.

#include "tests/support/ModalSteps.h"
#include "tests/support/NotesOver.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/prefs/Preferences.h"

#include <QFileDialog>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {
const QString kButton = QStringLiteral("#livecontrol_editCustomButton");
const QString kTitle = QStringLiteral("Custom info");
const QString kName = QStringLiteral("#item_name");
const QString kValue = QStringLiteral("#item_value");
const QString kUnit = QStringLiteral("#item_unit");
const QString kAdd = QStringLiteral("#add_btn");
const QString kOk = QStringLiteral("#ok_btn");
const QString kAtName = QStringLiteral("document.activeElement.id === 'item_name'");
} // namespace

class tst_CustomInfo : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    std::unique_ptr<ModalSteps> m_steps;
    QTemporaryDir m_folder;

    /// What stands over the image of the camera.
    QStringList shown(const char* camera = "Marlin") {
        return notesOver(m_test->camera(QLatin1String(camera)));
    }
    int itemCount(const char* camera = "Marlin") {
        return m_test->camera(QLatin1String(camera)).customItems().items().size();
    }
    ModalSteps& add(const char* name, const char* value, const char* unit) {
        return m_steps->type(kTitle, kName, QLatin1String(name))
            .type(kTitle, kValue, QLatin1String(value))
            .type(kTitle, kUnit, QLatin1String(unit))
            .click(kTitle, kAdd);
    }
    ModalSteps& choose(const QString& path) {
        return m_steps->run([this, path] {
            if (!dynamic_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                return false;
            }
            m_test->call("files.answer", {{QStringLiteral("path"), path}});
            return true;
        });
    }
    QString row(int number) const { return QStringLiteral("#items tbody tr:eq(%1)").arg(number); }
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    void write(const char* name, const QByteArray& text) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        m_steps = std::make_unique<ModalSteps>(*m_test);
    }
    void cleanup() {
        m_steps.reset();
        QVERIFY2(m_test->eval(QStringLiteral("1")).toInt() == 1, "the panel doesn't answer");
        m_test.reset();
    }

    void itemsStandOverTheImageWhileTheyAreTicked() {
        add("Load", "<b>9</b>", "kN");
        m_steps->expect(kTitle, kAtName)
            .type(kTitle, kName, QStringLiteral("Load"))
            .expect(kTitle, QStringLiteral("$('#add_btn').prop('disabled')"))
            .expect(kTitle, QStringLiteral("$('#item_hint').text() === 'An item has this name.'"));
        add("Run", "1", "");
        m_steps->click(kTitle, row(1) + QStringLiteral(" input"))
            .expect(kTitle, QStringLiteral("$('#items b').length === 0"))
            .click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QVERIFY(shown().contains(QStringLiteral("Load: <b>9</b> kN")));
        QVERIFY(!shown().contains(QStringLiteral("Run: 1")));
        QCOMPARE(itemCount(), 2);
        QCOMPARE(itemCount("Plover"), 0);
        // They are there again when the program is.
        QCOMPARE(
            m_test->viewer().preferences().value(QStringLiteral("custominfo/M12-0107.1")).toList().size(), 2);
    }

    void allSelectedCamerasGetTheItem() {
        m_test->viewer().documents().selectKeepCurrent(&m_test->camera(QStringLiteral("Plover")));
        m_test->settle();
        m_steps->expect(kTitle, QStringLiteral("$('#documents .ui-selected').length === 2 && "
                                               "$('#documents .current').text() === 'Marlin'"));
        add("Load", "9", "kN").click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(itemCount(), 1);
        QCOMPARE(itemCount("Plover"), 1);
    }

    // Return takes what stands in the fields, and so does OK: nothing typed is lost.
    void whatIsTypedIsTaken() {
        m_steps->type(kTitle, kName, QStringLiteral("Load"))
            .key(kTitle, QString(), QStringLiteral("Return"))
            .expect(kTitle,
                    QStringLiteral("$('#items tbody tr').length === 1 && $('#item_name').val() === ''"))
            .expect(kTitle, kAtName)
            .key(kTitle, QStringLiteral("#items tbody tr"), QStringLiteral("Space"))
            .type(kTitle, kValue, QStringLiteral("12"))
            .click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(shown(), QStringList(QStringLiteral("Load: 12")));

        m_steps->type(kTitle, kValue, QStringLiteral("3"))
            .click(kTitle, kOk) // without a name it can't be taken
            .expect(kTitle, QStringLiteral("$('#item_hint').text() === 'Enter a name.'"))
            .click(kTitle, QStringLiteral("#cancel_btn"));
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(itemCount(), 1);
    }

    // A field shows no line breaks; what was only looked at keeps them, beside a field that was changed too.
    void whatIsOnlyLookedAtIsNotChanged() {
        const CustomItem odd{QStringLiteral(" Load "), QStringLiteral("two\nlines"), QString(), true, true};
        CustomItems& items = m_test->camera(QStringLiteral("Marlin")).customItems();
        items.add(odd);
        m_steps->click(kTitle, row(0) + QStringLiteral(" td:eq(1)"))
            .expect(kTitle, QStringLiteral("!$('#delete_btn').prop('disabled')"))
            .click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(items.items().size(), 1);
        QCOMPARE(items.items().first().name, odd.name);
        QCOMPARE(items.items().first().value, odd.value);

        m_steps->click(kTitle, row(0) + QStringLiteral(" td:eq(1)"))
            .type(kTitle, kUnit, QStringLiteral("kN"))
            .click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(items.items().first().name, odd.name);
        QCOMPARE(items.items().first().value, odd.value);
        QCOMPARE(items.items().first().unit, QStringLiteral("kN"));
    }

    void anItemOfAnotherCameraIsNotWrittenOver() {
        m_test->camera(QStringLiteral("Plover"))
            .customItems()
            .add({QStringLiteral("Run"), QStringLiteral("7"), QString(), true, true});
        m_test->viewer().documents().selectKeepCurrent(&m_test->camera(QStringLiteral("Plover")));
        m_test->settle();
        m_steps->click(kTitle, QStringLiteral("#all_btn"))
            .type(kTitle, kName, QStringLiteral("Run"))
            .expect(kTitle, QStringLiteral("$('#add_btn').prop('disabled')"))
            .expect(kTitle, QStringLiteral("$('#item_hint').text() === 'An item has this name.'"))
            .click(kTitle, QStringLiteral("#cancel_btn"));
        m_test->click(kButton);
        FINISH(*m_steps);
    }

    void theFieldsGoWithTheirItem() {
        m_test->camera(QStringLiteral("Marlin"))
            .customItems()
            .add({QStringLiteral("Load"), QStringLiteral("9"), QString(), true, true});
        m_test->viewer().documents().selectKeepCurrent(&m_test->camera(QStringLiteral("Plover")));
        m_test->settle();
        m_steps->click(kTitle, row(0) + QStringLiteral(" td:eq(1)"))
            .type(kTitle, kValue, QStringLiteral("12"))
            .click(kTitle, QStringLiteral("#documents tr:contains('Plover')")) // has no such item
            .expect(kTitle, QStringLiteral("$('#items tbody tr').length === 0"))
            .expect(kTitle, QStringLiteral("$('#item_name').val() === '' && $('#item_value').val() === ''"))
            .expect(kTitle, QStringLiteral("$('#change_btn').prop('disabled')"))
            .click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(itemCount("Plover"), 0);
    }

    void changesAndDeletesTheChosenItem() {
        add("Load", "9", "kN");
        m_steps->click(kTitle, row(0) + QStringLiteral(" td:eq(1)"))
            .type(kTitle, kValue, QStringLiteral("12"))
            .click(kTitle, QStringLiteral("#change_btn"))
            .expect(kTitle, QStringLiteral("$('#items tbody tr').text() === 'Load12kN'"));
        add("Run", "1", "");
        m_steps->click(kTitle, row(1) + QStringLiteral(" td:eq(1)"))
            .click(kTitle, QStringLiteral("#delete_btn"))
            .click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QVERIFY(shown().contains(QStringLiteral("Load: 12 kN")));
        QCOMPARE(itemCount(), 1);
    }

    // An item stays on the image, or off it, under another name.
    void aRenamedItemKeepsItsTicks() {
        CustomItems& items = m_test->camera(QStringLiteral("Marlin")).customItems();
        const auto ticks = [&items] {
            QStringList texts;
            for (const CustomItem& item : items.items()) {
                texts.append(
                    QStringLiteral("%1:%2%3").arg(item.name).arg(item.display).arg(item.useFileName));
            }
            return texts;
        };
        items.add({QStringLiteral("Load"), QStringLiteral("9"), QStringLiteral("kN"), true, true});
        items.add({QStringLiteral("Run"), QStringLiteral("1"), QString(), true, false});
        items.add({QStringLiteral("Mass"), QStringLiteral("2"), QString(), false, true});
        for (int i = 0; i < 3; ++i) {
            m_steps->click(kTitle, row(i) + QStringLiteral(" td:eq(1)"))
                .type(kTitle, kName, QStringLiteral("N%1").arg(i))
                .click(kTitle, QStringLiteral("#change_btn"))
                .expect(kTitle, QStringLiteral("$(\"%1\").text().indexOf('N%2') === 0").arg(row(i)).arg(i));
        }
        m_steps->click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(ticks(),
                 QStringList({QStringLiteral("N0:11"), QStringLiteral("N1:10"), QStringLiteral("N2:01")}));
    }

    void cancellingAndClosingTakeAllBack_data() {
        QTest::addColumn<bool>("closes");
        QTest::newRow("button") << false;
        QTest::newRow("window") << true;
    }
    void cancellingAndClosingTakeAllBack() {
        QFETCH(bool, closes);
        m_test->camera(QStringLiteral("Marlin"))
            .customItems()
            .add({QStringLiteral("Kept"), QStringLiteral("1"), QStringLiteral("s"), false, true});
        add("Load", "9", "");
        m_steps->click(kTitle, row(0) + QStringLiteral(" td:eq(1)"))
            .click(kTitle, QStringLiteral("#delete_btn"));
        if (closes) {
            m_steps->run([] {
                QApplication::activeModalWidget()->close();
                return true;
            });
        } else {
            m_steps->click(kTitle, QStringLiteral("#cancel_btn"));
        }
        m_test->click(kButton);
        FINISH(*m_steps);
        const QList<CustomItem> items = m_test->camera(QStringLiteral("Marlin")).customItems().items();
        QCOMPARE(items.size(), 1);
        QVERIFY(items.first().name == QLatin1String("Kept") && !items.first().display &&
                items.first().useFileName);
    }

    void filesCarryItemsToAnotherCamera() {
        add("Load", "9 < 10", "kN");
        m_steps->click(kTitle, QStringLiteral("#save_btn"));
        choose(path("items.xml"));
        m_steps->click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);

        m_test->selectOnly(QStringLiteral("Plover"));
        m_steps->click(kTitle, QStringLiteral("#load_btn"));
        choose(path("items.xml"));
        m_steps->expect(kTitle, QStringLiteral("$('#items tbody tr').length === 1")).click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QVERIFY(shown("Plover").contains(QStringLiteral("Load: 9 < 10 kN")));
    }

    // Neither button loses what is typed.
    void filesAndTypedItemsGoTogether() {
        m_steps->type(kTitle, kName, QStringLiteral("Load"))
            .type(kTitle, kValue, QStringLiteral("9"))
            .click(kTitle, QStringLiteral("#save_btn"));
        choose(path("typed")); // gets the suffix that the dialog offers
        m_steps->click(kTitle, row(0) + QStringLiteral(" td:eq(1)"))
            .click(kTitle, QStringLiteral("#delete_btn"))
            .type(kTitle, kName, QStringLiteral("Run"))
            .click(kTitle, QStringLiteral("#load_btn"));
        choose(path("typed.xml"));
        m_steps
            ->expect(kTitle, QStringLiteral("$('#items tbody tr').text() === 'Load9Run' && "
                                            "$('#item_name').val() === ''"))
            .click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(itemCount(), 2);
    }

    void theLogTellsWhatWasDoneToWhichItem() {
        m_steps->type(kTitle, kName, QStringLiteral("Load"))
            .type(kTitle, kValue, QStringLiteral("9"))
            .key(kTitle, QString(), QStringLiteral("Return"))
            .click(kTitle, row(0) + QStringLiteral(" td:eq(1)"))
            .click(kTitle, row(0) + QStringLiteral(" input"))
            .key(kTitle, QStringLiteral("#documents tbody tr"), QStringLiteral("Space"))
            .expect(kTitle, QStringLiteral("setTimeout(() => { throw new Error('odd'); }, 0) > 0"))
            .expect(kTitle, QStringLiteral("zel_errors.length === 1"))
            .click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        const QStringList lines = m_test->logged(QStringLiteral("qrc:/custominfo.html] ["));
        const QStringList expected{
            QStringLiteral("[ID:item_value] [Control:TextField] [Operation:entered] [Value:9]"),
            QStringLiteral("[Class:item-row] [Control:ListItem] [Operation:clicked] [Value:Load]"),
            QStringLiteral("[ID:tick:Load] [Control:CheckBox] [Operation:changed] [Value:false]"),
            QStringLiteral("[Control:ListItem] [Operation:clicked] [Value:Marlin]"),
            QStringLiteral("[ID:ok_btn]")};
        QStringList left = expected;
        for (const QString& line : lines) {
            if (!left.isEmpty() && line.contains(left.first())) {
                left.removeFirst();
            }
        }
        QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char('\n')) + QStringLiteral(" not in:\n") +
                                            lines.join(QLatin1Char('\n'))));
        const QStringList errors = m_test->logged(QStringLiteral("[USER][ERROR]"));
        QVERIFY2(errors.size() == 1 && errors.first().contains(QLatin1String("odd")),
                 qPrintable(errors.join(QLatin1Char('\n'))));
    }

    void aFileWithoutItemsIsToldAndChangesNothing() {
        write("bad.xml", "<custom><customItems><customItem>");
        m_test->camera(QStringLiteral("Marlin"))
            .customItems()
            .add({QStringLiteral("Kept"), QStringLiteral("1"), QStringLiteral("s"), true, true});
        m_steps->click(kTitle, QStringLiteral("#load_btn"));
        choose(path("bad.xml"));
        m_steps->press(QStringLiteral("OK")).click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        const QString told = m_steps->boxes().first();
        QVERIFY2(told.startsWith(QStringLiteral("File read failed.")) && told.contains(path("bad.xml")) &&
                     told.contains(QStringLiteral("damaged")),
                 qPrintable(told));
        QCOMPARE(itemCount(), 1);
    }

    void aPipeIsNotWaitedFor() {
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe.xml")).constData(), 0600), 0);
        m_steps->click(kTitle, QStringLiteral("#load_btn"));
        choose(path("pipe.xml"));
        m_steps->press(QStringLiteral("OK")).click(kTitle, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        const QString told = m_steps->boxes().first();
        QVERIFY2(told.contains(path("pipe.xml")) && told.contains(QStringLiteral("This is no file.")),
                 qPrintable(told));
    }

    void theButtonGoesWithTheInformation() {
        m_test->click(QStringLiteral("#livecontrol_showInfoCheckbox"));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_editCustomButton').prop('disabled')")));
    }
};

QTEST_MAIN(tst_CustomInfo)
#include "tst_custom_info.moc"

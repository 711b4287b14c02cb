// What the dialogs that add and edit a device take and refuse.

#include "tests/support/ModalSteps.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Rig.h"

#include <QApplication>
#include <QClipboard>
#include <QJsonArray>
#include <QTemporaryFile>
#include <QtTest>

namespace {
const QString kAdd = QStringLiteral("Add Device");
const QString kEdit = QStringLiteral("Edit Device");
const QString kOk = QStringLiteral("#ok_btn");
} // namespace

class tst_DeviceInput : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    bool m_isClean = false; // the test left all as it was: the next one goes on with the same viewer

    QString part(const char* name, const char* inner) {
        return m_test->deviceRow(QString::fromUtf8(name)) + QStringLiteral(" .") + QLatin1String(inner);
    }
    CameraBody* body(const char* name) { return m_test->viewer().rig().findName(QString::fromUtf8(name)); }
    int calls(const char* name) { return m_test->calls(false).count(QLatin1String(name)); }

private slots:
    void cleanupTestCase() { m_test.reset(); }
    void init() {
        if (!m_isClean) {
            m_test.reset();
            m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
            m_test->openDevices();
        }
        m_isClean = false;
        m_test->clearLogs();
    }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        if (!m_isClean) {
            m_test.reset();
        }
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void saysThatAnAddressIsInTheListAlready() {
        ModalSteps adds(*m_test);
        adds.expect(kAdd, QStringLiteral("$('#ip4').val() === '13'")) // the first that is free
            .type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("Mine"))
            .type(kAdd, QStringLiteral("#ip4"), QStringLiteral("10"))
            .click(kAdd, kOk)
            .press(QStringLiteral("OK"));
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        QVERIFY2(adds.boxes().at(0).contains(QStringLiteral("already in the list: Marlin")),
                 qPrintable(adds.boxes().at(0)));
        QCOMPARE(m_test->deviceRows().at(0), QStringLiteral("Marlin"));

        ModalSteps edits(*m_test);
        edits.type(kEdit, QStringLiteral("#ip4"), QStringLiteral("11"))
            .click(kEdit, kOk)
            .press(QStringLiteral("OK"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QVERIFY2(edits.boxes().at(0).contains(QStringLiteral("already in the list: Plover")),
                 qPrintable(edits.boxes().at(0)));
        QCOMPARE(body("Marlin")->address(), QStringLiteral("192.168.0.10"));
        QVERIFY(body("Marlin")->isConnected());
        QCOMPARE(m_test->deviceRows().size(), 5);
        m_isClean = true;
    }

    void marksANumberThatItChanged() {
        const QString notice = QStringLiteral("$('#notice').text() === '%1'");
        ModalSteps edits(*m_test);
        edits.type(kEdit, QStringLiteral("#ip1"), QStringLiteral("300"))
            .key(kEdit, QString(), QStringLiteral("Tab"))
            .expect(kEdit, QStringLiteral("$('#ip1').val() === '255' && $('#ip1').hasClass('clamped')"))
            .expect(kEdit, notice.arg(QStringLiteral("Changed to 255: the box takes 0 to 255.")))
            .type(kEdit, QStringLiteral("#ip1"), QStringLiteral("192"))
            .key(kEdit, QString(), QStringLiteral("Tab"))
            .expect(kEdit, notice.arg(QString()))
            .type(kEdit, QStringLiteral("#ip1"), QStringLiteral("300"))
            .click(kEdit, kOk) // at once: what is left of 300 is an address that no camera can have
            .press(QStringLiteral("OK"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QVERIFY2(edits.boxes().at(0).contains(QStringLiteral("255.168.0.10")),
                 qPrintable(edits.boxes().at(0)));
        QCOMPARE(body("Marlin")->address(), QStringLiteral("192.168.0.10"));
        m_isClean = true;
    }

    void saysThatACameraIsOutOfReachAtItsNewAddress() {
        ModalSteps edits(*m_test);
        edits.type(kEdit, QStringLiteral("#ip1"), QStringLiteral("10"))
            .click(kEdit, kOk)
            .press(QStringLiteral("OK"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QVERIFY2(edits.boxes().at(0).contains(QStringLiteral("10.168.0.10 is not in the network")),
                 qPrintable(edits.boxes().at(0)));
        QCOMPARE(body("Marlin")->address(), QStringLiteral("10.168.0.10"));
        QVERIFY(m_test->waitFor(
            QStringLiteral("!$('%1').hasClass('found')").arg(m_test->deviceRow(QStringLiteral("Marlin")))));
    }

    void choosesTheInterfaceOfACameraWithWifi() {
        const QString kWifiRadio = QStringLiteral("#interface_type_wifi");
        const QString isWifi = QStringLiteral("$('#interface_type_wifi').prop('checked')");
        ModalSteps first(*m_test);
        first.expect(kEdit, QStringLiteral("$('#interface_type_ether').prop('checked')"))
            .click(kEdit, kWifiRadio)
            .expect(kEdit, isWifi)
            .click(kEdit, QStringLiteral("#cancel_btn"));
        m_test->click(part("Gemini Left", "edit"));
        FINISH(first);
        QCOMPARE(calls("DOC_Settings.setEtherType"), 1);
        ModalSteps second(*m_test);
        second.expect(kEdit, isWifi)
            .key(kEdit, kWifiRadio, QStringLiteral("Left"))
            .expect(kEdit, QStringLiteral("$('#interface_type_ether').prop('checked')"))
            .click(kEdit, QStringLiteral("#cancel_btn"));
        m_test->click(part("Gemini Left", "edit"));
        FINISH(second);
        QCOMPARE(calls("DOC_Settings.setEtherType"), 2);
        ModalSteps without(*m_test);
        without.expect(kEdit, QStringLiteral("$('#deviceInterface').is(':hidden')"))
            .click(kEdit, QStringLiteral("#cancel_btn"));
        m_test->click(part("Marlin", "edit"));
        FINISH(without);
        m_isClean = true;
    }

    void completesANameFromTheUsersFile() {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(QByteArray(",Hall east,Hall west\nBench,Hall north,a:b\n"));
        file.close();
        m_test->call("prefs.set", {{QStringLiteral("name"), QStringLiteral("usercustom/cameraNameFilePath")},
                                   {QStringLiteral("value"), file.fileName()}});
        const QString shown = QStringLiteral("$('.ui-autocomplete:visible li').length === %1");
        ModalSteps adds(*m_test);
        adds.type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("hall"))
            .expect(kAdd, shown.arg(4)) // one is the category
            .key(kAdd, QString(), QStringLiteral("Down"))
            .key(kAdd, QString(), QStringLiteral("Down"))
            .key(kAdd, QString(), QStringLiteral("Down")) // over the category
            .key(kAdd, QString(), QStringLiteral("Return"))
            .expect(kAdd, QStringLiteral("$('#deviceName').val() === 'Hall north'"))
            .type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("west"))
            .expect(kAdd, shown.arg(1))
            .click(kAdd, QStringLiteral(".ui-autocomplete:visible li"))
            .expect(kAdd, QStringLiteral("$('#deviceName').val() === 'Hall west'"))
            .click(kAdd, QStringLiteral("#dummy"))
            .click(kAdd, kOk);
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        QVERIFY(body("Hall west"));
        QVERIFY(m_test->deviceRows().contains(QStringLiteral("Hall west")));
    }

    void takesAnyNameThatCanBecomeAFiles_data() {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("taken");
        QTest::newRow("forbidden") << QStringLiteral("a/b\\c:d*e?f\"g<h>i|j%k")
                                   << QStringLiteral("abcdefghijk");
        QTest::newRow("too long") << QString(1025, QLatin1Char('n')) << QString(1024, QLatin1Char('n'));
        QTest::newRow("right to left")
            << QStringLiteral("\u05d0\u05d1 cam") << QStringLiteral("\u05d0\u05d1 cam");
        QTest::newRow("emoji") << QStringLiteral("\U0001F4F7 left") << QStringLiteral("\U0001F4F7 left");
        QTest::newRow("markup") << QStringLiteral("&lt;b&gt;") << QStringLiteral("&lt;b&gt;");
    }
    void takesAnyNameThatCanBecomeAFiles() {
        QFETCH(QString, pasted);
        QFETCH(QString, taken);
        ModalSteps adds(*m_test);
        adds.run([&] { return QApplication::clipboard()->setText(pasted), true; })
            .key(kAdd, QStringLiteral("#deviceName"), QStringLiteral("Ctrl+A"))
            .key(kAdd, QString(), QStringLiteral("Ctrl+V"))
            .click(kAdd, QStringLiteral("#dummy"))
            .click(kAdd, kOk);
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        QVERIFY(m_test->viewer().rig().findName(taken));
        QCOMPARE(m_test->deviceRows().last(), taken);
    }

    void keepsAnythingButDigitsOutOfAnAddress() {
        ModalSteps adds(*m_test);
        adds.type(kAdd, QStringLiteral("#ip4"), QStringLiteral("x1-7."))
            .expect(kAdd, QStringLiteral("$('#ip4').val() === '17'"))
            .run([] { return QApplication::clipboard()->setText(QStringLiteral("1x4")), true; })
            .key(kAdd, QStringLiteral("#ip4"), QStringLiteral("Ctrl+A"))
            .key(kAdd, QString(), QStringLiteral("Ctrl+V"))
            .expect(kAdd, QStringLiteral("$('#ip4').val() === '14'"))
            .click(kAdd, QStringLiteral("#cancel_btn"));
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        m_isClean = true;
    }
};

QTEST_MAIN(tst_DeviceInput)
#include "tst_device_input.moc"

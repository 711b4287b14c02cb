// What the fields of the device page and of its dialogs that add and edit a device take and refuse.

#include "tests/panel/support/DefaultRig.h"
#include "tests/support/ModalSteps.h"
#include "viewer/host/ViewerHost.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QTemporaryFile>
#include <QWebView>

namespace {
const QString kAdd = QStringLiteral("Add Device");
const QString kEdit = QStringLiteral("Edit Device");
const QString kOk = QStringLiteral("#ok_btn");
/// A key that is held comes again and again.
void holdReturn() {
    auto* const view = QApplication::activeModalWidget()->findChild<QWebView*>();
    for (const bool isRepeated : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), isRepeated);
        QApplication::sendEvent(view, &press);
    }
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(view, &release);
}
} // namespace

class tst_DeviceInput : public QObject {
    Q_OBJECT

    DefaultRig m_rig;
    PanelTest* m_test = nullptr;

    QString part(const char* name, const char* inner) {
        return m_test->deviceRow(QString::fromUtf8(name)) + QStringLiteral(" .") + QLatin1String(inner);
    }
    SimulatedBody* body(const char* name) { return m_test->viewer().rig().findName(QString::fromUtf8(name)); }
    int calls(const char* name) { return m_test->calls(false).count(QLatin1String(name)); }

private slots:
    void cleanupTestCase() { m_rig.close(); }
    void init() { m_test = &m_rig.prepare(); }
    void cleanup() {
        const QStringList errors = m_rig.finish();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.join(QLatin1Char('\n'))));
    }

    void leavesAnAddressThatIsBeingTyped() {
        const QString box = QStringLiteral("#livecontrol_ip1");
        const auto shown = [&] { return m_test->text(QStringLiteral("$('%1').val()").arg(box)); };
        m_test->call("prefs.set", {{QStringLiteral("name"), QStringLiteral("cameraconnection/SearchIP")},
                                   {QStringLiteral("value"), QStringLiteral("172.16.5.0")}});
        m_test->key(box, QStringLiteral("Ctrl+A"));
        m_test->type(QString(), QStringLiteral("10"));
        m_test->eval(QStringLiteral("livecontrol.updateUI(), 1"));
        QCOMPARE(shown(), QStringLiteral("10"));
        m_test->eval(QStringLiteral("$('%1').blur(), livecontrol.updateUI(), 1").arg(box));
        QCOMPARE(shown(), QStringLiteral("172"));
    }

    void saysThatAnAddressIsInTheListAlready() {
        ModalSteps adds(*m_test);
        adds.expect(kAdd, QStringLiteral("$('#ip4').val() === '13'")) // the first that is free
            .type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("Mine"))
            .type(kAdd, QStringLiteral("#ip1"), QStringLiteral("192.168.0.10")) // into all four
            .click(kAdd, kOk)
            .press(QStringLiteral("OK"))
            .expect(kAdd, QStringLiteral("$('#deviceName').val() === 'Mine' && $('#ip4').val() === '10'"))
            .key(kAdd, QStringLiteral("#cancel_btn"), QStringLiteral("Return"));
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        QVERIFY2(adds.boxes().at(0).contains(QStringLiteral("already in the list: Marlin")),
                 qPrintable(adds.boxes().at(0)));
        QCOMPARE(m_test->deviceRows().at(0), QStringLiteral("Marlin"));

        ModalSteps edits(*m_test);
        edits.type(kEdit, QStringLiteral("#ip4"), QStringLiteral("11"))
            .key(kEdit, QString(), QStringLiteral("Return"))
            .press(QStringLiteral("OK"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QVERIFY2(edits.boxes().at(0).contains(QStringLiteral("already in the list: Plover")),
                 qPrintable(edits.boxes().at(0)));
        QCOMPARE(body("Marlin")->address(), QStringLiteral("192.168.0.10"));
        QVERIFY(body("Marlin")->isConnected());
        QCOMPARE(m_test->deviceRows().size(), 5);
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
            .type(kEdit, QStringLiteral("#ip2"), QStringLiteral("400"))
            .key(kEdit, QString(), QStringLiteral("Return")) // at once: the user is to see it first
            .expect(kEdit, notice.arg(QStringLiteral("Changed to 255: the box takes 0 to 255.")))
            .expect(kEdit, QStringLiteral("$('.clamped').length === 2"))
            .type(kEdit, QStringLiteral("#ip2"), QStringLiteral("500"))
            .run([] { return holdReturn(), true; })
            .expect(kEdit, QStringLiteral("$('#ip2').val() === '255'"))
            .type(kEdit, QStringLiteral("#ip2"), QStringLiteral("168"))
            .key(kEdit, QString(), QStringLiteral("Tab"))
            .expect(kEdit, notice.arg(QStringLiteral("Changed to 255: the box takes 0 to 255."))) // #ip1
            .type(kEdit, QStringLiteral("#ip4"), QStringLiteral("0"))
            .click(kEdit, kOk)
            .expect(kEdit, notice.arg(QStringLiteral("Changed to 1: the box takes 1 to 255.")))
            .click(kEdit, kOk) // what is left of 300 is an address that no camera can have
            .press(QStringLiteral("OK"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QVERIFY2(edits.boxes().at(0).contains(QStringLiteral("255.168.0.1 ")),
                 qPrintable(edits.boxes().at(0)));
        QCOMPARE(body("Marlin")->address(), QStringLiteral("192.168.0.10"));

        ModalSteps adds(*m_test);
        adds.type(kAdd, QStringLiteral("#ip4"), QStringLiteral("255"))
            .click(kAdd, QStringLiteral("#dummy"))
            .expect(kAdd, QStringLiteral("$('#ip4').val() === '2' && !$('.clamped').length"))
            .expect(kAdd, notice.arg(QString()))
            .click(kAdd, QStringLiteral("#cancel_btn"));
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
    }

    // A button that has the focus is pressed by the key, not OK.
    void aKeyOnCancelDropsWhatWasTyped() {
        const QStringList rows = m_test->deviceRows();
        const QString cancel = QStringLiteral("#cancel_btn");
        for (const char* const name : {"Return", "Space"}) {
            ModalSteps edits(*m_test);
            edits.type(kEdit, QStringLiteral("#deviceName"), QStringLiteral("Other"))
                .type(kEdit, QStringLiteral("#ip4"), QStringLiteral("77"))
                .key(kEdit, cancel, QLatin1String(name));
            m_test->click(part("Marlin", "edit"));
            FINISH(edits);
            ModalSteps adds(*m_test);
            adds.type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("Mine"))
                .key(kAdd, cancel, QLatin1String(name));
            m_test->click(QStringLiteral("#livecontrol_adddevice"));
            FINISH(adds);
        }
        QCOMPARE(m_test->deviceRows(), rows);
        QCOMPARE(body("Marlin")->address(), QStringLiteral("192.168.0.10"));
        QCOMPARE(calls("HostCameraControl.editCamera") + calls("HostCameraControl.addCamera"), 0);
    }

    void asksForEachNumber() {
        ModalSteps edits(*m_test);
        for (const char* const box : {"#ip2", "#sm3", "#dg4"}) {
            edits.type(kEdit, QLatin1String(box), QString())
                .click(kEdit, kOk)
                .press(QStringLiteral("OK"))
                .type(kEdit, QLatin1String(box), QStringLiteral("0"));
        }
        edits.click(kEdit, QStringLiteral("#cancel_btn"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QCOMPARE(edits.boxes().count(QStringLiteral("Input IPAddress")), 3);
        QCOMPARE(calls("HostCameraControl.editCamera"), 0);
    }

    // A camera that doesn't tell its addresses leaves all boxes empty.
    void keepsTheFocusInOneOfManyEmptyBoxes() {
        m_test->call("host.fail",
                     {{QStringLiteral("operation"), QStringLiteral("DOC_Settings.getNetworkAddresses")},
                      {QStringLiteral("message"), QStringLiteral("silent")}});
        ModalSteps edits(*m_test);
        edits.press(QStringLiteral("OK"))
            .expect(kEdit, QStringLiteral(
                               "window.turns = 0, $('input').on('focus', function () { turns++; }), true"))
            .key(kEdit, QStringLiteral("#ip1"), QStringLiteral("Tab"))
            .expect(kEdit, QStringLiteral("turns > 2")) // there, on, and back
            .type(kEdit, QString(), QStringLiteral("192"))
            .expect(kEdit, QStringLiteral("$('#ip1').val() === '192' && turns === 4 && "
                                          "document.activeElement.id === 'ip2'"))
            .click(kEdit, QStringLiteral("#cancel_btn"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
    }

    void locksAllButTheNameInMemoryMode() {
        m_test->viewer().documents().setMode(HOST_MODE_MEMORY);
        m_test->settle();
        const QString open =
            QStringLiteral("$('input:enabled').map(function () { return this.id; }).get().join(' ')");
        const DOCKEY key = m_test->keyOf(QStringLiteral("Gemini Left"));
        ModalSteps edits(*m_test);
        edits.expect(kEdit, open + QStringLiteral(" === 'deviceName'"))
            .click(kEdit, QStringLiteral("#cancel_btn"));
        m_test->viewer().host().editDocument(key);
        FINISH(edits);
        m_test->viewer().documents().setMode(HOST_MODE_LIVE);
        m_test->settle();
    }

    void asksBeforeACameraGoesOutOfReach() {
        const QString isLinked =
            QStringLiteral("$('%1').hasClass('found')").arg(m_test->deviceRow(QStringLiteral("Marlin")));
        const auto edit = [this](const QString& answer) {
            ModalSteps edits(*m_test);
            edits.type(kEdit, QStringLiteral("#ip1"), QStringLiteral("10")).click(kEdit, kOk).press(answer);
            m_test->click(part("Marlin", "edit"));
            FINISH(edits);
            // One box: what the user has agreed to is no failure.
            QCOMPARE(edits.boxes().size(), 1);
            QVERIFY2(edits.boxes().at(0).contains(QStringLiteral("10.168.0.10 is not in the network")),
                     qPrintable(edits.boxes().at(0)));
            QVERIFY(edits.boxes().at(0).contains(QStringLiteral("Change address")));
        };
        const quint64 commands = body("Marlin")->commandCount();
        edit(QStringLiteral("Cancel"));
        QCOMPARE(body("Marlin")->address(), QStringLiteral("192.168.0.10"));
        QCOMPARE(body("Marlin")->commandCount(), commands);
        QVERIFY(m_test->eval(isLinked).toBool());
        edit(QStringLiteral("OK"));
        QCOMPARE(body("Marlin")->address(), QStringLiteral("10.168.0.10"));
        QVERIFY(m_test->waitFor(QLatin1Char('!') + isLinked));
    }

    void choosesTheInterfaceOfACameraWithWifi() {
        const QString kWifiRadio = QStringLiteral("#interface_type_wifi");
        const QString isWifi = QStringLiteral("$('#interface_type_wifi').prop('checked')");
        ModalSteps first(*m_test);
        first.expect(kEdit, QStringLiteral("$('#interface_type_ether').prop('checked')"))
            .type(kEdit, QStringLiteral("#deviceName"), QStringLiteral("Typed"))
            .type(kEdit, QStringLiteral("#ip4"), QStringLiteral("77"))
            .click(kEdit, kWifiRadio)
            .expect(kEdit, isWifi)
            .expect(kEdit, QStringLiteral("$('#deviceName').val() === 'Typed' && $('#ip4').val() === '77'"))
            .click(kEdit, QStringLiteral("#cancel_btn"));
        m_test->click(part("Gemini Left", "edit"));
        FINISH(first);
        QCOMPARE(calls("DOC_Settings.setEtherType"), 1);
        ModalSteps second(*m_test);
        // What the user left alone shows what the camera has by then.
        second.expect(kEdit, isWifi)
            .run([this] {
                body("Gemini")->set(QStringLiteral("address"), QStringLiteral("192.168.0.99"));
                return true;
            })
            .key(kEdit, kWifiRadio, QStringLiteral("Left"))
            .expect(kEdit, QStringLiteral("$('#ip4').val() === '99'"))
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
    }

    void completesANameFromTheUsersFile() {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(QByteArray(",Hall east,Hall west\nBench,Hall north,a:b"));
        for (int i = 0; i < 60; ++i) {
            file.write(",rig " + QByteArray::number(i));
        }
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
            .type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("rig"))
            .expect(kAdd, QStringLiteral("$('.ui-autocomplete:visible li').length > 40"))
            .expect(kAdd, QStringLiteral("$('.ui-autocomplete').height() > 60")) // no slit
            .key(kAdd, QString(), QStringLiteral("Down"))
            .expect(kAdd, QStringLiteral(
                              "(function (list, mark) { return list.css('list-style-type') === 'none' && "
                              "/^rgb\\(/.test(list.css('background-color')) && mark.length === 1 && "
                              "/^rgb\\(/.test(mark.css('background-color')); "
                              "})($('.ui-autocomplete'), $('.ui-autocomplete .ui-state-active'))"))
            .type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("rig"))
            .expect(kAdd, QStringLiteral("$('.ui-autocomplete:visible li').length > 40"))
            .click(kAdd, kOk); // which the list doesn't cover
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        QVERIFY(body("rig"));
        QVERIFY(m_test->deviceRows().contains(QStringLiteral("rig")));

        ModalSteps edits(*m_test);
        edits.type(kEdit, QStringLiteral("#deviceName"), QStringLiteral("west"))
            .expect(kEdit, shown.arg(1))
            .key(kEdit, QString(), QStringLiteral("Down"))
            .key(kEdit, QString(), QStringLiteral("Return")) // takes the name, and doesn't press OK
            .expect(kEdit, QStringLiteral("$('#deviceName').val() === 'Hall west'"))
            .expect(kEdit, shown.arg(0))
            .key(kEdit, QString(), QStringLiteral("Return"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QVERIFY(body("Hall west"));
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
    }
};

QTEST_MAIN(tst_DeviceInput)
#include "tst_device_input.moc"

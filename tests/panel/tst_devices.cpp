// The page of the devices and its dialogs: selection, search, add, edit, delete.

#include "tests/panel/support/DefaultRig.h"
#include "tests/support/ModalSteps.h"
#include "viewer/documents/CameraDocument.h"

#include <QApplication>
#include <QMessageBox>

namespace {
const QString kAdd = QStringLiteral("Add Device");
const QString kEdit = QStringLiteral("Edit Device");
const QString kOk = QStringLiteral("#ok_btn");
const QString kYes = QStringLiteral("Yes");
const QString kNo = QStringLiteral("No");
} // namespace

class tst_Devices : public QObject {
    Q_OBJECT

    DefaultRig m_rig;
    PanelTest* m_test = nullptr;

    QString part(const char* name, const char* inner) {
        return m_test->deviceRow(QString::fromUtf8(name)) + QStringLiteral(" .") + QLatin1String(inner);
    }
    void pick(const char* name, bool toggle = false) {
        m_test->click(part(name, "device-name"),
                      toggle ? QStringList{QStringLiteral("ctrl")} : QStringList());
    }
    QStringList selected() {
        QStringList names;
        for (CameraDocument* const camera : m_test->viewer().documents().cameras()) {
            if (camera->isSelected()) {
                names.append(camera->title());
            }
        }
        return names;
    }
    QString current() { return m_test->viewer().documents().current()->title(); }
    SimulatedBody* body(const char* name) { return m_test->viewer().rig().findName(QString::fromUtf8(name)); }
    void typeNumbers(const QStringList& numbers) {
        for (int i = 0; i < numbers.size(); ++i) {
            const QString box = QStringLiteral("#livecontrol_ip%1").arg(i + 1);
            m_test->key(box, QStringLiteral("Ctrl+A"));
            m_test->key(QString(), QStringLiteral("Del"));
            m_test->type(QString(), numbers.at(i));
        }
    }
    int calls(const char* name) { return m_test->calls(false).count(QLatin1String(name)); }
    void deleteAll() {
        ModalSteps steps(*m_test);
        steps.press(kYes);
        m_test->click(QStringLiteral("#livecontrol_deleteall"));
        FINISH(steps);
        QVERIFY(m_test->deviceRows().isEmpty());
    }

private slots:
    void cleanupTestCase() { m_rig.close(); }
    void init() { m_test = &m_rig.prepare(); }
    void cleanup() {
        const QStringList errors = m_rig.finish();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.join(QLatin1Char('\n'))));
    }

    void selectsPlainCamerasAndHeads() {
        pick("Plover");
        QCOMPARE(selected(), QStringList{QStringLiteral("Plover")});
        pick("Marlin", true);
        QCOMPARE(selected(), QStringList({QStringLiteral("Marlin"), QStringLiteral("Plover")}));
        pick("Marlin", true);
        QCOMPARE(selected(), QStringList{QStringLiteral("Plover")});
        QCOMPARE(current(), QStringLiteral("Plover"));

        pick("Gemini Right", true); // its device was not selected: the head alone stands for it
        QCOMPARE(selected(), QStringList({QStringLiteral("Plover"), QStringLiteral("Gemini Right")}));
        QCOMPARE(current(), QStringLiteral("Gemini Right"));
        pick("Gemini Left", true);
        QVERIFY(selected().contains(QStringLiteral("Gemini Left")));
        QVERIFY(selected().contains(QStringLiteral("Gemini Right")));
        m_test->viewer().documents().setCurrent(&m_test->camera(QStringLiteral("Gemini Left")));
        m_test->settle();
        pick("Gemini Left", true);
        QCOMPARE(current(), QStringLiteral("Gemini Right")); // the other head of the device
        pick("Gemini Right", true);
        QCOMPARE(selected(), QStringList{QStringLiteral("Plover")});
    }

    void selectsADeviceWithAllItsHeads() {
        pick("Plover");
        const DOCKEY key = m_test->camera(QStringLiteral("Gemini Left")).device().key();
        m_test->eval(QStringLiteral("livecontrol.selectDoc(%1), livecontrol.updateUI(), 1").arg(key));
        QCOMPARE(selected().size(), 3);
        QVERIFY(
            m_test->waitFor(QStringLiteral("$('#livecontrol_device_item_list .ui-selected').length === 3")));
        m_test->eval(QStringLiteral("livecontrol.unselectDoc(%1), livecontrol.updateUI(), 1").arg(key));
        QCOMPARE(selected(), QStringList{QStringLiteral("Plover")});
        m_test->eval(QStringLiteral("livecontrol.selectDoc(4711), deviceList.selectDoc('4711'), 1"));
        QCOMPARE(selected(), QStringList{QStringLiteral("Plover")});
    }

    void onlyMarksWhatHasNoLink() {
        const auto isMarked = [this] {
            return m_test
                ->eval(QStringLiteral("$('%1').hasClass('ui-selected')")
                           .arg(m_test->deviceRow(QStringLiteral("Spare"))))
                .toBool();
        };
        pick("Marlin");
        pick("Plover", true);
        pick("Spare");
        QCOMPARE(current(), QStringLiteral("Plover"));
        QCOMPARE(selected(), QStringList({QStringLiteral("Marlin"), QStringLiteral("Plover"),
                                          QStringLiteral("Spare")})); // nothing else is unselected
        QVERIFY(isMarked());
        pick("Spare", true);
        QVERIFY(!isMarked());
        pick("Spare", true);
        QVERIFY(isMarked());
        pick("Marlin");
        QVERIFY(!isMarked());
    }

    // The mark of the link speed tells what a camera can do, and warns of nothing.
    void offersInARowWhatItsCameraCan() {
        const QString has = QStringLiteral("$('%1').is(':visible')");
        const auto names = [&](const char* inner) {
            QStringList found;
            for (const char* const name : {"Marlin", "Plover", "Gemini Left", "Spare"}) {
                if (m_test->eval(has.arg(part(name, inner))).toBool()) {
                    found.append(QString::fromLatin1(name));
                }
            }
            return found;
        };
        QCOMPARE(names("linkspeed"), QStringList{QStringLiteral("Marlin")});
        QCOMPARE(names("wifi"), QStringList{QStringLiteral("Gemini Left")});
        QCOMPARE(names("power"), QStringList({QStringLiteral("Marlin"), QStringLiteral("Plover"),
                                              QStringLiteral("Gemini Left")}));
        QCOMPARE(names("delete").size(), 4);
        const QString mark = QStringLiteral("$('%1')").arg(part("Marlin", "linkspeed"));
        QCOMPARE(m_test->text(mark + QStringLiteral(".attr('title')")),
                 QStringLiteral("The camera supports link speed"));
        QVERIFY(m_test
                    ->eval(QStringLiteral(
                               "getComputedStyle(%1[0], '::before').backgroundColor === %1.css('color')")
                               .arg(mark))
                    .toBool());
    }

    void searchesANetwork() {
        deleteAll();
        typeNumbers({QStringLiteral("192"), QStringLiteral("168"), QStringLiteral("0")});
        m_test->click(QStringLiteral("#livecontrol_search"));
        QCOMPARE(m_test->deviceRows().size(), 4); // no dummy answers
        QVERIFY(m_test->camera(QStringLiteral("Plover")).isConnected());
        const QString stored =
            m_test->call("prefs.get", {{QStringLiteral("name"), QStringLiteral("cameraconnection/SearchIP")}})
                .toString();
        QCOMPARE(stored, QStringLiteral("192.168.0.0"));

        typeNumbers({QStringLiteral("10"), QStringLiteral("9"), QStringLiteral("8")}); // where nobody is
        m_test->click(QStringLiteral("#livecontrol_search"));
        QCOMPARE(m_test->deviceRows().size(), 4);
        QCOMPARE(calls("HostCameraControl.findCameras"), 2);
    }

    void refusesWrongNumbers_data() {
        QTest::addColumn<QStringList>("numbers");
        QTest::newRow("too high") << QStringList{QStringLiteral("300"), QStringLiteral("1"),
                                                 QStringLiteral("1")};
        QTest::newRow("empty") << QStringList{QStringLiteral("192"), QString(), QStringLiteral("0")};
        QTest::newRow("letters") << QStringList{QStringLiteral("192"), QStringLiteral("168"),
                                                QStringLiteral("x")};
        QTest::newRow("sign") << QStringList{QStringLiteral("-1"), QStringLiteral("168"),
                                             QStringLiteral("0")};
    }
    void refusesWrongNumbers() {
        QFETCH(QStringList, numbers);
        typeNumbers(numbers);
        QVERIFY_EXCEPTION_THROWN(m_test->click(QStringLiteral("#livecontrol_search")), ConsoleError);
        QCOMPARE(calls("HostCameraControl.findCameras"), 0);
        typeNumbers({QStringLiteral("192"), QStringLiteral("168"), QStringLiteral("0")});
        m_test->click(QStringLiteral("#livecontrol_search"));
        QCOMPARE(calls("HostCameraControl.findCameras"), 1);
    }

    void addsACameraByItsAddress() {
        ModalSteps deletes(*m_test);
        deletes.press(kYes);
        m_test->click(part("Plover", "delete"));
        FINISH(deletes);
        QCOMPARE(deletes.boxes(), QStringList{QStringLiteral("Do you want to delete?")});
        QVERIFY(!m_test->deviceRows().contains(QStringLiteral("Plover")));

        ModalSteps adds(*m_test);
        adds.type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("Bench:cam"))
            .type(kAdd, QStringLiteral("#ip4"), QStringLiteral("11"))
            .click(kAdd, kOk);
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        // A colon can't be typed.
        QVERIFY(m_test->camera(QStringLiteral("Benchcam")).isConnected());
        QVERIFY(m_test->deviceRows().contains(QStringLiteral("Benchcam")));
        QCOMPARE(body("Benchcam")->address(), QStringLiteral("192.168.0.11"));
    }

    void addsADummy() {
        ModalSteps adds(*m_test);
        adds.click(kAdd, QStringLiteral("#dummy"))
            .expect(kAdd, QStringLiteral("$('#ip1').prop('disabled') && $('#ip4').val() === '2'"))
            .type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("Stand-in"))
            .click(kAdd, kOk);
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        QVERIFY(body("Stand-in")->isDummy());
        QCOMPARE(body("Stand-in")->address(), QStringLiteral("999.999.999.2"));
        QVERIFY(m_test->deviceRows().contains(QStringLiteral("Stand-in")));
    }

    void tellsWhatIsWrongInTheAddDialog() {
        ModalSteps adds(*m_test);
        adds.type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("   "))
            .click(kAdd, kOk)
            .press(QStringLiteral("OK"))
            .type(kAdd, QStringLiteral("#deviceName"), QStringLiteral("Lost"))
            .type(kAdd, QStringLiteral("#ip2"), QString())
            .click(kAdd, kOk)
            .press(QStringLiteral("OK"))
            .type(kAdd, QStringLiteral("#ip2"), QStringLiteral("168"))
            .type(kAdd, QStringLiteral("#ip4"), QStringLiteral("255"))
            .type(kAdd, QStringLiteral("#ip1"), QStringLiteral("192"))
            .expect(kAdd, QStringLiteral("$('#ip4').val() === '254'")) // no host's number in that network
            .click(kAdd, kOk)
            .press(QStringLiteral("OK"))
            // What could not be added stands there again, as often as it fails.
            .expect(kAdd, QStringLiteral("$('#deviceName').val() === 'Lost' && $('#ip4').val() === '254'"))
            .click(kAdd, kOk)
            .press(QStringLiteral("OK"))
            .expect(kAdd, QStringLiteral("$('#deviceName').val() === 'Lost'")) // its page stands
            .click(kAdd, QStringLiteral("#cancel_btn"));
        m_test->click(QStringLiteral("#livecontrol_adddevice"));
        FINISH(adds);
        QCOMPARE(adds.boxes().size(), 4);
        QCOMPARE(adds.boxes().at(0), QStringLiteral("Input DeviceName"));
        QCOMPARE(adds.boxes().at(1), QStringLiteral("Input IPAddress"));
        QVERIFY2(adds.boxes().at(2).contains(QStringLiteral("Lost")), qPrintable(adds.boxes().at(2)));
        QCOMPARE(m_test->deviceRows().size(), 5);
    }

    void editsNameAndAddress() {
        ModalSteps edits(*m_test);
        edits.expect(kEdit, QStringLiteral("$('#ip4').val() === '10' && $('#fwver').text() !== ''"))
            .type(kEdit, QStringLiteral("#deviceName"), QStringLiteral("Marlin \u6e2c"))
            .type(kEdit, QStringLiteral("#ip4"), QStringLiteral("77"))
            .click(kEdit, kOk);
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QCOMPARE(body("Marlin \u6e2c")->address(), QStringLiteral("192.168.0.77"));
        QVERIFY(body("Marlin \u6e2c")->isConnected()); // found again
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1 .device-address').text() === '192.168.0.77'")
                                    .arg(m_test->deviceRow(QStringLiteral("Marlin \u6e2c")))));

        ModalSteps cancels(*m_test);
        cancels.type(kEdit, QStringLiteral("#ip4"), QStringLiteral("78"))
            .click(kEdit, QStringLiteral("#cancel_btn"));
        m_test->click(part("Marlin \u6e2c", "edit"));
        FINISH(cancels);
        QCOMPARE(body("Marlin \u6e2c")->address(), QStringLiteral("192.168.0.77"));

        ModalSteps dummy(*m_test);
        dummy.expect(kEdit, QStringLiteral("$('#ip3').prop('disabled') && $('#sm1').prop('disabled')"))
            .type(kEdit, QStringLiteral("#ip4"), QStringLiteral("9"))
            .click(kEdit, kOk);
        m_test->click(part("Spare", "edit"));
        FINISH(dummy);
        QCOMPARE(body("Spare")->address(), QStringLiteral("999.999.999.9"));
    }

    void saysThatACameraWentWhileItIsEdited() {
        SimulatedBody* const marlin = body("Marlin");
        ModalSteps edits(*m_test);
        edits.type(kEdit, QStringLiteral("#ip4"), QStringLiteral("77"))
            .run([marlin] { return marlin->unplug(), true; })
            .click(kEdit, kOk)
            .press(QStringLiteral("OK"));
        m_test->click(part("Marlin", "edit"));
        FINISH(edits);
        QVERIFY2(edits.boxes().at(0).contains(QStringLiteral("Marlin")), qPrintable(edits.boxes().at(0)));
        QCOMPARE(marlin->address(), QStringLiteral("192.168.0.10"));
        QVERIFY(m_test->waitFor(
            QStringLiteral("!$('%1').hasClass('found')").arg(m_test->deviceRow(QStringLiteral("Marlin")))));

        marlin->plug();
        m_test->click(QStringLiteral("#livecontrol_update"));
        QVERIFY(marlin->isConnected());

        ModalSteps gone(*m_test);
        gone.expect(kEdit, QStringLiteral("$('#ip4').val() === '10'"))
            .run([this] {
                m_test->viewer().documents().remove(&m_test->camera(QStringLiteral("Marlin")));
                return true;
            })
            .click(kEdit, kOk)
            .press(QStringLiteral("OK"));
        m_test->click(part("Marlin", "edit"));
        FINISH(gone);
        QCOMPARE(gone.boxes(), QStringList{QStringLiteral("The camera is not in the list.")});
    }

    void deletesADeviceWithAllItsHeads() {
        ModalSteps keeps(*m_test);
        keeps.press(kNo);
        m_test->click(part("Gemini Right", "delete"));
        FINISH(keeps);
        QCOMPARE(m_test->deviceRows().size(), 5);
        ModalSteps deletes(*m_test);
        deletes.press(kYes);
        m_test->click(part("Gemini Right", "delete"));
        FINISH(deletes);
        QCOMPARE(deletes.boxes(), QStringList{QStringLiteral("Heads connected to the same device are also "
                                                             "removed from the list. Is it OK?")});
        QCOMPARE(m_test->deviceRows().size(), 3);
        QVERIFY(m_test->deviceRows().filter(QStringLiteral("Gemini")).isEmpty());
    }

    void deletesNothingTwice() {
        ModalSteps deletes(*m_test);
        deletes
            .run([this] {
                if (!dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    return false;
                }
                m_test->viewer().documents().remove(&m_test->camera(QStringLiteral("Plover")));
                return true;
            })
            .press(kYes);
        m_test->click(part("Plover", "delete"));
        FINISH(deletes);
        QCOMPARE(m_test->deviceRows().size(), 4);
    }

    void deletesAllBehindAQuestion() {
        ModalSteps keeps(*m_test);
        keeps.press(kNo);
        m_test->click(QStringLiteral("#livecontrol_deleteall"));
        FINISH(keeps);
        QCOMPARE(m_test->deviceRows().size(), 5);
        deleteAll();
        m_test->calls();
        m_test->eval(QStringLiteral("livecontrol.updateCameras(), 1")); // nothing left, nothing to see
        QCOMPARE(calls("HostPlugins.refreshPlugins"), 1);
    }

    void usesAddressesForNames() {
        m_test->click(QStringLiteral("#livecontrol_useip_cameraname"));
        QVERIFY(m_test->deviceRows().contains(QStringLiteral("192.168.0.11")));
        m_test->click(QStringLiteral("#livecontrol_useip_cameraname"));
        QVERIFY(m_test->deviceRows().contains(QStringLiteral("Plover")));
    }
};

QTEST_MAIN(tst_Devices)
#include "tst_devices.moc"

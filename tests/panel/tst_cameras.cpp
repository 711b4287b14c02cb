// The short list of cameras: what it shows, and selection by mouse and keyboard.

#include "simulator/device/SimulatedBody.h"
#include "simulator/device/SimulatedHead.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/RigDock.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/host/ViewerHost.h"

#include <QFile>
#include <QGroupBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {
const QString kList = QStringLiteral("#livecontrol_camera_item_list");
} // namespace

class tst_Cameras : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QStringList m_names;

    QString row(const QString& name) {
        return QStringLiteral("%1 [data-key=%2]").arg(kList).arg(m_test->keyOf(name));
    }
    QList<DOCKEY> selected() {
        QList<DOCKEY> keys;
        for (CameraDocument* const camera : m_test->viewer().documents().selectedCameras()) {
            keys.append(camera->key());
        }
        return keys;
    }
    QStringList shown() {
        QStringList names;
        const QJsonArray rows =
            m_test
                ->eval(
                    QStringLiteral("$('%1 .device-name').map(function () { return $(this).text(); }).get()")
                        .arg(kList))
                .toArray();
        for (const QJsonValue name : rows) {
            names.append(name.toString());
        }
        return names;
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        m_names.clear();
        for (const QJsonValue camera : m_test->call("camera.list").toArray()) {
            m_names.append(camera.toObject()[QStringLiteral("name")].toString());
        }
    }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void selectsByMouse() {
        m_test->click(row(m_names.at(1)));
        QCOMPARE(selected(), QList<DOCKEY>{m_test->keyOf(m_names.at(1))});
        m_test->click(row(m_names.at(0)), {QStringLiteral("ctrl")});
        QCOMPARE(selected().size(), 2);
        m_test->click(row(m_names.at(1)), {QStringLiteral("ctrl")});
        QCOMPARE(selected(), QList<DOCKEY>{m_test->keyOf(m_names.at(0))});
        m_test->click(QStringLiteral("#livecontrol_viewall_camera"));
        QVERIFY(selected().size() >= 3);
        QCOMPARE(m_test->viewer().documents().currentKey(),
                 m_test->keyOf(m_names.at(0))); // the current one stays
    }

    void selectsByKeyboard() {
        m_test->click(row(m_names.at(0)));
        m_test->key(row(m_names.at(0)), QStringLiteral("Down"));
        m_test->key(QString(), QStringLiteral("Space"));
        QCOMPARE(selected().size(), 2); // one more, none less
        m_test->key(row(m_names.at(1)), QStringLiteral("Space"));
        QCOMPARE(selected(), QList<DOCKEY>{m_test->keyOf(m_names.at(0))});
        m_test->key(row(m_names.at(1)), QStringLiteral("Return"));
        QCOMPARE(selected(), QList<DOCKEY>{m_test->keyOf(m_names.at(1))});
    }

    // Each of the rows fails by itself, and so do the blocks of the panel, with every update.
    void manyFailuresMakeOneBox() {
        QJsonArray cameras;
        for (int i = 1; i <= 8; ++i) {
            cameras.append(
                QJsonObject{{QStringLiteral("name"), QStringLiteral("Camera %1").arg(i)},
                            {QStringLiteral("model"), QStringLiteral("plain")},
                            {QStringLiteral("address"), QStringLiteral("192.168.0.%1").arg(10 + i)}});
        }
        QTemporaryDir folder;
        QFile rig(folder.filePath(QStringLiteral("eight.json")));
        QVERIFY(rig.open(QIODevice::WriteOnly));
        rig.write(QJsonDocument({{QStringLiteral("title"), QStringLiteral("Eight")},
                                 {QStringLiteral("cameras"), cameras}})
                      .toJson());
        rig.close();
        m_test.reset();
        m_test = std::make_unique<PanelTest>(rig.fileName());
        const auto failTimes = [this](const QString& operation, int times) {
            m_test->call("host.fail", {{QStringLiteral("operation"), operation},
                                       {QStringLiteral("message"), QStringLiteral("no ") + operation},
                                       {QStringLiteral("times"), times}});
        };
        for (int round = 0; round < 2; ++round) { // a box that was closed is done with
            failTimes(QStringLiteral("DOC_Settings.getIPAddress"), 8);
            failTimes(QStringLiteral("HostCameraControl.getRecordRateList"), 1);
            m_test->clearLogs();
            m_test->answerNextBox(QStringLiteral("OK"));
            m_test->eval(QStringLiteral("livecontrol.updateUI(), 1"));
            QCOMPARE(m_test->answeredBox(),
                     QStringLiteral("Several operations failed:\n\n"
                                    "  \u2022 no DOC_Settings.getIPAddress (8 times)\n"
                                    "  \u2022 no HostCameraControl.getRecordRateList"));
            // The list alone, outside an update of the host.
            failTimes(QStringLiteral("DOC_Settings.getIPAddress"), 8);
            m_test->answerNextBox(QStringLiteral("OK"));
            m_test->eval(QStringLiteral("livecontrol.getDeviceInfoList(false), 1"));
            QCOMPARE(m_test->answeredBox(), QStringLiteral("no DOC_Settings.getIPAddress (8 times)"));
            QCOMPARE(m_test->logged(QStringLiteral("Error:")).size(), 2);
        }
    }

    void showsTheSettingsOfTheCameraThatWasChosen() {
        m_test->click(row(m_names.at(0)));
        const QStringList mono = m_test->rows(QStringLiteral("#livecontrol_resolution"));
        m_test->click(row(m_names.at(1)));
        QVERIFY(m_test->rows(QStringLiteral("#livecontrol_resolution")) != mono);
    }

    void takesANameForTextOnly() {
        const QString hostile = QStringLiteral("<img src=x onerror=alert(1)>");
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_names.at(0)))},
                                    {QStringLiteral("name"), QStringLiteral("name")},
                                    {QStringLiteral("value"), hostile}});
        m_test->settle();
        QVERIFY(shown().contains(hostile));
        QCOMPARE(m_test->eval(QStringLiteral("$('#panels img').length")).toInt(), 0);
        QVERIFY(m_test->waitForBox(300).isEmpty());
    }

    void hidesWhatIsNotConnectedIfWanted() {
        const QStringList all = shown();
        m_test->call("camera.unplug", {{QStringLiteral("key"), double(m_test->keyOf(m_names.at(1)))}});
        QVERIFY(m_test->waitFor(QStringLiteral("!$('%1').hasClass('found')").arg(row(m_names.at(1)))));
        QCOMPARE(shown(), all);
        m_test->click(QStringLiteral("#livecontrol_show_connected_camera"));
        QVERIFY(!shown().contains(m_names.at(1)));
        QCOMPARE(m_test->call("prefs.get", {{QStringLiteral("name"),
                                             QStringLiteral("devicemanager/connectedCameraOnlyShowing")}}),
                 QJsonValue(true));
        m_test->call("camera.plug", {{QStringLiteral("key"), double(m_test->keyOf(m_names.at(1)))}});
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').hasClass('found')").arg(row(m_names.at(1)))));
    }

    void switchesTheInformationOverTheImage() {
        const bool before = m_test->eval(QStringLiteral("livecontrol.isDisplayInfoShowing()")).toBool();
        m_test->click(QStringLiteral("#livecontrol_showInfoCheckbox"));
        QCOMPARE(m_test->eval(QStringLiteral("livecontrol.isDisplayInfoShowing()")).toBool(), !before);
        QCOMPARE(m_test->eval(QStringLiteral("$('#livecontrol_showInfoCheckbox').prop('checked')")).toBool(),
                 !before);
    }

    void keepsWorkingWithSixtyFourCameras() {
        m_test.reset(); // one viewer at a time feeds the log
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/sixty-four.json"));
        QCOMPARE(shown().size(), 64);
        m_test->click(QStringLiteral("#livecontrol_viewall_camera"));
        QCOMPARE(selected().size(), 64);
        const QStringList rates = m_test->rows(QStringLiteral("#livecontrol_framerate"));
        m_test->choose(QStringLiteral("#livecontrol_framerate"), rates.at(1));
        QCOMPARE(m_test->caption(QStringLiteral("#livecontrol_framerate")), rates.at(1));
        for (CameraDocument* const camera : m_test->viewer().documents().cameras()) {
            QCOMPARE(camera->head()->settings().rate, camera->head()->rateList().at(1));
        }
        // A list that the user scrolled stays where it is through an update.
        // As it was squeezed before its own limit was known.
        m_test->eval(QStringLiteral("$('#livecontrol_camera_list .scrollarea').css('height', 56),"
                                    "livecontrol.updateUI(), 1"));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_camera_list .scrollarea').height() > 100")));
        m_test->eval(QStringLiteral("$('#livecontrol_camera_list .scrollarea').scrollTop(300), 1"));
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QCOMPARE(
            m_test->eval(QStringLiteral("$('#livecontrol_camera_list .scrollarea').scrollTop()")).toInt(),
            300);

        // The long list keeps place, selection and focus likewise.
        m_test->openDevices();
        const QStringList rows = m_test->deviceRows();
        const QString last = m_test->deviceRow(rows.last());
        const QString top =
            QStringLiteral("$('#livecontrol_device_item_list').closest('.scrollarea').scrollTop()");
        m_test->click(m_test->deviceRow(rows.at(40)) + QStringLiteral(" .device-name"));
        QCOMPARE(selected(), QList<DOCKEY>{m_test->keyOf(rows.at(40))});
        const int place = m_test->eval(top).toInt();
        QVERIFY(place > 0);
        m_test->head(rows.at(5)).body()->unplug();
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QCOMPARE(m_test->eval(top).toInt(), place);
        QVERIFY(
            m_test
                ->eval(QStringLiteral("$('%1').hasClass('ui-selected')").arg(m_test->deviceRow(rows.at(40))))
                .toBool());
        m_test->key(m_test->deviceRow(rows.at(40)), QStringLiteral("End"));
        QVERIFY(m_test->eval(QStringLiteral("$(document.activeElement).is('%1')").arg(last)).toBool());
        m_test->key(QString(), QStringLiteral("Return"));
        QCOMPARE(selected(), QList<DOCKEY>{m_test->keyOf(rows.last())});

        // A range, the menu of a row, and a filter.
        const auto click = [this](const QString& selector, const char* button, const char* modifier) {
            QJsonObject how{{QStringLiteral("selector"), selector},
                            {QStringLiteral("button"), QLatin1String(button)}};
            if (modifier) {
                how.insert(QStringLiteral("modifiers"), QJsonArray{QLatin1String(modifier)});
            }
            m_test->call("page.click", how);
        };
        click(m_test->deviceRow(rows.at(60)) + QStringLiteral(" .device-name"), "left", nullptr);
        click(m_test->deviceRow(rows.at(62)) + QStringLiteral(" .device-name"), "left", "shift");
        QTRY_COMPARE(selected().size(), 3);
        click(m_test->deviceRow(rows.at(62)) + QStringLiteral(" .device-name"), "right", nullptr);
        QVERIFY(m_test->waitFor(QStringLiteral("$('.row-menu li').first().is(':focus')")));
        m_test->key(QString(), QStringLiteral("Escape"));
        QVERIFY(m_test->waitFor(QStringLiteral("!$('.row-menu').length && $(document.activeElement).is('%1')")
                                    .arg(m_test->deviceRow(rows.at(62)))));
        m_test->type(QStringLiteral("#livecontrol_page_devicesetting .list-filter"), rows.at(7));
        QCOMPARE(m_test->eval(QStringLiteral("$('#livecontrol_device_item_list > :visible').length")).toInt(),
                 1);
    }

    // The buttons of the rig dock say whom they mean: the camera that the user works with.
    void theRigDockFollowsTheCurrentCamera() {
        Viewer& viewer = m_test->viewer();
        const QList<CameraDocument*> cameras = viewer.documents().cameras();
        for (CameraDocument* const camera : {cameras.last(), cameras.first()}) {
            viewer.documents().setCurrent(camera);
            QStringList titles;
            for (const QGroupBox* const box : viewer.mainWindow().rigDock().findChildren<QGroupBox*>()) {
                titles.append(box->title());
            }
            QVERIFY2(titles.contains(QStringLiteral("Camera: ") + camera->body()->name()),
                     qPrintable(titles.join(QLatin1Char('|'))));
        }
    }

    // Its buttons must not come to mean another camera because one is added.
    void theRigDockKeepsItsCameraWhenOneIsAdded() {
        Viewer& viewer = m_test->viewer();
        CameraDocument* const last = viewer.documents().cameras().last();
        viewer.documents().setCurrent(last);
        const auto* const list = viewer.mainWindow().rigDock().findChild<QTreeWidget*>();
        const int rows = list->topLevelItemCount();
        viewer.host().addCamera(QStringLiteral("Late"), QStringLiteral("999.999.999.77"), true, false);
        QCOMPARE(list->topLevelItemCount(), rows + 1);
        QCOMPARE(list->currentItem()->text(0), last->body()->name());
    }
};

QTEST_MAIN(tst_Cameras)
#include "tst_cameras.moc"

// The dialog that brings the settings of the cameras back, from a file or from their presets.

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/settings/GUI_CameraFileDialog.h"
#include "tests/support/LogCapture.h"
#include "tests/unit/settings/SettingsTest.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <algorithm>

namespace {
const QString kTitle = QStringLiteral("Device Open");
} // namespace

class tst_CameraFileDialog : public QObject, private SettingsTest {
    Q_OBJECT

    static QListWidget* listOf(const GUI_CameraFileDialog& dialog) {
        return dialog.findChild<QListWidget*>(QString(), Qt::FindDirectChildrenOnly);
    }
    static QWidget* rowOf(const GUI_CameraFileDialog& dialog, int row) {
        return listOf(dialog)->itemWidget(listOf(dialog)->item(row));
    }

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void loadsAFile() {
        QFile file(path(QStringLiteral("a.zcsx")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, kTitle, m_folder.path(), QString());
        dialog.show();
        auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(QStringLiteral("missing.zcsx"));
        dialog.accept();
        QVERIFY(m_alerts.value(0).endsWith(QStringLiteral("missing.zcsx does not exist.")));
        name->setText(QStringLiteral("a%.zcsx"));
        dialog.accept();
        QCOMPARE(m_alerts.value(1), QStringLiteral("Invalid filename."));
        QVERIFY(dialog.isVisible());
        QCOMPARE(count("HostDocuments.loadCameraSettings"), 0);
        // A folder is entered.
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("shots")));
        name->setText(QStringLiteral("shots"));
        dialog.accept();
        QCOMPARE(dialog.directory().path(), path(QStringLiteral("shots")));
        QVERIFY(dialog.isVisible() && m_alerts.size() == 2);
        dialog.setDirectory(m_folder.path());
        QCOMPARE(count("HostDocuments.loadCameraSettings"), 0);

        m_rig->host.onLoadCameraSettings = [](const QString&, int, int) {
            throw APP_Exception(QStringLiteral("cut off"), 0);
        };
        name->setText(QStringLiteral("a.zcsx"));
        dialog.accept();
        QCOMPARE(m_errors, QStringList(QStringLiteral("cut off")));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_prefs.value(QStringLiteral("zcsx/path")).toString(), m_folder.path());
    }

    void loadsPresets() {
        LogCapture log;
        m_rig->camera.onIsPresetLoadedAfterReboot = [] { return true; };
        m_rig->camera.onGetDisplayName = [] { return QStringLiteral("Marlin A"); };
        m_rig->camera.onIsSharedHeadSettings = [] { return true; };
        m_rig->device.onGetHeads = [this](bool) {
            return QList<DOC_Interface*>{&m_rig->camera, m_other.get()};
        };
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, kTitle, m_folder.path(), QString());
        dialog.show();
        const int high = dialog.height();
        auto* const fromCamera = dialog.findChild<QCheckBox*>();
        QVERIFY(fromCamera->isEnabled());
        fromCamera->click();
        QVERIFY(dialog.findChild<QListWidget*>(QString(), Qt::FindDirectChildrenOnly)->isVisible());
        QVERIFY(!dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->isEnabled());
        QCOMPARE(dialog.height(), int(float(high) * 1.7F));
        QVERIFY(log.lines().last().text.contains(QStringLiteral("[Operation:toggled]")));
        fromCamera->click();
        QVERIFY(qAbs(dialog.height() - high) <= 1);
        fromCamera->click();

        QString notice;
        m_rig->host.onConfirmOkCancel = [&](const QString& text, QWidget*) { return notice = text, false; };
        m_rig->host.calls.clear();
        dialog.on_ok_clicked(); // 7 has preset 2 in force; 9 none
        QCOMPARE(count("HostLive.stopLiveForRefresh"), 1);
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("DOC_Transfer.restartTransfer")),
                 QVariantList{true});
        QVERIFY(notice.endsWith(QStringLiteral("Please restart the camera.\n\n Marlin A")));
        QVERIFY(dialog.isVisible());
        QCOMPARE(count("DOC_Settings.loadPreset"), 0);

        m_rig->host.onConfirmOkCancel = [](const QString&, QWidget*) { return true; };
        m_rig->host.calls.clear();
        QStringList refreshed;
        m_rig->camera.onRefreshCameraSettings = [&](bool) { refreshed += QStringLiteral("loaded"); };
        m_other->onRefreshCameraSettings = [&](bool) { refreshed += QStringLiteral("other head"); };
        dialog.on_ok_clicked();
        QStringList steps = m_rig->host.calls.names();
        steps = steps.mid(steps.indexOf(QStringLiteral("DOC_Interface.setConnected")), 7);
        steps.removeAll(QStringLiteral("HostDocuments.docByKey"));
        QCOMPARE(steps.mid(0, 4), QStringList({QStringLiteral("DOC_Interface.setConnected"),
                                               QStringLiteral("DOC_Settings.loadPreset"),
                                               QStringLiteral("DOC_Save.refreshCameraSettings"),
                                               QStringLiteral("DOC_Settings.isSharedHeadSettings")}));
        QCOMPARE(refreshed, QStringList({QStringLiteral("loaded"), QStringLiteral("other head")}));
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostDocuments.closeDocument")),
                 (QVariantList{7, false}));
        QVERIFY(!dialog.isVisible());
    }

    void withoutCamerasItHasFilesOnly() {
        m_rig->host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>(); };
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, QStringLiteral("Device Open"),
                                    path(QStringLiteral("new")), QString());
        QVERIFY(!dialog.findChild<QCheckBox*>()->isEnabled());
        QVERIFY(QDir(path(QStringLiteral("new"))).exists());
    }

    void tellsOfItsCamerasAndOfTheUser() {
        const LogCapture log;
        setPresets(*m_other, 0, 0);
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, kTitle, m_folder.path(), QString());
        QCOMPARE(rowOf(dialog, 1)->findChildren<QLabel*>().last()->text(),
                 QStringLiteral("10.0.0.7\t<b>M</b>"));
        const auto none = [&](int row) { return rowOf(dialog, row)->findChildren<QRadioButton*>().last(); };
        QCOMPARE(none(0)->text(), QStringLiteral("None"));
        QVERIFY(none(0)->isChecked()); // a camera without presets
        QVERIFY(!none(1)->isChecked());
        none(1)->setChecked(true);
        for (const char* const button : {"Cancel", "OK"}) {
            dialog.show();
            for (auto* const one : dialog.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
                one->text() == QLatin1String(button) ? one->click() : void();
            }
            QVERIFY(!dialog.isVisible());
        }
        QCOMPARE(count("DOC_Settings.loadPreset"), 0);
        QCOMPARE(log.with(QStringLiteral("GUI_CameraFileDialog::on_cancel_clicked")).size(), 1);
        QCOMPARE(log.with(QStringLiteral("GUI_CameraFileDialog::on_ok_clicked")).size(), 1);
    }

    // One camera that can't tell its presets must not keep the user from a file or from the other cameras.
    void opensWhateverACameraFailsToTell() {
        m_rig->host.calls.failNext(QStringLiteral("DOC_Settings.getIPAddress"),
                                   throwing(std::runtime_error("mute"))); // of 9, which comes first
        const GUI_CameraFileDialog dialog(&m_rig->host, nullptr, kTitle, m_folder.path(), QString());
        QCOMPARE(m_errors, QStringList(QStringLiteral("mute")));
        QCOMPARE(listOf(dialog)->count(), 1);
        QVERIFY(dialog.findChild<QCheckBox*>()->isEnabled());
        QStringList asked = m_rig->host.calls.names().filter(QStringLiteral("DOC_Settings."));
        QCOMPARE(asked.mid(asked.size() - 4), (QStringList{QStringLiteral("DOC_Settings.getPresetInfo"),
                                                           QStringLiteral("DOC_Settings.getDeviceName"),
                                                           QStringLiteral("DOC_Settings.getIPAddress"),
                                                           QStringLiteral("DOC_Settings.getCameraName")}));
    }

    void aPresetThatFailsEndsTheWalk() {
        setPresets(*m_other, 1, 2);
        // Not even a host that fails to tell it may end the program.
        m_rig->host.onHandleError = [this](std::exception& error) {
            m_errors.append(QString::fromUtf8(error.what()));
            throw std::runtime_error("no window");
        };
        m_rig->camera.onLoadPreset = [](int) { throw std::runtime_error("worn out"); };
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, kTitle, m_folder.path(), QString());
        dialog.show();
        dialog.on_ok_clicked();
        QCOMPARE(m_errors, QStringList(QStringLiteral("worn out")));
        QCOMPARE(count("DOC_Settings.loadPreset"), 1); // 9 keeps its own
        QVERIFY(!dialog.isVisible());
        m_rig->host.calls.failNext(QStringLiteral("HostApplication.translate"),
                                   throwing(std::runtime_error("no words")));
        dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("a%.zcsx"));
        dialog.accept();
        QCOMPARE(m_errors.last(), QStringLiteral("no words"));
    }

    void aCameraWithoutALinkIsMarkedAndLeftAlone() {
        m_rig->camera.onIsConnected = [] { return false; };
        setPresets(*m_other, 1, 2);
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, kTitle, m_folder.path(), QString());
        const QWidget* const row = rowOf(dialog, 1);
        QVERIFY(!row->isEnabled());
        const QList<QLabel*> labels = row->findChildren<QLabel*>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->text() == QLatin1String("Not connected");
        }));
        dialog.on_ok_clicked();
        QCOMPARE(count("DOC_Settings.loadPreset"), 1);
        QVERIFY(m_errors.isEmpty());
    }

    void manyPresetsLieSideBySide() {
        setPresets(*m_other, 64, 64);
        const GUI_CameraFileDialog dialog(&m_rig->host, nullptr, kTitle, m_folder.path(), QString());
        const QWidget* const row = rowOf(dialog, 0);
        QList<QRect> places;
        for (const QWidget* const child : row->findChildren<QWidget*>()) {
            const QRect place(child->pos(),
                              QSize(qMin(40, child->sizeHint().width()), 20)); // the widgets are wider
            for (const QRect& other : qAsConst(places)) {
                QVERIFY2(!place.intersects(other), qPrintable(QString::number(places.size())));
            }
            places.append(place);
        }
        QCOMPARE(places.size(), 3 + 64 + 1);
        const QList<QRadioButton*> presets = row->findChildren<QRadioButton*>().mid(0, 64);
        QVERIFY(std::is_sorted(presets.begin(), presets.end(), [](const QWidget* a, const QWidget* b) {
            return std::make_pair(a->y(), a->x()) < std::make_pair(b->y(), b->x());
        })); // as one reads
        const int high = listOf(dialog)->item(0)->sizeHint().height();
        QVERIFY(std::all_of(places.begin(), places.end(), [high](const QRect& place) {
            return place.bottom() < high && place.right() < 561;
        }));
        QCOMPARE(listOf(dialog)->item(1)->sizeHint(), QSize(50, 50));
    }
};

QTEST_MAIN(tst_CameraFileDialog)
#include "tst_camera_file_dialog.moc"

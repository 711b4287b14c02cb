#include "livecontrol/settings/GUI_CameraFileDialog.h"

#include "livecontrol/bridge/UserOperationLog.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/DOC_Camera.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DeviceObject.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/settings/CameraRows.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace {

const QString kClass = QStringLiteral("GUI_CameraFileDialog");
const QRect kIconTile(0, 306, 24, 24);
constexpr float kRoomForCameras = 1.7F;

// Pixels in a row of the list.
constexpr int kRowHeight = 50;
constexpr int kPresetsInLine = 7; // the number of one more would lie under "None"
constexpr int kLineHeight = 26;

/// The lines of presets after the first stand below the texts of the row.
QRect placeOfPreset(int preset) {
    const int line = (preset - 1) / kPresetsInLine;
    const int column = preset - line * kPresetsInLine;
    return {160 + 40 * column, line == 0 ? 0 : kRowHeight + (line - 1) * kLineHeight, 41, kLineHeight};
}

int rowHeight(int presets) { return kRowHeight + std::max(0, (presets - 1) / kPresetsInLine) * kLineHeight; }

QLabel* addLabel(QWidget* parent, const QRect& place, const QString& text) {
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText); // names come from the cameras
    label->setGeometry(place);
    label->setText(text);
    return label;
}

/// The heads of one camera share their settings.
void refreshOtherHeads(DOC_Interface* document) {
    auto* const camera = dynamic_cast<DOC_Camera*>(document);
    DeviceObject* const device = camera ? camera->getDevice() : nullptr;
    if (!device) {
        return;
    }
    const QList<DOC_Interface*> heads = docAs<DOC_Interface>(device).getHeads(false);
    for (DOC_Interface* const head : heads) {
        if (head != document) {
            docAs<DOC_Save>(head).refreshCameraSettings(false);
        }
    }
}

/// The folder, which is there now: the last part of a path that isn't would be taken for a file's name.
QString made(const QString& folder) {
    QDir().mkpath(folder);
    return folder;
}

} // namespace

GUI_CameraFileDialog::GUI_CameraFileDialog(HostObject* host, QWidget* parent, const QString& caption,
                                           const QString& folder, const QString& filter)
    : GUI_QFileDialog(parent, host, caption, made(folder), filter),
      m_icon(QPixmap(QStringLiteral(":/is_titlebar.png")).copy(kIconTile)) {
    setDirectory(folder);
    setNameFilters({tr("zcsx (*.zcsx)"), tr("All Files (* *.*)")});
    createWidgets();
    fillList();
    connect(m_loadCamera, &QCheckBox::toggled, this, &GUI_CameraFileDialog::on_checkLoadCamera_change);
    connect(m_ok, &QPushButton::clicked, this, &GUI_CameraFileDialog::on_ok_clicked);
    connect(m_cancel, &QPushButton::clicked, this, &GUI_CameraFileDialog::on_cancel_clicked);
    setAcceptMode(QFileDialog::AcceptOpen);
    setOption(QFileDialog::DontConfirmOverwrite);
}

void GUI_CameraFileDialog::createWidgets() {
    m_loadCamera = new QCheckBox(m_host->translate(QStringLiteral("Load from camera"), nullptr, 0));
    m_cameras = new QListWidget;
    m_ok = new QPushButton(m_host->translate(QStringLiteral("OK"), nullptr, 0));
    m_cancel = new QPushButton(m_host->translate(QStringLiteral("Cancel"), nullptr, 0));
    auto* const below = new QVBoxLayout;
    below->addWidget(m_loadCamera);
    below->addWidget(m_cameras, 100);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_ok, 0);
    buttons->addWidget(m_cancel, 1);
    buttons->addStretch(6);
    auto* const grid = dynamic_cast<QGridLayout*>(layout());
    grid->addLayout(below, grid->rowCount(), 0, 1, 3);
    grid->addLayout(buttons, grid->rowCount(), 0, 1, 3);
    grid->setRowStretch(grid->rowCount() - 2, 100);
    for (QWidget* const widget :
         {static_cast<QWidget*>(m_cameras), static_cast<QWidget*>(m_cancel), static_cast<QWidget*>(m_ok)}) {
        widget->hide();
    }
    m_loadCamera->setEnabled(false);
}

void GUI_CameraFileDialog::fillList() {
    // A file can be opened whatever a camera fails to tell; a camera that fails has no row.
    reportingFailures(m_host, [this] {
        visitCameraRows(*m_host,
                        [this](const CameraRow& row) { reportingFailures(m_host, [&] { addRow(row); }); });
    });
    m_loadCamera->setEnabled(!m_presets.isEmpty());
}

void GUI_CameraFileDialog::addRow(const CameraRow& row) {
    auto& settings = docAs<DOC_Settings>(row.document);
    PresetInfo info;
    settings.getPresetInfo(info);
    const QString deviceName = settings.getDeviceName(true);
    const QString address = settings.getIPAddress(true);
    const QString fullName = settings.getCameraName(true);
    const bool connected = row.document->isConnected();
    auto* const item = new QListWidgetItem(m_cameras);
    item->setSizeHint(QSize(50, rowHeight(info.count)));
    auto* const container = new QWidget;
    addLabel(container, QRect(12, 3, 24, 24), QString())->setPixmap(m_icon);
    QLabel* const name = addLabel(container, QRect(50, 3, 200, 20), QString());
    name->setStyleSheet(QStringLiteral("QLabel { color : #428798; max-width: 142px;}"));
    name->setText(name->fontMetrics().elidedText(fullName, Qt::ElideRight, 140));
    name->setToolTip(asMarkup(fullName));
    addLabel(container, QRect(50, 25, 900, 20), QStringLiteral("%1\t%2").arg(address, deviceName));
    // Nothing is known to be in force in a camera that can't be asked, and nothing can be loaded into it.
    m_presets.insert(row.key, addPresets(container, info.count, connected ? info.selected : 0));
    if (!connected) {
        addLabel(container, QRect(430, 25, 130, 20),
                 m_host->translate(QStringLiteral("Not connected"), nullptr, 0));
        container->setEnabled(false);
    }
    m_cameras->setItemWidget(item, container);
}

QList<QRadioButton*> GUI_CameraFileDialog::addPresets(QWidget* container, int count, int selected) {
    QList<QRadioButton*> presets;
    for (int preset = 1; preset <= count; ++preset) {
        auto* const radio = new QRadioButton(QString::number(preset), container);
        radio->setGeometry(placeOfPreset(preset));
        radio->setChecked(preset == selected);
        presets.append(radio);
    }
    auto* const none = new QRadioButton(m_host->translate(QStringLiteral("None"), nullptr, 0), container);
    none->setGeometry(500, 0, 61, kLineHeight);
    none->setChecked(count == 0);
    presets.append(none);
    return presets;
}

void GUI_CameraFileDialog::on_checkLoadCamera_change(bool check) {
    logUserOperation(kClass, QStringLiteral("toggled"), QStringLiteral("Button"),
                     QStringLiteral("GUI_CameraFileDialog::on_checkLoadCamera_change"), QString(),
                     check ? QStringLiteral("ON") : QStringLiteral("OFF"));
    for (QWidget* const widget :
         {static_cast<QWidget*>(m_cameras), static_cast<QWidget*>(m_cancel), static_cast<QWidget*>(m_ok)}) {
        widget->setVisible(check);
    }
    // What has a name is the file dialog's own.
    const auto children = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* const child : children) {
        if (!child->objectName().isEmpty()) {
            child->setEnabled(!check);
        }
    }
    const auto high = static_cast<float>(height());
    resize(width(), static_cast<int>(check ? high * kRoomForCameras : high / kRoomForCameras));
}

void GUI_CameraFileDialog::accept() {
    reportingFailures(m_host, [this] {
        const auto* const field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const QString text = field ? field->text() : QString();
        if (!isValidFileName(QFileInfo(text).baseName()) || !isValidFilePath(text)) {
            m_host->alert(m_host->translate(QStringLiteral("Invalid filename."), nullptr, 0), this);
            return;
        }
        const QString path = selectedFiles().value(0);
        if (QFileInfo(path).isDir()) {
            QFileDialog::accept();
        } else if (QFileInfo::exists(path)) {
            loadFile(path);
            QFileDialog::accept();
        } else {
            m_host->alert(m_host->translate(QStringLiteral("%1 does not exist."), nullptr, 0).arg(path),
                          this);
        }
    });
}

void GUI_CameraFileDialog::loadFile(const QString& path) {
    reportingFailures(m_host, [&] {
        storeSettingsFolder(*m_host, directory().path());
        m_host->loadCameraSettings(path, 0, 0);
    });
}

void GUI_CameraFileDialog::on_ok_clicked() {
    logClick("ok");
    try {
        if (!loadPresets()) {
            return;
        }
    } catch (std::exception& error) {
        reportFailure(m_host, error);
    }
    done(QDialog::Accepted);
    close();
}

void GUI_CameraFileDialog::on_cancel_clicked() {
    logClick("cancel");
    reject();
}

void GUI_CameraFileDialog::logClick(const char* button) {
    logUserOperation(kClass, QStringLiteral("clicked"), QStringLiteral("Button"),
                     QStringLiteral("GUI_CameraFileDialog::on_%1_clicked").arg(QLatin1String(button)),
                     QString(), QVariant());
}

QMap<DOCKEY, int> GUI_CameraFileDialog::chosenPresets() const {
    const QString none = m_host->translate(QStringLiteral("None"), nullptr, 0);
    QMap<DOCKEY, int> chosen;
    for (auto it = m_presets.cbegin(); it != m_presets.cend(); ++it) {
        int preset = 0;
        for (const QRadioButton* const radio : it.value()) {
            if (preset == 0 && radio->isChecked() && radio->text() != none) {
                preset = radio->text().toInt();
            }
        }
        chosen.insert(it.key(), preset);
    }
    return chosen;
}

bool GUI_CameraFileDialog::loadPresets() {
    const LiveSuspendGuard guard(m_host, true, true);
    const QMap<DOCKEY, int> chosen = chosenPresets();
    QList<DOCKEY> rebooting;
    for (auto it = chosen.cbegin(); it != chosen.cend(); ++it) {
        DOC_Interface* const document = it.value() > 0 ? m_host->docByKey(it.key(), true) : nullptr;
        if (document && docAs<DOC_Settings>(document).isPresetLoadedAfterReboot()) {
            rebooting.append(it.key());
        }
    }
    if (!rebooting.isEmpty() && !agreesToReboot(rebooting)) {
        return false;
    }
    for (auto it = chosen.cbegin(); it != chosen.cend(); ++it) {
        if (it.value() > 0) {
            loadPreset(it.key(), it.value(), rebooting.contains(it.key()));
        }
    }
    return true;
}

bool GUI_CameraFileDialog::agreesToReboot(const QList<DOCKEY>& keys) {
    QString text = m_host->translate(QStringLiteral("The following camera preset is loaded after rebooting. "
                                                    "Please restart the camera."),
                                     nullptr, 0) +
                   QLatin1Char('\n');
    for (const DOCKEY key : keys) {
        if (DOC_Interface* const document = m_host->docByKey(key, true)) {
            text += QStringLiteral("\n ") + document->getDisplayName();
        }
    }
    return m_host->confirmOkCancel(text, this);
}

void GUI_CameraFileDialog::loadPreset(DOCKEY key, int preset, bool reboots) {
    DOC_Interface* const document = m_host->docByKey(key, true);
    if (!document) {
        return;
    }
    if (reboots) {
        document->setConnected(false);
    }
    auto& settings = docAs<DOC_Settings>(document);
    settings.loadPreset(preset);
    docAs<DOC_Save>(document).refreshCameraSettings(false);
    if (settings.isSharedHeadSettings()) {
        refreshOtherHeads(document);
    }
    if (reboots) {
        m_host->closeDocument(key, false);
    }
}

#include "viewer/host/doors/CameraShootingDoor.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/prefs/Preferences.h"

namespace {
const QString kCalibrateWithShutter = QStringLiteral("shading/autocalib");

QString text(const QSize& size) { return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()); }
} // namespace

void CameraShootingDoor::setResolution(unsigned width, unsigned height) {
    OPERATION(width, height);
    const QSize size(static_cast<int>(width), static_cast<int>(height));
    const QList<CameraDocument*> cameras = m_cameras.all();
    m_changeNotes.during(cameras, {QStringLiteral("resolution")}, [&] {
        CameraCommands(SettingTable::command("resolution"), [](const CameraHead& head) {
            return text(head.settings().resolution);
        }).run(cameras, [&](CameraHead& head) {
            return m_triggerSharing.keep(head, [&size](CameraHead& it) { return it.setResolution(size); });
        });
    });
}

void CameraShootingDoor::setRecordRate(unsigned long rate) {
    OPERATION(rate);
    const QList<CameraDocument*> cameras = m_cameras.all();
    m_changeNotes.during(cameras, {QStringLiteral("rate")}, [&] {
        CameraCommands(SettingTable::command("rate"), [this](const CameraHead& head) {
            return QStringLiteral("%1 fps").arg(m_documents.displayFormat().rate(head.settings().rate));
        }).run(cameras, [&](CameraHead& head) {
            return m_triggerSharing.keep(head, [rate](CameraHead& it) { return it.setRate(quint32(rate)); });
        });
    });
}

// At a step of a drag, without `notify`, a camera that takes its nearest value is no failure.
void CameraShootingDoor::setShutterSpeed(unsigned long value, bool notify) {
    OPERATION(value, notify);
    const auto taken = [this](const CameraHead& head) {
        return m_documents.shutterFormat().ofCamera(head.settings().liveShutter());
    };
    // In low light it is that of the live image, and not for cameras that would record with it.
    const bool isForLowLight = head() && head()->isLowLight();
    const QList<CameraDocument*> cameras =
        filterCameras(m_cameras.all(), [isForLowLight](const CameraDocument& camera) {
            return !isForLowLight || camera.head()->isLowLight();
        });
    CameraCommands(SettingTable::command("shutter"), notify ? taken : CameraCommands::Taken())
        .run(cameras, [value](CameraHead& head) { return head.setShutter(quint32(value)); });
    const bool calibrates = notify && m_preferences.value(kCalibrateWithShutter, false).toBool();
    if (calibrates && !m_shading.cameras().isEmpty()) {
        m_shading.run();
    }
}

void CameraShootingDoor::getShutterSpeedList(int unit, QList<unsigned long>& list) {
    OPERATION(unit);
    list.clear();
    const QList<quint32> values = head() ? head()->shutterList() : QList<quint32>();
    for (const quint32 value : values) {
        list.append(ShutterFormat::fromCamera(value, unit));
    }
}

void CameraShootingDoor::getResolutionList(QList<ResolutionEntry>& list) {
    OPERATION();
    list.clear();
    const QList<QSize> sizes = head() ? head()->resolutionList() : QList<QSize>();
    for (const QSize& size : sizes) {
        list.append({quint32(size.width()), quint32(size.height())});
    }
}

void CameraShootingDoor::getRecordRateList(QList<unsigned long>& list) {
    OPERATION();
    list.clear();
    const QList<quint32> rates = head() ? head()->rateList() : QList<quint32>();
    for (const quint32 rate : rates) {
        list.append(rate);
    }
}

void CameraShootingDoor::getResolution(unsigned& width, unsigned& height) {
    OPERATION();
    const QSize size = settings() && settings()->resolution.isValid() ? settings()->resolution : QSize(0, 0);
    width = unsigned(size.width());
    height = unsigned(size.height());
}

void CameraShootingDoor::getMaxResolution(unsigned& width, unsigned& height) {
    OPERATION();
    const QSize size = head() && head()->maxResolution().isValid() ? head()->maxResolution() : QSize(0, 0);
    width = unsigned(size.width());
    height = unsigned(size.height());
}

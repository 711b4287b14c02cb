// The rows of the camera lists, one JSON text a document.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/DeterUpdateScope.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/JS_Mediator.h"

#include <optional>

namespace {

// Function codes of a camera.
constexpr int kFunctionWifi = 112;
constexpr int kFunctionShutdown = 117;

constexpr int kWifiConnected = 1;
constexpr int kLinkSpeedSupported = 1;

/// A flag that a row takes as a class name: the text itself, or nothing.
QString flag(bool on, const char* text) { return on ? QString::fromLatin1(text) : QString(); }

/// Fills the row as far as the document answers; throws what it throws.
void fillRow(QJsonObject& row, DOC_Interface* document) {
    auto& settings = docAs<DOC_Settings>(document);
    row[QStringLiteral("cameraname")] = settings.getCameraName(false);
    const QString headName = settings.getHeadName(true);
    row[QStringLiteral("devicename")] = headName.isEmpty() ? settings.getDeviceName(true) : headName;
    row[QStringLiteral("ipaddress")] = settings.getIPAddress(true);
    row[QStringLiteral("headno")] = settings.getHeadNumber();
    row[QStringLiteral("selected")] = flag(document->isSelected(), "ui-selected");
    row[QStringLiteral("found")] = flag(document->isConnected(), "found");
    row[QStringLiteral("mobile")] = flag(document->isMobile(), "mobile");
    row[QStringLiteral("dummy")] = flag(settings.isDummy(), "dummy");
    row[QStringLiteral("shutdown")] =
        flag(settings.isFunctionSupported(kFunctionShutdown, true), "sup-shutdown");
    row[QStringLiteral("sup-wifi")] = flag(settings.isFunctionSupported(kFunctionWifi, true), "sup-wifi");
    row[QStringLiteral("con-wifi")] = flag(settings.getWifiState() == kWifiConnected, "connected");
    row[QStringLiteral("sup-linkspeed")] =
        flag(settings.getLinkSpeedState() == kLinkSpeedSupported, "sup-linkspeed");
}

} // namespace

QVariantList JS_Mediator::getDeviceInfoList(bool isMinilist) {
    return guarded(
        [&] {
            const bool connectedOnly =
                isMinilist && m_host->getMode() == HOST_MODE_LIVE &&
                m_host->getPrefBool(QStringLiteral("devicemanager/connectedCameraOnlyShowing"), false);
            QVariantList rows;
            std::optional<DeterUpdateScope> deter; // a host may tell in one what fails in it
            const QList<DOCKEY> keys = m_host->getAllKeys(true);
            for (const DOCKEY key : keys) {
                QJsonObject row;
                try { // a camera that fails must not hide the others
                    DOC_Interface* const document = m_host->docByKey(key, true);
                    if (!document || (connectedOnly && !document->isConnected())) {
                        continue;
                    }
                    row[QStringLiteral("key")] = json::text(key);
                    fillRow(row, document);
                } catch (std::exception& error) {
                    if (!deter) {
                        deter.emplace(m_host);
                    }
                    errorHandler(error);
                    row[QStringLiteral("found")] = QString();
                }
                rows.append(json::compact(row));
            }
            return rows;
        },
        QVariantList());
}

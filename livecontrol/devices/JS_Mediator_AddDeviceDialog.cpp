#include "livecontrol/devices/JS_Mediator_AddDeviceDialog.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/foundation/UTL_Network.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

#include <QSet>

namespace {
constexpr int kLastDummy = 255;

/// An address that no camera can have.
QString dummyAddress(int number) { return QStringLiteral("999.999.999.%1").arg(number); }
} // namespace

JS_Mediator_AddDeviceDialog::JS_Mediator_AddDeviceDialog(HostObject* host, bool connectOnAdd,
                                                         TypedCamera* typed)
    : JS_Mediator_Dialog(host, QStringLiteral("adddevice")), m_connectOnAdd(connectOnAdd),
      m_before(typed ? *typed : TypedCamera()), m_typed(typed) {
    if (m_typed) {
        m_typed->hasFailed = false;
    }
}

QString JS_Mediator_AddDeviceDialog::getAddDeviceDialogSettings() {
    return guarded(
        [&] {
            return json::compact({{QStringLiteral("DefaultCameraName"), host()->getDefaultCameraName(0)},
                                  {QStringLiteral("DefaultIPAddress"),
                                   host()->getPrefString(QStringLiteral("cameraconnection/AddIPDefault"),
                                                         QStringLiteral("192.168.0.10"), 0)},
                                  {QStringLiteral("DefaultDummyIPAddress"), nextDummyAddress()}});
        },
        QString());
}

QString JS_Mediator_AddDeviceDialog::nextDummyAddress() {
    QSet<QString> taken;
    const QList<DOCKEY> keys = host()->getAllKeys(true);
    for (const DOCKEY key : keys) {
        if (DOC_Interface* const document = host()->findDocument(key)) {
            auto& settings = docAs<DOC_Settings>(document);
            if (settings.isDummy()) {
                taken.insert(settings.getIPAddress(true));
            }
        }
    }
    for (int number = 1; number <= kLastDummy; ++number) {
        const QString address = dummyAddress(number);
        if (!taken.contains(address)) {
            return address;
        }
    }
    return dummyAddress(1);
}

QString JS_Mediator_AddDeviceDialog::getTyped() {
    return m_before.hasFailed ? json::compact({{QStringLiteral("name"), m_before.name},
                                               {QStringLiteral("ipAddress"), m_before.ipAddress},
                                               {QStringLiteral("isDummy"), m_before.isDummy}})
                              : QString();
}

void JS_Mediator_AddDeviceDialog::ok(const QString& cameraNeme, const QString& ipAddress, bool isDummy) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_AddDeviceDialog::ok"),
        traceArgs({{"cameraNeme", cameraNeme}, {"ipAddress", ipAddress}, {"isDummy", isDummy}}));
    TypedCamera typed{cameraNeme, ipAddress, isDummy, true};
    guarded([&] {
        if (isValidFileName(cameraNeme) && isValidIPAddress(ipAddress)) {
            host()->addCamera(cameraNeme, ipAddress, isDummy, m_connectOnAdd);
        }
        typed.hasFailed = false;
    });
    if (m_typed) {
        *m_typed = typed;
    }
    emit accept();
}

void JS_Mediator_AddDeviceDialog::cancel() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_AddDeviceDialog::cancel"));
    emit reject();
}

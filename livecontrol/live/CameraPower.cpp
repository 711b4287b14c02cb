// Turns cameras off or restarts them. The user answers at least two questions first; power acts on devices,
// so all heads of a body go down together.

#include "livecontrol/foundation/DocumentCast.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/foundation/UTL_Messages.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/plugin/host/DOC_Camera.h"
#include "livecontrol/plugin/host/DOC_Settings.h"
#include "livecontrol/plugin/host/DOC_Transfer.h"
#include "livecontrol/plugin/host/HostObject.h"

#include <QDialog>

#include <algorithm>
#include <iterator>

namespace {

// Function codes of a device.
constexpr int kFunctionPowerOff = 117;
constexpr int kFunctionRestart = 118;

using Devices = QList<DeviceObject*>;

enum class PowerCommand { None, TurnOff, Restart };

QList<DOC_Interface*> headsOf(DeviceObject* device) { return docAs<DOC_Interface>(device).getHeads(false); }

/// All devices with a head that can be turned off from here.
Devices capableDevices(HostObject* host) {
    Devices capable;
    const Devices all = host->listDevices();
    for (DeviceObject* const device : all) {
        if (!headsOf(device).isEmpty() &&
            docAs<DOC_Settings>(device).isFunctionSupported(kFunctionPowerOff, true)) {
            capable.append(device);
        }
    }
    return capable;
}

/// The device behind a key as a list; empty for a key that isn't a camera's.
Devices deviceOf(HostObject* host, DOCKEY key) {
    auto* const camera = dynamic_cast<DOC_Camera*>(host->docByKey(key, true));
    DeviceObject* const device = camera ? camera->getDevice() : nullptr;
    return device ? Devices{device} : Devices{};
}

/// Those of the devices that are in the list yet: a question lets events run, in which a camera can go.
Devices stillListed(HostObject* host, const Devices& devices) {
    const Devices all = host->listDevices();
    Devices listed;
    std::copy_if(devices.cbegin(), devices.cend(), std::back_inserter(listed),
                 [&all](DeviceObject* device) { return all.contains(device); });
    if (listed.isEmpty()) {
        host->alert(host->translate(QStringLiteral("The camera is not in the list."), nullptr, 0), nullptr);
    }
    return listed;
}

/// What the operation covers, after a question if there is a choice; empty if the user cancels.
Devices chooseDevices(HostObject* host, DOCKEY key) {
    const Devices capable = capableDevices(host);
    if (capable.size() >= 2) {
        const QMessageBox::StandardButton answer = UTL_Messages::confirmYesNoCancel(
            QStringLiteral("Multiple cameras capable of power operation from ZEL are connected. Do you "
                           "operate all at once?"),
            host, nullptr);
        if (answer == QMessageBox::Yes) {
            return capable;
        }
        if (answer != QMessageBox::No) {
            return {};
        }
    }
    return deviceOf(host, key);
}

PowerCommand confirmed(HostObject* host, PowerCommand command) {
    const bool isSure =
        command == PowerCommand::Restart
            ? UTL_Messages::confirm(QStringLiteral("Restart the camera. Are you really sure?"), host, nullptr,
                                    {{QMessageBox::Yes, QStringLiteral("Restart")},
                                     {QMessageBox::No, QStringLiteral("Not restart")}})
            : UTL_Messages::confirm(QStringLiteral("Turn off the camera. Are you really sure?"), host,
                                    nullptr,
                                    {{QMessageBox::Yes, QStringLiteral("Turn off")},
                                     {QMessageBox::No, QStringLiteral("Not turn off")}});
    return isSure ? command : PowerCommand::None;
}

PowerCommand askWithRestart(HostObject* host) {
    const QMessageBox::StandardButton answer = UTL_Messages::confirmYesNoCancel(
        QStringLiteral("Turns off or restarts the camera. Is it OK?"), host, nullptr,
        {{QMessageBox::Yes, QStringLiteral("Turn off the camera")},
         {QMessageBox::No, QStringLiteral("Restart the camera")}});
    if (answer == QMessageBox::Yes) {
        return confirmed(host, PowerCommand::TurnOff);
    }
    return answer == QMessageBox::No ? confirmed(host, PowerCommand::Restart) : PowerCommand::None;
}

PowerCommand askTurnOff(HostObject* host) {
    const bool isWanted =
        UTL_Messages::confirmOkCancel(QStringLiteral("Turn off the camera. Is it OK?"), host, nullptr,
                                      {{QMessageBox::Ok, QStringLiteral("Turn off the camera")}});
    return isWanted ? confirmed(host, PowerCommand::TurnOff) : PowerCommand::None;
}

/// Ends what shows the devices' images, then waits under the host's dialog if a device wants it.
void prepareViews(HostObject* host, const Devices& devices, bool waits) {
    for (DeviceObject* const device : devices) {
        const QList<DOC_Interface*> heads = headsOf(device);
        for (DOC_Interface* const head : heads) {
            docAs<DOC_Transfer>(head).prepareShutdown(true, true, true);
        }
    }
    if (waits) {
        QDialog* const dialog = host->getPowerWaitDialog();
        if (dialog && dialog->isHidden()) {
            dialog->exec();
        }
    }
}

/// Marks a device as being switched, also if the command fails.
class PowerOperating {
public:
    PowerOperating(HostObject* host, DOC_Settings& device) : m_host(host), m_device(device) {
        m_device.setPowerOperating(true);
    }
    ~PowerOperating() {
        reportingFailures(m_host, [this] { m_device.setPowerOperating(false); });
    }
    Q_DISABLE_COPY(PowerOperating)

private:
    HostObject* m_host;
    DOC_Settings& m_device;
};

void switchDevice(HostObject* host, DeviceObject* device, PowerCommand command) {
    auto& settings = docAs<DOC_Settings>(device);
    auto& document = docAs<DOC_Interface>(device);
    settings.preparePowerOperation();
    const PowerOperating operating(host, settings);
    if (command == PowerCommand::Restart) {
        settings.restartCamera();
    } else {
        settings.powerOff();
    }
    document.setConnected(false);
    const QList<DOC_Interface*> heads = document.getHeads(false);
    if (!heads.isEmpty()) {
        host->closeDocument(host->keyOfDocument(heads.first()), false);
    }
}

} // namespace

void JS_Mediator_LiveControl::controlCameraPower(DOCKEY dockey) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::controlCameraPower"),
                               traceArgs({{"dockey", dockey}}));
    guarded([&] {
        Devices devices = chooseDevices(host(), dockey);
        if (devices.isEmpty()) {
            return;
        }
        bool allRestart = true;
        bool waits = false;
        for (DeviceObject* const device : devices) {
            auto& settings = docAs<DOC_Settings>(device);
            allRestart &= settings.isFunctionSupported(kFunctionRestart, true);
            waits |= settings.needsPowerWaitDialog();
        }
        const PowerCommand command = allRestart ? askWithRestart(host()) : askTurnOff(host());
        if (command == PowerCommand::None) {
            return;
        }
        devices = stillListed(host(), devices);
        if (devices.isEmpty()) {
            return;
        }
        prepareViews(host(), devices, waits);
        if (waits) {
            devices = stillListed(host(), devices);
        }
        for (DeviceObject* const device : devices) {
            switchDevice(host(), device, command);
        }
    });
}

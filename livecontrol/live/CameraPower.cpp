// Turns cameras off or restarts them. The user answers at least two questions first; power acts on devices,
// so all heads of a body go down together.

#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/foundation/UTL_Messages.h"
#include "livecontrol/interface/DOC_Camera.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DOC_Transfer.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"

#include <QDialog>

#include <algorithm>

namespace {

// Function codes of a device.
constexpr int kFunctionPowerOff = 117;
constexpr int kFunctionRestart = 118;

/// A camera that the operation covers, by keys of its heads: a question or a command lets events run, in
/// which a camera can go, and its device and documents with it.
using Target = QList<DOCKEY>;

enum class PowerCommand { None, TurnOff, Restart };

QList<DOC_Interface*> headsOf(DeviceObject* device) { return docAs<DOC_Interface>(device).getHeads(false); }

Target targetOf(HostObject* host, DeviceObject* device) {
    Target keys;
    const QList<DOC_Interface*> heads = headsOf(device);
    for (DOC_Interface* const head : heads) {
        keys.append(host->keyOfDocument(head));
    }
    return keys;
}

/// The device of the keys; null once its camera is not in the list.
DeviceObject* deviceOf(HostObject* host, const Target& target) {
    for (const DOCKEY key : target) {
        auto* const camera = dynamic_cast<DOC_Camera*>(host->docByKey(key, true));
        if (DeviceObject* const device = camera ? camera->getDevice() : nullptr) {
            return device;
        }
    }
    return nullptr;
}

/// All cameras with a head that can be turned off from here.
QList<Target> capableTargets(HostObject* host) {
    QList<Target> capable;
    const QList<DeviceObject*> all = host->listDevices();
    for (DeviceObject* const device : all) {
        if (!headsOf(device).isEmpty() &&
            docAs<DOC_Settings>(device).isFunctionSupported(kFunctionPowerOff, true)) {
            capable.append(targetOf(host, device));
        }
    }
    return capable;
}

/// Whom it concerns, in words: the name, or how many and all their names.
QString told(HostObject* host, const QList<Target>& targets) {
    QStringList names;
    for (const Target& target : targets) {
        if (DeviceObject* const device = deviceOf(host, target)) {
            names.append(docAs<DOC_Settings>(device).getCameraName(true));
        }
    }
    return names.size() == 1 ? names.first()
                             : host->translate(QStringLiteral("%1 cameras: %2"), nullptr, 0)
                                   .arg(QString::number(names.size()), names.join(QStringLiteral(", ")));
}

/// What the operation covers, after a question if there is a choice; empty if the user cancels.
QList<Target> chooseTargets(HostObject* host, DOCKEY key) {
    const QList<Target> capable = capableTargets(host);
    const QList<Target> pressed{Target{key}};
    if (capable.size() < 2) {
        return pressed;
    }
    const QStringList under{
        host->translate(QStringLiteral("Yes: %1"), nullptr, 0).arg(told(host, capable)),
        host->translate(QStringLiteral("No: %1"), nullptr, 0).arg(told(host, pressed)),
    };
    switch (UTL_Messages::confirmYesNoCancel(
        QStringLiteral("Multiple cameras capable of power operation from ZEL are connected. Do you operate "
                       "all at once?"),
        host, nullptr, {}, under.join(QLatin1Char('\n')))) {
    case QMessageBox::Yes:
        return capable;
    case QMessageBox::No:
        return pressed;
    default:
        return {};
    }
}

/// Drops the cameras that left the list. False if none is left, which the user learns unless there was none
/// before.
bool dropLost(HostObject* host, QList<Target>& targets) {
    if (targets.isEmpty()) {
        return false;
    }
    const auto isLost = [host](const Target& target) { return !deviceOf(host, target); };
    targets.erase(std::remove_if(targets.begin(), targets.end(), isLost), targets.end());
    if (targets.isEmpty()) {
        host->alert(host->translate(QStringLiteral("The camera is not in the list."), nullptr, 0), nullptr);
    }
    return !targets.isEmpty();
}

PowerCommand confirmed(HostObject* host, PowerCommand command, const QString& whom) {
    const bool isSure =
        command == PowerCommand::Restart
            ? UTL_Messages::confirm(QStringLiteral("Restart the camera. Are you really sure?"), host, nullptr,
                                    {{QMessageBox::Yes, QStringLiteral("Restart")},
                                     {QMessageBox::No, QStringLiteral("Not restart")}},
                                    whom)
            : UTL_Messages::confirm(QStringLiteral("Turn off the camera. Are you really sure?"), host,
                                    nullptr,
                                    {{QMessageBox::Yes, QStringLiteral("Turn off")},
                                     {QMessageBox::No, QStringLiteral("Not turn off")}},
                                    whom);
    return isSure ? command : PowerCommand::None;
}

PowerCommand askWithRestart(HostObject* host, const QString& whom) {
    const QMessageBox::StandardButton answer = UTL_Messages::confirmYesNoCancel(
        QStringLiteral("Turns off or restarts the camera. Is it OK?"), host, nullptr,
        {{QMessageBox::Yes, QStringLiteral("Turn off the camera")},
         {QMessageBox::No, QStringLiteral("Restart the camera")}},
        whom);
    if (answer == QMessageBox::Yes) {
        return confirmed(host, PowerCommand::TurnOff, whom);
    }
    return answer == QMessageBox::No ? confirmed(host, PowerCommand::Restart, whom) : PowerCommand::None;
}

PowerCommand askTurnOff(HostObject* host, const QString& whom) {
    const bool isWanted =
        UTL_Messages::confirmOkCancel(QStringLiteral("Turn off the camera. Is it OK?"), host, nullptr,
                                      {{QMessageBox::Ok, QStringLiteral("Turn off the camera")}}, whom);
    return isWanted ? confirmed(host, PowerCommand::TurnOff, whom) : PowerCommand::None;
}

/// Ends what shows the cameras' images, then waits under the host's dialog if a device wants it.
void prepareViews(HostObject* host, const QList<Target>& targets, bool waits) {
    for (const Target& target : targets) {
        DeviceObject* const device = deviceOf(host, target);
        const Target heads = device ? targetOf(host, device) : Target{};
        for (const DOCKEY key : heads) {
            if (DOC_Interface* const head = host->docByKey(key, true)) {
                docAs<DOC_Transfer>(head).prepareShutdown(true, true, true);
            }
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
        QList<Target> targets = chooseTargets(host(), dockey);
        if (!dropLost(host(), targets)) {
            return;
        }
        bool allRestart = true;
        bool waits = false;
        for (const Target& target : qAsConst(targets)) {
            auto& settings = docAs<DOC_Settings>(deviceOf(host(), target));
            allRestart &= settings.isFunctionSupported(kFunctionRestart, true);
            waits |= settings.needsPowerWaitDialog();
        }
        const QString whom = told(host(), targets);
        const PowerCommand command = allRestart ? askWithRestart(host(), whom) : askTurnOff(host(), whom);
        if (command == PowerCommand::None || !dropLost(host(), targets)) {
            return;
        }
        prepareViews(host(), targets, waits);
        if (!dropLost(host(), targets)) {
            return;
        }
        for (const Target& target : qAsConst(targets)) {
            if (DeviceObject* const device = deviceOf(host(), target)) {
                switchDevice(host(), device, command);
            }
        }
    });
}

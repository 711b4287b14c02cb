// The console's methods on cameras: what a hand would do at the camera itself, and what shall go wrong with
// it.

#include "simulator/device/SimulatedBody.h"
#include "viewer/console/ConsoleParameters.h"
#include "viewer/console/ConsoleTarget.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QJsonArray>

namespace {

SimulatedBody& simulated(const CameraDocument& camera) {
    auto* const body = dynamic_cast<SimulatedBody*>(camera.body());
    if (!body) {
        throw ConsoleError(QStringLiteral("%1 is no simulated camera").arg(camera.title()));
    }
    return *body;
}

SimulatedHead& simulatedHead(const CameraDocument& camera) {
    return *simulated(camera).head(camera.head()->index());
}

void changeCard(StorageUnit& storage, StorageKind kind, int slot, const QJsonObject& params) {
    const QString action = text(params, "action");
    const QVariantMap values = params.toVariantMap();
    if (action == QLatin1String("insert")) {
        storage.insert(kind, slot, cardContent(values));
    } else if (action == QLatin1String("pull")) {
        storage.pull(kind, slot);
    } else if (action == QLatin1String("pullDuringNext")) {
        storage.pullDuringNext(kind, slot);
    } else if (action == QLatin1String("protect")) {
        storage.setProtected(kind, slot, params.value(QLatin1String("on")).toBool(true));
    } else if (action == QLatin1String("fill")) {
        storage.fill(kind, slot, storageRecord(values), optionalText(params, "file"));
    } else {
        throw ConsoleError(QStringLiteral("a card knows no \"%1\"").arg(action));
    }
}

/// What a hand does with a card of a camera.
void changeCard(const CameraDocument& camera, const QJsonObject& params) {
    StorageUnit* const storage = simulated(camera).storage();
    StorageKind kind = StorageKind::SDCard;
    if (!storage || !storageKind(text(params, "kind"), kind)) {
        throw ConsoleError(QStringLiteral("%1 has no such slot").arg(camera.title()));
    }
    changeCard(*storage, kind, params.value(QLatin1String("slot")).toInt(1) - 1, params);
}

CameraDocument& cameraOf(ConsoleTarget& target, const QJsonObject& params) {
    const DOCKEY key = keyOf(params, "key");
    for (CameraDocument* const camera : target.documents().cameras()) {
        if (camera->key() == key) {
            return *camera;
        }
    }
    throw ConsoleError(QStringLiteral("there is no camera with the key %1").arg(key));
}

} // namespace

void Console::addCameraMethods() {
    m_methods[QStringLiteral("camera.list")] = [this](const QJsonObject&) {
        QJsonArray cameras;
        for (CameraDocument* const camera : m_target.documents().cameras()) {
            cameras.append(QJsonObject{{QStringLiteral("key"), static_cast<double>(camera->key())},
                                       {QStringLiteral("name"), camera->title()},
                                       {QStringLiteral("address"), camera->body()->address()},
                                       {QStringLiteral("connected"), camera->isConnected()},
                                       {QStringLiteral("selected"), camera->isSelected()}});
        }
        return cameras;
    };
    m_methods[QStringLiteral("camera.state")] = [this](const QJsonObject& p) {
        CameraDocument& camera = cameraOf(m_target, p);
        QJsonObject state = simulated(camera).stateJson();
        state[QStringLiteral("head")] = simulatedHead(camera).state();
        return state;
    };
    m_methods[QStringLiteral("camera.set")] = [this](const QJsonObject& p) {
        CameraDocument& camera = cameraOf(m_target, p);
        const QString name = text(p, "name");
        const QVariant value = p.value(QLatin1String("value")).toVariant();
        static const QStringList kOfBody{QStringLiteral("temperature"), QStringLiteral("fanFault"),
                                         QStringLiteral("outOfPhase"),  QStringLiteral("name"),
                                         QStringLiteral("address"),     QStringLiteral("power"),
                                         QStringLiteral("plugged")};
        if (kOfBody.contains(name)) {
            simulated(camera).set(name, value);
        } else {
            simulatedHead(camera).changeFromOutside(name, value);
        }
        return kDone;
    };
    m_methods[QStringLiteral("camera.card")] = [this](const QJsonObject& p) {
        changeCard(cameraOf(m_target, p), p);
        return kDone;
    };
    m_methods[QStringLiteral("camera.plug")] = [this](const QJsonObject& p) {
        SimulatedBody& body = simulated(cameraOf(m_target, p));
        body.plug();
        body.connectLink().result();
        return kDone;
    };
    m_methods[QStringLiteral("camera.unplug")] = [this](const QJsonObject& p) {
        SimulatedBody& body = simulated(cameraOf(m_target, p));
        if (p.value(QLatin1String("duringNext")).toBool()) {
            body.faults().unplugDuringNext = true;
        } else {
            body.unplug();
        }
        return kDone;
    };
    m_methods[QStringLiteral("camera.delay")] = [this](const QJsonObject& p) {
        constexpr double kLongestMs = 60000;
        const double ms = p.value(QLatin1String("ms")).toDouble();
        if (!(ms >= 0 && ms <= kLongestMs)) {
            throw ConsoleError(QStringLiteral("a delay is 0 to %1 ms").arg(kLongestMs));
        }
        simulated(cameraOf(m_target, p)).faults().delayMs = ms;
        return kDone;
    };
    m_methods[QStringLiteral("camera.refuse")] = [this](const QJsonObject& p) {
        simulated(cameraOf(m_target, p))
            .faults()
            .refuseNext(p.value(QLatin1String("times")).toInt(1),
                        p.value(QLatin1String("reason")).toString(QStringLiteral("busy")),
                        optionalText(p, "function"));
        return kDone;
    };
}

#include "viewer/host/CameraFinder.h"

#include "viewer/cameras/Network.h"
#include "viewer/cameras/Rig.h"
#include "viewer/documents/CameraCommands.h"
#include "viewer/documents/CameraDocument.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {
const char kLinkFunction[] = "KVC_SetInterfaceInfo";

bool answers(const CameraBody& body) {
    return !body.isDummy() && body.isPlugged() && body.state() != CameraState::Off &&
           body.state() != CameraState::Booting &&
           network::whyUnreachable(network::adapters().first(), body.address()).isEmpty();
}

QString macOf(const CameraBody& body) { return body.isDummy() ? QString() : network::macOf(body.serial()); }
} // namespace

void CameraFinder::find(const QString& address) {
    const bool whole = address.endsWith(QLatin1String(".0"));
    QList<CameraBody*> found;
    for (CameraBody* const body : m_documents.rig().bodies()) {
        const bool meant =
            whole ? network::isSameNetwork(body->address(), address, QStringLiteral("255.255.255.0"))
                  : body->address() == address;
        if (meant && answers(*body)) {
            found.append(body);
        }
    }
    takeIn(found);
}

void CameraFinder::update() {
    QList<CameraBody*> back;
    for (const DeviceDocument* const device : m_documents.devices()) {
        if (!device->isConnected() && answers(*device->body())) {
            back.append(device->body());
        }
    }
    takeIn(back);
}

void CameraFinder::connectCameras(const QStringList& ids) {
    QList<CameraBody*> meant;
    for (CameraBody* const body : m_documents.rig().bodies()) {
        if (ids.contains(macOf(*body)) || ids.contains(body->address())) {
            meant.append(body);
        }
    }
    takeIn(meant);
}

void CameraFinder::takeIn(const QList<CameraBody*>& bodies) {
    QList<CameraDocument*> unlinked;
    for (CameraBody* const body : bodies) {
        const QList<CameraDocument*> heads = m_documents.addCamera(body);
        if (!body->isConnected()) {
            unlinked += heads;
        }
    }
    CameraCommands(QString::fromLatin1(kLinkFunction)).runBodies(unlinked, [](CameraBody& body) {
        body.connectLink();
    });
}

void CameraFinder::add(const QString& name, const QString& address, bool isDummy, bool link) {
    CameraCommands command(QString::fromLatin1(kLinkFunction));
    command.runNamed(name.isEmpty() ? address : name, [&] {
        CameraBody* const body =
            isDummy ? m_documents.rig().addDummy(name, address) : m_documents.rig().findAddress(address);
        if (body == nullptr) {
            throw CameraError(CameraError::Kind::LinkLost, QString::fromLatin1(kLinkFunction), name,
                              QStringLiteral("no camera answers at %1").arg(address));
        }
        if (!isDummy && !name.isEmpty()) {
            body->setName(name);
        }
        m_documents.addCamera(body);
        if (link && !isDummy && !body->isConnected()) {
            body->connectLink();
        }
    });
}

void CameraFinder::edit(CameraBody& body, const QString& name, const QString& address, const QString& mask,
                        const QString& gateway) {
    if (!name.isEmpty() && body.name() != name) {
        body.setName(name);
    }
    if (body.address() != address || body.mask() != mask || body.gateway() != gateway) {
        CameraCommands(QStringLiteral("KVC_SetEthernetInfo")).runBody(body, [&](CameraBody& it) {
            it.setNetwork(address, mask, gateway);
        });
    }
}

void CameraFinder::assignNetwork(const QString& mac, const QString& address, const QString& mask,
                                 const QString& gateway) {
    for (CameraBody* const body : m_documents.rig().bodies()) {
        if (!body->isDummy() && body->isPlugged() && macOf(*body) == mac) {
            body->assignNetwork(address, mask, gateway);
            return;
        }
    }
    refuse(QStringLiteral("KVC_SetEthernetInfo"), mac, QStringLiteral("no camera answers"));
}

QString CameraFinder::searchResults() const {
    QJsonArray rows;
    for (const FoundCamera& found : network::search(m_documents.rig())) {
        const auto isIt = [&found](const DeviceDocument* device) {
            return macOf(*device->body()) == found.mac;
        };
        const QList<DeviceDocument*> devices = m_documents.devices();
        const auto listed = std::find_if(devices.cbegin(), devices.cend(), isIt);
        rows.append(
            QJsonObject{{QStringLiteral("id"), found.mac},
                        {QStringLiteral("name"), found.name},
                        {QStringLiteral("model"), found.model},
                        {QStringLiteral("address"), found.address},
                        {QStringLiteral("mask"), found.mask},
                        {QStringLiteral("gateway"), found.gateway},
                        {QStringLiteral("mac"), found.mac},
                        {QStringLiteral("adapter"), found.adapter.name},
                        {QStringLiteral("adapteraddress"), found.adapter.address},
                        {QStringLiteral("reachable"), found.reachable},
                        {QStringLiteral("reason"), found.reason},
                        {QStringLiteral("connected"), listed != devices.cend() && (*listed)->isConnected()}});
    }
    return QString::fromUtf8(QJsonDocument(rows).toJson(QJsonDocument::Compact));
}

QString CameraFinder::freeName() const {
    int number = m_documents.devices().size() + 1;
    while (m_documents.rig().findName(QStringLiteral("Camera %1").arg(number))) {
        ++number;
    }
    return QStringLiteral("Camera %1").arg(number);
}

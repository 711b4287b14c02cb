#include "viewer/host/parts/cameras/CameraFinder.h"

#include "viewer/cameras/CameraSource.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/Network.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/commands/CameraCommands.h"
#include "viewer/messages/Translated.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {
CameraError wrong(const QString& name, const Reason& reason) {
    return CameraError(CameraError::Kind::BadValue, CommandKey::SetNetwork, name, reason);
}

} // namespace

void CameraFinder::requirePossible(const QString& name, const QString& address, const QString& mask) const {
    if (!network::isMask(mask)) {
        throw wrong(name, reason("%1 is no subnet mask.", {mask}));
    }
    if (!network::isHostAddress(address, mask)) {
        throw wrong(name, reason("%1 is no address for a camera in the network %2.", {address, mask}));
    }
    if (address == adapter().address) {
        throw wrong(name, reason("This computer has the same address."));
    }
}

bool CameraFinder::answers(const CameraBody& body) const {
    return !body.isDummy() && body.isPlugged() && body.state() != CameraState::Off &&
           body.state() != CameraState::Booting &&
           network::whyUnreachable(adapter(), body.address()).isEmpty();
}

NetworkAdapter CameraFinder::adapter() const { return m_documents.source().adapters().first(); }

void CameraFinder::find(const QString& address) {
    const bool whole = address.endsWith(QLatin1String(".0"));
    QList<CameraBody*> found;
    for (CameraBody* const body : m_documents.source().cameras()) {
        const bool meant =
            whole ? network::isSameNetwork(body->address(), address, QStringLiteral("255.255.255.0"))
                  : body->address() == address;
        if (meant && answers(*body)) {
            found.append(body);
        }
    }
    const auto isListed = [this](const CameraBody* body) {
        return m_documents.find(body->head()) && body->isConnected();
    };
    const auto listed = int(std::count_if(found.cbegin(), found.cend(), isListed));
    emit m_documents.told(countText(found.size() - listed, listed));
    takeIn(found);
}

QString CameraFinder::countText(int found, int listed) {
    return translated("Cameras found: %1; already in the list: %2")
        .arg(QString::number(found), QString::number(listed));
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
    for (CameraBody* const body : m_documents.source().cameras()) {
        if (ids.contains(body->mac()) || ids.contains(body->address())) {
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
    CameraCommands().runBodies(unlinked, [](CameraBody& body) { return body.connectLink(); });
}

const CameraBody* CameraFinder::listedAt(const QString& address) const {
    for (const DeviceDocument* const device : m_documents.devices()) {
        if (device->body()->address() == address) {
            return device->body();
        }
    }
    return nullptr;
}

void CameraFinder::requireFree(const QString& name, const QString& address) const {
    if (const CameraBody* const other = listedAt(address)) {
        throw wrong(name,
                    translated("The address %1 is already in the list: %2").arg(address, other->name()));
    }
}

// A dummy lives as long as it is in the list; its name and address are free again afterwards.
void CameraFinder::forgetUnlistedDummies() {
    for (CameraBody* const body : m_documents.source().cameras()) {
        if (body->isDummy() && !m_documents.find(body->head())) {
            m_documents.source().removeBody(body);
        }
    }
}

CameraBody& CameraFinder::bodyToAdd(const QString& name, const QString& address, bool isDummy, bool link) {
    if (isDummy) {
        forgetUnlistedDummies();
        return *m_documents.source().addDummy(name, address);
    }
    for (CameraBody* const body : m_documents.source().cameras()) {
        if (!body->isDummy() && body->address() == address && (!link || answers(*body))) {
            return *body;
        }
    }
    throw CameraError(CameraError::Kind::LinkLost, CommandKey::Link, name,
                      translated("No camera answers at %1.").arg(address));
}

void CameraFinder::add(const QString& name, const QString& address, bool isDummy, bool link) {
    CameraCommands command(CommandKey::Link);
    command.runNamed(name.isEmpty() ? address : name, [&] {
        requireFree(name, address);
        CameraBody& body = bodyToAdd(name, address, isDummy, link);
        if (!isDummy && !name.isEmpty()) {
            body.setName(name);
        }
        m_documents.addCamera(&body);
        if (link && !isDummy && !body.isConnected()) {
            awaited(body.connectLink(), body.name());
        }
    });
}

void CameraFinder::edit(CameraBody& body, const QString& name, const QString& address, const QString& mask,
                        const QString& gateway, const MayLeave& mayLeave) {
    if (!name.isEmpty() && body.name() != name) {
        body.setName(name);
    }
    if (body.address() == address && body.mask() == mask && body.gateway() == gateway) {
        return;
    }
    CameraCommands().runNamed(body.name(), [&] { requireChangeable(body, address, mask); });
    if (body.isDummy() || isWanted(body.name(), address, mayLeave)) {
        CameraCommands().runBody(body, [&](CameraBody& it) { return it.setNetwork(address, mask, gateway); });
    }
}

void CameraFinder::requireChangeable(const CameraBody& body, const QString& address,
                                     const QString& mask) const {
    if (body.address() != address) {
        requireFree(body.name(), address);
    }
    if (body.isDummy()) {
        return;
    }
    requirePossible(body.name(), address, mask);
    if (!body.isConnected() && !network::whyUnreachable(adapter(), body.address()).isEmpty()) {
        throw wrong(body.name(),
                    reason("There is no link to the camera. \"Camera search\" finds it whatever its "
                           "address is, and \"Change address\" gives it another."));
    }
}

bool CameraFinder::isWanted(const QString& name, const QString& address, const MayLeave& mayLeave) const {
    const Reason why = network::whyUnreachable(adapter(), address);
    return why.isEmpty() || mayLeave(name, why);
}

void CameraFinder::findAgain(CameraBody& body) {
    if (body.isDummy()) {
        return;
    }
    body.disconnectLink();
    if (network::whyUnreachable(adapter(), body.address()).isEmpty()) {
        connectBody(body);
    }
}

void CameraFinder::assignNetwork(const QString& mac, const QString& address, const QString& mask,
                                 const QString& gateway, const MayLeave& mayLeave) {
    CameraBody* meant = nullptr;
    const CameraBody* other = nullptr; // that has the address already
    for (CameraBody* const body : m_documents.source().cameras()) {
        if (body->isDummy() || !body->isPlugged()) {
            continue;
        }
        if (body->mac() == mac) {
            meant = body;
        } else if (body->address() == address) {
            other = body;
        }
    }
    const QString name = meant ? meant->name() : mac;
    CameraCommands().runNamed(name, [&] {
        if (!meant) {
            throw wrong(name, reason("The camera does not answer."));
        }
        requirePossible(name, address, mask);
        if (other) {
            throw wrong(name,
                        reason("The address %1 belongs to another camera: %2", {address, other->name()}));
        }
    });
    if (isWanted(name, address, mayLeave)) {
        CameraCommands().runNamed(name, [&] { meant->assignNetwork(address, mask, gateway); });
    }
}

QString CameraFinder::searchResults(const QString& place) const {
    QJsonArray rows;
    for (const FoundCamera& found : m_documents.source().search()) {
        if (!place.isEmpty() &&
            !network::isSameNetwork(found.address, place, QStringLiteral("255.255.255.0"))) {
            continue;
        }
        const auto isIt = [&found](const DeviceDocument* device) {
            return device->body()->mac() == found.mac;
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
                        {QStringLiteral("reason"), translated(found.reason)},
                        {QStringLiteral("connected"), listed != devices.cend() && (*listed)->isConnected()}});
    }
    return QString::fromUtf8(QJsonDocument(rows).toJson(QJsonDocument::Compact));
}

QString CameraFinder::placeOf(int way, const QString& address) {
    constexpr int kByAddress = 1;
    return way == kByAddress && network::isAddress(address) ? address : QString();
}

QString CameraFinder::placeText(const QString& place) {
    return place.isEmpty() ? QString() : place.section(QLatin1Char('.'), 0, 2) + QStringLiteral(".*");
}

QString CameraFinder::freeName() const {
    int number = m_documents.devices().size() + 1;
    while (m_documents.source().findName(QStringLiteral("Camera %1").arg(number))) {
        ++number;
    }
    return QStringLiteral("Camera %1").arg(number);
}

QString CameraFinder::freeAddress(const QString& wanted) const {
    constexpr int kHosts = 254; // 255 calls all of a network
    if (!network::isAddress(wanted)) {
        return wanted;
    }
    const quint32 net = network::toNumber(wanted) & 0xFFFFFF00U;
    const int first = qMax(1, int(network::toNumber(wanted) & 0xFFU));
    for (int step = 0; step < kHosts; ++step) {
        const QString address = network::toText(net + quint32((first - 1 + step) % kHosts + 1));
        const bool isOwn = adapter().address == address;
        if (!isOwn && !listedAt(address)) {
            return address;
        }
    }
    return wanted;
}

#include "simulator/device/Rig.h"

#include <QDateTime>

#include <algorithm>

Rig::Rig(Clock::Mode mode, quint32 seed, QObject* parent)
    : CameraSource(parent), m_clock(mode), m_seed(seed) {}

Rig::~Rig() = default;

std::unique_ptr<Rig> Rig::load(const QString& path, Clock::Mode mode) {
    const RigFile file = RigFile::read(path);
    auto rig = std::make_unique<Rig>(mode, file.seed);
    rig->m_title = file.title;
    for (const BodyDescription& camera : file.cameras) {
        rig->addBody(camera);
    }
    return rig;
}

QList<SimulatedBody*> Rig::bodies() const {
    QList<SimulatedBody*> result;
    for (const auto& body : m_bodies) {
        result << body.get();
    }
    return result;
}

QList<SimulatedHead*> Rig::heads() const {
    QList<SimulatedHead*> result;
    for (const auto& body : m_bodies) {
        result << body->heads();
    }
    return result;
}

QList<CameraBody*> Rig::cameras() const {
    QList<CameraBody*> result;
    for (const auto& body : m_bodies) {
        result << body.get();
    }
    return result;
}

// All of its cameras are simulated ones.
SimulatedBody* Rig::findAddress(const QString& address) const {
    return static_cast<SimulatedBody*>(CameraSource::findAddress(address));
}

SimulatedBody* Rig::findName(const QString& name) const {
    return static_cast<SimulatedBody*>(CameraSource::findName(name));
}

void Rig::logCommand(const QString& function, const QString& camera, const QString& outcome) {
    constexpr int Limit = 2000;
    m_commandLog.append(
        QStringLiteral("%1 %2 %3: %4")
            .arg(QDateTime::currentDateTime().toString(Qt::ISODateWithMs), function, camera, outcome));
    if (m_commandLog.size() > Limit) {
        m_commandLog.removeFirst();
    }
}

SimulatedBody* Rig::addBody(const BodyDescription& description) {
    const QString function = QStringLiteral("addBody");
    if (findName(description.name)) {
        throw CameraError(CameraError::Kind::BadValue, function, description.name,
                          reason("another camera has this name"));
    }
    if (findAddress(description.address)) {
        throw CameraError(CameraError::Kind::BadValue, function, description.name,
                          reason("another camera has the address %1", {description.address}));
    }
    // Two cameras of a rig look at the same scene, each from its own moment on.
    const quint32 seed = m_seed + quint32(m_bodies.size());
    m_bodies.push_back(std::make_unique<SimulatedBody>(m_clock, description, seed));
    SimulatedBody* const body = m_bodies.back().get();
    connect(body, &SimulatedBody::commandRun, this, &Rig::logCommand);
    tell(body);
    return body;
}

SimulatedBody* Rig::addDummy(const QString& name, const QString& address) {
    BodyDescription description;
    description.name = name;
    description.address = address;
    description.dummy = true;
    return addBody(description);
}

void Rig::removeBody(CameraBody* body) {
    const auto isBody = [body](const auto& candidate) { return candidate.get() == body; };
    if (std::none_of(m_bodies.begin(), m_bodies.end(), isBody)) {
        return;
    }
    emit bodyRemoved(body);
    m_bodies.erase(std::remove_if(m_bodies.begin(), m_bodies.end(), isBody), m_bodies.end());
}

QList<NetworkAdapter> Rig::adapters() const {
    return {{QStringLiteral("Cameras"), QStringLiteral("192.168.0.1"), QStringLiteral("255.255.255.0")},
            {QStringLiteral("Office"), QStringLiteral("10.20.0.7"), QStringLiteral("255.255.0.0")}};
}

QList<FoundCamera> Rig::search() const {
    QList<FoundCamera> found;
    const NetworkAdapter adapter = adapters().first(); // the rig hangs on the cameras' own network
    for (const auto& body : m_bodies) {
        if (body->isDummy() || !body->isPlugged() || body->state() == CameraState::Off ||
            body->state() == CameraState::Booting) {
            continue;
        }
        FoundCamera camera;
        camera.name = body->name();
        camera.model = body->model().title;
        camera.address = body->address();
        camera.mask = body->mask();
        camera.gateway = body->gateway();
        camera.mac = body->mac();
        camera.adapter = adapter;
        camera.reason = network::whyUnreachable(adapter, body->address());
        camera.reachable = camera.reason.isEmpty();
        found.append(camera);
    }
    return found;
}

#include "viewer/cameras/Rig.h"

#include <QDateTime>

#include <algorithm>

Rig::Rig(Clock::Mode mode, quint32 seed, QObject* parent) : QObject(parent), m_clock(mode), m_seed(seed) {}

Rig::~Rig() = default;

std::unique_ptr<Rig> Rig::load(const QString& path, Clock::Mode mode) {
    const RigFile file = RigFile::read(path);
    auto rig = std::make_unique<Rig>(mode, file.seed);
    rig->m_title = file.title;
    for (const BodyDescription& camera : file.cameras)
        rig->addBody(camera);
    return rig;
}

QList<CameraBody*> Rig::bodies() const {
    QList<CameraBody*> result;
    for (const auto& body : m_bodies)
        result << body.get();
    return result;
}

QList<CameraHead*> Rig::heads() const {
    QList<CameraHead*> result;
    for (const auto& body : m_bodies)
        result << body->heads();
    return result;
}

CameraBody* Rig::findAddress(const QString& address) const {
    const auto found = std::find_if(m_bodies.begin(), m_bodies.end(),
                                    [&](const auto& body) { return body->address() == address; });
    return found == m_bodies.end() ? nullptr : found->get();
}

CameraBody* Rig::findName(const QString& name) const {
    const auto found = std::find_if(m_bodies.begin(), m_bodies.end(),
                                    [&](const auto& body) { return body->name() == name; });
    return found == m_bodies.end() ? nullptr : found->get();
}

void Rig::logCommand(const QString& function, const QString& camera, const QString& outcome) {
    constexpr int Limit = 2000;
    m_commandLog.append(
        QStringLiteral("%1 %2 %3: %4")
            .arg(QDateTime::currentDateTime().toString(Qt::ISODateWithMs), function, camera, outcome));
    if (m_commandLog.size() > Limit)
        m_commandLog.removeFirst();
}

CameraBody* Rig::addBody(const BodyDescription& description) {
    const QString function = QStringLiteral("addBody");
    if (findName(description.name))
        throw CameraError(CameraError::Kind::BadValue, function, description.name,
                          reason("another camera has this name"));
    if (findAddress(description.address))
        throw CameraError(CameraError::Kind::BadValue, function, description.name,
                          reason("another camera has the address %1", {description.address}));
    // Two cameras of a rig look at the same scene, each from its own moment on.
    const quint32 seed = m_seed + quint32(m_bodies.size());
    m_bodies.push_back(std::make_unique<CameraBody>(m_clock, description, seed));
    CameraBody* const body = m_bodies.back().get();
    connect(body, &CameraBody::commandRun, this, &Rig::logCommand);
    connect(body, &CameraBody::linkChanged, this, &Rig::linkChanged);
    connect(body, &CameraBody::stateChanged, this, &Rig::stateChanged);
    connect(body, &CameraBody::infoChanged, this, &Rig::infoChanged);
    for (CameraHead* const head : body->heads()) {
        connect(head, &CameraHead::settingsChanged, this, &Rig::settingsChanged);
        connect(head, &CameraHead::changedOutside, this, &Rig::changedOutside);
    }
    emit bodyAdded(body);
    return body;
}

CameraBody* Rig::addDummy(const QString& name, const QString& address) {
    BodyDescription description;
    description.name = name;
    description.address = address;
    description.dummy = true;
    return addBody(description);
}

void Rig::removeBody(CameraBody* body) {
    const auto isBody = [body](const auto& candidate) { return candidate.get() == body; };
    if (std::none_of(m_bodies.begin(), m_bodies.end(), isBody))
        return;
    emit bodyRemoved(body);
    m_bodies.erase(std::remove_if(m_bodies.begin(), m_bodies.end(), isBody), m_bodies.end());
}

#include "simulator/device/SimulatedBody.h"
#include "simulator/device/WifiUnit.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/cameras/settings/SettingsRecord.h"

#include <QJsonArray>

#include <algorithm>
#include <utility>

namespace {

// What a description may set at a head, in the order in which one may clamp the other.
QStringList settingsInOrder() {
    QStringList order;
    for (const Setting& row : SettingTable::rows()) {
        if (row.isSettable()) {
            order.append(QLatin1String(row.key));
        }
    }
    return order + QStringList{QStringLiteral("lensContact"), QStringLiteral("zoom"), QStringLiteral("focus"),
                               QStringLiteral("iris")};
}

CameraError noLink(const QString& function, const QString& camera) {
    return CameraError(CameraError::Kind::LinkLost, function, camera, reason("no link to the camera"));
}

} // namespace

SimulatedBody::SimulatedBody(Clock& clock, const BodyDescription& description, quint32 seed, QObject* parent)
    : CameraBody(parent), m_clock(clock), m_info(description), m_seed(seed),
      m_model(description.dummy ? SimulatedModel::dummy() : SimulatedModel::find(description.model)) {
    if (!m_model) {
        throw CameraError(CameraError::Kind::BadValue, QStringLiteral("CameraBody"), name(),
                          reason("unknown model \"%1\"", {description.model}));
    }
    if (m_info.dummy) {
        m_info.powered = m_info.plugged = false;
    }
    if (m_model->supports(CameraFunction::Wifi)) {
        m_wifi = std::make_unique<WifiUnit>();
    }
    m_state = m_info.powered ? CameraState::Live : CameraState::Off;
    m_connected = m_info.connected && m_info.plugged && m_info.powered;
    *m_link = m_connected;
    if (m_wifi) {
        m_wifi->setLinked(m_connected);
    }
    const QStringList names = m_info.heads.isEmpty() ? QStringList{QString()} : m_info.heads;
    for (int i = 0; i < names.size(); ++i) {
        m_heads.push_back(std::make_unique<SimulatedHead>(this, i, names.at(i), m_model));
    }
    putInCards();
    const QStringList order = settingsInOrder();
    for (auto it = m_info.settings.begin(); it != m_info.settings.end(); ++it) {
        if (!order.contains(it.key())) {
            head()->changeFromOutside(it.key(), it.value()); // throws
        }
    }
    for (const QString& setting : order) {
        for (const auto& each : m_heads) {
            if (m_info.settings.contains(setting)) {
                each->changeFromOutside(setting, m_info.settings.value(setting));
            }
        }
    }
}

void SimulatedBody::putInCards() {
    if (m_model->sdSlots + m_model->dockStoreSlots + m_model->cFastSlots > 0) {
        m_storage = std::make_unique<StorageUnit>(
            *this, StorageSlots{m_model->sdSlots, m_model->dockStoreSlots, m_model->cFastSlots});
    }
    for (const BodyDescription::Card& card : qAsConst(m_info.cards)) {
        if (!m_storage) {
            throw CameraError(CameraError::Kind::BadValue, CommandKey::ReadStorage, name(),
                              reason("there is no slot %1", {card.slot + 1}));
        }
        m_storage->insert(card.kind, card.slot, card.content); // throws
    }
}

SimulatedBody::~SimulatedBody() {
    *m_link = false;
    m_queue.failAll(noLink(CommandKey::Link, name()));
}

QList<SimulatedHead*> SimulatedBody::heads() const {
    QList<SimulatedHead*> result;
    for (const auto& each : m_heads) {
        result << each.get();
    }
    return result;
}

void SimulatedBody::setState(CameraState state) {
    if (state == m_state) {
        return;
    }
    m_state = state;
    ++m_epoch;
    emit stateChanged(this);
}

void SimulatedBody::setConnected(bool connected) {
    if (connected == m_connected) {
        return;
    }
    m_connected = connected;
    *m_link = false;
    m_link = std::make_shared<std::atomic<bool>>(connected);
    if (m_wifi) {
        m_wifi->setLinked(connected);
    }
    emit linkChanged(this);
    if (!m_connected) { // nobody waits for a camera that is gone
        m_queue.failAll(noLink(CommandKey::Link, name()));
    }
}

void SimulatedBody::laterUnlessChanged(double milliseconds, const std::function<void()>& action) {
    m_clock.after(milliseconds, this, [this, epoch = m_epoch, action] {
        if (epoch == m_epoch) {
            action();
        }
    });
}

Answer SimulatedBody::command(const QString& function, const QString& camera,
                              const std::function<CommandResult()>& apply, const Manner& manner) {
    ++m_commands;
    const auto cut = std::make_shared<bool>(false); // the cable is pulled in the middle
    CommandQueue::Command steps;
    steps.begin = [=] {
        requireLink(function, camera);
        *cut = std::exchange(m_faults.unplugDuringNext, false);
        const double time = commandTimeMs() + manner.extraMs;
        return *cut ? time / 2 : time;
    };
    steps.end = [=] {
        if (*cut) {
            unplug();
        }
        requireLink(function, camera);
        lookForFaults(function, camera);
        return apply();
    };
    steps.ended = [=](const Answer& answer) {
        try {
            emit commandRun(function, camera,
                            answer.result() == CommandResult::Ok ? QStringLiteral("ok")
                                                                 : QStringLiteral("clamped"));
        } catch (const CameraError& error) {
            emit commandRun(function, camera, error.reason().english());
        }
    };
    return m_queue.send(steps, manner.urgent);
}

double SimulatedBody::commandTimeMs() const {
    const double usual = m_info.commandTimeMs < 0 ? m_model->commandTimeMs : m_info.commandTimeMs;
    return usual + m_faults.delayMs;
}

void SimulatedBody::requireLink(const QString& function, const QString& camera) const {
    if (!m_connected) {
        throw noLink(function, camera);
    }
}

void SimulatedBody::lookForFaults(const QString& function, const QString& camera) {
    const bool meant = m_faults.refuseFunction.isEmpty() || m_faults.refuseFunction == function;
    if (m_faults.refuse > 0 && meant) {
        --m_faults.refuse;
        throw CameraError(CameraError::Kind::Refused, function, camera, m_faults.refuseReason);
    }
}

void SimulatedBody::requireState(const QString& function, std::initializer_list<CameraState> states) const {
    if (std::find(states.begin(), states.end(), m_state) == states.end()) {
        throw refusal(function, reason("not possible in the state \"%1\"", {stateReason(m_state)}));
    }
}

void SimulatedBody::requireIdle(const QString& function, const QString& camera) const {
    if (m_state != CameraState::Live) {
        throw CameraError(CameraError::Kind::Refused, function, camera,
                          reason("settings can't change in the state \"%1\"", {stateReason(m_state)}));
    }
}

void SimulatedBody::requireNoRing(const QString& function, const QString& camera) const {
    if (m_state == CameraState::WaitingReady || m_state == CameraState::Ready ||
        m_state == CameraState::Recording) {
        requireIdle(function, camera);
    }
}

void SimulatedBody::plug() {
    if (m_info.dummy || m_info.plugged) {
        return;
    }
    m_info.plugged = true;
    emit infoChanged(this);
}

void SimulatedBody::unplug() {
    if (!m_info.plugged) {
        return;
    }
    m_info.plugged = false;
    setConnected(false);
    emit infoChanged(this);
}

Answer SimulatedBody::connectLink() {
    const bool reachable = m_info.plugged && m_state != CameraState::Off && m_state != CameraState::Booting;
    if (!reachable) {
        return CameraError(CameraError::Kind::LinkLost, CommandKey::Link, name(),
                           reason("the camera does not answer"));
    }
    setConnected(true);
    return CommandResult::Ok;
}

void SimulatedBody::disconnectLink() { setConnected(false); }

void SimulatedBody::setName(const QString& name) {
    if (name == m_info.name) {
        return;
    }
    m_info.name = name;
    emit infoChanged(this);
}

Answer SimulatedBody::setNetwork(const QString& address, const QString& mask, const QString& gateway) {
    const auto take = [=] {
        assignNetwork(address, mask, gateway);
        return CommandResult::Ok;
    };
    // Nothing stands behind a dummy's address.
    return m_info.dummy ? Answer(take()) : command(CommandKey::SetNetwork, name(), take);
}

void SimulatedBody::assignNetwork(const QString& address, const QString& mask, const QString& gateway) {
    m_info.address = address;
    m_info.mask = mask;
    m_info.gateway = gateway;
    emit infoChanged(this);
}

void SimulatedBody::powerOff() {
    for (const auto& each : m_heads) {
        each->clearRecordings();
    }
    setConnected(false);
    setState(CameraState::Off);
}

Answer SimulatedBody::switchPower(bool comesBack) {
    return command(CommandKey::SwitchPower, name(), [this, comesBack] {
        powerOff();
        if (comesBack) {
            powerOn();
        }
        return CommandResult::Ok;
    });
}

void SimulatedBody::powerOn() {
    if (m_info.dummy || m_state != CameraState::Off) {
        return;
    }
    setState(CameraState::Booting);
    laterUnlessChanged(m_model->bootTimeMs, [this] {
        bootPreset();
        setState(CameraState::Live);
    });
}

QString SimulatedBody::mac() const {
    if (isDummy()) {
        return {};
    }
    const uint hash = qHash(serial(), 17);
    return QStringLiteral("02:00:5e:%1:%2:%3")
        .arg((hash >> 16) & 0xFFU, 2, 16, QLatin1Char('0'))
        .arg((hash >> 8) & 0xFFU, 2, 16, QLatin1Char('0'))
        .arg(hash & 0xFFU, 2, 16, QLatin1Char('0'));
}

VariableChannel SimulatedBody::variableChannel(int number) const {
    return number >= 1 && number <= LastVariableChannel ? m_channels.at(size_t(number - 1))
                                                        : VariableChannel();
}

void SimulatedBody::keepVariableChannel(int number, const VariableChannel& content) {
    m_channels.at(size_t(number - 1)) = content;
    for (const auto& each : m_heads) {
        each->followChannel(number);
    }
}

Answer SimulatedBody::setPartition(int number) {
    const QString& function = CommandKey::SetPartition;
    return command(function, name(), [=] {
        requireState(function, {CameraState::Live, CameraState::Memory});
        if (number < 1 || number > partitionCount()) {
            throw refusal(function, reason("there is no partition %1", {number}));
        }
        m_partition = number;
        emit infoChanged(this);
        return CommandResult::Ok;
    });
}

QJsonObject SimulatedBody::stateJson() const {
    QJsonArray heads;
    for (const auto& each : m_heads) {
        heads << each->state();
    }
    QJsonArray channels;
    for (int number = 1; number <= LastVariableChannel; ++number) {
        if (const VariableChannel channel = variableChannel(number); channel.isStored()) {
            channels << QJsonArray{number,
                                   double(channel.rate),
                                   channel.size.width(),
                                   channel.size.height(),
                                   channel.position.x(),
                                   channel.position.y()};
        }
    }
    return {{QStringLiteral("name"), m_info.name},
            {QStringLiteral("model"), m_model->id},
            {QStringLiteral("address"), m_info.address},
            {QStringLiteral("mask"), m_info.mask},
            {QStringLiteral("gateway"), m_info.gateway},
            {QStringLiteral("serial"), m_info.serial},
            {QStringLiteral("firmware"), m_info.firmware},
            {QStringLiteral("dummy"), m_info.dummy},
            {QStringLiteral("state"), stateName(m_state)},
            {QStringLiteral("plugged"), m_info.plugged},
            {QStringLiteral("connected"), m_connected},
            {QStringLiteral("temperature"), m_info.temperature},
            {QStringLiteral("fan"), int(fanState())},
            {QStringLiteral("partition"), m_partition},
            {QStringLiteral("outOfPhase"), m_outOfPhase},
            {QStringLiteral("channels"), channels},
            {QStringLiteral("cards"), m_storage ? m_storage->toJson() : QJsonArray()},
            {QStringLiteral("heads"), heads}};
}

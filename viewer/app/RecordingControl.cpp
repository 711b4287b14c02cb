#include "viewer/app/RecordingControl.h"

#include "viewer/cameras/CameraSource.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/documents/commands/CommandWait.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

#include <QTimer>

namespace {

// No ring runs: the memory holds what it holds.
bool isReadable(const CameraDocument& camera) {
    const CameraState state = camera.body()->state();
    return state == CameraState::Memory || state == CameraState::Live;
}

} // namespace

RecordingControl::RecordingControl(DocumentList& documents, Preferences& preferences, Messages& messages,
                                   RecordingShelf& shelf, QObject* parent)
    : QObject(parent), m_documents(documents), m_preferences(preferences), m_messages(messages),
      m_shelf(shelf) {
    connect(&m_shelf, &RecordingShelf::changed, this, &RecordingControl::changed);
    connect(&m_shelf, &RecordingShelf::allKept, this, &RecordingControl::goLiveIfDue);
    connect(&m_documents.source(), &CameraSource::stateChanged, this, &RecordingControl::onStateChanged);
    connect(&m_documents.source(), &CameraSource::linkChanged, this, &RecordingControl::onLinkChanged);
    connect(&m_documents, &DocumentList::selectionChanged, this, &RecordingControl::changed);
    connect(&m_documents, &DocumentList::modeChanged, this, &RecordingControl::changed);
}

QList<CameraBody*> RecordingControl::bodies() const {
    QList<CameraBody*> result;
    for (const CameraDocument* const camera : m_documents.targetCameras()) {
        if (!result.contains(camera->body())) {
            result.append(camera->body());
        }
    }
    return result;
}

bool RecordingControl::isAny(CameraState state) const {
    const QList<CameraBody*> all = bodies();
    return std::any_of(all.begin(), all.end(),
                       [state](const CameraBody* body) { return body->state() == state; });
}

bool RecordingControl::acceptsTrigger() const {
    const QList<CameraBody*> all = bodies();
    return std::any_of(all.begin(), all.end(), [](const CameraBody* body) { return body->acceptsTrigger(); });
}

bool RecordingControl::canKeep() const {
    const auto cameras = m_documents.targetCameras();
    return std::any_of(cameras.begin(), cameras.end(), [this](const CameraDocument* camera) {
        return isReadable(*camera) && m_shelf.canKeep(*camera);
    });
}

bool RecordingControl::Round::isOver() const {
    return std::all_of(answers.begin(), answers.end(), [](const Answer& answer) { return answer.isThere(); });
}

bool RecordingControl::Round::isDone(int camera) const {
    const CameraBody* const body = bodies.at(camera);
    return command == Command::Stop && body &&
           (body->state() == CameraState::Memory || body->state() == CameraState::Live);
}

bool RecordingControl::isSending(Command command) const {
    return std::any_of(m_rounds.begin(), m_rounds.end(),
                       [command](const Round& round) { return round.command == command; });
}

bool RecordingControl::isSending() const {
    return isSending(Command::Ready) || isSending(Command::Trigger) || isSending(Command::Stop);
}

QStringList RecordingControl::slowCameras() const {
    QStringList names;
    for (const Round& round : m_rounds) {
        for (int i = 0; i < round.answers.size(); ++i) {
            if (!round.answers.at(i).isThere() && !names.contains(round.names.at(i))) {
                names.append(round.names.at(i));
            }
        }
    }
    return names;
}

void RecordingControl::send(Command command, const QString& operation, const Action& action,
                            const std::function<void()>& then) {
    Round round{command, operation, {}, {}, {}, then};
    for (CameraBody* const body : bodies()) {
        round.names.append(body->name());
        round.bodies.append(body);
        round.answers.append(Answer::of([&] { return action(*body); }));
    }
    if (CommandWait::spendBlink(round.answers)) {
        end(round);
        return;
    }
    m_rounds.push_back(round);
    for (const Answer& answer : qAsConst(round.answers)) {
        answer.whenThere(this, [this] { look(); });
    }
    emit sent();
}

// Rounds end in the order in which they were sent, as at each camera.
void RecordingControl::look() {
    while (!m_rounds.empty() && m_rounds.front().isOver()) {
        const Round round = m_rounds.front();
        m_rounds.pop_front();
        end(round);
    }
}

void RecordingControl::end(const Round& round) {
    DeviceFailure failure;
    failure.operation = round.operation;
    for (int i = 0; i < round.answers.size(); ++i) {
        try {
            round.answers.at(i).result();
        } catch (const CameraError& error) {
            if (!round.isDone(i)) {
                failure.cameras.append({error.camera(), error.reason()});
            }
        }
    }
    if (round.then) {
        round.then();
    }
    emit changed();
    if (!failure.isEmpty()) {
        CommandWait::get().afterwards(this, [this, failure] { m_messages.deviceError(failure); });
    }
}

void RecordingControl::changedSoon() {
    if (!m_isChangeDue) {
        m_isChangeDue = true;
        QTimer::singleShot(0, this, [this] {
            m_isChangeDue = false;
            emit changed();
            tellLostLinks();
        });
    }
}

// A camera that was chosen for the shot is not left out without a word.
bool RecordingControl::mayLeaveOut() {
    QStringList names;
    for (const CameraDocument* const camera : m_documents.cameras()) {
        if (camera->isSelected() && !camera->isConnected() && !camera->body()->isDummy()) {
            names.append(camera->title());
        }
    }
    return names.isEmpty() || bodies().isEmpty() ||
           m_messages.confirmLoss(
               translated("These selected cameras are not connected. Record without them?"), names, nullptr);
}

void RecordingControl::ready() {
    if (!mayLeaveOut()) {
        emit changed();
        return;
    }
    QList<CameraBody*> ringing;
    for (CameraBody* const body : bodies()) {
        if (body->state() == CameraState::Live) {
            ringing.append(body);
        }
    }
    if (isSending() || !m_documents.mayLose(ringing, LossGuard::Memory::Partition)) {
        emit changed();
        return;
    }
    send(Command::Ready, CommandKey::RecordReady, [](CameraBody& body) {
        return body.state() == CameraState::Live ? body.recordReady() : Answer(CommandResult::Ok);
    });
}

void RecordingControl::record() {
    if (isSending()) {
        return;
    }
    send(Command::Trigger, CommandKey::TriggerIn, [](CameraBody& body) {
        return body.acceptsTrigger() ? body.triggerIn() : Answer(CommandResult::Ok);
    });
}

void RecordingControl::stop() {
    if (isSending(Command::Stop)) {
        return;
    }
    const bool isReadying = isSending(Command::Ready); // a camera may not have heard of it yet
    send(Command::Stop, CommandKey::StopRecording, [isReadying](CameraBody& body) {
        const CameraState state = body.state();
        return state == CameraState::Ready || state == CameraState::WaitingReady ||
                       state == CameraState::Recording || (isReadying && state == CameraState::Live)
                   ? body.stopRecording()
                   : Answer(CommandResult::Ok);
    });
}

void RecordingControl::externalTrigger(CameraBody* body) {
    const bool accepted = m_preferences.value(QStringLiteral("io/externalTrigger")).toBool();
    if (!body || !accepted || !body->acceptsTrigger()) {
        qInfo("External trigger: ignored");
        return;
    }
    const Answer answer = body->triggerIn();
    CommandWait::spendBlink({answer});
    answer.whenThere(this, [this, answer] {
        try {
            answer.result();
        } catch (const CameraError& error) {
            qWarning().noquote() << "External trigger:" << error.camera() << error.reason().english();
        }
        emit changed();
    });
}

void RecordingControl::setMode(HostMode mode) {
    m_isLiveDue = false;
    m_wish = mode;
    const bool isChanging = isSending(Command::Mode); // its state is still that of before
    const auto then = [this, mode] { enter(mode); };
    if (mode == HOST_MODE_LIVE) {
        send(
            Command::Mode, CommandKey::SetState,
            [isChanging](CameraBody& body) {
                return body.state() == CameraState::Memory ||
                               (isChanging && body.state() == CameraState::Live)
                           ? body.goLive()
                           : Answer(CommandResult::Ok);
            },
            then);
    } else if (mode == HOST_MODE_MEMORY) {
        send(
            Command::Mode, CommandKey::SetState,
            [isChanging](CameraBody& body) {
                const bool leaves =
                    body.state() == CameraState::Live || (isChanging && body.state() == CameraState::Memory);
                return leaves && !body.head()->recording().isEmpty() ? body.goMemory()
                                                                     : Answer(CommandResult::Ok);
            },
            then);
    } else {
        then();
        emit changed();
    }
}

// Not in the middle of what a page does that goes with the mode. A later wish has its own turn.
void RecordingControl::enter(HostMode mode) {
    CommandWait::get().afterwards(this, [this, mode] {
        if (m_wish == mode) {
            m_wish.reset();
            m_documents.setMode(mode);
            emit changed();
        }
    });
}

void RecordingControl::keep() {
    for (CameraDocument* const camera : m_documents.targetCameras()) {
        if (isReadable(*camera)) {
            m_shelf.keep(*camera);
        }
    }
    emit changed();
}

void RecordingControl::onStateChanged(CameraBody* body) {
    if (body->state() == CameraState::Memory && bodies().contains(body)) {
        onRecorded();
    }
    changedSoon();
}

void RecordingControl::onLinkChanged(CameraBody* body) {
    const CameraState state = body->state();
    const bool isBusy =
        state == CameraState::Recording || state == CameraState::Ready || state == CameraState::WaitingReady;
    if (!body->isConnected() && !body->isPlugged() && isBusy) {
        qWarning().noquote() << "The link was lost while it was recording:" << body->name();
        m_lost.append(body->name());
    } else if (body->isConnected() && state == CameraState::Memory && bodies().contains(body)) {
        onRecorded(); // it has ended while nobody could see it
    }
    changedSoon();
}

// All at once, and not while others record, to whom a Stop must get through.
void RecordingControl::tellLostLinks() {
    if (m_lost.isEmpty() || isAny(CameraState::Recording)) {
        return;
    }
    const QStringList lost = m_lost;
    m_lost.clear();
    CommandWait::get().afterwards(this, [this, lost] {
        m_messages.warnList(
            translated("The link to these cameras was lost while they were recording. They go "
                       "on by themselves; connect them again to see their recordings."),
            lost, nullptr);
    });
}

// A recording that ended is looked at, unless it is kept and the user wants to go on: memory mode begins once
// none of the selected cameras records any more. One that comes late is kept as well.
void RecordingControl::onRecorded() {
    const bool keepIt = m_preferences.value(QStringLiteral("recording/AutoDownload")).toBool();
    if (keepIt) {
        keep();
    }
    const bool isUnderWay = m_wish == HOST_MODE_MEMORY; // whose answers change states in their turn
    if (m_documents.mode() != HOST_MODE_LIVE || isUnderWay || isAny(CameraState::Recording) ||
        isAny(CameraState::Ready)) {
        return;
    }
    setMode(HOST_MODE_MEMORY);
    m_isLiveDue = keepIt && m_preferences.value(QStringLiteral("recording/backToLive")).toBool();
    goLiveIfDue();
}

void RecordingControl::goLiveIfDue() {
    if (m_isLiveDue && !m_shelf.isKeeping()) {
        setMode(HOST_MODE_LIVE);
    }
}

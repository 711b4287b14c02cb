#include "viewer/app/RecordingControl.h"

#include "viewer/cameras/CameraSource.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraCommands.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

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

void RecordingControl::run(const QString& operation, const CameraCommands::BodyCommand& action) {
    DeviceFailure failure;
    failure.operation = operation;
    for (CameraBody* const body : bodies()) {
        try {
            awaited(action(*body));
        } catch (const CameraError& error) {
            failure.cameras.append({error.camera(), error.reason()});
        }
    }
    emit changed();
    if (!failure.isEmpty()) {
        m_messages.deviceError(failure);
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
    if (!m_documents.mayLose(ringing, LossGuard::Memory::Partition)) {
        emit changed();
        return;
    }
    run(CommandKey::RecordReady, [](CameraBody& body) {
        return body.state() == CameraState::Live ? body.recordReady() : Answer(CommandResult::Ok);
    });
}

void RecordingControl::record() {
    run(CommandKey::TriggerIn, [](CameraBody& body) {
        return body.acceptsTrigger() ? body.triggerIn() : Answer(CommandResult::Ok);
    });
}

void RecordingControl::stop() {
    run(CommandKey::TriggerIn, [](CameraBody& body) {
        const CameraState state = body.state();
        return (state == CameraState::Ready || state == CameraState::WaitingReady ||
                state == CameraState::Recording)
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
    try {
        awaited(body->triggerIn());
    } catch (const CameraError& error) {
        qWarning().noquote() << "External trigger:" << error.camera() << error.reason().english();
    }
    emit changed();
}

void RecordingControl::setMode(HostMode mode) {
    m_isLiveDue = false;
    if (mode == HOST_MODE_LIVE) {
        run(CommandKey::SetState, [](CameraBody& body) {
            return body.state() == CameraState::Memory ? body.goLive() : Answer(CommandResult::Ok);
        });
    } else if (mode == HOST_MODE_MEMORY) {
        run(CommandKey::SetState, [](CameraBody& body) {
            return body.state() == CameraState::Live && !body.head()->recording().isEmpty()
                       ? body.goMemory()
                       : Answer(CommandResult::Ok);
        });
    }
    m_documents.setMode(mode);
    emit changed();
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
    if (body->state() == CameraState::Memory && m_documents.mode() == HOST_MODE_LIVE &&
        bodies().contains(body)) {
        onRecorded();
    }
    emit changed();
}

void RecordingControl::onLinkChanged(CameraBody* body) {
    const CameraState state = body->state();
    const bool isBusy =
        state == CameraState::Recording || state == CameraState::Ready || state == CameraState::WaitingReady;
    if (!body->isConnected() && !body->isPlugged() && isBusy) {
        // Queued: a link may be lost in the middle of a command.
        QMetaObject::invokeMethod(
            this, [this, name = body->name()] { tellLostLink(name); }, Qt::QueuedConnection);
    } else if (body->isConnected() && state == CameraState::Memory && m_documents.mode() == HOST_MODE_LIVE &&
               bodies().contains(body)) {
        onRecorded(); // it has ended while nobody could see it
    }
    emit changed();
}

void RecordingControl::tellLostLink(const QString& camera) {
    m_messages.warn(
        translated("The link to %1 was lost while it was recording. The camera goes on by itself; "
                   "connect it again to see its recording.")
            .arg(camera),
        nullptr);
}

// A recording that ended is looked at, unless it is kept and the user wants to go on: memory mode begins once
// none of the selected cameras records any more.
void RecordingControl::onRecorded() {
    const bool keepIt = m_preferences.value(QStringLiteral("recording/AutoDownload")).toBool();
    if (keepIt) {
        keep();
    }
    if (isAny(CameraState::Recording) || isAny(CameraState::Ready)) {
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

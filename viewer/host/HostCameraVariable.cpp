// Variable channels, and the partitions of the memory.

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/VariableRecords.h"
#include "viewer/host/CameraControlDoor.h"
#include "viewer/messages/Messages.h"

namespace {
constexpr char kInterface[] = "HostCameraControl";

const QString kSetChannel = QStringLiteral("KVC_SetVariableChannel");
} // namespace

CommandResult CameraControlDoor::takeChannel(CameraHead& head, unsigned channel) {
    return keepingTrigger(head, [channel](CameraHead& it) { return it.setVariableChannel(int(channel)); });
}

unsigned CameraControlDoor::getVariableChannel() {
    OPERATION();
    return settings() ? unsigned(settings()->channel) : 0;
}

void CameraControlDoor::setVariableChannel(unsigned channel) {
    OPERATION(channel);
    CameraCommands(kSetChannel).run(m_cameras.all(), [this, channel](CameraHead& head) {
        return takeChannel(head, channel);
    });
}

void CameraControlDoor::setVariableChannelOf(const QList<DOC_Interface*>& documents, unsigned channel) {
    OPERATION(documents, channel);
    const QList<CameraDocument*> cameras = m_cameras.of(documents);
    CameraCommands(kSetChannel).run(cameras, [this, channel](CameraHead& head) {
        return takeChannel(head, channel);
    });
    if (cameras.contains(widenedCamera())) {
        m_widened = kInvalidDockey;
    }
}

void CameraControlDoor::getVariableChannelInfo(unsigned channel, VariableChannelInfo& info) {
    OPERATION(channel);
    info = head() ? VariableRecords::info(*head(), channel) : VariableChannelInfo();
}

void CameraControlDoor::setVariableChannelInfoOf(const QList<DOC_Interface*>& documents, unsigned channel,
                                                 const VariableChannelInfo& info) {
    OPERATION(documents, channel);
    const VariableChannel content{info.rate, QSize(int(info.width), int(info.height)),
                                  QPoint(int(info.posX), int(info.posY))};
    // A place that the camera moves onto its grid is no failure: the channel holds, and its text tells.
    CameraCommands(QStringLiteral("KVC_SetVariableChannelInfo"))
        .run(m_cameras.of(documents), [channel, &content](CameraHead& head) {
            return head.storeVariableChannel(int(channel), content);
        });
}

// The one on whose image the area was chosen; on demand also those of its model that are connected: another
// model reads other sizes at other rates.
void CameraControlDoor::listVariableTargets(QList<DOC_Interface*>& documents, bool applySameCameras) {
    OPERATION(applySameCameras);
    documents.clear();
    const CameraDocument* const current = m_documents.currentCamera();
    if (current == nullptr || !current->isConnected()) {
        return;
    }
    documents.append(current->face());
    for (const CameraDocument* const camera : m_documents.cameras()) {
        const bool isSame = &camera->head()->model() == &current->head()->model();
        if (applySameCameras && camera != current && isSame && camera->isConnected()) {
            documents.append(camera->face());
        }
    }
}

// Of the camera whose channels the user sees.
void CameraControlDoor::eraseVariableChannel(unsigned channel) {
    OPERATION(channel);
    if (CameraDocument* const camera = m_documents.currentCamera()) {
        CameraCommands(QStringLiteral("KVC_EraseVariableChannel")).run({camera}, [channel](CameraHead& head) {
            return head.eraseVariableChannel(int(channel));
        });
    }
}

unsigned CameraControlDoor::getVariableMaxWidth(unsigned long rate, unsigned height) {
    OPERATION(rate, height);
    return head() ? unsigned(VariableSize::maxWidth(head()->model(), quint32(rate), int(height))) : 0;
}

unsigned CameraControlDoor::getVariableMaxHeight(unsigned long rate, unsigned width) {
    OPERATION(rate, width);
    return head() ? unsigned(VariableSize::maxHeight(head()->model(), quint32(rate), int(width))) : 0;
}

unsigned long CameraControlDoor::getVariableMaxRate(unsigned width, unsigned height) {
    OPERATION(width, height);
    return head() ? head()->model().maxRate(QSize(int(width), int(height))) : 0;
}

void CameraControlDoor::getVariableRestriction(VariableRestriction& restriction) {
    OPERATION();
    restriction = head() ? VariableRecords::restriction(*head()) : VariableRestriction();
}

void CameraControlDoor::getVariableRateList(QList<unsigned long>& list) {
    OPERATION();
    list.clear();
    if (head() && head()->model().supports(CameraFunction::VariableChannels)) {
        for (const quint32 rate : VariableSize::rates(head()->model())) {
            list.append(rate);
        }
    }
}

// The whole sensor shows, so that an area can be chosen on it. Only at the current camera: it is the one
// whose values are put back.
void CameraControlDoor::beginVariableSetting() {
    OPERATION();
    CameraDocument* const camera = m_documents.currentCamera();
    if (camera == nullptr) {
        return;
    }
    const HeadSettings before = camera->head()->settings();
    try {
        CameraCommands(QStringLiteral("KVC_SetResolution")).run({camera}, [this](CameraHead& head) {
            return keepingTrigger(head, [](CameraHead& it) { return it.setResolution(it.maxResolution()); });
        });
    } catch (const CameraFailure&) {
        m_modes.end(); // the page does not open, and nobody else would end what it began
        throw;
    }
    m_widened = camera->key();
    m_beforeWidening = before;
}

void CameraControlDoor::restoreVariableSetting(const VariableBackup& backup) {
    OPERATION();
    CameraDocument* const camera = widenedCamera() ? widenedCamera() : m_documents.currentCamera();
    if (camera == nullptr) {
        return;
    }
    HeadSettings before;
    before.channel = int(backup.channel);
    before.rate = backup.recordRate;
    before.resolution = QSize(int(backup.width), int(backup.height));
    before.shutter = backup.shutter;
    before.triggerMode = backup.trigger.mode;
    before.afterFrames = backup.trigger.afterFrames;
    before.randomFrames = backup.trigger.randomFrames;
    before.randomCount = backup.trigger.randomCount;
    CameraCommands(kSetChannel).run({camera}, [&before](CameraHead& head) {
        return head.restoreSettings(before);
    });
    m_widened = kInvalidDockey;
}

CameraDocument* CameraControlDoor::widenedCamera() const {
    Document* const document = m_documents.find(m_widened);
    return document && document->kind() == Document::Kind::Camera ? static_cast<CameraDocument*>(document)
                                                                  : nullptr;
}

// Neither a channel nor the settings before were taken: a camera that refuses a channel must not be left at
// the rate of its whole sensor.
void CameraControlDoor::leaveVariableSetting() {
    CameraDocument* const camera = widenedCamera();
    m_widened = kInvalidDockey;
    if (camera == nullptr || !camera->isConnected()) {
        return;
    }
    try {
        CameraCommands(kSetChannel).run({camera}, [this](CameraHead& head) {
            return head.restoreSettings(m_beforeWidening);
        });
    } catch (const CameraFailure& failure) {
        m_messages.deviceError(failure.failure());
    }
}

void CameraControlDoor::setCurrentPartition(int number, bool notify) {
    OPERATION(number, notify);
    CameraCommands(QStringLiteral("KVC_SetCurrentPartition"))
        .runBodies(m_cameras.all(), [number](CameraBody& body) { body.setPartition(number); });
}

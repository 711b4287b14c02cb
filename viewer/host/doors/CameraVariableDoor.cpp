#include "viewer/host/doors/CameraVariableDoor.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/VariableRecords.h"

void CameraVariableDoor::takeChannel(const QList<CameraDocument*>& cameras, unsigned channel) {
    m_changeNotes.duringChannel(
        cameras,
        [&] {
            CameraCommands(CommandKey::SetVariableChannel).run(cameras, [&](CameraHead& head) {
                return m_triggerSharing.keep(
                    head, [channel](CameraHead& it) { return it.setVariableChannel(int(channel)); });
            });
        },
        [this](const CameraDocument& camera) { return m_variableSetting.settingsBefore(camera); });
}

void CameraVariableDoor::setVariableChannelOf(const QList<DOC_Interface*>& documents, unsigned channel) {
    OPERATION(documents, channel);
    const QList<CameraDocument*> cameras = m_cameras.of(documents);
    takeChannel(cameras, channel);
    m_variableSetting.noteChannelSet(cameras);
}

void CameraVariableDoor::getVariableChannelInfo(unsigned channel, VariableChannelInfo& info) {
    OPERATION(channel);
    info = head() ? VariableRecords::info(*head(), channel) : VariableChannelInfo();
}

void CameraVariableDoor::setVariableChannelInfoOf(const QList<DOC_Interface*>& documents, unsigned channel,
                                                  const VariableChannelInfo& info) {
    OPERATION(documents, channel);
    const VariableChannel content{info.rate, QSize(int(info.width), int(info.height)),
                                  QPoint(int(info.posX), int(info.posY))};
    // A place that the camera moves onto its grid is no failure: the channel holds, and its text tells.
    CameraCommands().run(m_cameras.of(documents), [channel, &content](CameraHead& head) {
        return head.storeVariableChannel(int(channel), content);
    });
}

// The one on whose image the area was chosen; on demand also those of its model that are connected: another
// model reads other sizes at other rates.
void CameraVariableDoor::listVariableTargets(QList<DOC_Interface*>& documents, bool applySameCameras) {
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
void CameraVariableDoor::eraseVariableChannel(unsigned channel) {
    OPERATION(channel);
    if (CameraDocument* const camera = m_documents.currentCamera()) {
        CameraCommands().run({camera},
                             [channel](CameraHead& head) { return head.eraseVariableChannel(int(channel)); });
    }
}

unsigned CameraVariableDoor::getVariableMaxWidth(unsigned long rate, unsigned height) {
    OPERATION(rate, height);
    return head() ? unsigned(VariableSize::maxWidth(head()->model(), quint32(rate), int(height))) : 0;
}

unsigned CameraVariableDoor::getVariableMaxHeight(unsigned long rate, unsigned width) {
    OPERATION(rate, width);
    return head() ? unsigned(VariableSize::maxHeight(head()->model(), quint32(rate), int(width))) : 0;
}

unsigned long CameraVariableDoor::getVariableMaxRate(unsigned width, unsigned height) {
    OPERATION(width, height);
    return head() ? head()->model().maxRate(QSize(int(width), int(height))) : 0;
}

void CameraVariableDoor::getVariableRestriction(VariableRestriction& restriction) {
    OPERATION();
    restriction = head() ? VariableRecords::restriction(*head()) : VariableRestriction();
}

void CameraVariableDoor::getVariableRateList(QList<unsigned long>& list) {
    OPERATION();
    list.clear();
    if (head() && head()->model().supports(CameraFunction::VariableChannels)) {
        for (const quint32 rate : VariableSize::rates(head()->model())) {
            list.append(rate);
        }
    }
}

void CameraVariableDoor::setCurrentPartition(int number, bool notify) {
    OPERATION(number, notify);
    CameraCommands().runBodies(m_cameras.all(),
                               [number](CameraBody& body) { return body.setPartition(number); });
}

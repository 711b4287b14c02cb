#include "viewer/documents/CameraDocument.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/adapters/DocumentAdapter.h"

CameraDocument::CameraDocument(DocumentList& list, DOCKEY key, CameraHead* head, DeviceDocument& device)
    : Document(list, Kind::Camera, key), m_head(head), m_device(device), m_state(head->body()->state()) {
    setFace(std::make_unique<CameraFace>(*this));
}

CameraDocument::~CameraDocument() = default;

CameraBody* CameraDocument::body() const { return m_head->body(); }

DeviceDocument* CameraDocument::parentDevice() const {
    return m_device.hasSeveralHeads() ? &m_device : nullptr;
}

// A random mode ends a recording each time it is ready again; a user may stop it long after that.
void CameraDocument::noteState() {
    const CameraState before = m_state;
    m_state = body()->state();
    const bool hasEnded = m_state == CameraState::Memory || m_state == CameraState::Ready;
    QDateTime& end = m_ends[body()->partition()];
    if (m_state == CameraState::WaitingReady) {
        end = QDateTime();
    } else if (hasEnded && (before == CameraState::Recording ||
                            (before == CameraState::Ready && !end.isValid() && recordedFrames() > 0))) {
        end = QDateTime::currentDateTime();
        setPlayPosition(0); // where one looked at another recording says nothing of this one
    }
}

bool CameraDocument::isConnected() const { return m_head->body()->isConnected(); }

QString CameraDocument::title() const {
    return list().areNamesAddresses() ? (body()->address() + QLatin1Char(' ') + m_head->name()).trimmed()
                                      : m_head->fullName();
}

QSize CameraDocument::imageSize() const {
    const bool recorded = list().mode() == HOST_MODE_MEMORY && !m_head->recording().isEmpty();
    return recorded ? m_head->recording().settings.resolution : m_head->liveSize();
}

int CameraDocument::bitDepth() const { return m_head->model().bitDepth; }

Frame CameraDocument::frame(const QSize& maxSize) {
    if (list().mode() == HOST_MODE_MEMORY) {
        return m_head->memoryFrame(playPosition(), maxSize);
    }
    return m_head->liveFrame(maxSize);
}

Frame CameraDocument::recordedFrame(int index, const QSize& maxSize) {
    return m_head->memoryFrame(index, maxSize);
}

int CameraDocument::recordedFrames() const { return m_head->recording().frames; }

int CameraDocument::triggerIndex() const { return m_head->recording().triggerIndex(playPosition()); }

quint32 CameraDocument::recordedRate() const { return m_head->recording().settings.rate; }

QVector<int> CameraDocument::marks() const { return marks(body()->partition()); }

QVector<int> CameraDocument::marks(int partition) const {
    return m_marks.value(m_head->recording(partition).id);
}

QDateTime CameraDocument::triggered(int partition, int frame) const {
    return recordingEnd(partition).addMSecs(-(m_head->recording(partition).triggerToEnd(frame) / 1000000));
}

QVector<RecordedShot> CameraDocument::shots(int partition) const {
    const Recording recording = m_head->recording(partition);
    QVector<RecordedShot> shots;
    int first = 0;
    for (const Shot& shot : recording.shots) {
        shots.append({first, recording.triggerIndex(first), triggered(partition, first)});
        first += shot.frames();
    }
    return shots.size() > 1 ? shots : QVector<RecordedShot>();
}

void CameraDocument::toggleMark(int frame) {
    if (recordedFrames() > 0) {
        toggle(m_marks[m_head->recording().id], frame);
        emit marksChanged(this);
        emit imageChanged(this);
    }
}

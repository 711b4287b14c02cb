#pragma once

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/Document.h"
#include "viewer/recordings/RecordingInfo.h"

#include <QDateTime>
#include <QHash>

class DeviceDocument;
class DeviceObject;

/// The document of a camera head, or of a camera that has but one.
class CameraDocument : public Document {
    Q_OBJECT

public:
    CameraDocument(DocumentList& list, DOCKEY key, CameraHead* head, DeviceDocument& device);
    ~CameraDocument() override;

    CameraBody* body() const override;
    CameraHead* head() const override { return m_head; }
    DeviceDocument& device() const { return m_device; }
    /// The device if it has several heads; null for any other.
    DeviceDocument* parentDevice() const;

    bool isConnected() const override;
    QString title() const override;
    QSize imageSize() const override;
    int bitDepth() const override;
    Frame frame(const QSize& maxSize = QSize()) override;
    Frame recordedFrame(int index, const QSize& maxSize = QSize()) override;
    int recordedFrames() const override;
    int triggerIndex() const override;
    quint32 recordedRate() const override;
    QVector<int> marks() const override;
    void toggleMark(int frame) override;
    /// When the recording in the memory was complete, by this computer's clock; invalid if it did not see
    /// that.
    QDateTime recordingEnd(int partition) const { return m_ends.value(partition); }
    QDateTime recordingEnd() const { return recordingEnd(body()->partition()); }
    /// When the shot was triggered that a frame of a partition's recording belongs to; the same.
    QDateTime triggered(int partition, int frame) const;
    /// Of the recording in a partition, from 1; empty if it has but one.
    QVector<RecordedShot> shots(int partition) const;
    QVector<int> marks(int partition) const;

    /// The camera's state has changed.
    void noteState();

private:
    CameraHead* m_head;
    DeviceDocument& m_device;
    CameraState m_state;
    QHash<int, QDateTime> m_ends;         // by partition
    QHash<quint64, QVector<int>> m_marks; // by the recording's id
};

/// A camera as a device. With several heads it is a document of its own, which stands for its active head;
/// with one head it is only what the operations on devices work on, and nobody sees it in the list.
class DeviceDocument : public Document {
    Q_OBJECT

public:
    DeviceDocument(DocumentList& list, DOCKEY key, CameraBody* body);
    ~DeviceDocument() override;

    CameraBody* body() const override { return m_body; }
    CameraHead* head() const override;
    DeviceObject* object() const { return m_object; }
    bool hasSeveralHeads() const { return m_heads.size() > 1; }

    const QList<CameraDocument*>& heads() const { return m_heads; }
    void setHeads(const QList<CameraDocument*>& heads) { m_heads = heads; }
    /// The first head unless another one was chosen.
    CameraDocument* activeHead() const;

    /// Chooses the head that stands for the device. The next notice of a change takes it into the selection.
    void setActiveHead(CameraDocument* head);
    /// The device was selected: by its chosen head, which alone is selected then and becomes current, or as a
    /// whole, and then all its heads are.
    void deviceSelected();
    /// The device was taken out of the selection, and its heads with it.
    void deviceUnselected();
    /// The selection of the heads changed: the device is selected as long as one of them is.
    void headsChanged();

    bool isConnected() const override;
    QString title() const override;
    QSize imageSize() const override;
    int bitDepth() const override;
    Frame frame(const QSize& maxSize = QSize()) override;
    Frame recordedFrame(int index, const QSize& maxSize = QSize()) override;
    int recordedFrames() const override;
    int triggerIndex() const override;
    quint32 recordedRate() const override;

private:
    CameraBody* m_body;
    DeviceObject* m_object; // the face, as a device
    QList<CameraDocument*> m_heads;
    CameraDocument* m_active = nullptr;
    bool m_chosen = false; // a head was chosen since the last notice
    bool m_single = false; // the last notice selected that head alone
};

/// Those of the cameras of which `is` is true, in their order.
template <class Is>
QList<CameraDocument*> filterCameras(QList<CameraDocument*> cameras, const Is& is) {
    cameras.erase(std::remove_if(cameras.begin(), cameras.end(),
                                 [&is](const CameraDocument* camera) { return !is(*camera); }),
                  cameras.end());
    return cameras;
}

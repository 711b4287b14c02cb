#pragma once

#include "livecontrol/interface/types.h"
#include "viewer/cameras/Frame.h"
#include "viewer/documents/SaveState.h"
#include "viewer/documents/ViewState.h"
#include "viewer/recordings/CustomItems.h"

#include <QList>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <optional>

class DOC_Interface;
class CameraBody;
class CameraHead;
class DocumentList;

/// A document as the viewer itself sees it: a camera head, a device with several heads, or a recording.
///
/// What a plug-in calls is its face; the viewer uses the operations here, which are not recorded. Reads cost
/// nothing and never ask a camera.
class Document : public QObject {
    Q_OBJECT

public:
    enum class Kind { Camera, Device, File };

    ~Document() override;

    Kind kind() const { return m_kind; }
    DOCKEY key() const { return m_key; }
    DocumentList& list() const { return m_list; }
    DOC_Interface* face() const { return m_face.get(); }

    bool isSelected() const { return m_selected; }
    /// Marks it; who wants the rules of selection uses the list's operations.
    void setSelected(bool selected);

    /// Null for a recording.
    virtual CameraBody* body() const { return nullptr; }
    /// The head that it shows; of a device its active head. Null for a recording.
    virtual CameraHead* head() const { return nullptr; }
    virtual bool isConnected() const { return false; }
    /// Whether its live image comes with fewer pixels than the camera has.
    bool isSentReduced() const;
    /// As the user reads it.
    virtual QString title() const = 0;

    /// The image before any reduction.
    virtual QSize imageSize() const = 0;
    virtual int bitDepth() const = 0;
    /// What is to be shown now: the live picture, or the frame at the play position. No larger than maxSize
    /// if that is valid.
    virtual Frame frame(const QSize& maxSize = QSize()) = 0;
    /// A frame of the recording behind it, from 0; of a camera, that of the current partition.
    virtual Frame recordedFrame(int index, const QSize& maxSize = QSize()) = 0;

    /// The recording behind it: 0 frames without one.
    virtual int recordedFrames() const { return 0; }
    /// Where the trigger stands; of several recordings in one memory that of the play position.
    virtual int triggerIndex() const { return 0; }
    virtual quint32 recordedRate() const { return 0; }
    /// Frames of the recording that the user marked, rising.
    virtual QVector<int> marks() const { return {}; }
    virtual void toggleMark(int /*frame*/) {}
    int playPosition() const { return m_position; }
    void setPlayPosition(int index); // clamped to the recording
    /// The frames that a replay goes through, the last one included; all of them unless the user has chosen.
    int firstPlayed() const;
    int lastPlayed() const;
    /// A last one below 0 is the end of the recording.
    void setPlayed(int first, int last);
    /// At the end of the range a replay begins anew; otherwise it stops there.
    bool isLooping() const { return m_looping; }
    void setLooping(bool looping);
    /// A replay goes on by that many frames.
    void playOn(int frames);
    bool isPlaying() const { return m_playing; }
    void setPlaying(bool playing);

    const ViewState& view() const { return m_view; }
    void setView(const ViewState& view);
    /// A tool acts on this document's image; "binning" as soon as it is binned.
    bool isToolActive(const QString& name) const;
    QPoint pointerPos() const { return m_pointer; }
    void setPointerPos(const QPoint& pos) { m_pointer = pos; }

    /// The connection whose addresses are edited: 0 Ethernet, 1 Wi-Fi.
    int etherType() const { return m_etherType; }
    void setEtherType(int type) { m_etherType = type; }
    QString comment() const { return m_comment; }
    void setComment(const QString& text);
    CustomItems& customItems() { return m_customItems; }
    const CustomItems& customItems() const { return m_customItems; }
    QString logoPath() const { return m_logoPath; }
    void setLogoPath(const QString& path);

    const SaveState& saveState() const { return m_saveState; }
    void setSaveState(const SaveState& state) { m_saveState = state; }
    /// Of a recording that lies on a drive of a camera; none for any other.
    const std::optional<DriveOrigin>& drive() const { return m_drive; }
    void setDrive(const DriveOrigin& drive) { m_drive = drive; }

    /// While an area is selected on the view the image is transferred at full size. Counts.
    bool isReductionSuspended() const { return m_reductionHolds > 0; }
    void holdReduction(bool hold);
    /// Ends all of that at once.
    void releaseReduction();

signals:
    void commentChanged(Document* document);
    void logoPathChanged(Document* document);
    void selectionChanged(Document* document);
    void viewChanged(Document* document);  // rotation, mirroring, binning, zoom
    void imageChanged(Document* document); // a redraw is due: other frame, size or position
    void playingChanged(Document* document);
    void marksChanged(Document* document);

protected:
    Document(DocumentList& list, Kind kind, DOCKEY key);
    void setFace(std::unique_ptr<DOC_Interface> face);
    static void toggle(QVector<int>& marks, int frame);

private:
    DocumentList& m_list;
    Kind m_kind;
    DOCKEY m_key;
    std::unique_ptr<DOC_Interface> m_face;
    bool m_selected = false;
    bool m_playing = false;
    int m_position = 0;
    int m_firstPlayed = 0;
    int m_lastPlayed = -1; // to the end
    bool m_looping = true;
    int m_etherType = 0;
    int m_reductionHolds = 0;
    ViewState m_view;
    QPoint m_pointer;
    QString m_comment;
    QString m_logoPath;
    CustomItems m_customItems;
    SaveState m_saveState;
    std::optional<DriveOrigin> m_drive;
};

#pragma once

#include "livecontrol/interface/types.h"
#include "viewer/calls/CallRecorder.h"
#include "viewer/documents/DisplayFormat.h"
#include "viewer/documents/Document.h"
#include "viewer/documents/LiveImage.h"
#include "viewer/documents/LossGuard.h"
#include "viewer/documents/ToolState.h"
#include "viewer/messages/DeviceFailure.h"
#include "viewer/recordings/FrameSource.h"

#include <QMutex>
#include <QObject>

#include <memory>
#include <vector>

class CameraDocument;
class DeviceDocument;
class FileDocument;
class CameraSource;
class SavedPictures;

/// The open documents, their order, their selection and the current one.
///
/// Cameras of the source become documents when they are added to the list: a device and one document a head.
/// In live and memory mode the cameras are what is shown and selected, in file mode the recordings.
///
/// Selection. The current document is one of the selected ones, unless nothing is selected: taking the
/// current one out of the selection makes the next selected one current, and the last one stays. A device is
/// never current itself, its active head is. Documents without a link can be marked but don't count among the
/// selected cameras.
class DocumentList : public QObject {
    Q_OBJECT

public:
    /// Source and record are not owned; both outlive the list.
    DocumentList(CameraSource& source, CallRecorder& calls);
    ~DocumentList() override;

    CameraSource& source() const { return m_source; }
    /// In which the faces of the documents write down what a plug-in calls.
    CallRecorder& calls() { return m_calls; }
    QMutex& mutex() { return m_mutex; }
    ToolState& tools() { return m_tools; }
    LiveImage& live() { return m_live; }
    /// Why an operation of the Wi-Fi failed, for who shows it later: the worker that called it keeps the
    /// failure to itself, and a slot tells only that there was one. May be called on any thread.
    void keepWifiFailure(const DeviceFailure& failure);
    /// The last one, once; empty if there was none.
    DeviceFailure takeWifiFailure();

    /// How values are shown; asked at each text.
    DisplayFormat displayFormat() const { return m_displayFormat ? m_displayFormat() : DisplayFormat(); }
    ShutterFormat shutterFormat() const {
        return m_displayFormat ? m_displayFormat().shutter : ShutterFormat();
    }
    void setDisplayFormat(const std::function<DisplayFormat()>& format) { m_displayFormat = format; }
    /// Null for none, and then nothing is saved with information. Not owned; outlives the list's use.
    SavedPictures* savedPictures() const { return m_savedPictures; }
    void setSavedPictures(SavedPictures* pictures) { m_savedPictures = pictures; }
    /// What the names of saved files end with, by the user's settings: see DOC_Save.
    using SaveSuffix =
        std::function<QString(const Document& document, int saveType, int session, bool& used)>;
    void setSaveSuffix(const SaveSuffix& suffix) { m_saveSuffix = suffix; }
    QString saveSuffix(const Document& document, int saveType, int session, bool& used) const {
        used = false;
        return m_saveSuffix ? m_saveSuffix(document, saveType, session, used) : QString();
    }
    /// Who asks before frames are lost; null: nobody. Not owned.
    void setLossGuard(LossGuard* guard) { m_lossGuard = guard; }
    bool mayLose(const QList<CameraBody*>& bodies, LossGuard::Memory memory = LossGuard::Memory::All) {
        return !m_lossGuard || m_lossGuard->mayLose(bodies, memory);
    }
    /// Whether a document may be removed: asks for a camera as for its whole body.
    bool mayRemove(Document& document);
    /// Cameras are called by their addresses.
    bool areNamesAddresses() const { return m_namesAreAddresses; }
    void setNamesAreAddresses(bool on);

    HostMode mode() const { return m_mode; }
    void setMode(HostMode mode);

    /// Takes a camera of the rig into the list; no effect for one that is there. Returns the documents of its
    /// heads.
    QList<CameraDocument*> addCamera(CameraBody* body);
    /// All cameras of the rig, and the first that is connected becomes the current one.
    void addAllCameras();
    /// Opens a recording; the path is that of its file, empty if it has none under a name.
    FileDocument* addRecording(FrameSourcePtr source, const QString& path = QString());
    /// Makes these recordings the selected ones of file mode, whatever the mode is now.
    void selectRecordings(const QList<FileDocument*>& recordings);
    QList<FileDocument*> recordings() const;
    /// Removes a document, with its device and the other heads if it is one of several.
    void remove(Document* document);
    void removeAll();
    /// While on, what is removed is kept in no list but alive: a window of a plug-in, or its worker, may hold
    /// the document. It goes when this is switched off.
    void setKeepingRemoved(bool on);

    /// All of the present mode in order, device documents left out.
    QList<Document*> documents() const;
    QList<Document*> allDocuments() const;
    QList<Document*> selected() const;
    /// Heads and plain cameras, whatever the mode.
    QList<CameraDocument*> cameras() const;
    /// Selected cameras that are connected, the current one first.
    QList<CameraDocument*> selectedCameras() const;
    /// What a setter works on: the selected cameras, or the current one as long as nothing at all is
    /// selected.
    QList<CameraDocument*> targetCameras() const;
    // The same as counts and questions, for what is asked at every update: no list is made.
    int documentCount() const;
    int selectedCount() const;
    bool anyTarget(bool (*is)(const CameraDocument& camera, int what), int what) const;
    /// One a camera body in the list.
    QList<DeviceDocument*> devices() const;
    Document* find(DOCKEY key) const;
    Document* find(const DOC_Interface* face) const;
    CameraDocument* find(const CameraHead* head) const;

    /// Null if there is none.
    Document* current() const { return m_current; }
    DOCKEY currentKey() const { return m_current ? m_current->key() : kInvalidDockey; }
    /// The current document if it is a camera's, or the active head if it is a device's.
    CameraDocument* currentCamera() const;

    /// Makes it current, and selected; null for none.
    void setCurrent(Document* document);
    /// Selects it and makes it current; the others stay selected.
    void select(Document* document);
    /// Selects it, the current document stays unless there is none.
    void selectKeepCurrent(Document* document);
    void unselect(Document* document);
    /// Selects all that are connected; in file mode all.
    void selectAll();
    /// Replaces the selection; the first becomes current unless the current one is among them.
    void setSelection(const QList<Document*>& documents);

signals:
    // Not for devices, which have nothing to show.
    void documentAdded(Document* document);
    void documentRemoved(Document* document); // still there, but in no list any more
    void selectionChanged();
    void currentChanged(Document* current); // null for none
    void modeChanged(HostMode mode);
    void connectionChanged(Document* document);
    void namesChanged();
    void told(const QString& text); // what has been done, for the status bar

private:
    Document::Kind shownKind() const {
        return m_mode == HOST_MODE_FILE ? Document::Kind::File : Document::Kind::Camera;
    }
    Document* append(std::unique_ptr<Document> document);
    void drop(Document* document);
    void releaseRemoved();
    void dropBody(const CameraBody* body);
    QList<Document*> ofBody(const CameraBody* body) const;
    void tellDevices();
    DOCKEY nextKey() { return m_nextKey++; }

    /// What is asked at each update of a page, as long as nothing changes.
    struct Known {
        struct Target {
            bool (*is)(const CameraDocument& camera, int what) = nullptr;
            int what = 0;
            bool answer = false;
        };
        int documents = -1; // not counted
        int selected = -1;
        std::vector<Target> targets;
    };
    bool findTarget(bool (*is)(const CameraDocument& camera, int what), int what) const;
    void forgetKnown() { m_known = Known(); }

    CameraSource& m_source;
    CallRecorder& m_calls;
    mutable Known m_known;
    QMutex m_mutex;
    QMutex m_wifiMutex;
    DeviceFailure m_wifiFailure;
    ToolState m_tools;
    LiveImage m_live;
    std::function<DisplayFormat()> m_displayFormat;
    SavedPictures* m_savedPictures = nullptr;
    SaveSuffix m_saveSuffix;
    LossGuard* m_lossGuard = nullptr;
    bool m_namesAreAddresses = false;
    HostMode m_mode = HOST_MODE_LIVE;
    std::vector<std::unique_ptr<Document>> m_documents;
    std::vector<std::unique_ptr<Document>> m_removed; // kept alive
    bool m_keepsRemoved = false;
    Document* m_current = nullptr;
    Document* m_otherCurrent = nullptr; // of the cameras in file mode, of the files otherwise
    DOCKEY m_nextKey = 1;
};

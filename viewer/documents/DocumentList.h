#pragma once

#include "livecontrol/plugin/host/types.h"
#include "viewer/documents/CallRecorder.h"
#include "viewer/documents/Document.h"

#include <QMutex>
#include <QObject>

#include <memory>
#include <vector>

class CameraDocument;
class DeviceDocument;
class FileDocument;
class Rig;
struct Clip;

/// The open documents, their order, their selection and the current one.
///
/// Cameras of the rig become documents when they are added to the list; a body with several heads becomes a
/// device document and one document a head behind it. In live and memory mode the cameras are what is shown
/// and selected, in file mode the recordings.
///
/// Selection. The current document is always one of the selected ones, or none. Selecting a document alone
/// makes it current; taking the current one out of the selection makes the next selected one current.
/// Documents without a link can be marked but don't count among the selected cameras.
class DocumentList : public QObject {
    Q_OBJECT

public:
    explicit DocumentList(Rig& rig, QObject* parent = nullptr);
    ~DocumentList() override;

    Rig& rig() const { return m_rig; }
    CallRecorder& calls() { return m_calls; }
    QMutex& mutex() { return m_mutex; }

    HostMode mode() const { return m_mode; }
    void setMode(HostMode mode);

    /// Takes a camera of the rig into the list, connected if it can be. No effect for one that is there.
    /// Returns its documents: one, or the device's first and its heads behind it.
    QList<Document*> addCamera(CameraBody* body);
    /// All cameras of the rig, and the first that is connected becomes the current one.
    void addAllCameras();
    FileDocument* addClip(const Clip& clip, const QString& path = QString());
    /// Removes a document, with its device and the other heads if it is one of several.
    void remove(Document* document);
    void removeAll();

    /// All of the present mode in order, device documents left out.
    QList<Document*> documents() const;
    QList<Document*> allDocuments() const;
    QList<Document*> selected() const;
    /// Heads and plain cameras, whatever the mode.
    QList<CameraDocument*> cameras() const;
    /// Selected cameras that are connected, the current one first.
    QList<CameraDocument*> selectedCameras() const;
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
    void documentAdded(Document* document);
    void documentRemoved(Document* document); // still there
    void selectionChanged();
    void currentChanged(Document* current); // null for none
    void modeChanged(HostMode mode);
    void connectionChanged(Document* document);

private:
    friend class Document;
    Document* append(std::unique_ptr<Document> document);
    void drop(Document* document);
    void selectionMoved();
    DOCKEY nextKey() { return m_nextKey++; }

    Rig& m_rig;
    CallRecorder m_calls;
    QMutex m_mutex;
    HostMode m_mode = HOST_MODE_LIVE;
    std::vector<std::unique_ptr<Document>> m_documents;
    Document* m_current = nullptr;
    DOCKEY m_nextKey = 1;
};

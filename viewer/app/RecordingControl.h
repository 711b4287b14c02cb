#pragma once

#include "viewer/cameras/Answer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"

#include <QObject>

class Messages;
class Preferences;
class RecordingShelf;

/// Modes and recording as the tool bar offers them, on the selected cameras. What a camera refuses goes to
/// the user in one message that names them all; the others go on.
class RecordingControl : public QObject {
    Q_OBJECT

public:
    /// All outlive it.
    RecordingControl(DocumentList& documents, Preferences& preferences, Messages& messages,
                     RecordingShelf& shelf, QObject* parent = nullptr);

    RecordingShelf& shelf() const { return m_shelf; }
    /// Live takes the selected cameras out of their memory, which keeps what it holds.
    void setMode(HostMode mode);
    /// The next recording of a camera takes the place of its last one: asks first if that would be lost, or
    /// if a selected camera can't take part.
    void ready();
    void record();
    void stop();
    /// Begins to take the recordings of the selected cameras into documents of their own, which file mode
    /// shows; each once.
    void keep();
    /// A pulse at the trigger socket: starts the recording if the preferences accept it.
    void externalTrigger(CameraBody* body);

    /// Bodies of the selected cameras, each once.
    QList<CameraBody*> bodies() const;
    /// Whether one of them is in that state.
    bool isAny(CameraState state) const;
    /// Whether a trigger does anything at one of the selected cameras.
    bool acceptsTrigger() const;
    bool canKeep() const;

signals:
    /// Buttons and pages have something new to show.
    void changed();

private:
    bool mayLeaveOut();
    void run(const QString& operation, const std::function<Answer(CameraBody&)>& action);
    void onStateChanged(CameraBody* body);
    void onLinkChanged(CameraBody* body);
    void tellLostLink(const QString& camera);
    void onRecorded();
    void goLiveIfDue();

    DocumentList& m_documents;
    Preferences& m_preferences;
    Messages& m_messages;
    RecordingShelf& m_shelf;
    bool m_isLiveDue = false; // once all is kept
};

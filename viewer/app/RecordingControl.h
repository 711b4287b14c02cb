#pragma once

#include "viewer/cameras/Answer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"

#include <QObject>
#include <QSet>

class Messages;
class Preferences;

/// Modes and recording as the tool bar offers them, on the selected cameras. What a camera refuses goes to
/// the user in one message that names them all; the others go on.
class RecordingControl : public QObject {
    Q_OBJECT

public:
    RecordingControl(DocumentList& documents, Preferences& preferences, Messages& messages,
                     QObject* parent = nullptr);

    /// Live takes the selected cameras out of their memory, and asks first if a recording would be lost that
    /// nobody kept. False if the user declined.
    bool setMode(HostMode mode);
    void ready();
    void record();
    void stop();
    /// Takes the recordings of the selected cameras into documents of their own, which file mode shows.
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
    void run(const QString& operation, const std::function<Answer(CameraBody&)>& action);
    void onStateChanged(CameraBody* body);
    void onLinkChanged(CameraBody* body);
    void tellLostLink(const QString& camera);
    void onRecorded();
    bool wouldLoseRecording() const;
    bool keepOf(CameraDocument* camera);

    DocumentList& m_documents;
    Preferences& m_preferences;
    Messages& m_messages;
    QSet<const CameraHead*> m_kept; // whose present recording was taken over
};

#pragma once

#include "viewer/cameras/Answer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <list>
#include <optional>

class Messages;
class Preferences;
class RecordingShelf;

/// Modes and recording as the tool bar offers them, on the selected cameras. A command goes to all of them at
/// the same time, and nobody waits for slow ones: sent() comes then, and changed() when all have answered.
/// What a camera refuses goes to the user in one message that names them all; the others go on.
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
    /// The mode that was asked for last; cameras may still be on their way to it.
    HostMode mode() const { return m_wish.value_or(m_documents.mode()); }
    /// A command is on its way that readies, triggers or stops.
    bool isSending() const;
    /// The cameras that have not answered yet.
    QStringList slowCameras() const;
    /// Whether one of them is in that state.
    bool isAny(CameraState state) const;
    /// Whether a trigger does anything at one of the selected cameras.
    bool acceptsTrigger() const;
    bool canKeep() const;

signals:
    /// Buttons and pages have something new to show.
    void changed();
    /// A command is on its way to slow cameras, which have nothing new to show yet.
    void sent();

private:
    bool mayLeaveOut();
    enum class Command { Ready, Trigger, Stop, Mode };
    using Action = std::function<Answer(CameraBody&)>;
    /// A command that was sent to several cameras.
    struct Round {
        Command command = Command::Ready;
        QString operation; // key of the camera library's function
        QStringList names; // of the cameras
        QList<QPointer<CameraBody>> bodies;
        QList<Answer> answers;
        std::function<void()> then; // when all have answered

        bool isOver() const;
        /// Whether the camera came to what was wanted before the command reached it.
        bool isDone(int camera) const;
    };

    void send(Command command, const QString& operation, const Action& action,
              const std::function<void()>& then = {});
    void look();
    void end(const Round& round);
    bool isSending(Command command) const;
    void changedSoon();
    void enter(HostMode mode);
    void onStateChanged(CameraBody* body);
    void onLinkChanged(CameraBody* body);
    void tellLostLinks();
    void onRecorded();
    void goLiveIfDue();

    DocumentList& m_documents;
    Preferences& m_preferences;
    Messages& m_messages;
    RecordingShelf& m_shelf;
    std::list<Round> m_rounds;      // that are on their way
    std::optional<HostMode> m_wish; // that is not yet the documents' mode
    QStringList m_lost;             // links of cameras that record, not yet told
    bool m_isChangeDue = false;     // changed() will come
    bool m_isLiveDue = false;       // once all is kept
};

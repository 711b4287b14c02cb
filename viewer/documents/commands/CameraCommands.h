#pragma once

#include "livecontrol/interface/APP_Exception.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/messages/DeviceFailure.h"

#include <QPointer>

#include <functional>

class CameraDocument;

/// A command that went wrong at one or several cameras: which command, where and why.
class CameraFailure : public DOC_DeviceException {
public:
    /// The codes of the exception: how the first camera failed.
    enum Code { Refused = 1, LinkLost = 2, Clamped = 3 };

    CameraFailure(const DeviceFailure& failure, int code);

    const DeviceFailure& failure() const { return m_failure; }

private:
    DeviceFailure m_failure;
};

/// Waits until a camera has answered, as CommandWait does. Throws CameraError.
CommandResult awaited(const Answer& answer, const QString& camera = QString());

/// Runs commands on several cameras, on all at the same time: each gets the command whatever the others
/// answer, and what went wrong is told in one exception after the last, in the order of the cameras. A
/// document can be gone afterwards.
class CameraCommands {
public:
    using Command = std::function<Answer(CameraHead&)>;
    using BodyCommand = std::function<Answer(CameraBody&)>;
    using Taken = std::function<Reason(const CameraHead&)>;

    /// `operation`: key of the camera library's function that a failure names; without it the one that failed
    /// first. `taken`: the value that the camera has now, for the message about one that took another value
    /// than asked, which needs the key; without it such a change is no failure.
    explicit CameraCommands(const QString& operation = QString(), const Taken& taken = Taken());

    /// Runs the command on the head of each document. Throws CameraFailure.
    void run(const QList<CameraDocument*>& cameras, const Command& command);
    /// As above, once a body.
    void runBodies(const QList<CameraDocument*>& cameras, const BodyCommand& command);
    /// One body alone.
    void runBody(CameraBody& body, const BodyCommand& command);
    /// Something that concerns a camera of that name, which may not be there.
    void runNamed(const QString& name, const std::function<void()>& command);

private:
    /// What was sent to whom; `head` as long as it is there.
    struct Sent {
        QString name;
        Answer answer;
        QPointer<CameraHead> head;
    };

    void gather(const QList<Sent>& sent);
    void guarded(const QString& name, const std::function<void()>& command);
    void note(const QString& name, const Reason& reason, int code);
    void finish();

    Taken m_taken;
    DeviceFailure m_failure;
    int m_code = 0;
};

/// Makes the link to a camera. Throws CameraFailure.
void connectBody(CameraBody& body);
/// A function that a camera does not have.
[[noreturn]] void refuse(const QString& operation, const QString& camera, const Reason& reason);

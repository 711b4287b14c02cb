#include "viewer/documents/commands/CameraCommands.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/commands/CommandWait.h"

namespace {
QString logText(const DeviceFailure& failure) {
    QStringList parts;
    for (const DeviceFailure::Camera& camera : failure.cameras) {
        parts.append(camera.name + QStringLiteral(": ") + camera.reason.english());
    }
    return failure.operation + QStringLiteral(", ") + parts.join(QStringLiteral("; "));
}
} // namespace

CameraFailure::CameraFailure(const DeviceFailure& failure, int code)
    : DOC_DeviceException(logText(failure), code), m_failure(failure) {}

CommandResult awaited(const Answer& answer, const QString& camera) {
    CommandWait::get().until({answer}, {camera});
    return answer.result();
}

CameraCommands::CameraCommands(const QString& operation, const Taken& taken) : m_taken(taken) {
    m_failure.operation = operation;
}

void CameraCommands::runBody(CameraBody& body, const BodyCommand& command) {
    const QString name = body.name();
    gather({{name, Answer::of([&] { return command(body); }), nullptr}});
    finish();
}

void CameraCommands::runNamed(const QString& name, const std::function<void()>& command) {
    guarded(name, command);
    finish();
}

void CameraCommands::run(const QList<CameraDocument*>& cameras, const Command& command) {
    QList<Sent> sent;
    for (CameraDocument* const camera : cameras) {
        CameraHead& head = *camera->head();
        sent.append({head.fullName(), Answer::of([&] { return command(head); }), &head});
    }
    gather(sent);
    finish();
}

void CameraCommands::runBodies(const QList<CameraDocument*>& cameras, const BodyCommand& command) {
    QList<CameraBody*> bodies;
    for (CameraDocument* const camera : cameras) {
        if (!bodies.contains(camera->body())) {
            bodies.append(camera->body());
        }
    }
    QList<Sent> sent;
    for (CameraBody* const body : qAsConst(bodies)) {
        sent.append({body->name(), Answer::of([&] { return command(*body); }), nullptr});
    }
    gather(sent);
    finish();
}

void CameraCommands::gather(const QList<Sent>& sent) {
    QList<Answer> answers;
    QStringList names;
    for (const Sent& each : sent) {
        answers.append(each.answer);
        names.append(each.name);
    }
    CommandWait::get().until(answers, names);
    for (const Sent& each : sent) {
        guarded(each.name, [&] {
            if (each.answer.result() == CommandResult::Clamped && m_taken && each.head) {
                note(each.name, reason("took %1 instead", {m_taken(*each.head)}), CameraFailure::Clamped);
            }
        });
    }
}

void CameraCommands::guarded(const QString& name, const std::function<void()>& command) {
    try {
        command();
    } catch (const CameraError& error) {
        if (m_failure.operation.isEmpty()) {
            m_failure.operation = error.function();
        }
        note(name, error.reason(),
             error.kind() == CameraError::Kind::LinkLost ? CameraFailure::LinkLost : CameraFailure::Refused);
    }
}

void CameraCommands::note(const QString& name, const Reason& reason, int code) {
    m_failure.cameras.append({name, reason});
    m_code = m_code == 0 ? code : m_code;
}

void CameraCommands::finish() {
    if (!m_failure.isEmpty()) {
        throw CameraFailure(m_failure, m_code);
    }
}

void connectBody(CameraBody& body) {
    CameraCommands().runBody(body, [](CameraBody& it) { return it.connectLink(); });
}

void refuse(const QString& operation, const QString& camera, const Reason& reason) {
    throw CameraFailure({operation, {{camera, reason}}}, CameraFailure::Refused);
}

#include "viewer/host/parts/CameraSettingsFiles.h"

#include "livecontrol/foundation/PipeOrDevice.h"
#include "viewer/cameras/CameraSource.h"
#include "viewer/cameras/CheckedJson.h"
#include "viewer/cameras/settings/SettingsRecord.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/SettingText.h"
#include "viewer/documents/commands/CommandWait.h"
#include "viewer/messages/FileFailure.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <exception>

namespace {

[[noreturn]] void failToRead(const QString& path, const Reason& why) {
    throw FileFailure(reason("The camera settings file can't be read: %1 (%2)", {path, why}), path);
}

[[noreturn]] void failToWrite(const QString& path, const Reason& why) {
    throw FileFailure(reason("The camera settings file can't be written: %1 (%2)", {path, why}), path);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (QFileInfo(path).isDir()) {
        failToRead(path, reason("A folder has this name."));
    }
    if (isPipeOrDevice(path)) {
        failToRead(path, reason("This is no file."));
    }
    if (!file.open(QIODevice::ReadOnly)) {
        failToRead(path, file.errorString());
    }
    const QByteArray bytes = file.read(SettingsFile::MaxBytes + 1);
    if (bytes.size() > SettingsFile::MaxBytes) {
        failToRead(path, reason("The file is too large."));
    }
    return bytes;
}

QList<BodyRecord> recordsIn(const QString& path) {
    try {
        return SettingsFile::read(contentOf(path), path);
    } catch (const RigFileError& error) {
        failToRead(path, error.line() > 0 ? reason("line %1: %2", {error.line(), error.problem()})
                                          : error.problem());
    }
}

QList<CameraBody*> connectedBodies(const DocumentList& documents) {
    QList<CameraBody*> bodies;
    for (const CameraDocument* const camera : documents.cameras()) {
        if (camera->isConnected() && !bodies.contains(camera->body())) {
            bodies.append(camera->body());
        }
    }
    return bodies;
}

/// That of the camera itself, or else of one that is called so.
const BodyRecord* recordFor(const CameraBody& body, const QList<BodyRecord>& records) {
    for (const BodyRecord& record : records) {
        if (!record.serial.isEmpty() && record.serial == body.serial()) {
            return &record;
        }
    }
    for (const BodyRecord& record : records) {
        if (record.name == body.name()) {
            return &record;
        }
    }
    return nullptr;
}

QString textOf(const VariableChannel& channel) {
    return channel.isStored() ? QStringLiteral("%1 fps, %2 x %3")
                                    .arg(channel.rate)
                                    .arg(channel.size.width())
                                    .arg(channel.size.height())
                              : QStringLiteral("---");
}

/// What the body did not take, a line each.
QStringList notTakenBy(const CameraBody& body, const BodyRecord& record) {
    QStringList lines;
    if (record.partition != body.partition()) {
        lines.append(changeLine(translated("Partition"), QString::number(record.partition),
                                QString::number(body.partition())));
    }
    for (auto it = record.channels.begin(); it != record.channels.end(); ++it) {
        const VariableChannel taken = body.variableChannel(it.key());
        if (!(it.value() == taken)) {
            lines.append(
                changeLine(translated("Variable %1").arg(it.key()), textOf(it.value()), textOf(taken)));
        }
    }
    return lines;
}

QStringList notTakenBy(const CameraHead& head, const HeadRecord& record, const ShutterFormat& shutter) {
    QStringList lines = allSettingChanges(record.settings, head.settings(), shutter);
    static constexpr const char* kAxes[] = {"Iris", "Focus", "Zoom"};
    for (const LensAxis which : {LensAxis::Iris, LensAxis::Focus, LensAxis::Zoom}) {
        const Lens::Axis axis = head.lens().axis(which);
        const int wished = record.lens[size_t(which)];
        const bool tenths = head.model().lens.isInTenths(which);
        const auto text = [tenths](int place) {
            return tenths ? QString::number(place / 10.0, 'f', 1) : QString::number(place);
        };
        if (record.hasLens && axis.drivable && axis.target != wished) {
            lines.append(changeLine(translated(kAxes[size_t(which)]), text(wished), text(axis.target)));
        }
    }
    return lines;
}

/// Gives what the camera did not take, a line each.
QStringList notTaken(const Answer& answer, const BodyRecord& record, const CameraBody& body,
                     const ShutterFormat& shutter) {
    try {
        answer.result();
    } catch (const CameraError& error) {
        return {translated("%1: the settings could not be restored (%2).")
                    .arg(body.name(), translated(error.reason()))};
    }
    QStringList lines;
    for (const QString& line : notTakenBy(body, record)) {
        lines.append(body.name() + QStringLiteral(": ") + line);
    }
    const QList<CameraHead*> heads = body.heads();
    for (int i = 0; i < heads.size(); ++i) {
        if (i >= record.heads.size()) {
            lines.append(
                translated("%1: the file has no settings of this head.").arg(heads.at(i)->fullName()));
            continue;
        }
        for (const QString& line : notTakenBy(*heads.at(i), record.heads.at(i), shutter)) {
            lines.append(heads.at(i)->fullName() + QStringLiteral(": ") + line);
        }
    }
    return lines;
}
} // namespace

QByteArray CameraSettingsFiles::gathered() const {
    QList<BodyRecord> records;
    for (const CameraBody* const body : connectedBodies(m_documents)) {
        records.append(SettingsRecord::of(*body));
    }
    return records.isEmpty() ? QByteArray() : SettingsFile::write(records);
}

// The cameras are the GUI thread's, and that waits in an event loop while another thread writes.
QByteArray CameraSettingsFiles::text() {
    if (QThread::currentThread() == thread()) {
        return gathered();
    }
    QByteArray content;
    std::exception_ptr thrown; // which may not leave an event loop
    const auto gather = [&] {
        try {
            content = gathered();
        } catch (...) {
            thrown = std::current_exception();
        }
    };
    QMetaObject::invokeMethod(this, gather, Qt::BlockingQueuedConnection);
    if (thrown) {
        std::rethrow_exception(thrown);
    }
    return content;
}

void CameraSettingsFiles::save(const QString& path) {
    const QByteArray content = text();
    if (content.isEmpty()) {
        failToWrite(path, reason("No camera is connected."));
    }
    const QString failure = replaceFile(path, content);
    if (!failure.isEmpty()) {
        failToWrite(path, failure);
    }
    emit m_documents.told(translated("The settings are saved: %1").arg(QDir::toNativeSeparators(path)));
}

void CameraSettingsFiles::load(const QString& path) {
    const QList<BodyRecord> records = recordsIn(path);
    QStringList seen;
    const QList<CameraBody*> bodies = connectedBodies(m_documents);
    QList<Answer> answers;
    QStringList names;
    for (CameraBody* const body : bodies) {
        const BodyRecord* const record = recordFor(*body, records);
        answers.append(record ? SettingsRecord::apply(*record, *body) : Answer(CommandResult::Ok));
        names.append(body->name());
    }
    CommandWait::get().until(answers, names);
    const QList<CameraBody*> there = m_documents.source().cameras();
    for (int i = 0; i < bodies.size(); ++i) {
        CameraBody* const body = bodies.at(i);
        const BodyRecord* const record = there.contains(body) ? recordFor(*body, records) : nullptr;
        if (record) {
            seen.append(record->name);
            m_missed += notTaken(answers.at(i), *record, *body, m_documents.shutterFormat());
        } else {
            m_missed.append(translated("%1: the file has no settings of this camera.").arg(names.at(i)));
        }
    }
    for (const BodyRecord& record : records) {
        if (!seen.contains(record.name)) {
            m_missed.append(translated("%1: this camera is not connected.").arg(record.name));
        }
    }
}

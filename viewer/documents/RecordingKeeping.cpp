// How the shelf takes recordings out of the cameras' memories.

#include "viewer/documents/BackgroundJob.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/recordings/RecordingReader.h"
#include "viewer/recordings/RecordingWriter.h"
#include "viewer/recordings/TimeCodeRecord.h"

#include <QDebug>
#include <QFile>

#include <limits>

struct RecordingShelf::Taken {
    enum class End { Whole, Cancelled, CameraGone, SpoolFull };

    QString id;
    QString camera;
    QString path;  // in the spool
    int first = 0; // of the memory's frames
    RecordingInfo info;
    int frames = 0; // that are in the file
    End end = End::Whole;
};

namespace {

constexpr double kBytesInGb = 1e9;
constexpr Container::Storage kSpooled = Container::Storage::Zstd; // a third of the disk, and of its time

} // namespace

QString RecordingShelf::idOf(const CameraHead& head, int partition, const Recording& recording) {
    const CameraBody& body = *head.body();
    return QStringLiteral("%1/%2/%3/%4")
        .arg(body.serial().isEmpty() ? body.name() : body.serial())
        .arg(head.index() + 1)
        .arg(partition)
        .arg(recording.id);
}

int RecordingShelf::wantedFrames(const Recording& recording) const {
    const int most = m_preferences.value(QStringLiteral("recording/keepFrames")).toInt();
    return most > 0 ? qMin(most, recording.frames) : recording.frames;
}

bool RecordingShelf::canKeep(const CameraDocument& camera) const {
    const Recording& recording = camera.head()->recording();
    const QString id = idOf(*camera.head(), camera.body()->partition(), recording);
    return !recording.isEmpty() && camera.isConnected() && !m_keeping.contains(id) &&
           held(id) < wantedFrames(recording);
}

RecordingInfo RecordingShelf::infoOf(CameraDocument& camera, int partition) const {
    CameraHead& head = *camera.head();
    const Recording recording = head.recording(partition);
    RecordingInfo info;
    info.camera = head.fullName();
    info.device = head.model().title;
    info.headName = head.name();
    info.head = head.index() + 1;
    info.serial = head.body()->serial();
    info.partition = partition;
    const QDateTime end = camera.recordingEnd(partition);
    info.ended = end.isValid() ? end : QDateTime::currentDateTime();
    info.triggered = info.ended.addMSecs(-(recording.triggerToEnd(0) / 1000000));
    info.rate = recording.settings.rate;
    info.shutter = recording.settings.shutter;
    info.size = recording.settings.resolution;
    info.area = recording.settings.areaOn(head.model().sensor);
    info.bitDepth = head.model().bitDepth;
    info.color = head.model().color;
    info.frames = info.recordedFrames = recording.frames;
    info.triggerIndex = recording.triggerIndex();
    info.firstNumber = quint32(recording.firstNumber());
    info.shots = camera.shots(partition);
    info.triggerMode = recording.settings.triggerMode;
    info.items = camera.customItems();
    info.comment = camera.comment();
    info.logoPath = m_preferences.value(QStringLiteral("info/LogoPath")).toString();
    info.timeCode = TimeCodeRecord::fromMap(m_preferences.value(TimeCodeRecord::kPreference).toMap());
    return info;
}

bool RecordingShelf::keep(CameraDocument& camera) {
    if (!canKeep(camera)) {
        return false;
    }
    const Recording& recording = camera.head()->recording();
    const auto taken = std::make_shared<Taken>();
    taken->id = idOf(*camera.head(), camera.body()->partition(), recording);
    taken->camera = camera.head()->fullName();
    const int count = wantedFrames(recording);
    m_wanted[taken->id] = qMax(count, m_wanted.value(taken->id));
    taken->first = qBound(0, recording.triggerIndex() - count / 2, recording.frames - count);
    RecordingInfo info = infoOf(camera, camera.body()->partition());
    info.id = taken->id + QLatin1Char('@') + info.ended.toUTC().toString(Qt::ISODateWithMs);
    taken->info = info.part(taken->first, count);
    try {
        startKeeping(camera, taken);
    } catch (const RecordingError& error) {
        m_messages.error(recordingFailure(error));
        return false;
    }
    emit changed();
    return true;
}

void RecordingShelf::startKeeping(CameraDocument& camera, const std::shared_ptr<Taken>& taken) {
    const std::shared_ptr<MemoryReader> reader = camera.head()->memoryReader(taken->info.partition);
    if (!reader) {
        throw RecordingError(RecordingError::While::Reading, taken->camera,
                             reason("The camera's memory can't be read."));
    }
    taken->path = spool().newPath(taken->camera);
    if (m_keeping.isEmpty()) {
        m_batch.clear();
        const double limit = m_preferences.value(QStringLiteral("recording/spoolLimit")).toDouble();
        const qint64 room = qint64(limit * kBytesInGb) - spool().bytes();
        m_room = std::make_shared<std::atomic<qint64>>(limit > 0 ? room : std::numeric_limits<qint64>::max());
    }
    m_keeping.insert(taken->id);
    const int count = taken->info.frames;
    BackgroundJob& job = addJob(translated("Keeping %1").arg(taken->camera), count);
    connect(&job, &BackgroundJob::ended, this, [this, taken](BackgroundJob* it) { takeOver(*it, taken); });
    job.start(m_pool, [taken, reader, count, room = m_room](BackgroundJob& it) {
        RecordingWriter writer(taken->path, taken->info, kSpooled);
        const auto settle = [&] { taken->frames = writer.frames(); };
        try {
            for (int i = 0; i < count && taken->end == Taken::End::Whole; ++i) {
                const qint64 before = writer.bytes();
                const Frame frame = reader->frame(taken->first + i);
                taken->end = it.isCancelled()    ? Taken::End::Cancelled
                             : frame.isNull()    ? Taken::End::CameraGone
                             : room->load() <= 0 ? Taken::End::SpoolFull
                                                 : Taken::End::Whole;
                if (taken->end == Taken::End::Whole) {
                    writer.add(frame);
                    *room -= writer.bytes() - before;
                    it.setDone(i + 1);
                }
            }
            if (taken->end != Taken::End::Cancelled && writer.frames() > 0) {
                writer.finish();
                settle();
            }
        } catch (const RecordingError&) {
            try {
                writer.finishWithoutEnd();
                settle();
            } catch (const RecordingError& none) { // no frame is on the disk; why, the first one knows
                qInfo("%s", none.what());
            }
            throw;
        }
    });
}

void RecordingShelf::takeOver(const BackgroundJob& job, const std::shared_ptr<Taken>& taken) {
    m_keeping.remove(taken->id);
    try {
        if (taken->frames > 0) {
            addKept(*taken);
        }
        if (job.failure()) {
            std::rethrow_exception(job.failure());
        }
    } catch (const RecordingError& error) {
        m_messages.error(recordingFailure(error));
    } catch (const std::exception& error) {
        m_messages.error(QString::fromUtf8(error.what()));
    }
    if (m_keeping.isEmpty()) {
        emit allKept();
    }
    emit changed(); // of what the others have made of it, too
    tellTaken(job, *taken);
}

// A part that was kept before, when the camera was lost, makes room for what is more.
void RecordingShelf::addKept(const Taken& taken) {
    FileDocument* const document = m_documents.addRecording(std::make_shared<RecordingReader>(taken.path));
    document->setSpoolPath(taken.path);
    const QPointer<FileDocument> part = m_kept.value(taken.id);
    m_kept.insert(taken.id, document);
    m_given.remove(taken.id);
    if (part && !part->isSaved() && part->recordedFrames() < document->recordedFrames()) {
        QFile::remove(part->spoolPath());
        part->setSpoolPath(QString());
        m_documents.remove(part);
    }
    for (CameraDocument* const camera : m_documents.cameras()) {
        if (!camera->marks().isEmpty()) {
            handMarks(camera); // what was marked while it was read
        }
    }
    m_batch.append(document);
    m_documents.selectRecordings(m_batch);
    emit kept(document);
}

// Marks that are set on a camera's recording go with it, also when it has been kept.
void RecordingShelf::handMarks(Document* document) {
    const CameraHead& head = *document->head();
    const Recording& recording = head.recording();
    const QPointer<FileDocument> kept = m_kept.value(idOf(head, head.body()->partition(), recording));
    if (!kept) {
        return;
    }
    const int first = recording.triggerIndex() - kept->source()->info().triggerIndex;
    QVector<int> marks;
    for (const int mark : document->marks()) {
        if (mark >= first && mark < first + kept->recordedFrames()) {
            marks.append(mark - first);
        }
    }
    kept->setMarks(marks);
}

void RecordingShelf::tellTaken(const BackgroundJob& job, const Taken& taken) {
    const QString counts = translated("%1: %2 of %3 frames kept")
                               .arg(taken.camera)
                               .arg(taken.frames)
                               .arg(taken.info.recordedFrames);
    qInfo().noquote() << counts;
    emit told(counts);
    if (taken.end == Taken::End::CameraGone) {
        m_messages.error(
            translated("The link to %1 was lost while its recording was read.").arg(taken.camera) +
            QLatin1Char('\n') + counts);
    } else if (taken.end == Taken::End::SpoolFull) {
        m_messages.error(
            translated("The folder for kept recordings has reached its limit. Save recordings and "
                       "close them, or raise the limit in the preferences.") +
            QLatin1Char('\n') + counts);
    } else if (job.failure() && taken.frames > 0) {
        m_messages.error(counts);
    }
}

#include "viewer/documents/RecordingShelf.h"

#include "viewer/documents/BackgroundJob.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/recordings/RecordingReader.h"

#include <QDebug>
#include <QDir>
#include <QFile>

namespace {

constexpr int kBeatMs = 300; // between two looks at how far the jobs are: each draws the window anew
constexpr int kLinesShown = 12;

QString line(const QString& camera, int frames) {
    return translated("%1: %2 frames").arg(camera).arg(frames);
}

QString partLine(const QString& camera, int frames, int all) {
    return frames == all ? line(camera, all)
                         : translated("%1: %2 of %3 frames").arg(camera).arg(frames).arg(all);
}

} // namespace

QString recordingFailure(const RecordingError& error) {
    const QString what =
        error.isReading() ? translated("File read failed.") : translated("File write failed.");
    return what + QLatin1Char('\n') + QDir::toNativeSeparators(error.path()) + QLatin1Char('\n') +
           translated(error.why());
}

RecordingShelf::RecordingShelf(DocumentList& documents, Preferences& preferences, Messages& messages,
                               const QString& folder)
    : m_documents(documents), m_preferences(preferences), m_messages(messages), m_defaultFolder(folder) {
    m_documents.setLossGuard(this);
    m_beat.setInterval(kBeatMs);
    connect(&m_beat, &QTimer::timeout, this, &RecordingShelf::progressed);
    connect(&m_exports, &ExportJobs::changed, this, &RecordingShelf::progressed);
    const auto watch = [this](Document* document) {
        if (document->kind() == Document::Kind::Camera) {
            connect(document, &Document::marksChanged, this, &RecordingShelf::handMarks);
        } else if (document->kind() == Document::Kind::File) { // whoever opened it
            connect(static_cast<FileDocument*>(document), &FileDocument::keepingChanged, this,
                    &RecordingShelf::changed);
        }
    };
    for (CameraDocument* const camera : m_documents.cameras()) {
        watch(camera);
    }
    connect(&m_documents, &DocumentList::documentAdded, this, watch);
    connect(&m_documents, &DocumentList::documentRemoved, this, [this](Document* document) {
        if (document->kind() == Document::Kind::File) {
            auto* const file = static_cast<FileDocument*>(document);
            m_batch.removeAll(file);
            if (file->isSaved()) {
                m_given.insert(m_kept.key(file));
            }
            emit changed();
        }
    });
}

RecordingShelf::~RecordingShelf() {
    m_documents.setLossGuard(nullptr);
    cancelJobs();
    m_pool.waitForDone();
    for (FileDocument* const document : m_documents.recordings()) {
        document->settleSpool();
    }
}

Spool& RecordingShelf::spool() {
    const QString named = m_preferences.value(QStringLiteral("recording/spoolFolder")).toString();
    const QString folder = named.isEmpty() ? m_defaultFolder : named;
    if (m_spools.empty() || m_spools.back()->folder() != folder) {
        m_spools.push_back(std::make_unique<Spool>(folder));
    }
    return *m_spools.back();
}

BackgroundJob& RecordingShelf::addJob(const QString& title, int total) {
    auto* const job = new BackgroundJob(m_nextJob++, title, total, this);
    m_jobs.append(job);
    if (!m_beat.isActive()) {
        m_beat.start();
    }
    connect(job, &BackgroundJob::ended, this, &RecordingShelf::endJob);
    return *job;
}

void RecordingShelf::endJob(BackgroundJob* job) {
    m_jobs.removeAll(job);
    job->deleteLater();
    if (m_jobs.isEmpty()) {
        m_beat.stop();
    }
    emit progressed();
    emit changed();
}

// What a camera had of itself when the recording was taken over counts, whichever document shows it.
int RecordingShelf::held(const QString& id) const {
    const FileDocument* const document = m_kept.value(id);
    return document ? document->recordedFrames() : 0;
}

QStringList RecordingShelf::unsafe(const QList<CameraBody*>& bodies, Memory memory) const {
    QStringList lines;
    for (const CameraBody* const body : bodies) {
        for (CameraHead* const head : body->heads()) {
            for (int partition = 1; partition <= body->partitionCount(); ++partition) {
                const bool counts = memory == Memory::All || partition == body->partition();
                const Recording recording = counts ? head->recording(partition) : Recording();
                const QString id = idOf(*head, partition, recording);
                // What the user wants of the next shot takes nothing away from this one.
                const int lost = qMax(wantedFrames(recording), m_wanted.value(id)) - held(id);
                if (!recording.isEmpty() && !m_given.contains(id) && lost > 0) {
                    lines.append(
                        partLine(head->fullName(), held(id) > 0 ? lost : recording.frames, recording.frames));
                }
            }
        }
    }
    return lines;
}

bool RecordingShelf::mayLose(const QList<CameraBody*>& bodies, Memory memory) {
    const QStringList lines = unsafe(bodies, memory);
    return lines.isEmpty() ||
           m_messages.confirmLoss(
               translated("These recordings are in no file and will be lost. Do you want to go on?"), lines,
               nullptr);
}

bool RecordingShelf::mayQuit() {
    QList<CameraBody*> bodies;
    for (const DeviceDocument* const device : m_documents.devices()) {
        bodies.append(device->body());
    }
    QStringList lines = unsafe(bodies, Memory::All);
    const bool isLost = !lines.isEmpty();
    for (const Progress& one : goingOn()) {
        lines.append(isLost ? translated("Will be stopped: %1").arg(one.text) : one.text);
    }
    const char* const question =
        isLost ? "These recordings are in no file and will be lost. Do you want to go on?"
               : "These jobs will be stopped before their files are complete. Do you want to go on?";
    return lines.isEmpty() || m_messages.confirmLoss(translated(question), lines, nullptr);
}

bool RecordingShelf::mayClose(FileDocument& document) {
    const bool isLost = !document.isSaved() && !document.spoolPath().isEmpty();
    if (!isLost) {
        return true;
    }
    const QPointer<FileDocument> alive(&document);
    const bool agreed = m_messages.confirmLoss(
        translated("This recording has not been saved and will be lost. Do you want to go on?"),
        {line(document.title(), document.recordedFrames())}, nullptr);
    if (agreed && alive) {
        m_given.insert(m_kept.key(&document));
        QFile::remove(document.spoolPath());
        document.setSpoolPath(QString());
    }
    return agreed && alive;
}

bool RecordingShelf::close(FileDocument& document) {
    if (!mayClose(document)) {
        return false;
    }
    m_documents.remove(&document);
    return true;
}

FileDocument* RecordingShelf::open(const QString& path) {
    FileDocument* const document = m_documents.addRecording(RecordingFile::open(path), path);
    emit changed();
    return document;
}

bool RecordingShelf::offerLeftovers() {
    Spool& from = spool();
    QStringList lines;
    std::vector<std::shared_ptr<const RecordingReader>> found;
    for (const QString& path : from.adoptLeftovers()) {
        try {
            found.push_back(std::make_shared<RecordingReader>(path));
            const RecordingInfo& info = found.back()->info();
            const QString moment = info.triggered.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
            lines.append(
                (line(info.camera, found.back()->count()) + QStringLiteral("  ") + moment).trimmed());
        } catch (const RecordingError& error) {
            qWarning("%s", error.what());
        }
    }
    const bool isOpened =
        !found.empty() &&
        m_messages.confirm(
            translated("These recordings were kept earlier and have not been saved:") + QLatin1Char('\n') +
                lines.mid(0, kLinesShown).join(QLatin1Char('\n')) +
                (lines.size() > kLinesShown ? QStringLiteral("\n\u2026 (%1)").arg(lines.size()) : QString()) +
                QLatin1Char('\n') + translated("Do you want to open them?"),
            nullptr,
            {{QStringLiteral("yes"), translated("Open")},
             {QStringLiteral("no"), translated("Not now")},
             {QStringLiteral("default"), QStringLiteral("yes")}});
    if (!isOpened) {
        from.release();
        return false;
    }
    QList<FileDocument*> documents;
    for (const auto& reader : found) {
        documents.append(m_documents.addRecording(reader));
        documents.last()->setSpoolPath(reader->path());
    }
    m_documents.selectRecordings(documents);
    emit changed();
    return true;
}

// How the shelf saves recordings to files.

#include "viewer/documents/BackgroundJob.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

#include <QFileInfo>

ExportRequest RecordingShelf::requestTo(const QString& path, const QString& format) const {
    ExportRequest request;
    request.path = path;
    request.setFormat(format.isEmpty() ? QFileInfo(path).suffix() : format);
    request.playRate = m_preferences.value(QStringLiteral("export/playRate")).toDouble();
    request.quality = m_preferences.value(QStringLiteral("export/quality")).toInt();
    request.last = ExportRequest::kToTheEnd;
    return request;
}

int RecordingShelf::save(FileDocument& document, const ExportRequest& wish, const ExportJobs::Then& then) {
    ExportRequest request = wish;
    request.source = document.source();
    request.info = document.info(); // with what was noted since it was opened
    if (request.last == ExportRequest::kToTheEnd) {
        request.last = request.source->count() - 1;
    }
    request.check();
    const QPointer<FileDocument> alive(&document);
    const bool isWhole = request.isWhole();
    const int notes = document.notes(); // others may follow while it is written
    const auto onEnd = [this, alive, isWhole, notes, then](const ExportJobs::Entry& job) {
        if (job.state == ExportJob::State::Done) {
            if (alive && isWhole) {
                alive->setSaved(job.path, notes);
            }
            emit told(translated("Saved as %1").arg(job.path));
        }
        if (then) {
            then(job);
        }
    };
    return m_exports.start(request, request.titleFor(document.title()), onEnd);
}

QList<ExportJobs::Entry> RecordingShelf::keepings() const {
    QList<ExportJobs::Entry> all;
    for (const BackgroundJob* const job : m_jobs) {
        ExportJobs::Entry entry;
        entry.id = job->id();
        entry.title = job->title();
        entry.state = ExportJob::State::Running;
        entry.done = job->done();
        entry.total = job->total();
        entry.seconds = job->seconds();
        all.append(entry);
    }
    return all;
}

bool RecordingShelf::cancelKeeping(int id) {
    const auto job = std::find_if(m_jobs.begin(), m_jobs.end(),
                                  [id](const BackgroundJob* one) { return one->id() == id; });
    if (job == m_jobs.end()) {
        return false;
    }
    (*job)->cancel();
    return true;
}

QList<RecordingShelf::Progress> RecordingShelf::goingOn() const {
    QList<Progress> all;
    const auto add = [&all](const QString& title, int done, int total) {
        all.append({translated("%1: %2 of %3 frames").arg(title).arg(done).arg(total), done, total});
    };
    for (const BackgroundJob* const job : m_jobs) {
        add(job->title(), job->done(), job->total());
    }
    for (const ExportJobs::Entry& job : m_exports.list()) {
        if (!job.isEnded()) {
            add(job.title, job.done, job.total);
        }
    }
    return all;
}

RecordingShelf::Progress RecordingShelf::progress() const {
    const QList<Progress> all = goingOn();
    if (all.size() == 1) {
        return all.first();
    }
    Progress sum;
    for (const Progress& one : all) {
        sum.done += one.done;
        sum.total += one.total;
    }
    if (!all.isEmpty()) {
        sum.text = translated("%1 jobs: %2 of %3 frames").arg(all.size()).arg(sum.done).arg(sum.total);
    }
    return sum;
}

void RecordingShelf::cancelJobs() {
    for (BackgroundJob* const job : qAsConst(m_jobs)) {
        job->cancel();
    }
    m_exports.cancelAll();
}

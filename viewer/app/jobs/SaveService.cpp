#include "viewer/app/jobs/SaveService.h"

#include "livecontrol/storage/dialogs/DialogKind.h"
#include "viewer/app/jobs/ReportMaker.h"
#include "viewer/app/jobs/SaveSources.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/export/LayoutSource.h"
#include "viewer/export/writers/SequenceSink.h"
#include "viewer/messages/FileFailure.h"
#include "viewer/prefs/Preferences.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// Formats that keep the frames as the camera made them, with nothing drawn into them.
bool isRaw(ExportFormat format) {
    return ExportFormats::isContainer(format) || format == ExportFormat::Tiff ||
           format == ExportFormat::TiffPages;
}

void requireFree(const ExportRequest& request) {
    SinkPlan plan;
    plan.path = request.path;
    plan.frames = request.count();
    const QString first =
        ExportFormats::isSequence(request.format) ? SequenceSink::pathOf(plan, request.first) : request.path;
    if (QFileInfo::exists(first)) {
        throw FileFailure(reason("%1: There is a file of that name already.", {first}), first);
    }
}

void requireFolder(const QString& path) {
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder)) {
        throw FileFailure(reason("The folder %1 can't be made.", {folder}), folder);
    }
}

/// What part of the frames is wanted, as far as there are so many.
void setRange(ExportRequest& request, const SaveRequest& wish, const Document& document) {
    const int last = request.source->count() - 1;
    request.first = qBound(0, wish.firstFrame, last);
    request.last = wish.lastFrame < 0 ? last : qBound(request.first, wish.lastFrame, last);
    if (wish.saveType == saveTypeOf(DialogKind::Snapshot)) {
        request.first = request.last = qBound(0, document.playPosition(), last);
    }
}

} // namespace

SaveService::SaveService(Parts parts, QObject* parent) : QObject(parent), m_parts(std::move(parts)) {
    connect(&m_parts.jobs, &ExportJobs::ended, this, &SaveService::onEnded);
}

ExportRequest SaveService::requestFor(const SaveRequest& wish, const SaveRequest::Item& item) const {
    ExportRequest request;
    if (!ExportFormats::fromName(wish.format, request.format)) {
        throw FileFailure(reason("There is no format \"%1\" here.", {wish.format}), item.path);
    }
    if (!wish.codec.isEmpty() && !ExportFormats::codecFromName(wish.codec, request.codec)) {
        throw FileFailure(reason("There is no codec \"%1\" here.", {wish.codec}), item.path);
    }
    request.path = item.path + QLatin1Char('.') + ExportFormats::suffix(request.format);
    request.step = qMax(1, wish.every);
    request.playRate = m_parts.preferences.value(QStringLiteral("export/playRate")).toDouble();
    request.quality = m_parts.preferences.value(QStringLiteral("export/quality")).toInt();
    return request;
}

SaveService::Planned SaveService::plan(const SaveRequest& wish, const SaveRequest::Item& item) const {
    ExportRequest request = requestFor(wish, item);
    Document* const document = m_parts.documents.find(item.key);
    request.source = document ? SaveSources::framesOf(*document, item.partition, m_parts.shelf) : nullptr;
    if (!request.source || request.source->count() == 0) {
        throw FileFailure(reason("%1: The recording holds no frames.", {request.path}), request.path);
    }
    auto* const file = dynamic_cast<FileDocument*>(document);
    if (file) {
        request.info = file->info(); // with what was noted since it was opened
    }
    setRange(request, wish, *document);
    if (!isRaw(request.format)) {
        request.compose = SaveSources::drawing(*document, m_parts.pictures, wish.withInfo, request.path);
    }
    const bool isWhole =
        ExportFormats::isContainer(request.format) && request.count() == request.source->count();
    return {request, QStringLiteral("%1: %2").arg(document->title(), QFileInfo(request.path).fileName()),
            isWhole ? file : nullptr};
}

// One picture of all windows; the current document gives the frames.
SaveService::Planned SaveService::planLayout(const SaveRequest& wish) const {
    ExportRequest request = requestFor(wish, wish.items.first());
    QVector<LayoutSource::Tile> tiles;
    QRect whole;
    for (const Window& window : m_parts.windows()) {
        const FrameSourcePtr source = SaveSources::framesOf(*window.document, 0, m_parts.shelf);
        if (source && source->count() > 0) {
            tiles.append(
                {source, window.place,
                 SaveSources::drawing(*window.document, m_parts.pictures, wish.withInfo, request.path)});
            whole |= window.place;
        }
    }
    if (tiles.isEmpty()) {
        throw FileFailure(reason("%1: The recording holds no frames.", {request.path}), request.path);
    }
    for (LayoutSource::Tile& tile : tiles) {
        tile.place.translate(-whole.topLeft());
    }
    request.source = std::make_shared<LayoutSource>(tiles, whole.size());
    setRange(request, wish, *m_parts.windows().first().document);
    return {request, QFileInfo(request.path).fileName()};
}

void SaveService::save(const SaveRequest& wish) {
    if (wish.saveType == saveTypeOf(DialogKind::Report)) {
        writeReport(wish);
        return;
    }
    QList<Planned> planned;
    if (wish.saveType == saveTypeOf(DialogKind::Layout)) {
        planned.append(planLayout(wish));
    } else {
        for (const SaveRequest::Item& item : wish.items) {
            planned.append(plan(wish, item));
        }
    }
    for (const Planned& one : qAsConst(planned)) {
        requireFree(one.request);
        requireFolder(one.request.path);
    }
    QSet<int>& running = wish.saveType == saveTypeOf(DialogKind::Convert) ? m_converting : m_saving;
    for (const Planned& one : qAsConst(planned)) {
        const int id = m_parts.jobs.start(one.request, one.title);
        running.insert(id);
        if (one.whole) {
            m_whole.insert(id, one.whole);
        }
    }
    emit begun();
}

void SaveService::writeReport(const SaveRequest& wish) {
    const QString path = wish.items.first().path;
    requireFolder(path);
    QList<ReportMaker::Subject> subjects;
    for (const SaveRequest::Item& item : wish.items) {
        Document* const document = m_parts.documents.find(item.key);
        const FrameSourcePtr source =
            document ? SaveSources::framesOf(*document, item.partition, m_parts.shelf) : nullptr;
        if (source) {
            subjects.append({document, source});
        }
    }
    const Report report = ReportMaker::make(subjects, QFileInfo(path).fileName());
    report.saveHtml(path + QStringLiteral(".html"));
    report.savePdf(path + QStringLiteral(".pdf"));
    emit idle(); // its names are taken
}

void SaveService::onEnded(int id) {
    const bool wasOurs = m_converting.remove(id) || m_saving.remove(id);
    const QPointer<FileDocument> whole = m_whole.take(id);
    const ExportJobs::Entry job = m_parts.jobs.entry(id);
    if (job.state == ExportJob::State::Done && whole) {
        whole->setSaved(job.path);
    }
    if (wasOurs && job.state == ExportJob::State::Failed) {
        emit failed(job.failedPath, job.failure);
    }
    if (wasOurs && m_converting.isEmpty() && m_saving.isEmpty()) {
        emit idle();
    }
}

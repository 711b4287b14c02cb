#include "viewer/app/jobs/SaveService.h"

#include "livecontrol/storage/dialogs/DialogKind.h"
#include "viewer/app/jobs/ReportMaker.h"
#include "viewer/app/jobs/SaveSources.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/export/LayoutSource.h"
#include "viewer/export/writers/SequenceSink.h"
#include "viewer/messages/Translated.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/UnfinishedFile.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace {

/// Formats that keep the frames as the camera made them, with nothing drawn into them.
bool isRaw(ExportFormat format) {
    return ExportFormats::isContainer(format) || format == ExportFormat::Tiff ||
           format == ExportFormat::TiffPages;
}

void requireFolder(const QString& path) {
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder)) {
        throw RecordingError(RecordingError::While::Writing, folder, reason("The folder can't be made."));
    }
}

/// Whether its frames lie in a camera until they are saved, which may not record until then.
bool readsMemory(const Document& document) {
    return document.kind() == Document::Kind::Camera && document.list().mode() == HOST_MODE_MEMORY;
}

double secondsOf(const RecordingInfo& info) { return double(info.frames) / qMax(1U, info.rate); }

/// What of the frames is wanted, as far as there are so many.
void setRange(ExportRequest& request, const SaveRequest& wish, const Document& document) {
    const int last = request.source->count() - 1;
    request.step = wish.skip.step(request.source->info().rate);
    request.first = qBound(0, wish.firstFrame, last);
    request.last = wish.lastFrame < 0 ? last : qBound(request.first, wish.lastFrame, last);
    if (wish.saveType == saveTypeOf(DialogKind::Snapshot)) {
        request.first = request.last = qBound(0, document.playPosition(), last);
    }
}

} // namespace

SaveService::SaveService(Parts parts, QObject* parent) : QObject(parent), m_parts(std::move(parts)) {}

ExportRequest SaveService::requestFor(const SaveRequest& wish, const SaveRequest::Item& item) const {
    ExportRequest request = m_parts.shelf.requestTo(item.path, wish.format);
    if (!wish.codec.isEmpty()) {
        request.setCodec(wish.codec);
    }
    request.path += QLatin1Char('.') + ExportFormats::suffix(request.format);
    return request;
}

SaveService::Planned SaveService::plan(const SaveRequest& wish, const SaveRequest::Item& item) const {
    ExportRequest request = requestFor(wish, item);
    Document* const document = m_parts.documents.find(item.key);
    request.source = document ? SaveSources::framesOf(*document, item.partition, m_parts.shelf) : nullptr;
    request.checkSource();
    setRange(request, wish, *document);
    if (wish.isUnasked) {
        request.path = freePath(request);
    }
    if (!isRaw(request.format)) {
        const int frames = ExportFormats::isSequence(request.format) ? request.count() : 1;
        const auto pathOf = [path = request.path, frames](int index) {
            return SequenceSink::pathOf(path, frames, index);
        };
        request.compose = SaveSources::drawing({*document, item.partition, 0, wish.moment}, m_parts.pictures,
                                               wish.withInfo, pathOf);
    }
    return {request, request.titleFor(document->title()), dynamic_cast<FileDocument*>(document),
            readsMemory(*document)};
}

// One picture of the windows that are wanted. The recording that lasts longest gives the frames, so that
// nothing of the others is cut off.
std::shared_ptr<LayoutSource> SaveService::layoutOf(const SaveRequest& wish, const QString& path) const {
    QVector<LayoutSource::Tile> tiles;
    QRect whole;
    for (const Window& window : m_parts.windows()) {
        const bool isWanted =
            std::any_of(wish.items.begin(), wish.items.end(), [&window](const SaveRequest::Item& item) {
                return item.key == window.document->key();
            });
        const FrameSourcePtr source =
            isWanted ? SaveSources::framesOf(*window.document, 0, m_parts.shelf) : nullptr;
        if (source && source->count() > 0) {
            tiles.append({source, window.place,
                          SaveSources::drawing({*window.document, 0, 0, wish.moment}, m_parts.pictures,
                                               wish.withInfo, [path](int /*index*/) { return path; })});
            whole |= window.place;
        }
    }
    for (LayoutSource::Tile& tile : tiles) {
        tile.place.translate(-whole.topLeft());
    }
    std::stable_sort(tiles.begin(), tiles.end(),
                     [](const LayoutSource::Tile& left, const LayoutSource::Tile& right) {
                         return secondsOf(left.source->info()) > secondsOf(right.source->info());
                     });
    return tiles.isEmpty() ? nullptr : std::make_shared<LayoutSource>(tiles, whole.size());
}

SaveService::Planned SaveService::planLayout(const SaveRequest& wish) const {
    ExportRequest request = requestFor(wish, wish.items.first());
    request.source = layoutOf(wish, request.path);
    request.checkSource();
    setRange(request, wish, *m_parts.windows().first().document);
    const bool isMemory =
        std::any_of(wish.items.begin(), wish.items.end(), [this](const SaveRequest::Item& item) {
            const Document* const document = m_parts.documents.find(item.key);
            return document && readsMemory(*document);
        });
    const QString title = translated("Layout by the frames of %1").arg(request.source->info().camera);
    return {request, request.titleFor(title), nullptr, isMemory};
}

QImage SaveService::layoutPicture(const QList<DOCKEY>& keys, bool withInfo, const QSize& size) const {
    SaveRequest wish;
    wish.withInfo = withInfo;
    for (const DOCKEY key : keys) {
        wish.items.append({key, 0, QString()});
    }
    const std::shared_ptr<LayoutSource> layout = layoutOf(wish, QString());
    const QImage image = layout ? layout->frame(0).displayImage() : QImage();
    return image.isNull() ? image : image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
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
        requireFolder(one.request.path);
        one.request.check();
    }
    for (const Planned& one : qAsConst(planned)) {
        start(one, wish);
    }
    if (!wish.isUnasked) {
        emit begun();
    }
}

// The naming looks for free names only if they have numbers.
QString SaveService::freePath(const ExportRequest& request) const {
    const QFileInfo info(request.path);
    const QString start = info.path() + QLatin1Char('/') + info.completeBaseName();
    const auto pathOf = [&](const QString& base) { return base + QLatin1Char('.') + info.suffix(); };
    const auto isTaken = [&](const QString& base) {
        const bool isSequence = ExportFormats::isSequence(request.format);
        return isReserved(base) ||
               QFileInfo::exists(isSequence
                                     ? SequenceSink::pathOf(pathOf(base), request.count(), request.first)
                                     : pathOf(base));
    };
    QString base = start;
    for (int number = 2; isTaken(base); ++number) {
        base = QStringLiteral("%1_%2").arg(start).arg(number);
    }
    return pathOf(base);
}

void SaveService::start(const Planned& planned, const SaveRequest& wish) {
    const QPointer<SaveService> alive(this);
    const auto onEnd = [this, alive](const ExportJobs::Entry& job) {
        if (alive) { // jobs are canceled after it at the program's end
            m_conversions.remove(job.id);
            m_memoryJobs.remove(job.id);
            m_unasked.remove(job.id);
            emit ended(job);
        }
    };
    const int id = planned.file ? m_parts.shelf.save(*planned.file, planned.request, onEnd)
                                : m_parts.shelf.exports().start(planned.request, planned.title, onEnd);
    if (wish.saveType == saveTypeOf(DialogKind::Convert)) {
        m_conversions.insert(id);
    }
    if (planned.isMemory) {
        m_memoryJobs.insert(id);
    }
    if (wish.isUnasked) {
        m_unasked.insert(id);
    }
}

bool SaveService::isExportingUnasked() const { return m_parts.shelf.isKeeping() || !m_unasked.isEmpty(); }

bool SaveService::isReserved(const QString& path) const { return m_parts.shelf.exports().isReserved(path); }

bool SaveService::isAny(const QSet<int>& kind) const {
    const QList<ExportJobs::Entry> jobs = m_parts.shelf.exports().list();
    return std::any_of(jobs.begin(), jobs.end(),
                       [&](const ExportJobs::Entry& job) { return !job.isEnded() && kind.contains(job.id); });
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
            subjects.append({document, item.partition, source});
        }
    }
    for (const char* const ending : {".html", ".pdf"}) { // both or none
        UnfinishedFile::checkPlace(path + QLatin1String(ending), UnfinishedFile::Existing::Refuse);
    }
    const Report report = ReportMaker::make(subjects, QFileInfo(path).fileName(), wish.skip);
    report.saveHtml(path + QStringLiteral(".html"));
    report.savePdf(path + QStringLiteral(".pdf"));
    emit reported(path + QStringLiteral(".html"));
}

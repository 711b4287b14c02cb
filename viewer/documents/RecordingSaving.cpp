// How the shelf saves recordings to files.

#include "viewer/documents/BackgroundJob.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"
#include "viewer/recordings/RecordingCopy.h"

#include <QFileInfo>

namespace {

using Container::Storage;

QString formatOf(const RecordingShelf::SaveRequest& request) {
    const QString named = request.format.isEmpty() ? QFileInfo(request.path).suffix() : request.format;
    return named.toLower();
}

/// The storage of a format that is a container; nothing for any other.
std::optional<Storage> storageOf(const QString& format, const FrameSource& source) {
    if (format == QLatin1String("rchx") || format == QLatin1String("rch")) {
        return RecordingCopy::storageOf(source);
    }
    if (format == QLatin1String("raww")) {
        return Storage::Raw;
    }
    if (format == QLatin1String("zraw")) {
        return Storage::Zstd;
    }
    return format == QLatin1String("graw") ? Storage::Delivered : std::optional<Storage>();
}

[[noreturn]] void refuse(const QString& path, const Reason& why) {
    throw RecordingError(RecordingError::While::Writing, path, why);
}

} // namespace

BackgroundJob& RecordingShelf::save(FileDocument& document, const SaveRequest& request,
                                    const std::function<void(std::exception_ptr)>& then) {
    const FrameSourcePtr source = document.source();
    const int last = request.last < 0 ? source->count() - 1 : request.last;
    const int count = last - request.first + 1;
    if (request.path.isEmpty() || request.first < 0 || count < 1 || last >= source->count()) {
        refuse(request.path, reason("The recording has no such frames."));
    }
    const QString format = formatOf(request);
    const std::optional<Storage> storage = storageOf(format, *source);
    if (!storage && !m_exporter) {
        refuse(request.path, reason("There is no format \"%1\" here.", {format}));
    }
    const auto existing =
        request.replaces ? UnfinishedFile::Existing::Replace : UnfinishedFile::Existing::Refuse;
    if (storage) {
        UnfinishedFile::checkPlace(request.path, existing);
    }
    BackgroundJob& job = addJob(translated("Saving %1").arg(document.title()), count);
    const bool isAll = count == source->count() && storage;
    const QPointer<FileDocument> alive(&document);
    connect(&job, &BackgroundJob::ended, this, [this, alive, isAll, request, then](BackgroundJob* it) {
        std::exception_ptr failure = it->failure();
        if (alive && isAll && !failure && !it->isCancelled()) {
            alive->setSaved(request.path);
        }
        if (!failure && !it->isCancelled()) {
            emit told(translated("Saved as %1").arg(request.path));
        }
        if (then) {
            then(failure);
        }
    });
    job.start(m_pool, [=, info = document.info(), exporter = m_exporter](BackgroundJob& it) {
        const auto goesOn = [&it](int done) {
            it.setDone(done);
            return !it.isCancelled();
        };
        if (!storage) {
            exporter(*source, request, goesOn);
            return;
        }
        RecordingCopy copy;
        copy.first = request.first;
        copy.count = count;
        copy.storage = *storage;
        copy.existing = existing;
        copy.goesOn = goesOn;
        copy.run(*source, info, request.path);
    });
    return job;
}

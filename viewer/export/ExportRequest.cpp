#include "viewer/export/ExportRequest.h"

#include "viewer/export/writers/MovieSink.h"
#include "viewer/export/writers/SequenceSink.h"
#include "viewer/recordings/RecordingError.h"

#include <QFileInfo>

namespace {
[[noreturn]] void refuse(const QString& path, const Reason& why) {
    throw RecordingError(RecordingError::While::Writing, path, why);
}
} // namespace

bool ExportRequest::isWhole() const {
    return ExportFormats::isContainer(format) && source && count() == source->count();
}

QString ExportRequest::titleFor(const QString& recording) const {
    return QStringLiteral("%1: %2").arg(recording, QFileInfo(path).fileName());
}

void ExportRequest::setFormat(const QString& name) {
    if (!ExportFormats::fromName(name, format) && !ExportFormats::fromSuffix(name, format)) {
        refuse(path, reason("There is no format \"%1\" here.", {name}));
    }
}

void ExportRequest::setCodec(const QString& name) {
    if (!ExportFormats::codecFromName(name, codec)) {
        refuse(path, reason("There is no codec \"%1\" here.", {name}));
    }
}

void ExportRequest::checkSource() const {
    if (!source || source->count() == 0) {
        refuse(path, reason("The recording holds no frames."));
    }
}

void ExportRequest::check() const {
    checkSource();
    if (path.isEmpty() || first < 0 || last >= source->count() || count() == 0) {
        refuse(path, reason("The recording has no such frames."));
    }
    const Reason refusal = ExportFormats::isMovie(format) ? MovieSink::refusal(format, codec) : Reason();
    if (!refusal.isEmpty()) {
        refuse(path, refusal);
    }
    UnfinishedFile::checkPlace(
        ExportFormats::isSequence(format) ? SequenceSink::pathOf(path, count(), first) : path, existing);
}

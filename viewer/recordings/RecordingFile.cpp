#include "viewer/recordings/RecordingFile.h"

#include "livecontrol/foundation/PipeOrDevice.h"
#include "viewer/recordings/ClipFile.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingReader.h"

#include <QFileInfo>
#include <QMap>
#include <QStringList>

namespace {

using Reader = FrameSourcePtr (*)(const QString& path);

QMap<QString, Reader>& readers() {
    static QMap<QString, Reader> map; // by their endings
    return map;
}

} // namespace

void RecordingFile::addReader(const QStringList& suffixes, Reader read) {
    for (const QString& suffix : suffixes) {
        readers().insert(suffix, read);
    }
}

QStringList RecordingFile::readableSuffixes() { return suffixes() + readers().keys(); }

const QStringList& RecordingFile::suffixes() {
    static const QStringList list{QStringLiteral("rchx"), QStringLiteral("rch"),  QStringLiteral("raww"),
                                  QStringLiteral("zraw"), QStringLiteral("graw"), QStringLiteral("zrec")};
    return list;
}

FrameSourcePtr RecordingFile::open(const QString& path) {
    if (isPipeOrDevice(path)) {
        throw RecordingError(RecordingError::While::Reading, path, reason("This is no file."));
    }
    if (const Reader read = readers().value(QFileInfo(path).suffix().toLower())) {
        return read(path);
    }
    if (ClipFile::is(path)) {
        return ClipFile::load(path);
    }
    return std::make_shared<RecordingReader>(path);
}

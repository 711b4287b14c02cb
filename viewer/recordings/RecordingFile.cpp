#include "viewer/recordings/RecordingFile.h"

#include "viewer/recordings/ClipFile.h"
#include "viewer/recordings/RecordingReader.h"

#include <QStringList>

const QStringList& RecordingFile::suffixes() {
    static const QStringList list{QStringLiteral("rchx"), QStringLiteral("rch"),  QStringLiteral("raww"),
                                  QStringLiteral("zraw"), QStringLiteral("graw"), QStringLiteral("zrec")};
    return list;
}

FrameSourcePtr RecordingFile::open(const QString& path) {
    if (ClipFile::is(path)) {
        return ClipFile::load(path);
    }
    return std::make_shared<RecordingReader>(path);
}

#include "viewer/export/readers/OpenFile.h"

#include "viewer/export/readers/MovieSource.h"
#include "viewer/export/readers/SequenceSource.h"
#include "viewer/export/readers/TiffSource.h"

#include <QFileInfo>

namespace {
const QStringList kMovies{QStringLiteral("avi"), QStringLiteral("mov"), QStringLiteral("mp4")};
const QStringList kTiffs{QStringLiteral("tif"), QStringLiteral("tiff")};
const QStringList kPictures{QStringLiteral("bmp"), QStringLiteral("jpg"), QStringLiteral("jpeg"),
                            QStringLiteral("png")};
} // namespace

QStringList OpenFile::pictureSuffixes() { return kPictures + kTiffs + kMovies; }

FrameSourcePtr OpenFile::fromPictures(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (kMovies.contains(suffix)) {
        return std::make_shared<MovieSource>(path);
    }
    if (kTiffs.contains(suffix)) {
        const auto pages = std::make_shared<TiffSource>(path);
        if (pages->count() > 1 || SequenceSource::filesOf(path).size() == 1) {
            return pages;
        }
    }
    return std::make_shared<SequenceSource>(path);
}

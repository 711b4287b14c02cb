#pragma once

#include <QString>
#include <QStringList>

/// As what frames are saved.
enum class ExportFormat { Bmp, Tiff, TiffPages, Jpeg, Png, Raww, Zraw, Graw, Rch, Rchx, Avi, Mov, Mp4 };

/// How the pictures of a movie are coded.
enum class MovieCodec { Raw, H264, Mjpeg, Mpeg2, Mpeg4, Huffyuv };

namespace ExportFormats {

/// Of a name as the pages have it ("Bmp", "Tiff (Multi-Page)"), in any case. False if it is none.
bool fromName(const QString& name, ExportFormat& format);
/// The first one with that suffix, in any case and without the dot. False if there is none.
bool fromSuffix(const QString& suffix, ExportFormat& format);
QString name(ExportFormat format);
/// Without the dot.
QString suffix(ExportFormat format);
bool isMovie(ExportFormat format);
/// One file a frame.
bool isSequence(ExportFormat format);
/// The frames as the camera made them, with nothing drawn into them.
bool isContainer(ExportFormat format);
/// Whether samples of more than 8 bits stay as they are.
bool keepsDepth(ExportFormat format);

bool codecFromName(const QString& name, MovieCodec& codec);
QString name(MovieCodec codec);

} // namespace ExportFormats

#include "viewer/export/ExportFormat.h"

#include <algorithm>
#include <array>

namespace {

struct FormatRow {
    ExportFormat format;
    const char* name;
    const char* suffix;
    enum { Sequence, Pages, Container, Movie } kind;
    bool keepsDepth;
};

constexpr std::array<FormatRow, 13> kFormats = {
    {{ExportFormat::Bmp, "Bmp", "bmp", FormatRow::Sequence, false},
     {ExportFormat::Tiff, "Tiff", "tif", FormatRow::Sequence, true},
     {ExportFormat::TiffPages, "Tiff (Multi-Page)", "tif", FormatRow::Pages, true},
     {ExportFormat::Jpeg, "Jpeg", "jpg", FormatRow::Sequence, false},
     {ExportFormat::Png, "Png", "png", FormatRow::Sequence, true},
     {ExportFormat::Raww, "Raww", "raww", FormatRow::Container, true},
     {ExportFormat::Zraw, "Zraw", "zraw", FormatRow::Container, true},
     {ExportFormat::Graw, "Graw", "graw", FormatRow::Container, true},
     {ExportFormat::Rch, "Rch", "rch", FormatRow::Container, true},
     {ExportFormat::Rchx, "Rchx", "rchx", FormatRow::Container, true},
     {ExportFormat::Avi, "Avi", "avi", FormatRow::Movie, false},
     {ExportFormat::Mov, "Mov", "mov", FormatRow::Movie, false},
     {ExportFormat::Mp4, "Mp4", "mp4", FormatRow::Movie, false}}};

struct CodecRow {
    MovieCodec codec;
    const char* name;
};

constexpr std::array<CodecRow, 6> kCodecs = {{{MovieCodec::Raw, "RAW"},
                                              {MovieCodec::H264, "H264"},
                                              {MovieCodec::Mjpeg, "MJPEG"},
                                              {MovieCodec::Mpeg2, "MPEG2"},
                                              {MovieCodec::Mpeg4, "MPEG4"},
                                              {MovieCodec::Huffyuv, "HUFFYUV"}}};

const FormatRow& rowOf(ExportFormat format) {
    return *std::find_if(kFormats.begin(), kFormats.end(),
                         [format](const FormatRow& row) { return row.format == format; });
}

/// The row of that name, in any case; null if there is none.
template <class Rows>
auto findByName(const Rows& rows, const QString& name) -> decltype(rows.data()) {
    const auto* const row = std::find_if(rows.begin(), rows.end(), [&name](const auto& candidate) {
        return name.compare(QLatin1String(candidate.name), Qt::CaseInsensitive) == 0;
    });
    return row == rows.end() ? nullptr : row;
}

} // namespace

bool ExportFormats::fromName(const QString& name, ExportFormat& format) {
    const FormatRow* const row = findByName(kFormats, name);
    if (row) {
        format = row->format;
    }
    return row != nullptr;
}

QString ExportFormats::name(ExportFormat format) { return QLatin1String(rowOf(format).name); }
QString ExportFormats::suffix(ExportFormat format) { return QLatin1String(rowOf(format).suffix); }
bool ExportFormats::isMovie(ExportFormat format) { return rowOf(format).kind == FormatRow::Movie; }
bool ExportFormats::isSequence(ExportFormat format) { return rowOf(format).kind == FormatRow::Sequence; }
bool ExportFormats::isContainer(ExportFormat format) { return rowOf(format).kind == FormatRow::Container; }
bool ExportFormats::keepsDepth(ExportFormat format) { return rowOf(format).keepsDepth; }

bool ExportFormats::codecFromName(const QString& name, MovieCodec& codec) {
    const CodecRow* const row = findByName(kCodecs, name);
    if (row) {
        codec = row->codec;
    }
    return row != nullptr;
}

QString ExportFormats::name(MovieCodec codec) {
    const auto* const row = std::find_if(kCodecs.begin(), kCodecs.end(), [codec](const CodecRow& candidate) {
        return candidate.codec == codec;
    });
    return QLatin1String(row->name);
}

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

/// The first row with that text, in any case; null if there is none.
template <class Rows, class Row>
auto findBy(const Rows& rows, const char* Row::*member, const QString& text) -> decltype(rows.data()) {
    const auto* const row = std::find_if(rows.begin(), rows.end(), [&text, member](const Row& candidate) {
        return text.compare(QLatin1String(candidate.*member), Qt::CaseInsensitive) == 0;
    });
    return row == rows.end() ? nullptr : row;
}

template <class Row, class Value>
bool take(const Row* row, Value Row::*member, Value& value) {
    if (row) {
        value = row->*member;
    }
    return row != nullptr;
}

} // namespace

bool ExportFormats::fromName(const QString& name, ExportFormat& format) {
    return take(findBy(kFormats, &FormatRow::name, name), &FormatRow::format, format);
}

bool ExportFormats::fromSuffix(const QString& suffix, ExportFormat& format) {
    return take(findBy(kFormats, &FormatRow::suffix, suffix), &FormatRow::format, format);
}

QString ExportFormats::name(ExportFormat format) { return QLatin1String(rowOf(format).name); }
QString ExportFormats::suffix(ExportFormat format) { return QLatin1String(rowOf(format).suffix); }
bool ExportFormats::isMovie(ExportFormat format) { return rowOf(format).kind == FormatRow::Movie; }
bool ExportFormats::isSequence(ExportFormat format) { return rowOf(format).kind == FormatRow::Sequence; }
bool ExportFormats::isContainer(ExportFormat format) { return rowOf(format).kind == FormatRow::Container; }
bool ExportFormats::keepsDepth(ExportFormat format) { return rowOf(format).keepsDepth; }

bool ExportFormats::codecFromName(const QString& name, MovieCodec& codec) {
    return take(findBy(kCodecs, &CodecRow::name, name), &CodecRow::codec, codec);
}

QString ExportFormats::name(MovieCodec codec) {
    const auto* const row = std::find_if(kCodecs.begin(), kCodecs.end(), [codec](const CodecRow& candidate) {
        return candidate.codec == codec;
    });
    return QLatin1String(row->name);
}

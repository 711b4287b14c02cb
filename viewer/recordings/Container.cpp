#include "viewer/recordings/Container.h"

#include <QtEndian>

#include <libdeflate.h>
#include <zstd.h>

#include <cstring>

namespace Container {

namespace {

constexpr char kMagic[] = "ZELREC\x1a\n"; // the last two show a copy as text
constexpr int kMagicBytes = 8;
constexpr int kCheckedHeader = 28; // bytes of the header before its checksum
constexpr int kCheckedChunk = 32;
constexpr int kLevel = 1; // of the compression: it keeps up with the disk

template <class Number>
void put(QByteArray& bytes, int at, Number number) {
    qToLittleEndian(number, bytes.data() + at);
}

template <class Number>
Number get(const char* bytes, int at) {
    return qFromLittleEndian<Number>(bytes + at);
}

// Samples of 16 bits to as many as are significant, the first in the lowest bits; and back.
void packRow(const quint16* from, uchar* to, int count, int bits) {
    quint32 held = 0;
    int heldBits = 0;
    for (int i = 0; i < count; ++i) {
        held |= quint32(from[i] & ((1U << bits) - 1)) << heldBits;
        heldBits += bits;
        for (; heldBits >= 8; heldBits -= 8, held >>= 8) {
            *to++ = uchar(held);
        }
    }
    if (heldBits > 0) {
        *to = uchar(held);
    }
}

void unpackRow(const uchar* from, quint16* to, int count, int bits) {
    quint32 held = 0;
    int heldBits = 0;
    for (int i = 0; i < count; ++i) {
        for (; heldBits < bits; heldBits += 8) {
            held |= quint32(*from++) << heldBits;
        }
        to[i] = quint16(held & ((1U << bits) - 1));
        held >>= bits;
        heldBits -= bits;
    }
}

QByteArray rowsOf(const QImage& image, const Layout& layout) {
    const int bytes = layout.storedRowBytes();
    QByteArray rows(int(qint64(bytes) * layout.size.height()), Qt::Uninitialized);
    for (int y = 0; y < layout.size.height(); ++y) {
        char* const row = rows.data() + qint64(y) * bytes;
        if (layout.isPacked()) {
            packRow(reinterpret_cast<const quint16*>(image.constScanLine(y)), reinterpret_cast<uchar*>(row),
                    layout.size.width() * layout.samples, layout.bitDepth);
        } else {
            memcpy(row, image.constScanLine(y), size_t(bytes));
        }
    }
    return rows;
}

QImage imageOf(const char* rows, const Layout& layout) {
    QImage image(layout.size, layout.format());
    const int bytes = layout.storedRowBytes();
    for (int y = 0; !image.isNull() && y < layout.size.height(); ++y) {
        const char* const row = rows + qint64(y) * bytes;
        if (layout.isPacked()) {
            unpackRow(reinterpret_cast<const uchar*>(row), reinterpret_cast<quint16*>(image.scanLine(y)),
                      layout.size.width() * layout.samples, layout.bitDepth);
        } else {
            memcpy(image.scanLine(y), row, size_t(bytes));
        }
    }
    return image;
}

} // namespace

QImage::Format Layout::format() const {
    return samples == 3     ? QImage::Format_RGB888
           : wordBits == 16 ? QImage::Format_Grayscale16
                            : QImage::Format_Grayscale8;
}

int Layout::rowBytes() const { return size.width() * samples * wordBits / 8; }

int Layout::storedRowBytes() const {
    return isPacked() ? (size.width() * samples * bitDepth + 7) / 8 : rowBytes();
}

qint64 Layout::maxStoredBytes() const {
    const qint64 plain = qint64(storedRowBytes()) * size.height();
    return storage == Storage::Zstd ? qint64(ZSTD_compressBound(size_t(plain))) : plain;
}

bool Layout::isValid() const {
    const bool isKnown = storage == Storage::Raw || storage == Storage::Zstd || storage == Storage::Delivered;
    const bool isGrey = samples == 1 && (wordBits == 8 || wordBits == 16);
    const bool isColor = samples == 3 && wordBits == 8;
    return isKnown && (isGrey || isColor) && bitDepth >= 1 && bitDepth <= wordBits && !size.isEmpty() &&
           size.width() <= kMaxSide && size.height() <= kMaxSide && frameBytes() <= kMaxFrameBytes;
}

Layout Layout::of(const QImage& image, int bitDepth, Storage storage) {
    Layout layout;
    layout.storage = storage;
    layout.size = image.size();
    layout.samples = image.format() == QImage::Format_RGB888 ? 3 : 1;
    layout.wordBits = image.format() == QImage::Format_Grayscale16 ? 16 : 8;
    layout.bitDepth = qMin(bitDepth, layout.wordBits);
    return layout;
}

QByteArray header(const Layout& layout) {
    QByteArray bytes(kHeaderBytes, '\0');
    memcpy(bytes.data(), kMagic, kMagicBytes);
    put(bytes, 8, kVersion);
    put(bytes, 10, quint16(layout.storage));
    put(bytes, 12, quint32(layout.size.width()));
    put(bytes, 16, quint32(layout.size.height()));
    put(bytes, 20, quint16(layout.samples));
    put(bytes, 22, quint16(layout.wordBits));
    put(bytes, 24, quint16(layout.bitDepth));
    put(bytes, kCheckedHeader, checksum(bytes.constData(), kCheckedHeader));
    return bytes;
}

HeaderFault readHeader(const QByteArray& bytes, Layout& layout) {
    if (bytes.size() < kMagicBytes || memcmp(bytes.constData(), kMagic, kMagicBytes) != 0) {
        return HeaderFault::Foreign;
    }
    if (bytes.size() < kHeaderBytes) {
        return HeaderFault::Damaged;
    }
    const char* const from = bytes.constData();
    if (get<quint16>(from, 8) > kVersion) {
        return HeaderFault::Newer;
    }
    const auto width = get<quint32>(from, 12);
    const auto height = get<quint32>(from, 16);
    if (get<quint32>(from, kCheckedHeader) != checksum(from, kCheckedHeader) || width > kMaxSide ||
        height > kMaxSide) {
        return HeaderFault::Damaged;
    }
    layout.storage = Storage(get<quint16>(from, 10));
    layout.size = QSize(int(width), int(height));
    layout.samples = get<quint16>(from, 20);
    layout.wordBits = get<quint16>(from, 22);
    layout.bitDepth = get<quint16>(from, 24);
    return layout.isValid() ? HeaderFault::None : HeaderFault::Damaged;
}

quint64 Chunk::fullBytes() const {
    return (quint64(kChunkBytes) + size + kAlignment - 1) / kAlignment * kAlignment;
}

QByteArray chunk(const Chunk& chunk) {
    QByteArray bytes(kChunkBytes, '\0');
    put(bytes, 0, chunk.type);
    put(bytes, 4, chunk.checksum);
    put(bytes, 8, chunk.size);
    put(bytes, 16, chunk.index);
    put(bytes, 20, chunk.number);
    put(bytes, 24, chunk.value);
    put(bytes, kCheckedChunk, checksum(bytes.constData(), kCheckedChunk));
    return bytes;
}

std::optional<Chunk> readChunk(const char* bytes) {
    if (get<quint32>(bytes, kCheckedChunk) != checksum(bytes, kCheckedChunk)) {
        return std::nullopt;
    }
    Chunk chunk;
    chunk.type = get<quint32>(bytes, 0);
    chunk.checksum = get<quint32>(bytes, 4);
    chunk.size = get<quint64>(bytes, 8);
    chunk.index = get<quint32>(bytes, 16);
    chunk.number = get<quint32>(bytes, 20);
    chunk.value = get<qint64>(bytes, 24);
    return chunk;
}

QByteArray fullChunk(Chunk chunk, const QByteArray& payload) {
    chunk.size = quint64(payload.size());
    chunk.checksum = checksum(payload.constData(), payload.size());
    QByteArray bytes = Container::chunk(chunk) + payload;
    bytes.append(int(chunk.fullBytes()) - bytes.size(), '\0');
    return bytes;
}

QByteArray ending(const QByteArray& info, const std::vector<quint64>& offsets, quint64 at) {
    Chunk head;
    head.type = Chunk::Info;
    QByteArray bytes = fullChunk(head, info);
    Chunk index;
    index.type = Chunk::Index;
    index.index = quint32(offsets.size());
    index.value = qint64(at);
    Chunk end;
    end.type = Chunk::End;
    end.index = index.index;
    end.value = qint64(at) + bytes.size();
    QByteArray places(int(offsets.size() * sizeof(quint64)), Qt::Uninitialized);
    qToLittleEndian<quint64>(offsets.data(), qsizetype(offsets.size()), places.data());
    return bytes + fullChunk(index, places) + fullChunk(end, QByteArray());
}

quint32 checksum(const char* bytes, qint64 size) { return libdeflate_crc32(0, bytes, size_t(size)); }

QByteArray packed(const QImage& image, const Layout& layout) {
    const QByteArray rows = rowsOf(image, layout);
    if (layout.storage != Storage::Zstd) {
        return rows;
    }
    QByteArray bytes(int(ZSTD_compressBound(size_t(rows.size()))), Qt::Uninitialized);
    const size_t size =
        ZSTD_compress(bytes.data(), size_t(bytes.size()), rows.constData(), size_t(rows.size()), kLevel);
    bytes.truncate(ZSTD_isError(size) ? 0 : int(size));
    return bytes;
}

QImage unpacked(const char* payload, qint64 size, const Layout& layout) {
    if (layout.storage != Storage::Zstd) {
        return size == layout.maxStoredBytes() ? imageOf(payload, layout) : QImage();
    }
    // The length comes first in it, and must be right before there is room for the rest.
    if (size < 0 || ZSTD_getFrameContentSize(payload, size_t(size)) != quint64(layout.frameBytes())) {
        return QImage();
    }
    QByteArray rows(int(layout.frameBytes()), Qt::Uninitialized);
    const size_t got = ZSTD_decompress(rows.data(), size_t(rows.size()), payload, size_t(size));
    return got == size_t(rows.size()) ? imageOf(rows.constData(), layout) : QImage();
}

} // namespace Container

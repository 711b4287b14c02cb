#pragma once

#include "viewer/cameras/Frame.h"

#include <QByteArray>
#include <QSize>

#include <optional>
#include <vector>

/// The form of a file of frames: docs/formats.md. Plain arithmetic, nothing here touches a file. All numbers
/// are little-endian.
namespace Container {

enum class Storage : quint16 {
    Raw = 0,       // rows without gaps, 8 or 16 bits a sample
    Zstd = 1,      // the same, compressed
    Delivered = 2, // with as many bits a sample as the sensor has, each row from a whole byte on
};

constexpr int kMaxSide = 1 << 16;                  // pixels
constexpr qint64 kMaxFrameBytes = qint64(1) << 28; // unpacked; more is a damaged file
constexpr qint64 kMaxInfoBytes = qint64(1) << 26;

/// What the samples of all frames of a file look like.
struct Layout {
    Storage storage = Storage::Raw;
    QSize size;
    int samples = 1;  // a pixel
    int wordBits = 8; // of a sample as it lies in an image
    int bitDepth = 8; // of these, significant

    QImage::Format format() const;
    int rowBytes() const; // unpacked
    qint64 frameBytes() const { return qint64(rowBytes()) * size.height(); }
    int storedRowBytes() const; // as they are stored, before compression
    /// Of a stored frame at most.
    qint64 maxStoredBytes() const;
    bool isPacked() const { return storage == Storage::Delivered && bitDepth < wordBits; }
    bool isValid() const;

    /// Of frames like that one.
    static Layout of(const QImage& image, int bitDepth, Storage storage);
    bool operator==(const Layout& other) const {
        return storage == other.storage && size == other.size && samples == other.samples &&
               wordBits == other.wordBits && bitDepth == other.bitDepth;
    }
};

constexpr int kHeaderBytes = 64;
constexpr quint16 kVersion = 1;
enum class HeaderFault { None, Foreign, Newer, Damaged };

QByteArray header(const Layout& layout);
/// Reads kHeaderBytes.
HeaderFault readHeader(const QByteArray& bytes, Layout& layout);

/// What stands before each piece of a file.
struct Chunk {
    enum Type : quint32 {
        FrameData = 0x4d415246, // "FRAM"
        Info = 0x4f464e49,      // "INFO"
        Index = 0x58444e49,     // "INDX"
        End = 0x21444e45,       // "END!"
    };
    quint32 type = 0;
    quint32 checksum = 0; // CRC-32 of the payload
    quint64 size = 0;     // of the payload, bytes
    quint32 index = 0;    // of a frame, from 0; of index and end: how many frames there are
    quint32 number = 0;   // running number of a frame
    qint64 value = 0; // a frame's time in ns; of the index: where the information lies; of the end: the index

    /// From its first byte to that of the next chunk.
    quint64 fullBytes() const;
};
constexpr int kChunkBytes = 40;
constexpr int kAlignment = 8; // of a chunk

QByteArray chunk(const Chunk& chunk);
/// Nothing if the bytes are no whole chunk header.
std::optional<Chunk> readChunk(const char* bytes);
quint32 checksum(const char* bytes, qint64 size);

/// What comes behind the frames: the information's text, the index, the end. `at`: where it begins.
QByteArray ending(const QByteArray& info, const std::vector<quint64>& offsets, quint64 at);
/// A whole chunk, checksum and size included.
QByteArray fullChunk(Chunk chunk, const QByteArray& payload);

/// The payload of a frame. `image` must have the layout.
QByteArray packed(const QImage& image, const Layout& layout);
/// Null if the payload is none.
QImage unpacked(const char* payload, qint64 size, const Layout& layout);

} // namespace Container

#include "viewer/recordings/RecordingWriter.h"

#include "viewer/recordings/RecordingError.h"

#include <QJsonDocument>

#include <algorithm>
#include <new>

using namespace Container;

namespace {

// The disk is written in pieces of this size, from places that are multiples of it.
constexpr qint64 kBufferBytes = 4 << 20;
// What is as large goes past the buffer: to copy it there would cost more than a call.
constexpr qint64 kLargeBytes = 1 << 20;
constexpr size_t kPageBytes = 4096;

QByteArray textOf(const RecordingInfo& info) {
    return QJsonDocument(info.toJson()).toJson(QJsonDocument::Compact);
}

} // namespace

RecordingWriter::RecordingWriter(const QString& path, const RecordingInfo& info, Storage storage,
                                 UnfinishedFile::Existing existing)
    : m_file(path, existing), m_info(info), m_storage(storage),
      m_buffer(static_cast<char*>(std::aligned_alloc(kPageBytes, kBufferBytes))) {
    if (!m_buffer) {
        throw std::bad_alloc();
    }
}

RecordingWriter::~RecordingWriter() = default;

void RecordingWriter::begin(const Layout& layout) {
    if (!layout.isValid()) {
        throw RecordingError(RecordingError::While::Writing, path(),
                             reason("A frame is empty, or too large for a file."));
    }
    m_layout = layout;
    m_info.size = layout.size;
    m_info.bitDepth = layout.bitDepth;
    m_info.color = layout.samples == 3;
    Chunk info;
    info.type = Chunk::Info;
    const QByteArray head = header(layout) + fullChunk(info, textOf(m_info));
    append(head.constData(), head.size());
}

void RecordingWriter::add(const Frame& frame) {
    const Layout layout = Layout::of(frame.image, frame.bitDepth, m_storage);
    if (m_offsets.empty()) {
        m_info.firstNumber = frame.number;
        begin(layout);
    }
    if (!(layout == m_layout)) {
        throw RecordingError(RecordingError::While::Writing, path(),
                             reason("Frame %1 is of another size than the others.", {frames()}));
    }
    addStored({packed(frame.image, layout), frame.number, frame.time}, layout);
}

void RecordingWriter::addStored(const StoredFrame& frame, const Layout& layout) {
    if (m_offsets.empty() && m_flushed + m_used == 0) {
        m_info.firstNumber = frame.number;
        begin(layout);
    }
    Chunk chunk;
    chunk.type = Chunk::FrameData;
    chunk.size = quint64(frame.payload.size());
    chunk.index = quint32(m_offsets.size());
    chunk.number = frame.number;
    chunk.value = frame.time;
    const auto offset = quint64(bytes());
    addChunk(chunk, frame.payload.constData());
    m_offsets.push_back(offset);
    m_end = bytes();
}

void RecordingWriter::addChunk(Chunk chunk, const char* payload) {
    static const char padding[kAlignment] = {};
    chunk.checksum = checksum(payload, qint64(chunk.size));
    const QByteArray head = Container::chunk(chunk);
    append(head.constData(), head.size());
    append(payload, qint64(chunk.size));
    append(padding, qint64(chunk.fullBytes() - quint64(head.size()) - chunk.size));
}

void RecordingWriter::append(const char* bytes, qint64 size) {
    if (size >= kLargeBytes) {
        flush();
        m_file.write(bytes, size);
        m_flushed += size;
        return;
    }
    while (size > 0) {
        const qint64 count = std::min(size, kBufferBytes - m_used);
        std::copy_n(bytes, count, m_buffer.get() + m_used);
        m_used += count;
        bytes += count;
        size -= count;
        if (m_used == kBufferBytes) {
            flush();
        }
    }
}

void RecordingWriter::flush() {
    m_file.write(m_buffer.get(), m_used);
    m_flushed += m_used;
    m_used = 0;
}

void RecordingWriter::finish() {
    if (m_offsets.empty()) {
        throw RecordingError(RecordingError::While::Writing, path(),
                             reason("The recording holds no frames."));
    }
    m_info.frames = frames();
    const QByteArray end = ending(textOf(m_info), m_offsets, quint64(bytes()));
    append(end.constData(), end.size());
    flush();
    m_file.finish();
}

void RecordingWriter::finishWithoutEnd() {
    while (!m_offsets.empty() && m_end > m_flushed) {
        m_end = qint64(m_offsets.back());
        m_offsets.pop_back();
    }
    if (m_offsets.empty()) {
        throw RecordingError(RecordingError::While::Writing, path(),
                             reason("The recording holds no frames."));
    }
    m_file.cut(m_end);
    m_file.finish();
}

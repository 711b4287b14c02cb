#include "viewer/recordings/RecordingReader.h"

#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingWriter.h"

#include <QFile>
#include <QJsonDocument>
#include <QtEndian>

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Container;

namespace {

const char* const kDamaged = "The recording is damaged, or a part of it is missing.";

} // namespace

RecordingReader::RecordingReader(const QString& path) : m_path(path) {
    m_handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status {};
    if (m_handle < 0 || ::fstat(m_handle, &status) != 0 || S_ISDIR(status.st_mode)) {
        const int error = errno;
        ::close(m_handle);
        throw RecordingError::unreadable(path, error);
    }
    m_size = quint64(status.st_size);
    try {
        readHeader();
        m_isWhole = readEnd();
        if (!m_isWhole) {
            scan();
        }
    } catch (...) {
        ::close(m_handle);
        throw;
    }
    m_info.size = m_layout.size;
    m_info.bitDepth = m_layout.bitDepth;
    m_info.color = m_layout.samples == 3;
}

RecordingReader::~RecordingReader() { ::close(m_handle); }

void RecordingReader::fail(const Reason& why) const {
    throw RecordingError(RecordingError::While::Reading, m_path, why);
}

// Fewer than asked only at the end of the file.
QByteArray RecordingReader::bytesAt(quint64 offset, quint64 size) const {
    if (offset >= m_size) {
        return {};
    }
    const quint64 wanted = qMin(size, m_size - offset);
    if (wanted > INT_MAX) {
        fail(reason(kDamaged));
    }
    QByteArray bytes(int(wanted), Qt::Uninitialized);
    qint64 done = 0;
    while (done < qint64(wanted)) {
        const ssize_t count = ::pread(m_handle, bytes.data() + done, size_t(qint64(wanted) - done),
                                      off_t(offset + quint64(done)));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            throw RecordingError::unreadable(m_path, errno);
        }
        if (count == 0) {
            break; // somebody has cut the file since
        }
        done += count;
    }
    bytes.truncate(int(done));
    return bytes;
}

bool RecordingReader::fits(quint64 offset, const Chunk& chunk) const {
    return chunk.size <= m_size && offset + kChunkBytes <= m_size - chunk.size;
}

std::optional<Chunk> RecordingReader::chunkAt(quint64 offset, quint32 type) const {
    const QByteArray bytes = bytesAt(offset, kChunkBytes);
    std::optional<Chunk> chunk;
    if (bytes.size() == kChunkBytes) {
        chunk = Container::readChunk(bytes.constData());
    }
    const bool isIt = chunk && chunk->type == type && fits(offset, *chunk);
    return isIt ? chunk : std::nullopt;
}

void RecordingReader::readHeader() {
    switch (Container::readHeader(bytesAt(0, kHeaderBytes), m_layout)) {
    case HeaderFault::Foreign:
        fail(reason("The file is no recording."));
    case HeaderFault::Newer:
        fail(reason("The recording was saved by a newer program."));
    case HeaderFault::Damaged:
        fail(reason(kDamaged));
    case HeaderFault::None:
        break;
    }
}

// What a writer leaves at the end. The index itself is read when the first frame is.
bool RecordingReader::readEnd() {
    if (m_size < kHeaderBytes + kChunkBytes) {
        return false;
    }
    const std::optional<Chunk> end = chunkAt(m_size - kChunkBytes, Chunk::End);
    const std::optional<Chunk> index =
        end ? chunkAt(quint64(end->value), Chunk::Index) : std::optional<Chunk>();
    if (!index || index->index != end->index || index->index == 0 || index->index > INT_MAX ||
        index->size != quint64(index->index) * sizeof(quint64) || !readInfo(quint64(index->value))) {
        return false;
    }
    m_indexAt = quint64(end->value);
    m_framesEnd = quint64(index->value);
    m_info.frames = int(index->index);
    return true;
}

bool RecordingReader::readInfo(quint64 offset) {
    const std::optional<Chunk> chunk = chunkAt(offset, Chunk::Info);
    if (!chunk || chunk->size > quint64(kMaxInfoBytes)) {
        return false;
    }
    const QByteArray text = bytesAt(offset + kChunkBytes, chunk->size);
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (checksum(text.constData(), text.size()) != chunk->checksum || !document.isObject()) {
        return false;
    }
    m_info = RecordingInfo::fromJson(document.object());
    return true;
}

// From the first chunk on as long as they are whole. Of a writer that was ended the last pieces may be there
// in length alone.
void RecordingReader::scan() {
    quint64 at = kHeaderBytes;
    std::vector<quint64> offsets;
    while (at + kChunkBytes <= m_size) {
        const std::optional<Chunk> chunk = Container::readChunk(bytesAt(at, kChunkBytes).constData());
        if (!chunk || !fits(at, *chunk)) {
            break;
        }
        if (chunk->type == Chunk::Info) {
            readInfo(at);
        } else if (chunk->type == Chunk::FrameData) {
            if (chunk->index != offsets.size() || chunk->size > quint64(m_layout.maxStoredBytes())) {
                break;
            }
            offsets.push_back(at);
            m_framesEnd = qMin(m_size, at + chunk->fullBytes()); // what fills it up may be missing
        }
        at += chunk->fullBytes();
    }
    while (!offsets.empty() && !isFrameWhole(offsets.back())) {
        m_framesEnd = offsets.back();
        offsets.pop_back();
    }
    if (offsets.empty()) {
        fail(reason(kDamaged));
    }
    m_info.frames = int(offsets.size());
    m_offsets = std::move(offsets);
    m_isIndexed = true;
}

bool RecordingReader::isFrameWhole(quint64 offset) const {
    const std::optional<Chunk> chunk = chunkAt(offset, Chunk::FrameData);
    const QByteArray payload = chunk ? bytesAt(offset + kChunkBytes, chunk->size) : QByteArray();
    return chunk && checksum(payload.constData(), payload.size()) == chunk->checksum;
}

// Once. An index that is not what the writer made of it gives no frame.
bool RecordingReader::loadIndex() const {
    if (m_isIndexed) {
        return true;
    }
    const QMutexLocker lock(&m_mutex);
    if (m_isIndexed) {
        return true;
    }
    const std::optional<Chunk> chunk = chunkAt(m_indexAt, Chunk::Index);
    const QByteArray bytes = chunk ? bytesAt(m_indexAt + kChunkBytes, chunk->size) : QByteArray();
    if (!chunk || bytes.size() != int(chunk->size) ||
        checksum(bytes.constData(), bytes.size()) != chunk->checksum) {
        return false;
    }
    std::vector<quint64> offsets(size_t(m_info.frames));
    qFromLittleEndian<quint64>(bytes.constData(), m_info.frames, offsets.data());
    m_offsets = std::move(offsets);
    m_isIndexed = true;
    return true;
}

RecordingReader::Piece RecordingReader::pieceOf(int index) const {
    if (index < 0 || index >= m_info.frames || !loadIndex()) {
        fail(reason(kDamaged));
    }
    const size_t next = size_t(index) + 1;
    const Piece piece{m_offsets[size_t(index)], next < m_offsets.size() ? m_offsets[next] : m_framesEnd};
    const quint64 most = quint64(kChunkBytes + m_layout.maxStoredBytes() + kAlignment);
    if (piece.end <= piece.offset || piece.end > m_size || piece.end - piece.offset > most) {
        fail(reason(kDamaged));
    }
    return piece;
}

QByteArray RecordingReader::readPiece(int index, Chunk& chunk) const {
    const Piece piece = pieceOf(index);
    QByteArray bytes = bytesAt(piece.offset, piece.end - piece.offset);
    const std::optional<Chunk> read =
        bytes.size() >= kChunkBytes ? Container::readChunk(bytes.constData()) : std::nullopt;
    const bool isWhole = read && read->type == Chunk::FrameData && read->index == quint32(index) &&
                         read->size <= quint64(bytes.size() - kChunkBytes) &&
                         checksum(bytes.constData() + kChunkBytes, qint64(read->size)) == read->checksum;
    if (!isWhole) {
        fail(reason("Frame %1 is damaged.", {index + 1}));
    }
    chunk = *read;
    return bytes;
}

Frame RecordingReader::frame(int index) const {
    Chunk chunk;
    const QByteArray bytes = readPiece(index, chunk);
    Frame frame;
    frame.image = unpacked(bytes.constData() + kChunkBytes, qint64(chunk.size), m_layout);
    if (frame.image.isNull()) {
        fail(reason("Frame %1 is damaged.", {index + 1}));
    }
    frame.bitDepth = m_layout.bitDepth;
    frame.number = chunk.number;
    frame.time = chunk.value;
    frame.area = m_info.area.isNull() ? QRect(QPoint(0, 0), m_layout.size) : m_info.area;
    return frame;
}

StoredFrame RecordingReader::stored(int index) const {
    Chunk chunk;
    const QByteArray bytes = readPiece(index, chunk);
    return {bytes.mid(kChunkBytes, int(chunk.size)), chunk.number, chunk.value};
}

void RecordingReader::replaceInfo(const QString& path, const RecordingInfo& info) {
    const RecordingReader reader(path);
    if (!reader.loadIndex()) {
        reader.fail(reason(kDamaged));
    }
    RecordingInfo known = info;
    known.frames = reader.count();
    QFile file(path);
    const quint64 at = (reader.m_framesEnd + kAlignment - 1) / kAlignment * kAlignment;
    const QByteArray end =
        ending(QJsonDocument(known.toJson()).toJson(QJsonDocument::Compact), reader.m_offsets, at);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || !file.resize(qint64(at)) ||
        !file.seek(qint64(at)) || file.write(end) != end.size() || ::fsync(file.handle()) != 0) {
        throw RecordingError::unwritable(path, errno);
    }
}

#include "viewer/export/readers/MovieSource.h"

#include "viewer/export/Av.h"
#include "viewer/export/PictureNote.h"
#include "viewer/recordings/RecordingError.h"

#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

namespace {

constexpr int kMaxSide = 1 << 15; // pixels
constexpr int kMaxFrames = 10000000;

[[noreturn]] void fail(const QString& path, const Reason& why) {
    throw RecordingError(RecordingError::While::Reading, path, why);
}

} // namespace

struct MovieSource::Reader {
    explicit Reader(const QString& from);
    ~Reader() { avformat_close_input(&format); }

    void openStream();
    void listPictures();
    void takeKeysFromIndex();
    /// Decodes the next picture; false at the end.
    bool next();
    void seekTo(int index);
    Frame picture(bool isColor, const QSize& size) const;

    QString path;
    AVFormatContext* format = nullptr;
    AVStream* stream = nullptr;
    Av::Codec codec;
    Av::Frame decoded;
    Av::Packet packet;
    QVector<qint64> times; // of the pictures, rising, in the stream's unit
    QVector<bool> isKey;   // of the same
    bool hasTimes = true;  // when each shows; else they show in the order in which they are decoded
    int position = -1;     // of the picture that was decoded last
};

MovieSource::Reader::Reader(const QString& from) : path(from) {
    if (!QFileInfo(path).isFile() || !QFileInfo(path).isReadable()) {
        throw RecordingError::unreadable(path, EACCES);
    }
    Av::beQuiet();
    // A name with a colon would be taken for a protocol.
    const QByteArray url = "file:" + QFile::encodeName(path);
    if (avformat_open_input(&format, url.constData(), nullptr, nullptr) < 0) {
        fail(path, reason("The file is no movie that can be read."));
    }
    try {
        openStream();
        listPictures();
    } catch (...) {
        avformat_close_input(&format);
        throw;
    }
}

void MovieSource::Reader::openStream() {
    const AVCodec* decoder = nullptr;
    const int number = avformat_find_stream_info(format, nullptr) < 0
                           ? -1
                           : av_find_best_stream(format, AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
    if (number < 0 || !decoder) {
        fail(path, reason("The file is no movie that can be read."));
    }
    stream = format->streams[number];
    const AVCodecParameters& form = *stream->codecpar;
    if (form.width <= 0 || form.height <= 0 || form.width > kMaxSide || form.height > kMaxSide) {
        fail(path, reason("The picture is too large."));
    }
    codec.reset(avcodec_alloc_context3(decoder));
    avcodec_parameters_to_context(codec.get(), &form);
    codec->thread_count = 0;
    if (avcodec_open2(codec.get(), decoder, nullptr) < 0) {
        fail(path, reason("The file is no movie that can be read."));
    }
    decoded.reset(av_frame_alloc());
    packet.reset(av_packet_alloc());
}

// Packets come in the order in which they are decoded, which need not be that of the pictures.
void MovieSource::Reader::listPictures() {
    QVector<QPair<qint64, bool>> pictures;
    hasTimes = format->iformat->name != std::string_view("avi"); // where they would be guessed
    while (pictures.size() < kMaxFrames && av_read_frame(format, packet.get()) >= 0) {
        if (packet->stream_index == stream->index) {
            hasTimes = hasTimes && packet->pts != AV_NOPTS_VALUE;
            const qint64 time = packet->pts != AV_NOPTS_VALUE ? packet->pts : packet->dts;
            pictures.append({time, (packet->flags & AV_PKT_FLAG_KEY) != 0});
        }
        av_packet_unref(packet.get());
    }
    std::sort(pictures.begin(), pictures.end());
    if (pictures.isEmpty()) {
        fail(path, reason("The recording holds no frames."));
    }
    for (const QPair<qint64, bool>& picture : qAsConst(pictures)) {
        times.append(picture.first);
        isKey.append(picture.second);
    }
    if (!hasTimes) {
        takeKeysFromIndex();
    }
    seekTo(0);
}

// In an AVI the library takes pictures for such that stand for themselves that don't; the file's index knows.
void MovieSource::Reader::takeKeysFromIndex() {
    const AVCodecDescriptor* const kind = avcodec_descriptor_get(stream->codecpar->codec_id);
    const bool isEach = kind && (kind->props & AV_CODEC_PROP_INTRA_ONLY) != 0;
    const bool isIndexed = avformat_index_get_entries_count(stream) == isKey.size();
    for (int i = 0; i < isKey.size(); ++i) {
        const AVIndexEntry* const entry = isIndexed ? avformat_index_get_entry(stream, i) : nullptr;
        isKey[i] = i == 0 || isEach || (entry && (entry->flags & AVINDEX_KEYFRAME) != 0);
    }
}

void MovieSource::Reader::seekTo(int index) {
    int key = index;
    while (key > 0 && !isKey.at(key)) {
        --key;
    }
    if (av_seek_frame(format, stream->index, times.at(key), AVSEEK_FLAG_BACKWARD) < 0) {
        fail(path, reason("The recording is damaged, or a part of it is missing."));
    }
    avcodec_flush_buffers(codec.get());
    position = hasTimes ? -1 : key - 1;
}

bool MovieSource::Reader::next() {
    for (;;) {
        const int result = avcodec_receive_frame(codec.get(), decoded.get());
        if (result == 0) {
            const qint64 time = decoded->best_effort_timestamp;
            const auto place = std::lower_bound(times.begin(), times.end(), time);
            position = !hasTimes || time == AV_NOPTS_VALUE ? position + 1 : int(place - times.begin());
            return true;
        }
        if (result != AVERROR(EAGAIN)) {
            return false;
        }
        const int read = av_read_frame(format, packet.get());
        if (read < 0) {
            avcodec_send_packet(codec.get(), nullptr);
        } else if (packet->stream_index == stream->index) {
            avcodec_send_packet(codec.get(), packet.get());
        }
        av_packet_unref(packet.get());
    }
}

Frame MovieSource::Reader::picture(bool isColor, const QSize& size) const {
    const AVFrame& frame = *decoded;
    Frame result;
    result.image =
        QImage(frame.width, frame.height, isColor ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
    const Av::Scaler scaler(
        sws_getContext(frame.width, frame.height, AVPixelFormat(frame.format), frame.width, frame.height,
                       isColor ? AV_PIX_FMT_RGB24 : AV_PIX_FMT_GRAY8,
                       SWS_BILINEAR | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT, nullptr, nullptr, nullptr));
    if (!scaler || result.image.isNull()) {
        fail(path, reason("Pictures of this kind can't be read."));
    }
    uint8_t* const to = result.image.bits();
    const int line = result.image.bytesPerLine();
    sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, &to, &line);
    if (result.image.size() != size) {
        result.image = result.image.copy(QRect(QPoint(), size));
    }
    return result;
}

MovieSource::MovieSource(const QString& path) : m_path(path), m_reader(std::make_unique<Reader>(path)) {
    const AVDictionaryEntry* const note = av_dict_get(m_reader->format->metadata, "comment", nullptr, 0);
    const RecordingInfo told =
        RecordingInfo::fromJson(note ? PictureNote::info(QString::fromUtf8(note->value)) : QJsonObject());
    const AVCodecParameters& form = *m_reader->stream->codecpar;
    const QSize size(form.width, form.height);
    m_info = told;
    if (m_info.camera.isEmpty()) {
        m_info.camera = QFileInfo(path).completeBaseName();
        m_info.rate = quint32(qRound(av_q2d(m_reader->stream->avg_frame_rate)));
        m_info.color = true;
    }
    // A codec that wants even sizes has a column or a row too many.
    const bool isTold =
        told.size.isValid() && (size - told.size).width() / 2 == 0 && (size - told.size).height() / 2 == 0;
    m_info.size = isTold ? told.size : size;
    m_info.bitDepth = 8;
    m_info.frames = m_reader->times.size();
    m_info.triggerIndex = qBound(0, m_info.triggerIndex, m_info.frames - 1);
}

MovieSource::~MovieSource() = default;

Frame MovieSource::frame(int index) const {
    const QMutexLocker lock(&m_mutex);
    Reader& reader = *m_reader;
    if (index < 0 || index >= reader.times.size()) {
        fail(m_path, reason("There is no such frame."));
    }
    // Decoding on is quicker than going back to a key picture as long as there is none between.
    bool isAhead = reader.position >= 0 && index > reader.position;
    for (int i = reader.position + 1; isAhead && i <= index; ++i) {
        isAhead = !reader.isKey.at(i) || i == reader.position + 1;
    }
    if (!isAhead && index != reader.position) {
        reader.seekTo(index);
    }
    while (reader.position < index && reader.next()) {
    }
    if (reader.position != index) {
        fail(m_path, reason("The recording is damaged, or a part of it is missing."));
    }
    Frame frame = reader.picture(m_info.color, m_info.size);
    frame.number = m_info.firstNumber + quint32(index);
    return frame;
}

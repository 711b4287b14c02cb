#include "viewer/export/writers/MovieSink.h"

#include "viewer/export/Av.h"
#include "viewer/export/PictureNote.h"
#include "viewer/export/Pixels.h"
#include "viewer/export/writers/LibraryFile.h"

#include <array>
#include <cmath>

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/opt.h>
}

namespace {

struct CodecRow {
    MovieCodec codec;
    AVCodecID id;
    AVPixelFormat pixels;
    bool isSized;     // sizes are even
    bool isQuantized; // the quality is a quantizer
};

constexpr std::array<CodecRow, 6> kCodecs = {
    {{MovieCodec::Raw, AV_CODEC_ID_RAWVIDEO, AV_PIX_FMT_BGR24, false, false},
     {MovieCodec::H264, AV_CODEC_ID_H264, AV_PIX_FMT_YUV420P, true, false},
     {MovieCodec::Mjpeg, AV_CODEC_ID_MJPEG, AV_PIX_FMT_YUVJ420P, true, true},
     {MovieCodec::Mpeg2, AV_CODEC_ID_MPEG2VIDEO, AV_PIX_FMT_YUV420P, true, true},
     {MovieCodec::Mpeg4, AV_CODEC_ID_MPEG4, AV_PIX_FMT_YUV420P, true, true},
     {MovieCodec::Huffyuv, AV_CODEC_ID_HUFFYUV, AV_PIX_FMT_RGB24, false, false}}};

const CodecRow& rowOf(MovieCodec codec) {
    return *std::find_if(kCodecs.begin(), kCodecs.end(),
                         [codec](const CodecRow& row) { return row.codec == codec; });
}

/// Quality 100 is the finest quantizer, 2, and 0 the coarsest, 31.
int quantizerOf(int quality) { return qRound(2 + (100 - qBound(0, quality, 100)) * 29 / 100.0); }

/// The rate factor of H.264: 100 gives 10, which nobody can tell from the picture, 0 gives 45.
int rateFactorOf(int quality) { return qRound(10 + (100 - qBound(0, quality, 100)) * 35 / 100.0); }

AVRational rateOf(double fps, const AVCodec& codec) {
    const AVRational rate = av_d2q(fps > 0 ? fps : 30, 60000);
    return codec.supported_framerates
               ? codec.supported_framerates[av_find_nearest_q_idx(rate, codec.supported_framerates)]
               : rate;
}

const char* containerName(ExportFormat format) {
    return format == ExportFormat::Avi ? "avi" : format == ExportFormat::Mov ? "mov" : "mp4";
}

int writeToDevice(void* device, uint8_t* bytes, int size) {
    const qint64 count = static_cast<QIODevice*>(device)->write(reinterpret_cast<const char*>(bytes), size);
    return count == size ? size : AVERROR(ENOSPC);
}

int64_t seekInDevice(void* device, int64_t offset, int whence) {
    QIODevice& file = *static_cast<QIODevice*>(device);
    if (whence == AVSEEK_SIZE) {
        return file.size();
    }
    const qint64 base = whence == SEEK_CUR ? file.pos() : whence == SEEK_END ? file.size() : 0;
    return file.seek(base + offset) ? file.pos() : -1;
}

} // namespace

QString Av::errorText(int result) {
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(result, text.data(), text.size());
    return QString::fromLatin1(text.data());
}

struct MovieSink::State {
    explicit State(const SinkPlan& plan) : file(plan.path, plan.existing) {}
    ~State() {
        if (format) {
            if (format->pb) {
                av_freep(&format->pb->buffer);
                avio_context_free(&format->pb);
            }
            avformat_free_context(format);
        }
    }

    void require(int result) const {
        if (result < 0) {
            file.fail(Av::errorText(result));
        }
    }

    /// The picture as the codec takes it, its planes one after the other.
    QByteArray converted(const QImage& image) const;
    void openCodec(const CodecRow& row, const SinkPlan& plan);
    void openFile(ExportFormat kind, const SinkPlan& plan);

    LibraryFile file;
    AVFormatContext* format = nullptr;
    AVStream* stream = nullptr;
    Av::Codec codec;
    Av::Frame frame;
    Av::Packet packet;
    qint64 frames = 0;
};

void MovieSink::State::openCodec(const CodecRow& row, const SinkPlan& plan) {
    const AVCodec* const encoder = avcodec_find_encoder(row.id);
    require(encoder ? 0 : AVERROR_ENCODER_NOT_FOUND);
    codec.reset(avcodec_alloc_context3(encoder));
    codec->width = row.isSized ? (plan.size.width() + 1) & ~1 : plan.size.width();
    codec->height = row.isSized ? (plan.size.height() + 1) & ~1 : plan.size.height();
    codec->pix_fmt = row.pixels;
    codec->framerate = rateOf(plan.playRate, *encoder);
    codec->time_base = av_inv_q(codec->framerate);
    codec->thread_count = 0; // as many as there are cores
    if (row.isQuantized) {
        codec->flags |= AV_CODEC_FLAG_QSCALE;
        codec->global_quality = FF_QP2LAMBDA * quantizerOf(plan.quality);
    }
    if (format->oformat->name == std::string_view("avi")) {
        codec->max_b_frames = 0; // pictures out of their order have no place in it
    }
    if (row.codec == MovieCodec::H264) {
        av_opt_set(codec->priv_data, "preset", "veryfast", 0);
        av_opt_set_int(codec->priv_data, "crf", rateFactorOf(plan.quality), 0);
    }
    if ((format->oformat->flags & AVFMT_GLOBALHEADER) != 0) {
        codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    }
    require(avcodec_open2(codec.get(), encoder, nullptr));
}

void MovieSink::State::openFile(ExportFormat kind, const SinkPlan& plan) {
    stream = avformat_new_stream(format, nullptr);
    require(stream ? 0 : AVERROR(ENOMEM));
    stream->time_base = codec->time_base;
    stream->avg_frame_rate = codec->framerate;
    require(avcodec_parameters_from_context(stream->codecpar, codec.get()));
    av_dict_set(&format->metadata, "comment", PictureNote::text(plan.info).toUtf8().constData(), 0);
    constexpr int kBufferSize = 1 << 20;
    auto* const buffer = static_cast<unsigned char*>(av_malloc(kBufferSize));
    format->pb =
        avio_alloc_context(buffer, kBufferSize, 1, &file.device(), nullptr, writeToDevice, seekInDevice);
    require(format->pb ? 0 : AVERROR(ENOMEM));
    AVDictionary* options = nullptr;
    if (kind != ExportFormat::Avi) {
        av_dict_set(&options, "movflags", "use_metadata_tags", 0);
    }
    const int result = avformat_write_header(format, &options);
    av_dict_free(&options);
    require(result);
}

Reason MovieSink::refusal(ExportFormat format, MovieCodec codec) {
    const AVOutputFormat* const container = av_guess_format(containerName(format), nullptr, nullptr);
    if (container && avformat_query_codec(container, rowOf(codec).id, FF_COMPLIANCE_NORMAL) == 1) {
        return Reason();
    }
    return reason("A movie of the format %1 does not take the codec %2.",
                  {ExportFormats::name(format).toUpper(), ExportFormats::name(codec)});
}

MovieSink::MovieSink(ExportFormat format, MovieCodec codec, const SinkPlan& plan)
    : m_plan(plan), m_state(std::make_unique<State>(plan)) {
    State& state = *m_state;
    const CodecRow& row = rowOf(codec);
    Av::beQuiet();
    state.require(avformat_alloc_output_context2(&state.format, nullptr, containerName(format), nullptr));
    state.openCodec(row, plan);
    state.openFile(format, plan);
    state.frame.reset(av_frame_alloc());
    state.packet.reset(av_packet_alloc());
}

MovieSink::~MovieSink() = default;

QByteArray MovieSink::encode(const Frame& frame) const {
    const Frame flat = frame.bitDepth > 8 ? Pixels::toEightBits(frame) : frame;
    return m_state->converted(flat.image);
}

// The same size in and out: only colors are converted. What the codec has beyond the picture is filled with
// its last column and row.
QByteArray MovieSink::State::converted(const QImage& picture) const {
    const QSize full(codec->width, codec->height);
    QImage image = picture.format() == QImage::Format_RGB888
                       ? picture
                       : picture.convertToFormat(QImage::Format_Grayscale8);
    if (image.size() != full) {
        const QSize own = image.size();
        image = image.copy(QRect(QPoint(), full));
        const int pixel = image.depth() / 8;
        for (int y = 0; full.width() > own.width() && y < own.height(); ++y) {
            uchar* const end = image.scanLine(y) + own.width() * pixel;
            std::copy(end - pixel, end, end);
        }
        if (full.height() > own.height()) {
            memcpy(image.scanLine(own.height()), image.constScanLine(own.height() - 1),
                   size_t(full.width() * pixel));
        }
    }
    const AVPixelFormat from = image.format() == QImage::Format_RGB888 ? AV_PIX_FMT_RGB24 : AV_PIX_FMT_GRAY8;
    QByteArray bytes(av_image_get_buffer_size(codec->pix_fmt, full.width(), full.height(), 1),
                     Qt::Uninitialized);
    std::array<uint8_t*, 4> planes{};
    std::array<int, 4> lines{};
    av_image_fill_arrays(planes.data(), lines.data(), reinterpret_cast<uint8_t*>(bytes.data()),
                         codec->pix_fmt, full.width(), full.height(), 1);
    const Av::Scaler scaler(sws_getContext(full.width(), full.height(), from, full.width(), full.height(),
                                           codec->pix_fmt, SWS_BILINEAR | SWS_ACCURATE_RND, nullptr, nullptr,
                                           nullptr));
    require(scaler ? 0 : AVERROR(EINVAL));
    const uint8_t* const source = image.constBits();
    const int sourceLine = image.bytesPerLine();
    sws_scale(scaler.get(), &source, &sourceLine, 0, full.height(), planes.data(), lines.data());
    return bytes;
}

void MovieSink::append(const QByteArray& encoded, const FrameMark&) {
    State& state = *m_state;
    AVFrame& frame = *state.frame;
    av_frame_unref(&frame);
    frame.width = state.codec->width;
    frame.height = state.codec->height;
    frame.format = state.codec->pix_fmt;
    frame.pts = state.frames++;
    frame.quality = state.codec->global_quality;
    // The codec may keep the picture until later: it gets a buffer of its own.
    state.require(av_frame_get_buffer(&frame, 0));
    std::array<const uint8_t*, 4> planes{};
    std::array<uint8_t*, 4> packed{};
    std::array<int, 4> lines{};
    av_image_fill_arrays(packed.data(), lines.data(), reinterpret_cast<const uint8_t*>(encoded.constData()),
                         state.codec->pix_fmt, frame.width, frame.height, 1);
    std::copy(packed.begin(), packed.end(), planes.begin());
    av_image_copy(frame.data, frame.linesize, planes.data(), lines.data(), state.codec->pix_fmt, frame.width,
                  frame.height);
    state.require(avcodec_send_frame(state.codec.get(), &frame));
    writePackets();
}

void MovieSink::writePackets() {
    State& state = *m_state;
    for (;;) {
        const int result = avcodec_receive_packet(state.codec.get(), state.packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) {
            return;
        }
        state.require(result);
        av_packet_rescale_ts(state.packet.get(), state.codec->time_base, state.stream->time_base);
        state.packet->stream_index = state.stream->index;
        state.require(av_interleaved_write_frame(state.format, state.packet.get()));
    }
}

void MovieSink::finish() {
    State& state = *m_state;
    state.require(avcodec_send_frame(state.codec.get(), nullptr));
    writePackets();
    state.require(av_write_trailer(state.format));
    avio_flush(state.format->pb);
    state.require(state.format->pb->error);
    state.file.finish();
}

#pragma once

#include <QString>

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

/// The movie library's objects, each with its owner.
namespace Av {

struct FreeFrame {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
struct FreePacket {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
struct FreeCodec {
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
};
struct FreeScaler {
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};

using Frame = std::unique_ptr<AVFrame, FreeFrame>;
using Packet = std::unique_ptr<AVPacket, FreePacket>;
using Codec = std::unique_ptr<AVCodecContext, FreeCodec>;
using Scaler = std::unique_ptr<SwsContext, FreeScaler>;

/// The library writes no more than what ends the program into its own log: all else is told by results.
inline void beQuiet() { av_log_set_level(AV_LOG_FATAL); }
/// What a negative result means.
QString errorText(int result);

} // namespace Av

#pragma once

#include "viewer/cameras/Reason.h"
#include "viewer/export/ExportFormat.h"
#include "viewer/export/writers/FrameSink.h"

#include <memory>

/// An AVI, MOV or MP4. A codec that wants even sizes gets them: the last column and row are there twice, and
/// the text in the file tells the size of the picture itself.
class MovieSink : public FrameSink {
public:
    /// Why a movie of that format can't be coded so; empty if it can.
    static Reason refusal(ExportFormat format, MovieCodec codec);

    /// Of a format and a codec that go together. Throws RecordingError.
    MovieSink(ExportFormat format, MovieCodec codec, const SinkPlan& plan);
    ~MovieSink() override;

    QByteArray encode(const Frame& frame) const override;
    void append(const QByteArray& encoded, const FrameMark& mark) override;
    void finish() override;

private:
    struct State;

    void writePackets();

    SinkPlan m_plan;
    std::unique_ptr<State> m_state;
};

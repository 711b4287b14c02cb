#pragma once

#include "viewer/export/ExportFormat.h"
#include "viewer/export/writers/FrameSink.h"

#include <memory>

/// An AVI, MOV or MP4. A codec that wants even sizes gets them: the last column and row are there twice, and
/// the text in the file tells the size of the picture itself.
class MovieSink : public FrameSink {
public:
    /// Not every container takes every codec: throws RecordingError then.
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

#pragma once

#include "viewer/export/writers/ImageEncoder.h"

#include <QFuture>
#include <QThreadPool>

#include <deque>

/// A file for each frame. Each is whole as soon as it stands there. Several are on their way to the disk at a
/// time, since waiting for one file costs the disk as long as for some; a failure is thrown by append() of a
/// later frame or by finish(), and names its own file.
class SequenceSink : public FrameSink {
public:
    SequenceSink(ExportFormat format, const SinkPlan& plan);

    /// "name_000012.png" for the frame 12 of "name.png"; the path itself for a single picture.
    static QString pathOf(const QString& path, int frames, int index);

    QByteArray encode(const Frame& frame) const override { return m_encoder.encode(frame); }
    void append(const QByteArray& encoded, const FrameMark& mark) override;
    void finish() override;

private:
    void awaitOldest();

    SinkPlan m_plan;
    ImageEncoder m_encoder;
    std::deque<QFuture<std::exception_ptr>> m_coming; // in the order of the frames
    QThreadPool m_writers;                            // waits at its end
};

/// All frames as pages of one TIFF, which is a big one if it gets larger than 4 GB.
class PagesSink : public FrameSink {
public:
    explicit PagesSink(const SinkPlan& plan);
    ~PagesSink() override;

    QByteArray encode(const Frame& frame) const override;
    void append(const QByteArray& encoded, const FrameMark& mark) override;
    void finish() override;

private:
    struct State;
    SinkPlan m_plan;
    std::unique_ptr<State> m_state;
};

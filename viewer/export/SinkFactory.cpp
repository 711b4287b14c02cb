#include "viewer/export/SinkFactory.h"

#include "viewer/export/ExportRequest.h"
#include "viewer/export/writers/MovieSink.h"
#include "viewer/export/writers/SequenceSink.h"
#include "viewer/recordings/RecordingCopy.h"
#include "viewer/recordings/RecordingReader.h"

namespace {

Container::Storage storageOf(ExportFormat format, const FrameSource& source) {
    switch (format) {
    case ExportFormat::Raww:
        return Container::Storage::Raw;
    case ExportFormat::Zraw:
        return Container::Storage::Zstd;
    case ExportFormat::Graw:
        return Container::Storage::Delivered;
    default:
        return RecordingCopy::storageOf(source);
    }
}

/// The recording as it is kept, or a part of it. Frames that lie in a file in the same storage are copied.
class ContainerSink : public FrameSink {
public:
    ContainerSink(const ExportRequest& request, const RecordingInfo& info, const Frame& first)
        : m_from(std::dynamic_pointer_cast<const RecordingReader>(request.source)),
          m_layout(
              Container::Layout::of(first.image, first.bitDepth, storageOf(request.format, *request.source))),
          m_writer(request.path, info, m_layout.storage, request.existing) {
        if (m_from && !(m_from->layout() == m_layout)) {
            m_from = nullptr;
        }
    }

    bool copy(int index, QByteArray& encoded, FrameMark& mark) const override {
        if (m_from) {
            const StoredFrame frame = m_from->stored(index);
            encoded = frame.payload;
            mark = {index, frame.number, frame.time};
        }
        return m_from != nullptr;
    }

    QByteArray encode(const Frame& frame) const override { return Container::packed(frame.image, m_layout); }

    void append(const QByteArray& encoded, const FrameMark& mark) override {
        m_writer.addStored({encoded, mark.number, mark.time}, m_layout);
    }

    void finish() override { m_writer.finish(); }

private:
    std::shared_ptr<const RecordingReader> m_from; // of frames that are copied
    Container::Layout m_layout;
    RecordingWriter m_writer;
};

/// The shots of every `step`th frame: each begins with its first frame that is left, and without one it goes.
QVector<RecordedShot> thinned(const QVector<RecordedShot>& shots, int step, int frames) {
    QVector<RecordedShot> left;
    for (RecordedShot shot : shots) {
        shot.first = (shot.first + step - 1) / step;
        shot.triggerIndex /= step;
        if (!left.isEmpty() && left.last().first == shot.first) {
            left.removeLast();
        }
        if (shot.first < frames) {
            left.append(shot);
        }
    }
    return left;
}

/// Of the frames that are saved: with a step the rate is that of what is left.
RecordingInfo savedInfo(const ExportRequest& request) {
    const RecordingInfo all = request.info.value_or(request.source->info());
    RecordingInfo info = all.part(request.first, request.last - request.first + 1);
    if (request.step > 1) {
        info.frames = request.count();
        info.rate = qMax(1U, all.rate / quint32(request.step));
        info.triggerIndex /= request.step;
        info.shots = thinned(info.shots, request.step, info.frames);
        info.marks.erase(std::remove_if(info.marks.begin(), info.marks.end(),
                                        [&](int mark) { return mark % request.step != 0; }),
                         info.marks.end());
        for (int& mark : info.marks) {
            mark /= request.step;
        }
    }
    return info;
}

SinkPlan planOf(const ExportRequest& request, const RecordingInfo& info, const Frame& first) {
    SinkPlan plan;
    plan.path = request.path;
    plan.existing = request.existing;
    plan.size = first.image.size();
    plan.bitDepth = first.bitDepth;
    plan.isColor = first.image.format() == QImage::Format_RGB888;
    plan.frames = request.count();
    plan.rate = info.rate;
    plan.playRate = request.playRate;
    plan.quality = request.quality;
    plan.info = info.toJson();
    return plan;
}

} // namespace

std::shared_ptr<FrameSink> makeSink(const ExportRequest& request, const Frame& first) {
    const RecordingInfo info = savedInfo(request);
    if (ExportFormats::isContainer(request.format)) {
        return std::make_shared<ContainerSink>(request, info, first);
    }
    const SinkPlan plan = planOf(request, info, first);
    if (ExportFormats::isMovie(request.format)) {
        return std::make_shared<MovieSink>(request.format, request.codec, plan);
    }
    if (request.format == ExportFormat::TiffPages) {
        return std::make_shared<PagesSink>(plan);
    }
    return std::make_shared<SequenceSink>(request.format, plan);
}

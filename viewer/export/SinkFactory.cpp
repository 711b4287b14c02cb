#include "viewer/export/SinkFactory.h"

#include "viewer/export/ExportJob.h"
#include "viewer/export/writers/MovieSink.h"
#include "viewer/export/writers/SequenceSink.h"
#include "viewer/recordings/RecordingWriter.h"

namespace {

Container::Storage storageOf(ExportFormat format) {
    return format == ExportFormat::Zraw   ? Container::Storage::Zstd
           : format == ExportFormat::Graw ? Container::Storage::Delivered
                                          : Container::Storage::Raw;
}

/// The recording as it is kept, or a part of it.
class ContainerSink : public FrameSink {
public:
    ContainerSink(ExportFormat format, const SinkPlan& plan, const RecordingInfo& info, const Frame& first)
        : m_layout(Container::Layout::of(first.image, first.bitDepth, storageOf(format))),
          m_writer(plan.path, info, storageOf(format), plan.existing) {}

    QByteArray encode(const Frame& frame) const override { return Container::packed(frame.image, m_layout); }

    void append(const QByteArray& encoded, const FrameMark& mark) override {
        m_writer.addStored({encoded, mark.number, mark.time}, m_layout);
    }

    void finish() override { m_writer.finish(); }

private:
    Container::Layout m_layout;
    RecordingWriter m_writer;
};

/// Of the frames that are saved: with a step the rate is that of what is left.
RecordingInfo savedInfo(const ExportRequest& request) {
    const RecordingInfo all = request.info.value_or(request.source->info());
    RecordingInfo info = all.part(request.first, request.last - request.first + 1);
    if (request.step > 1) {
        info.frames = request.count();
        info.rate = qMax(1U, all.rate / quint32(request.step));
        info.triggerIndex /= request.step;
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
    const SinkPlan plan = planOf(request, info, first);
    if (ExportFormats::isContainer(request.format)) {
        return std::make_shared<ContainerSink>(request.format, plan, info, first);
    }
    if (ExportFormats::isMovie(request.format)) {
        return std::make_shared<MovieSink>(request.format, request.codec, plan);
    }
    if (request.format == ExportFormat::TiffPages) {
        return std::make_shared<PagesSink>(plan);
    }
    return std::make_shared<SequenceSink>(request.format, plan);
}

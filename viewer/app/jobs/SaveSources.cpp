#include "viewer/app/jobs/SaveSources.h"

#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/documents/UprightImage.h"
#include "viewer/recordings/FrameList.h"
#include "viewer/recordings/RecordingError.h"

#include <QMutex>

#include <vector>

namespace {

/// Frames out of a camera's memory. A camera that has gone in the middle is a failure that names it.
class MemorySource : public FrameSource {
public:
    MemorySource(const RecordingInfo& info, std::unique_ptr<MemoryReader> reader)
        : m_reader(std::move(reader)) {
        m_info = info;
    }

    Frame frame(int index) const override {
        const QMutexLocker lock(&m_mutex);
        const Frame frame = m_reader->frame(index);
        if (frame.isNull()) {
            throw RecordingError(RecordingError::While::Reading, m_info.camera,
                                 reason("The link to the camera was lost while its recording was read."));
        }
        return frame;
    }

private:
    mutable QMutex m_mutex; // the reader serves one at a time
    std::unique_ptr<MemoryReader> m_reader;
};

/// Views that are not in use by a thread at present. Each lays out its texts only when they change.
class ViewPool {
public:
    explicit ViewPool(const SavedView& model) : m_model(model) {}

    SavedView take() {
        const QMutexLocker lock(&m_mutex);
        if (m_free.empty()) {
            return m_model;
        }
        SavedView view = std::move(m_free.back());
        m_free.pop_back();
        return view;
    }
    void giveBack(SavedView view) {
        const QMutexLocker lock(&m_mutex);
        m_free.push_back(std::move(view));
    }

private:
    QMutex m_mutex;
    SavedView m_model;
    std::vector<SavedView> m_free;
};

} // namespace

FrameSourcePtr SaveSources::framesOf(Document& document, PARTITIONNUMBER partition,
                                     const RecordingShelf& shelf) {
    if (auto* const file = dynamic_cast<FileDocument*>(&document)) {
        return file->source();
    }
    auto* const camera = dynamic_cast<CameraDocument*>(&document);
    if (!camera) {
        return nullptr;
    }
    if (document.list().mode() == HOST_MODE_LIVE) {
        const Frame frame = document.frame();
        RecordingInfo info = shelf.infoOf(*camera, camera->body()->partition());
        info.bitDepth = frame.bitDepth;
        return frame.isNull() ? nullptr : std::make_shared<FrameList>(info, QVector<QImage>{frame.image});
    }
    const int number = partition > 0 ? int(partition) : camera->body()->partition();
    std::unique_ptr<MemoryReader> reader = camera->head()->memoryReader(number);
    return reader ? std::make_shared<MemorySource>(shelf.infoOf(*camera, number), std::move(reader))
                  : nullptr;
}

std::function<Frame(const Frame&, int)> SaveSources::drawing(const SavedPictures::Shot& shot,
                                                             SavedViewPictures& pictures, bool withInfo,
                                                             const std::function<QString(int)>& pathOf) {
    const ViewState view = shot.document.view();
    if (!withInfo) {
        const bool isPlain = view.quarterTurns == 0 && !view.flipA && !view.flipB;
        return isPlain ? std::function<Frame(const Frame&, int)>()
                       : [view](const Frame& frame, int /*index*/) {
                             Frame result = frame;
                             result.image = UprightImage::turned(frame.image, view);
                             return result;
                         };
    }
    InfoFacts facts = SavedViewPictures::factsOf(shot);
    const auto pool = std::make_shared<ViewPool>(pictures.view(shot));
    return [view, facts, pool, pathOf](const Frame& frame, int index) {
        InfoFacts own = facts;
        own.path = pathOf(index);
        if (own.isRecorded()) {
            own.goTo(index);
        }
        SavedView saved = pool->take();
        Frame result = frame;
        result.bitDepth = 8;
        result.image = saved.compose(UprightImage::turned(frame.displayImage(), view), own)
                           .convertToFormat(QImage::Format_RGB888);
        pool->giveBack(std::move(saved));
        return result;
    };
}

#include "viewer/export/writers/SequenceSink.h"

#include "viewer/export/Pixels.h"
#include "viewer/export/writers/LibraryFile.h"
#include "viewer/export/writers/TiffDescription.h"
#include "viewer/export/writers/TiffWriter.h"

#include <QFileInfo>
#include <QtConcurrent>

namespace {
constexpr int kFilesAtOnce = 4;
constexpr int kDigits = 6;
// Room for the directories and texts of the pages; a big file is read by fewer programs, and costs nothing
// else.
constexpr qint64 kLargestPlain = 4000000000;
constexpr qint64 kBytesBesidePixels = 512; // of a page
} // namespace

QString SequenceSink::pathOf(const QString& path, int frames, int index) {
    if (frames == 1) {
        return path;
    }
    const QFileInfo info(path);
    return QStringLiteral("%1/%2_%3.%4")
        .arg(info.path(), info.completeBaseName())
        .arg(index, kDigits, 10, QLatin1Char('0'))
        .arg(info.suffix());
}

SequenceSink::SequenceSink(ExportFormat format, const SinkPlan& plan)
    : m_plan(plan), m_encoder(format, plan) {
    m_writers.setMaxThreadCount(kFilesAtOnce);
}

void SequenceSink::append(const QByteArray& encoded, const FrameMark& mark) {
    if (m_coming.size() == kFilesAtOnce) {
        awaitOldest();
    }
    const QString path = pathOf(m_plan.path, m_plan.frames, mark.index);
    m_coming.push_back(QtConcurrent::run(&m_writers, [path, encoded, existing = m_plan.existing] {
        std::exception_ptr failure;
        try {
            UnfinishedFile file(path, existing);
            file.write(encoded.constData(), encoded.size());
            file.finish();
        } catch (...) {
            failure = std::current_exception();
        }
        return failure;
    }));
}

void SequenceSink::awaitOldest() {
    const std::exception_ptr failure = m_coming.front().result();
    m_coming.pop_front();
    if (failure) {
        std::rethrow_exception(failure);
    }
}

void SequenceSink::finish() {
    while (!m_coming.empty()) {
        awaitOldest();
    }
}

struct PagesSink::State {
    explicit State(const SinkPlan& plan) : file(plan.path, plan.existing) {}

    LibraryFile file;
    std::unique_ptr<TiffWriter> writer;
    int pages = 0;
};

PagesSink::PagesSink(const SinkPlan& plan) : m_plan(plan), m_state(std::make_unique<State>(plan)) {
    const qint64 samples = qint64(plan.size.width()) * plan.size.height() * (plan.isColor ? 3 : 1);
    const qint64 page = samples * (plan.bitDepth > 8 ? 2 : 1) + kBytesBesidePixels;
    m_state->writer =
        std::make_unique<TiffWriter>(m_state->file.device(), page * plan.frames > kLargestPlain);
}

PagesSink::~PagesSink() = default;

QByteArray PagesSink::encode(const Frame& frame) const { return Pixels::packed(frame.image); }

void PagesSink::append(const QByteArray& encoded, const FrameMark&) {
    TiffWriter::Page page;
    page.size = m_plan.size;
    page.samples = m_plan.isColor ? 3 : 1;
    page.bitsPerSample = m_plan.bitDepth > 8 ? 16 : 8;
    page.description = m_state->pages++ == 0 ? tiffDescription(m_plan, m_plan.frames) : QString();
    try {
        m_state->writer->add(page, encoded);
    } catch (const std::runtime_error& error) {
        m_state->file.fail(QString::fromUtf8(error.what()));
    }
}

void PagesSink::finish() {
    try {
        m_state->writer->close();
    } catch (const std::runtime_error& error) {
        m_state->file.fail(QString::fromUtf8(error.what()));
    }
    m_state->file.finish();
}

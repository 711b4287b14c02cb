#include "viewer/export/writers/ImageEncoder.h"

#include "viewer/export/PictureNote.h"
#include "viewer/export/Pixels.h"
#include "viewer/export/writers/TiffDescription.h"
#include "viewer/export/writers/TiffWriter.h"
#include "viewer/recordings/RecordingError.h"

#include <QBuffer>
#include <QImageWriter>

namespace {
// Of 0 to 100, of which the library makes its 0 to 9: a higher one makes files of a camera's noise hardly
// smaller, and takes several times as long.
constexpr int kPngCompression = 12;

TiffWriter::Page pageOf(const Frame& frame, const QString& description) {
    TiffWriter::Page page;
    page.size = frame.image.size();
    page.samples = frame.image.format() == QImage::Format_RGB888 ? 3 : 1;
    page.bitsPerSample = frame.image.format() == QImage::Format_Grayscale16 ? 16 : 8;
    page.description = description;
    return page;
}
} // namespace

QByteArray ImageEncoder::encode(const Frame& frame) const {
    const bool isDeep = frame.bitDepth > 8;
    if (isDeep && !ExportFormats::keepsDepth(m_format)) {
        return encodeByQt(Pixels::toEightBits(frame));
    }
    return m_format == ExportFormat::Tiff ? encodeTiff(frame) : encodeByQt(frame);
}

QByteArray ImageEncoder::encodeByQt(const Frame& frame) const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, ExportFormats::suffix(m_format).toLatin1());
    if (m_format == ExportFormat::Jpeg) {
        writer.setQuality(m_plan.quality);
    } else if (m_format == ExportFormat::Png) {
        writer.setCompression(kPngCompression);
    }
    if (m_format != ExportFormat::Bmp) {
        writer.setText(QLatin1String(PictureNote::Key), PictureNote::text(m_plan.info));
    }
    const QImage image =
        frame.image.format() == QImage::Format_Grayscale16 ? Pixels::spread(frame) : frame.image;
    if (!writer.write(image)) {
        throw RecordingError(RecordingError::While::Writing, m_plan.path, writer.errorString());
    }
    return bytes;
}

QByteArray ImageEncoder::encodeTiff(const Frame& frame) const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadWrite);
    try {
        TiffWriter writer(buffer, false);
        writer.add(pageOf(frame, tiffDescription(m_plan, 1)), Pixels::packed(frame.image));
        writer.close();
    } catch (const std::runtime_error& error) {
        throw RecordingError(RecordingError::While::Writing, m_plan.path, QString::fromUtf8(error.what()));
    }
    return bytes;
}

#include "viewer/export/readers/TiffSource.h"

#include "viewer/export/PictureNote.h"
#include "viewer/export/Pixels.h"
#include "viewer/recordings/RecordingError.h"

#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

#include <tiffio.h>

namespace {
constexpr uint32_t kMaxSide = 1 << 15; // pixels
constexpr int kMaxPages = 10000000;

int dropMessage(TIFF*, void*, const char*, const char*, va_list) { return 1; }
} // namespace

struct TiffSource::Reader {
    explicit Reader(const QString& from) : path(from) {
        TIFFOpenOptions* const options = TIFFOpenOptionsAlloc();
        TIFFOpenOptionsSetErrorHandlerExtR(options, dropMessage, nullptr);
        TIFFOpenOptionsSetWarningHandlerExtR(options, dropMessage, nullptr);
        file = TIFFOpenExt(QFile::encodeName(path).constData(), "r", options);
        TIFFOpenOptionsFree(options);
        if (!file) {
            fail(QFileInfo(path).isReadable() ? reason("The file is no picture that can be read.")
                                              : Reason());
        }
    }
    ~Reader() {
        if (file) {
            TIFFClose(file);
        }
    }

    [[noreturn]] void fail(const Reason& why) const {
        if (why.isEmpty()) {
            throw RecordingError::unreadable(path, EACCES);
        }
        throw RecordingError(RecordingError::While::Reading, path, why);
    }
    [[noreturn]] void failDamaged() const {
        fail(reason("The picture is damaged, or a part of it is missing."));
    }

    uint32_t number(uint32_t tag) const {
        uint32_t value = 0;
        TIFFGetField(file, tag, &value);
        return value;
    }
    uint16_t shortNumber(uint32_t tag, uint16_t missing) const {
        uint16_t value = missing;
        return TIFFGetFieldDefaulted(file, tag, &value) ? value : missing;
    }
    /// What its samples look like; null for a kind that frames don't have.
    QImage::Format format() const {
        const uint16_t bits = shortNumber(TIFFTAG_BITSPERSAMPLE, 1);
        const uint16_t samples = shortNumber(TIFFTAG_SAMPLESPERPIXEL, 1);
        return samples == 1 && bits == 8    ? QImage::Format_Grayscale8
               : samples == 1 && bits == 16 ? QImage::Format_Grayscale16
               : samples == 3 && bits == 8  ? QImage::Format_RGB888
                                            : QImage::Format_Invalid;
    }
    /// Samples that are light, the more the brighter, and lie row by row: neither places in a table of
    /// colors nor negatives, differences of colors or numbers with a sign.
    bool isPlain() const {
        const uint16_t light =
            shortNumber(TIFFTAG_SAMPLESPERPIXEL, 1) == 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK;
        return shortNumber(TIFFTAG_PHOTOMETRIC, light) == light &&
               shortNumber(TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT) == SAMPLEFORMAT_UINT &&
               shortNumber(TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_CONTIG &&
               !TIFFIsTiled(file);
    }
    QSize size() const {
        const uint32_t width = number(TIFFTAG_IMAGEWIDTH);
        const uint32_t height = number(TIFFTAG_IMAGELENGTH);
        return width <= kMaxSide && height <= kMaxSide ? QSize(int(width), int(height)) : QSize();
    }

    QString path;
    TIFF* file = nullptr;
};

TiffSource::TiffSource(const QString& path) : m_path(path), m_reader(std::make_unique<Reader>(path)) {
    TIFF* const file = m_reader->file;
    char* text = nullptr;
    if (TIFFGetField(file, TIFFTAG_IMAGEDESCRIPTION, &text) && text) {
        m_info = RecordingInfo::fromJson(PictureNote::info(QString::fromUtf8(text)));
    }
    const QImage::Format format = m_reader->format();
    const QSize size = m_reader->size();
    if (format == QImage::Format_Invalid || size.isEmpty() || !m_reader->isPlain()) {
        m_reader->fail(reason("Pictures of this kind can't be read."));
    }
    do {
        m_pages.append(TIFFCurrentDirOffset(file));
    } while (m_pages.size() < kMaxPages && TIFFReadDirectory(file));
    if (m_info.camera.isEmpty()) {
        m_info.camera = QFileInfo(path).completeBaseName();
    }
    m_info.size = size;
    m_info.color = format == QImage::Format_RGB888;
    m_info.bitDepth = format != QImage::Format_Grayscale16 ? 8 : m_info.isWide() ? m_info.bitDepth : 16;
    m_told = m_info;
    m_info.frames = m_pages.size();
    m_info.triggerIndex = qBound(0, m_info.triggerIndex, m_info.frames - 1);
}

TiffSource::~TiffSource() = default;

Frame TiffSource::frame(int index) const {
    const QMutexLocker lock(&m_mutex);
    TIFF* const file = m_reader->file;
    if (index < 0 || index >= m_pages.size() || !TIFFSetSubDirectory(file, m_pages.at(index))) {
        m_reader->fail(reason("There is no such frame."));
    }
    const QImage::Format format = m_reader->format();
    if (m_reader->size() != m_info.size || (format == QImage::Format_RGB888) != m_info.color ||
        (format == QImage::Format_Grayscale16) != m_info.isWide() || !m_reader->isPlain()) {
        m_reader->fail(reason("The picture has another size than the first one of its sequence."));
    }
    Frame frame;
    frame.bitDepth = m_info.bitDepth;
    frame.image = QImage(m_info.size, format);
    if (frame.image.isNull() || TIFFScanlineSize(file) > frame.image.bytesPerLine()) {
        m_reader->failDamaged();
    }
    for (int y = 0; y < frame.image.height(); ++y) {
        if (TIFFReadScanline(file, frame.image.scanLine(y), uint32_t(y), 0) != 1) {
            m_reader->failDamaged();
        }
    }
    frame.number = m_info.firstNumber + quint32(index);
    return frame;
}

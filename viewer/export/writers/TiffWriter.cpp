#include "viewer/export/writers/TiffWriter.h"

#include <QIODevice>

#include <stdexcept>
#include <tiffio.h>

namespace {

QIODevice& deviceOf(thandle_t handle) { return *static_cast<QIODevice*>(handle); }

tmsize_t readBytes(thandle_t handle, void* to, tmsize_t size) {
    return deviceOf(handle).read(static_cast<char*>(to), size);
}

tmsize_t writeBytes(thandle_t handle, void* from, tmsize_t size) {
    return deviceOf(handle).write(static_cast<const char*>(from), size);
}

toff_t seekTo(thandle_t handle, toff_t offset, int whence) {
    QIODevice& device = deviceOf(handle);
    const qint64 base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? device.pos() : device.size();
    return device.seek(base + qint64(offset)) ? toff_t(device.pos()) : toff_t(-1);
}

int closeNothing(thandle_t) { return 0; }
toff_t sizeOf(thandle_t handle) { return toff_t(deviceOf(handle).size()); }

int keepError(TIFF*, void* data, const char*, const char* format, va_list arguments) {
    *static_cast<QString*>(data) = QString::vasprintf(format, arguments);
    return 1;
}

int dropWarning(TIFF*, void*, const char*, const char*, va_list) { return 1; }

} // namespace

struct TiffWriter::State {
    TIFF* file = nullptr;
    QString error;

    [[noreturn]] void fail() const { throw std::runtime_error(error.toUtf8().constData()); }
    void require(bool isGood) const {
        if (!isGood) {
            fail();
        }
    }
};

TiffWriter::TiffWriter(QIODevice& device, bool isBig) : m_state(std::make_unique<State>()) {
    TIFFOpenOptions* const options = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetErrorHandlerExtR(options, keepError, &m_state->error);
    TIFFOpenOptionsSetWarningHandlerExtR(options, dropWarning, nullptr);
    m_state->file = TIFFClientOpenExt("picture", isBig ? "w8" : "w", &device, readBytes, writeBytes, seekTo,
                                      closeNothing, sizeOf, nullptr, nullptr, options);
    TIFFOpenOptionsFree(options);
    m_state->require(m_state->file);
}

TiffWriter::~TiffWriter() {
    if (m_state->file) {
        TIFFClose(m_state->file);
    }
}

void TiffWriter::add(const Page& page, const QByteArray& rows) {
    TIFF* const file = m_state->file;
    TIFFSetField(file, TIFFTAG_IMAGEWIDTH, page.size.width());
    TIFFSetField(file, TIFFTAG_IMAGELENGTH, page.size.height());
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, page.bitsPerSample);
    TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, page.samples);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, page.samples == 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK);
    TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(file, TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, page.size.height());
    if (!page.description.isEmpty()) {
        TIFFSetField(file, TIFFTAG_IMAGEDESCRIPTION, page.description.toUtf8().constData());
    }
    // The library takes the bytes as they are, but asks for a pointer that it could write to.
    void* const bytes = const_cast<char*>(rows.constData());
    m_state->require(TIFFWriteEncodedStrip(file, 0, bytes, rows.size()) == rows.size());
    m_state->require(TIFFWriteDirectory(file));
}

void TiffWriter::close() {
    m_state->require(TIFFFlush(m_state->file));
    TIFFClose(m_state->file);
    m_state->file = nullptr;
}

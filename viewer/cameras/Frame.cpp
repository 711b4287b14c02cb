#include "viewer/cameras/Frame.h"

#include <algorithm>
#include <array>

namespace {

constexpr quint8 Marker = 0xA5;
constexpr int MarkerBits = 8;
constexpr int NumberBits = FrameStamp::Width - MarkerBits;

// Sets or reads single pixels of the three formats that frames have.
void setGrey(QImage& image, int x, int y, bool white, int bitDepth) {
    uchar* const line = image.scanLine(y);
    switch (image.format()) {
    case QImage::Format_Grayscale16:
        reinterpret_cast<quint16*>(line)[x] = white ? quint16((1 << bitDepth) - 1) : 0;
        break;
    case QImage::Format_RGB888:
        std::fill_n(line + 3 * x, 3, uchar(white ? 255 : 0));
        break;
    default:
        line[x] = white ? 255 : 0;
    }
}

// Light or dark: the bits of a stamp are full scale or 0, of whatever depth.
bool isLight(const QImage& image, int x, int y) {
    const uchar* const line = image.constScanLine(y);
    switch (image.format()) {
    case QImage::Format_Grayscale16:
        return reinterpret_cast<const quint16*>(line)[x] > 127;
    case QImage::Format_Grayscale8:
        return line[x] > 127;
    default:
        return qGray(image.pixel(x, y)) > 127;
    }
}

// Rows of three bits, from the top.
constexpr std::array<std::array<quint8, 5>, 10> Digits = {{{7, 5, 5, 5, 7},
                                                           {2, 6, 2, 2, 7},
                                                           {7, 1, 7, 4, 7},
                                                           {7, 1, 7, 1, 7},
                                                           {5, 5, 7, 1, 1},
                                                           {7, 4, 7, 1, 7},
                                                           {7, 4, 7, 5, 7},
                                                           {7, 1, 1, 1, 1},
                                                           {7, 5, 7, 5, 7},
                                                           {7, 5, 7, 1, 7}}};

void drawDigits(QImage& image, const QByteArray& text, int bitDepth) {
    constexpr int Columns = 4; // of a digit, with the gap
    constexpr int Rows = 7;    // with a margin above and below
    // Single pixels would get lost where a view shows a picture a little smaller than it is.
    const int scale = image.height() < 120 ? 1 : std::max(2, image.height() / 180);
    const int width = (text.size() * Columns + 1) * scale;
    if (width > image.width() || Rows * scale >= image.height()) {
        return;
    }
    const int top = image.height() - Rows * scale;
    for (int y = 0; y < Rows * scale; ++y) {
        const int row = y / scale - 1;
        for (int x = 0; x < width; ++x) {
            const int column = x / scale - 1;
            const bool inside = row >= 0 && row < 5 && column >= 0 && column % Columns < 3;
            const quint8 bits = inside ? Digits[size_t(text.at(column / Columns) - '0')][size_t(row)] : 0;
            setGrey(image, x, top + y, inside && (bits >> (2 - column % Columns) & 1) != 0, bitDepth);
        }
    }
}

} // namespace

QImage Frame::displayImage() const {
    if (image.format() != QImage::Format_Grayscale16) {
        return image;
    }
    QImage shown(image.size(), QImage::Format_Grayscale8);
    const int shift = bitDepth - 8;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const from = reinterpret_cast<const quint16*>(image.constScanLine(y));
        uchar* const to = shown.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            to[x] = uchar(from[x] >> shift);
        }
    }
    return shown;
}

void FrameStamp::write(QImage& image, quint32 number, int bitDepth) {
    if (image.width() < Width) {
        return;
    }
    const quint64 bits = quint64(Marker) << NumberBits | number;
    drawDigits(image, QByteArray::number(number), bitDepth);
    for (int x = 0; x < Width; ++x) {
        setGrey(image, x, 0, (bits >> (Width - 1 - x) & 1) != 0, bitDepth);
    }
}

QImage FrameStamp::scaled(const QImage& image, const QSize& size) {
    QImage result = image.scaled(size, Qt::KeepAspectRatio);
    if (result.height() > 1 && read(image)) {
        const int pixels = std::min(result.width(), Width * result.width() / image.width() + 1);
        std::copy_n(result.constScanLine(1), size_t(pixels) * size_t(result.depth() / 8), result.scanLine(0));
    }
    return result;
}

std::optional<quint32> FrameStamp::read(const QImage& image) {
    if (image.width() < Width || image.height() < 1) {
        return std::nullopt;
    }
    quint64 bits = 0;
    for (int x = 0; x < Width; ++x) {
        bits = bits << 1 | quint64(isLight(image, x, 0));
    }
    if (bits >> NumberBits != Marker) {
        return std::nullopt;
    }
    return quint32(bits);
}

#include "viewer/overlay/LogoImage.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtConcurrent>

namespace {

constexpr qint64 kMostPixels = 100000000; // a larger image takes seconds, however it is read
constexpr qint64 kMostBytes = 100000000;  // of an image that can't be made smaller on the way
constexpr qint64 kMostSmooth = 20000000;  // pixels; smoothing a larger one takes a multiple of its room

/// Whether a reader makes an image smaller on the way, and needs little more room than for the result.
bool shrinksWhileReading(const QImageReader& reader) {
    if (reader.format() == "jpeg") {
        return true;
    }
    const QImage::Format format = reader.imageFormat();
    const bool isDirect = format == QImage::Format_RGB32 || format == QImage::Format_ARGB32;
    if (reader.format() != "png" || !isDirect) {
        return false;
    }
    constexpr int kInterlace = 28; // where the header tells whether the rows come out of order
    QFile file(reader.fileName());
    return file.open(QIODevice::ReadOnly) && file.read(kInterlace + 1).endsWith('\0');
}

} // namespace

QImage LogoImage::read(const QString& path) {
    if (!QFileInfo(path).isFile()) {
        return QImage(); // a pipe or a device would be waited for
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // whatever the ending says
    const QSize size = reader.size();
    const QSize fitting =
        size.width() > LargestSide || size.height() > LargestSide
            ? size.scaled(LargestSide, LargestSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1))
            : size;
    if (qint64(size.width()) * size.height() > kMostPixels) {
        return QImage();
    }
    if (size.isEmpty() || size == fitting) {
        return reader.read();
    }
    if (shrinksWhileReading(reader)) {
        reader.setScaledSize(fitting);
        return reader.read();
    }
    const qint64 pixels = qint64(size.width()) * size.height();
    const int depth = reader.imageFormat() == QImage::Format_Invalid
                          ? 32
                          : QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    if (pixels * depth / 8 > kMostBytes) {
        return QImage();
    }
    return reader.read().scaled(fitting, Qt::IgnoreAspectRatio,
                                pixels > kMostSmooth ? Qt::FastTransformation : Qt::SmoothTransformation);
}

/// What several windows show is read once. GUI thread only.
QFuture<QImage> LogoImage::reading() const {
    struct Reading {
        QString path;
        QDateTime time;
        qint64 size;
        QFuture<QImage> image;
    };
    static QList<Reading> s_readings; // the latest ones
    constexpr int kMost = 4;
    for (const Reading& reading : qAsConst(s_readings)) {
        if (reading.path == m_path && reading.time == m_time && reading.size == m_size &&
            !(reading.image.isFinished() && reading.image.result().isNull())) {
            return reading.image;
        }
    }
    const QFuture<QImage> image = QtConcurrent::run([path = m_path] { return read(path); });
    s_readings = (QList<Reading>{{m_path, m_time, m_size, image}} + s_readings).mid(0, kMost);
    return image;
}

void LogoImage::start() {
    m_looked.start();
    m_isReading = true;
    m_reading = reading();
}

/// Notes what the file is like now.
bool LogoImage::hasChanged() {
    const QFileInfo file(m_path);
    const bool has =
        file.lastModified() != m_time || file.size() != m_size || file.isReadable() != m_isReadable;
    m_isReadable = file.isReadable();
    m_time = file.lastModified();
    m_size = file.size();
    return has;
}

bool LogoImage::follow(const QString& path) {
    bool isNew = false;
    if (path != m_path) {
        m_path = path;
        isNew = !m_image.isNull();
        m_image = QImage();
        isNew = isNew || m_isBroken;
        m_isBroken = false;
        m_isReading = false; // what was read for the other path is not asked for any more
        hasChanged();
        if (!path.isEmpty()) {
            start();
        }
    }
    if (m_isReading && m_reading.isFinished()) {
        m_isReading = false;
        isNew = isNew || !m_image.isNull() || !m_reading.result().isNull();
        m_image = m_reading.result();
        isNew = isNew || m_image.isNull() != m_isBroken;
        m_isBroken = m_image.isNull();
        if (m_isBroken) {
            qWarning().noquote() << QStringLiteral("The logo can't be shown: %1").arg(m_path);
        }
    } else if (!m_isReading && !m_path.isEmpty() && m_looked.hasExpired(CheckMs)) {
        m_looked.start();
        if (hasChanged()) {
            start();
        }
    }
    return isNew;
}

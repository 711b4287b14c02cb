#pragma once

#include "viewer/recordings/FrameList.h"
#include "viewer/recordings/RecordingCopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

/// Small recordings for tests: noise, so that a byte in the wrong place shows.
namespace sample {

/// Where a folder for a test is to be made: in memory, if there is such a place, for each file that is
/// written waits for the disk otherwise.
inline QString folderTemplate() {
    const QString memory = QStringLiteral("/dev/shm");
    const QString base = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    return base + QStringLiteral("/recordings-XXXXXX");
}

inline QImage image(const QSize& size, QImage::Format format, int bitDepth, quint32 seed) {
    QImage image(size, format);
    QRandomGenerator random(seed);
    const int words = size.width() * (format == QImage::Format_RGB888 ? 3 : 1);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < words; ++x) {
            if (format == QImage::Format_Grayscale16) {
                reinterpret_cast<quint16*>(image.scanLine(y))[x] = quint16(random.bounded(1U << bitDepth));
            } else {
                image.scanLine(y)[x] = uchar(random.bounded(256U));
            }
        }
    }
    return image;
}

inline RecordingInfo info() {
    RecordingInfo info;
    info.id = QStringLiteral("SN-1/1/1/2024");
    info.camera = QStringLiteral("Mono \u00b5");
    info.device = QStringLiteral("M1");
    info.headName = QStringLiteral("L");
    info.head = 2;
    info.serial = QStringLiteral("SN-1");
    info.partition = 3;
    info.triggered = QDateTime(QDate(2024, 2, 29), QTime(23, 59, 59, 987));
    info.ended = info.triggered.addMSecs(1234);
    info.rate = 4000000000U;
    info.shutter = 2000;
    info.area = QRect(8, 16, 640, 480);
    info.bitDepth = 12;
    info.triggerIndex = 1;
    info.firstNumber = 4294967290U;
    info.recordedFrames = 3276;
    info.triggerMode = 5;
    info.items.add({QStringLiteral("Load"), QStringLiteral("9 \u00b5"), QStringLiteral("kN"), true, false});
    info.comment = QString::fromUtf8("<b>\xd7\xa9</b>\n\xf0\x9f\x93\xb7");
    info.logoPath = QStringLiteral("/tmp/logo \u00e4.png");
    info.timeCode = TimeCodeSetting();
    info.timeCode->oneFrame = -0.25;
    info.marks = {0, 2};
    info.others = {{QStringLiteral("newer"), QJsonObject{{QStringLiteral("deep"), 1.5}}}};
    return info;
}

inline FrameList frames(int count, const QSize& size = QSize(5, 3),
                        QImage::Format format = QImage::Format_Grayscale16, int bitDepth = 12) {
    QVector<QImage> images;
    for (int i = 0; i < count; ++i) {
        images.append(image(size, format, bitDepth, quint32(i)));
    }
    RecordingInfo info = sample::info();
    info.bitDepth = bitDepth;
    return {info, images};
}

inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("The test can't write its file.");
    }
}

} // namespace sample

#include "viewer/documents/Clip.h"

#include "livecontrol/foundation/APP_Exception.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/prefs/WholeFile.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtEndian>

namespace {
constexpr quint32 kMagic = 0x5a434c50; // "ZCLP"
constexpr quint16 kPlain = 1;
constexpr quint16 kWithItems = 2; // what has none stays readable for older programs
constexpr int kMaxSide = 16384;   // pixels; a larger size in a file is a damaged file
constexpr int kMaxFrames = 1000000;

bool isFrameFormat(QImage::Format format) {
    return format == QImage::Format_Grayscale8 || format == QImage::Format_Grayscale16 ||
           format == QImage::Format_RGB888;
}

/// The frames are worth more than the items beside them: what is no list of items is left out, with a line in
/// the log. As many are read as were written; the file itself bounds what a damaged length can ask for.
QVariantList readItems(QDataStream& in, const QString& path) {
    QByteArray text;
    in >> text;
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (!document.isArray()) {
        qWarning().noquote() << path << ": the custom items can't be read:" << error.errorString();
    }
    return document.array().toVariantList();
}

QByteArray packed(const QImage& image) {
    const int bytes = image.width() * image.depth() / 8;
    QByteArray pixels;
    pixels.reserve(bytes * image.height());
    for (int y = 0; y < image.height(); ++y) {
        pixels.append(reinterpret_cast<const char*>(image.constScanLine(y)), bytes);
    }
    return qCompress(pixels, 1);
}

/// What `fill` puts into a stream.
template <class Fill>
QByteArray streamed(const Fill& fill) {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    fill(out);
    return bytes;
}

QImage readFrame(QDataStream& in, const QSize& size, QImage::Format format) {
    QByteArray packed;
    in >> packed;
    QImage image(size, format);
    const int bytes = image.width() * image.depth() / 8;
    // The first four bytes of the packed form are the length, which must be right before anything is
    // unpacked.
    if (image.isNull() || packed.size() < 4 ||
        qFromBigEndian<quint32>(packed.constData()) != quint32(bytes) * quint32(size.height())) {
        return QImage();
    }
    const QByteArray pixels = qUncompress(packed);
    if (pixels.size() != bytes * size.height()) {
        return QImage();
    }
    for (int y = 0; y < size.height(); ++y) {
        memcpy(image.scanLine(y), pixels.constData() + y * bytes, size_t(bytes));
    }
    return image;
}
} // namespace

Clip Clip::fromMemory(CameraHead& head, int maxFrames) {
    const Recording& recording = head.recording();
    Clip clip;
    if (recording.isEmpty()) {
        return clip;
    }
    clip.cameraName = head.fullName();
    clip.deviceName = head.model().title;
    clip.time = QDateTime::currentDateTime();
    clip.rate = recording.settings.rate;
    clip.shutter = recording.settings.shutter;
    clip.bitDepth = head.model().bitDepth;
    const int count = qMin(maxFrames, recording.frames);
    const int first = qBound(0, recording.triggerIndex() - count / 2, recording.frames - count);
    clip.triggerIndex = recording.triggerIndex() - first;
    clip.frames.reserve(count);
    for (int i = 0; i < count; ++i) {
        clip.frames.append(head.memoryFrame(first + i).image);
    }
    return clip;
}

Clip Clip::load(const QString& path) {
    QFile file(path);
    QDataStream in(&file);
    in.setVersion(QDataStream::Qt_5_15);
    quint32 magic = 0;
    quint16 version = 0;
    if (!file.open(QIODevice::ReadOnly) ||
        (in >> magic >> version, magic != kMagic || version < kPlain || version > kWithItems)) {
        throw DOC_ReadFileException(path);
    }
    Clip clip;
    QSize size;
    qint32 format = 0;
    qint32 count = 0;
    qint32 depth = 0;
    qint32 trigger = 0;
    in >> clip.cameraName >> clip.deviceName >> clip.time >> clip.rate >> clip.shutter >> depth >> trigger >>
        size >> format >> count;
    const bool plausible = in.status() == QDataStream::Ok && isFrameFormat(QImage::Format(format)) &&
                           size.width() > 0 && size.height() > 0 && size.width() <= kMaxSide &&
                           size.height() <= kMaxSide && count > 0 && count <= kMaxFrames && depth >= 8 &&
                           depth <= 16;
    if (!plausible) {
        throw DOC_ReadFileException(path);
    }
    if (version == kWithItems) {
        clip.items.setList(readItems(in, path));
    }
    clip.bitDepth = depth;
    clip.triggerIndex = qBound(0, trigger, count - 1);
    for (int i = 0; i < count; ++i) {
        clip.frames.append(readFrame(in, size, QImage::Format(format)));
        if (in.status() != QDataStream::Ok || clip.frames.last().isNull()) {
            throw DOC_ReadFileException(path);
        }
    }
    return clip;
}

void Clip::save(const QString& path) const {
    const QString failed = QStringLiteral("File write failed.");
    if (frames.isEmpty()) {
        throw DOC_FileException(failed, path, 0);
    }
    WholeFile file(path);
    bool goesOn = file.write(streamed([this](QDataStream& out) {
        out << kMagic << (items.isEmpty() ? kPlain : kWithItems) << cameraName << deviceName << time << rate
            << shutter << qint32(bitDepth) << qint32(triggerIndex) << frames.first().size()
            << qint32(frames.first().format()) << qint32(frames.size());
        if (!items.isEmpty()) {
            out << QJsonDocument(QJsonArray::fromVariantList(items.toList())).toJson(QJsonDocument::Compact);
        }
    }));
    for (int i = 0; goesOn && i < frames.size(); ++i) {
        goesOn = file.write(streamed([&](QDataStream& out) { out << packed(frames.at(i)); }));
    }
    const QString reason = file.commit();
    if (!reason.isEmpty()) {
        throw DOC_FileException(failed, path, 0, reason);
    }
}

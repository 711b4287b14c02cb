#include "viewer/recordings/ClipFile.h"

#include "viewer/recordings/Container.h"
#include "viewer/recordings/FrameList.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/TimeCodeRecord.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtEndian>

#include <cerrno>

namespace {

constexpr quint32 kMagic = 0x5a434c50; // "ZCLP"
constexpr quint16 kFirst = 1;
constexpr quint16 kWithItems = 2;
constexpr quint16 kWithNotes = 3; // the items and what else was noted, each under its name
constexpr int kMaxSide = 16384;   // pixels; a larger size in a file is a damaged file
constexpr int kMaxFrames = 1000000;

[[noreturn]] void fail(const QString& path, const Reason& why) {
    throw RecordingError(RecordingError::While::Reading, path, why);
}

bool isFrameFormat(int format) {
    return format == QImage::Format_Grayscale8 || format == QImage::Format_Grayscale16 ||
           format == QImage::Format_RGB888;
}

/// The frames are worth more than the items beside them: what is no list of items is left out, with a line in
/// the log. The file itself bounds what a damaged length can ask for.
void readNotes(QDataStream& in, quint16 version, const QString& path, RecordingInfo& info) {
    QByteArray text;
    in >> text;
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (version == kWithItems ? !document.isArray() : !document.isObject()) {
        qWarning().noquote() << path << ": the custom items can't be read:" << error.errorString();
        return;
    }
    const QJsonObject notes = document.object();
    const QJsonArray items =
        version == kWithItems ? document.array() : notes.value(QLatin1String("items")).toArray();
    info.items.setList(items.toVariantList());
    info.comment = notes.value(QLatin1String("comment")).toString();
    info.logoPath = notes.value(QLatin1String("logo")).toString();
    info.ended = QDateTime::fromString(notes.value(QLatin1String("end")).toString(), Qt::ISODateWithMs);
    info.triggerMode = notes.value(QLatin1String("triggerMode")).toInt(-1);
    const QJsonValue timeCode = notes.value(QLatin1String("timeCode"));
    if (timeCode.isObject()) {
        info.timeCode = TimeCodeRecord::fromMap(timeCode.toObject().toVariantMap());
    }
}

quint16 readVersion(QDataStream& in, const QString& path) {
    quint32 magic = 0;
    quint16 version = 0;
    in >> magic >> version;
    if (magic != kMagic || version < kFirst) {
        fail(path, reason("The file is no recording."));
    }
    if (version > kWithNotes) {
        fail(path, reason("The recording was saved by a newer program."));
    }
    return version;
}

QImage readFrame(QDataStream& in, const QSize& size, QImage::Format format) {
    QByteArray packed;
    in >> packed;
    const qint64 bytes = qint64(size.width()) * (format == QImage::Format_RGB888        ? 3
                                                 : format == QImage::Format_Grayscale16 ? 2
                                                                                        : 1);
    const qint64 all = bytes * size.height();
    // The first four bytes of the packed form are the length, which must be right before anything is
    // unpacked.
    if (all > Container::kMaxFrameBytes || packed.size() < 4 ||
        qFromBigEndian<quint32>(packed.constData()) != quint32(all)) {
        return QImage();
    }
    const QByteArray pixels = qUncompress(packed);
    if (pixels.size() != all) {
        return QImage();
    }
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        memcpy(image.scanLine(y), pixels.constData() + y * bytes, size_t(bytes));
    }
    return image;
}

} // namespace

bool ClipFile::is(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(4) == "ZCLP";
}

FrameSourcePtr ClipFile::load(const QString& path) {
    QFile file(path);
    QDataStream in(&file);
    in.setVersion(QDataStream::Qt_5_15);
    if (!file.open(QIODevice::ReadOnly)) {
        throw RecordingError::unreadable(path, ENOENT);
    }
    const quint16 version = readVersion(in, path);
    RecordingInfo info;
    QSize size;
    qint32 format = 0;
    qint32 count = 0;
    qint32 depth = 0;
    qint32 trigger = 0;
    in >> info.camera >> info.device >> info.triggered >> info.rate >> info.shutter >> depth >> trigger >>
        size >> format >> count;
    const Reason damaged = reason("The recording is damaged, or a part of it is missing.");
    const bool plausible = in.status() == QDataStream::Ok && isFrameFormat(format) && !size.isEmpty() &&
                           size.width() <= kMaxSide && size.height() <= kMaxSide && count > 0 &&
                           count <= kMaxFrames && depth >= 8 && depth <= 16;
    if (!plausible) {
        fail(path, damaged);
    }
    if (version >= kWithItems) {
        readNotes(in, version, path, info);
    }
    info.bitDepth = depth;
    info.triggerIndex = qBound(0, trigger, count - 1);
    QVector<QImage> images;
    for (int i = 0; i < count; ++i) {
        images.append(readFrame(in, size, QImage::Format(format)));
        if (in.status() != QDataStream::Ok || images.last().isNull()) {
            fail(path, damaged);
        }
    }
    return std::make_shared<FrameList>(info, images);
}

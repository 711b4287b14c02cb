#include "viewer/documents/Clip.h"

#include "livecontrol/foundation/APP_Exception.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Reason.h"
#include "viewer/prefs/AtomicFile.h"
#include "viewer/recordings/TimeCodeRecord.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

namespace {
constexpr quint32 kMagic = 0x5a434c50; // "ZCLP"
constexpr quint16 kPlain = 1;
constexpr quint16 kWithItems = 2; // what has none stays readable for older programs
constexpr quint16 kWithNotes = 3; // the items and what else was noted, each under its name
constexpr int kMaxSide = 16384;   // pixels; a larger size in a file is a damaged file
constexpr int kMaxFrames = 1000000;

bool isFrameFormat(QImage::Format format) {
    return format == QImage::Format_Grayscale8 || format == QImage::Format_Grayscale16 ||
           format == QImage::Format_RGB888;
}

/// English, as the log has it; whoever shows it translates. The exception's own line in the log has no
/// reason.
QString logged(const QString& path, const QString& reason) {
    qCritical().noquote() << QStringLiteral("%1: %2").arg(path, reason);
    return reason;
}

[[noreturn]] void failRead(const QString& path, const QString& reason) {
    throw DOC_ReadFileException(path, logged(path, reason));
}

[[noreturn]] void failWrite(const QString& path, const QString& reason) {
    throw DOC_FileException(QStringLiteral("File write failed."), path, 0, logged(path, reason));
}

// What Qt says of a file that it can't open is in the language of the program, or of the system, and may name
// the path once more. So what happens to a user has words here.

QString whyUnreadable(const QFile& file) {
    const QFileInfo info(file);
    return info.isDir()         ? reason("It is a folder.").english()
           : !info.exists()     ? reason("The file does not exist.").english()
           : !info.isReadable() ? reason("There is no permission to read it.").english()
                                : file.errorString();
}

QString whyUnwritable(const QString& path, const QString& failure) {
    const QFileInfo info(path);
    const QFileInfo folder(info.absolutePath());
    return info.isDir()      ? reason("It is a folder.").english()
           : !folder.isDir() ? reason("The folder does not exist.").english()
           : !folder.isWritable() || (info.exists() && !info.isWritable())
               ? reason("There is no permission to write there.").english()
               : failure;
}

/// The frames are worth more than the items beside them: what is no list of items is left out, with a line in
/// the log. As many are read as were written; the file itself bounds what a damaged length can ask for.
void readNotes(QDataStream& in, quint16 version, const QString& path, Clip& clip) {
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
    clip.items.setList(items.toVariantList());
    clip.comment = notes.value(QLatin1String("comment")).toString();
    clip.logoPath = notes.value(QLatin1String("logo")).toString();
    clip.end = QDateTime::fromString(notes.value(QLatin1String("end")).toString(), Qt::ISODateWithMs);
    clip.triggerMode = notes.value(QLatin1String("triggerMode")).toInt(-1);
    const QJsonValue timeCode = notes.value(QLatin1String("timeCode"));
    if (timeCode.isObject()) {
        clip.timeCode = TimeCodeRecord::fromMap(timeCode.toObject().toVariantMap());
    }
}

/// What readNotes() reads; empty if there is nothing to be kept.
QByteArray notesOf(const Clip& clip, quint16 version) {
    const QJsonArray items = QJsonArray::fromVariantList(clip.items.toList());
    QJsonObject notes{{QStringLiteral("items"), items},
                      {QStringLiteral("comment"), clip.comment},
                      {QStringLiteral("logo"), clip.logoPath},
                      {QStringLiteral("end"), clip.end.toString(Qt::ISODateWithMs)},
                      {QStringLiteral("triggerMode"), clip.triggerMode}};
    if (clip.timeCode) {
        notes[QStringLiteral("timeCode")] =
            QJsonObject::fromVariantMap(TimeCodeRecord::toMap(*clip.timeCode));
    }
    switch (version) {
    case kPlain:
        return {};
    case kWithItems:
        return QJsonDocument(items).toJson(QJsonDocument::Compact);
    default:
        return QJsonDocument(notes).toJson(QJsonDocument::Compact);
    }
}

quint16 versionOf(const Clip& clip) {
    const bool isNoted = !clip.comment.isEmpty() || !clip.logoPath.isEmpty() || clip.end.isValid() ||
                         clip.triggerMode >= 0 || clip.timeCode;
    return isNoted ? kWithNotes : clip.items.isEmpty() ? kPlain : kWithItems;
}

quint16 readVersion(QDataStream& in, const QString& path) {
    quint32 magic = 0;
    quint16 version = 0;
    in >> magic >> version;
    if (magic != kMagic || version < kPlain) {
        failRead(path, reason("The file is no recording.").english());
    }
    if (version > kWithNotes) {
        failRead(path, reason("The recording was saved by a newer program.").english());
    }
    return version;
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

Clip Clip::fromMemory(CameraHead& head, int maxFrames, const QDateTime& end) {
    const Recording& recording = head.recording();
    Clip clip;
    if (recording.isEmpty()) {
        return clip;
    }
    clip.cameraName = head.fullName();
    clip.deviceName = head.model().title;
    clip.end = end.isValid() ? end : QDateTime::currentDateTime();
    clip.time = clip.end.addMSecs(-(recording.triggerToEnd(0) / 1000000));
    clip.triggerMode = recording.settings.triggerMode;
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
    if (!file.open(QIODevice::ReadOnly)) {
        failRead(path, whyUnreadable(file));
    }
    const quint16 version = readVersion(in, path);
    const QString damaged = reason("The recording is damaged, or a part of it is missing.").english();
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
        failRead(path, damaged);
    }
    if (version >= kWithItems) {
        readNotes(in, version, path, clip);
    }
    clip.bitDepth = depth;
    clip.triggerIndex = qBound(0, trigger, count - 1);
    for (int i = 0; i < count; ++i) {
        clip.frames.append(readFrame(in, size, QImage::Format(format)));
        if (in.status() != QDataStream::Ok || clip.frames.last().isNull()) {
            failRead(path, damaged);
        }
    }
    return clip;
}

void Clip::save(const QString& path) const {
    if (frames.isEmpty()) {
        failWrite(path, reason("The recording holds no frames.").english());
    }
    AtomicFile file(path);
    bool goesOn = file.write(streamed([this](QDataStream& out) {
        const quint16 version = versionOf(*this);
        out << kMagic << version << cameraName << deviceName << time << rate << shutter << qint32(bitDepth)
            << qint32(triggerIndex) << frames.first().size() << qint32(frames.first().format())
            << qint32(frames.size());
        if (version != kPlain) {
            out << notesOf(*this, version);
        }
    }));
    for (int i = 0; goesOn && i < frames.size(); ++i) {
        goesOn = file.write(streamed([&](QDataStream& out) { out << packed(frames.at(i)); }));
    }
    const QString failure = file.commit();
    if (!failure.isEmpty()) {
        failWrite(path, whyUnwritable(path, failure));
    }
}

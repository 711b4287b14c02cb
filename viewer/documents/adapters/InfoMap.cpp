#include "viewer/documents/adapters/InfoMap.h"

#include "livecontrol/foundation/UTL_Format.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/messages/Translated.h"

#include <QFileInfo>

namespace {

constexpr int kByte = 8; // bits

QString yesNo(bool yes) { return yes ? QStringLiteral("true") : QStringLiteral("false"); }

/// What a partition holds, or would.
struct Content {
    qint64 frames = 0;
    QSize size;
    int bytesPerPixel = 1;
    bool isCurrent = true;
};

QVariantMap partitionMap(const Document& document, const Content& content) {
    const quint64 bytes = quint64(content.frames) * quint64(content.size.width()) *
                          quint64(content.size.height()) * quint64(content.bytesPerPixel);
    const QString frames = document.list().displayFormat().frames(content.frames);
    return {{QStringLiteral("totalframesplain"), QString::number(content.frames)},
            {QStringLiteral("totalframes"), frames},
            {QStringLiteral("exportframes"), frames},
            {QStringLiteral("currentpartition"), yesNo(content.isCurrent)},
            {QStringLiteral("resolution"),
             QStringLiteral("%1 x %2").arg(content.size.width()).arg(content.size.height())},
            {QStringLiteral("capacity"), QString::number(bytes)},
            {QStringLiteral("capacitylabel"), formatFileSize(bytes)}};
}

int bytesPerPixel(int bitDepth, bool isColor) { return (bitDepth > kByte ? 2 : 1) * (isColor ? 3 : 1); }

void addDateTime(QVariantMap& map, const QDateTime& time) {
    if (time.isValid()) {
        map[QStringLiteral("date")] = time.toString(QStringLiteral("yyyy/M/d"));
        map[QStringLiteral("time")] = time.toString(QStringLiteral("HH:mm:ss"));
    }
}

void addCamera(QVariantMap& map, const Document& document) {
    CameraBody& body = *document.body();
    const CameraHead& head = *document.head();
    map[QStringLiteral("cameraname")] = document.title();
    map[QStringLiteral("ipaddress")] = body.address();
    map[QStringLiteral("serialno")] = body.serial();
    map[QStringLiteral("devicename")] = head.model().title;
    const bool isLive = document.list().mode() == HOST_MODE_LIVE;
    const int pixel = bytesPerPixel(head.model().bitDepth, head.model().color);
    QVariantList partitions;
    for (int number = 1; number <= body.partitionCount(); ++number) {
        const bool isCurrent = number == body.partition();
        const Recording recording = head.recording(number);
        // Live there is the picture that shows, and nothing else to save.
        partitions << partitionMap(
            document, isLive ? Content{1, head.settings().resolution, pixel, isCurrent}
                             : Content{recording.frames, recording.settings.resolution, pixel, isCurrent});
    }
    map[QStringLiteral("partitions")] = partitions;
    if (const auto* const camera = dynamic_cast<const CameraDocument*>(&document)) {
        addDateTime(map, camera->recordingEnd());
    }
}

void addFile(QVariantMap& map, const FileDocument& file) {
    const RecordingInfo& info = file.source()->info();
    map[QStringLiteral("filename")] =
        file.path().isEmpty() ? file.title() : QFileInfo(file.path()).fileName();
    map[QStringLiteral("filepath")] = file.path();
    map[QStringLiteral("devicename")] = info.device;
    map[QStringLiteral("cameraname")] = info.camera;
    map[QStringLiteral("shutterspeed")] = translated(file.list().shutterFormat().ofCamera(info.shutter));
    addDateTime(map, info.triggered);
    if (const auto& drive = file.drive()) {
        map[QStringLiteral("drivename")] = drive->drive;
        map[QStringLiteral("serialno")] = drive->serial;
        map[QStringLiteral("datano")] = drive->dataNo;
    }
    const Content content{file.recordedFrames(), file.imageSize(), bytesPerPixel(info.bitDepth, info.color),
                          true};
    map[QStringLiteral("partitions")] = QVariantList{partitionMap(file, content)};
}

} // namespace

QVariantMap infoMap(const Document& document) {
    QVariantMap map;
    map[QStringLiteral("dockey")] = QString::number(document.key());
    map[QStringLiteral("selected")] = yesNo(document.isSelected());
    map[QStringLiteral("name")] = document.title();
    map[QStringLiteral("Comments")] = document.comment();
    const quint32 rate = document.head() && document.list().mode() == HOST_MODE_LIVE
                             ? document.head()->settings().rate
                             : document.recordedRate();
    map[QStringLiteral("recordrate")] = document.list().displayFormat().rate(rate);
    for (const CustomItem& item : document.customItems().items()) {
        map[QStringLiteral("Custom_") + item.name] = item.value;
    }
    if (document.kind() == Document::Kind::File) {
        addFile(map, static_cast<const FileDocument&>(document));
    } else if (document.head()) {
        addCamera(map, document);
    }
    return map;
}

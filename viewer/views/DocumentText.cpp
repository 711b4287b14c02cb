#include "viewer/views/DocumentText.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/ShutterFormat.h"
#include "viewer/messages/Translated.h"
#include "viewer/overlay/InfoFacts.h"
#include "viewer/overlay/InfoText.h"

#include <QLocale>

namespace {

struct ShownSettings {
    quint32 rate = 0;
    quint32 shutter = 0;
    QSize resolution;
};

// With what the picture that shows was taken: the settings in force, or those of the recording.
ShownSettings shownSettings(const Document& document) {
    if (document.kind() == Document::Kind::File) {
        const Clip& clip = static_cast<const FileDocument&>(document).clip();
        return {clip.rate, clip.shutter, document.imageSize()};
    }
    const CameraHead& head = *document.head();
    const bool replay = document.list().mode() == HOST_MODE_MEMORY && document.recordedFrames() > 0;
    const HeadSettings& settings = replay ? head.recording().settings : head.settings();
    return {settings.rate, settings.liveShutter(), settings.resolution};
}

} // namespace

QString DocumentText::state(const Document& document) {
    if (document.kind() == Document::Kind::File) {
        return document.isPlaying() ? translated("Replay") : translated("File");
    }
    if (!document.isConnected()) {
        return translated("Disconnected");
    }
    if (document.list().mode() == HOST_MODE_MEMORY) {
        return document.isPlaying() ? translated("Replay") : translated("Memory");
    }
    return cameraState(document.body()->state());
}

QString DocumentText::cameraState(CameraState state) {
    switch (state) {
    case CameraState::Off:
        return translated("Off");
    case CameraState::Booting:
        return translated("Booting");
    case CameraState::Live:
        return translated("Live");
    case CameraState::WaitingReady:
        return translated("Getting ready");
    case CameraState::Ready:
        return translated("Ready");
    case CameraState::Recording:
        return translated("Recording");
    case CameraState::Memory:
        return translated("Memory");
    }
    return QString();
}

QString DocumentText::shutter(quint32 value) {
    return ShutterFormat{ShutterFormat::CameraUnit, true}.text(value);
}

QString DocumentText::rate(quint32 value) {
    return QStringLiteral("%1 %2").arg(QLocale().toString(value), translated("fps"));
}

QString DocumentText::resolution(const QSize& size) {
    return QStringLiteral("%1 \u00d7 %2").arg(size.width()).arg(size.height());
}

QStringList DocumentText::facts(const Document& document) {
    const ShownSettings shown = shownSettings(document);
    if (shown.resolution.isEmpty()) {
        return {};
    }
    const DisplayFormat format = document.list().displayFormat();
    return {QStringLiteral("%1 %2").arg(format.rate(shown.rate), translated("fps")),
            translated(format.shutter.ofCamera(shown.shutter)), resolution(shown.resolution)};
}

QString DocumentText::position(const Document& document) {
    const int offset = document.playPosition() - document.triggerIndex();
    const DisplayFormat format = document.list().displayFormat();
    return QStringLiteral("%1 / %2  (T%3%4)")
        .arg(format.frames(document.playPosition() + 1), format.frames(document.recordedFrames()),
             offset < 0 ? QStringLiteral("\u2212") : QStringLiteral("+"), format.frames(qAbs(offset)));
}

QStringList DocumentText::notes(const Document& document) {
    QStringList lines;
    for (const InfoLine& line : InfoText::notes(InfoFacts::of(document))) {
        lines += line.text;
    }
    return lines;
}

#include "viewer/views/DocumentText.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/ShutterFormat.h"
#include "viewer/messages/Translated.h"
#include "viewer/overlay/InfoFacts.h"

#include <QLocale>

namespace {

/// Of milliseconds, with as many decimals as can be read while they run.
QString seconds(double ms) { return QString::number(ms / 1000, 'f', ms < 1000 ? 4 : ms < 10000 ? 2 : 0); }

/// Behind the state: how far the ring has filled, or how long a shot will take.
QString progressText(const CameraHead& head, const DisplayFormat& format) {
    const ShotProgress shot = head.shotProgress();
    if (shot.wantedBefore > 0) {
        return QStringLiteral(", ") + translated("%1 of %2 before the trigger")
                                          .arg(format.frames(shot.before), format.frames(shot.wantedBefore));
    }
    return shot.restMs > 0 ? QStringLiteral(", ") + translated("%1 s left").arg(seconds(shot.restMs))
                           : QString();
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
    const CameraState state = document.body()->state();
    const bool waits =
        state == CameraState::Live || state == CameraState::WaitingReady || state == CameraState::Ready;
    // By it a recording starts without anybody's doing.
    const bool isObserved = waits && document.head() && document.head()->settings().imageTrigger.on;
    const QString word =
        isObserved ? translated("%1, image trigger on").arg(cameraState(state)) : cameraState(state);
    return document.head() ? word + progressText(*document.head(), document.list().displayFormat()) : word;
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
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QStringList DocumentText::facts(const Document& document) {
    const InfoFacts facts = InfoFacts::of(document);
    if (facts.resolution.isEmpty()) {
        return {};
    }
    const DisplayFormat format = document.list().displayFormat();
    return {QStringLiteral("%1 %2").arg(format.rate(facts.rate), translated("fps")),
            translated(format.shutter.ofCamera(facts.shutter)), resolution(facts.resolution)};
}

QString DocumentText::position(const Document& document) {
    const int offset = document.playPosition() - document.triggerIndex();
    const DisplayFormat format = document.list().displayFormat();
    const quint32 rate = document.recordedRate();
    const auto time = [rate](int frames) {
        return rate > 0 ? QStringLiteral(", ") + translated("%1 s").arg(seconds(1000.0 * frames / rate))
                        : QString();
    };
    return QStringLiteral("%1 / %2%5  (T%3%4%6)")
        .arg(format.frames(document.playPosition() + 1), format.frames(document.recordedFrames()),
             offset < 0 ? QStringLiteral("\u2212") : QStringLiteral("+"), format.frames(qAbs(offset)),
             time(document.recordedFrames()), time(qAbs(offset)));
}

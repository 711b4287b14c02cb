#include "viewer/views/DocumentText.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/ShutterFormat.h"
#include "viewer/messages/Translated.h"
#include "viewer/overlay/InfoFacts.h"

#include <QLocale>

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
    return waits && document.head() && document.head()->settings().imageTrigger.on
               ? translated("%1, image trigger on").arg(cameraState(state))
               : cameraState(state);
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
    return QStringLiteral("%1 / %2  (T%3%4)")
        .arg(format.frames(document.playPosition() + 1), format.frames(document.recordedFrames()),
             offset < 0 ? QStringLiteral("\u2212") : QStringLiteral("+"), format.frames(qAbs(offset)));
}

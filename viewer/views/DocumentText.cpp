#include "viewer/views/DocumentText.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/ShutterFormat.h"
#include "viewer/messages/Translated.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

/// The lines of a text as its writer broke them, in whatever way: a note is one line high only if it is one.
/// Blank lines at the end are left out, since they would take room from what follows.
QStringList linesOf(const QString& text) {
    static const QRegularExpression kBreak(
        QStringLiteral("\\{Separator\\}|\r\n|[\n\v\f\r\u0085\u2028\u2029]"));
    QStringList lines = text.split(kBreak);
    for (QString& line : lines) {
        line.replace(QLatin1Char('\t'), QLatin1Char(' '));
    }
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

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

QString DocumentText::number(quint32 frameNumber) { return translated("Frame %1").arg(frameNumber); }

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

QStringList DocumentText::state(const Document& document, quint32 frameNumber) {
    QStringList lines{document.title()};
    lines += facts(document);
    lines += number(frameNumber);
    if (document.list().mode() != HOST_MODE_LIVE && document.recordedFrames() > 0) {
        lines += position(document);
    }
    return lines;
}

QStringList DocumentText::notes(const Document& document) {
    QStringList lines = linesOf(document.comment());
    for (const CustomItem& item : document.customItems().items()) {
        if (item.display) {
            lines += linesOf(QStringLiteral("%1: %2 %3").arg(item.name, item.value, item.unit).trimmed());
        }
    }
    return lines;
}

QStringList DocumentText::fitted(const QStringList& lines, int room) {
    if (lines.size() <= room) {
        return lines;
    }
    if (room <= 0) {
        return {};
    }
    QStringList shown = lines.mid(0, qMax(1, room - 1));
    const QString more = QStringLiteral("\u2026 (+%1)").arg(lines.size() - shown.size());
    if (room > 1) {
        shown += more;
    } else {
        shown.first() += QLatin1Char(' ') + more;
    }
    return shown;
}

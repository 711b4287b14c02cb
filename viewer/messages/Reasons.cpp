#include "viewer/messages/Reasons.h"

#include "viewer/messages/Translated.h"

#include <QRegularExpression>

namespace {

/// The more particular ones first.
constexpr const char* kTemplates[] = {
    QT_TRANSLATE_NOOP("zel4", "\"%1\": %2"),
    QT_TRANSLATE_NOOP("zel4", "no link to the camera"),
    QT_TRANSLATE_NOOP("zel4", "the camera does not answer"),
    QT_TRANSLATE_NOOP("zel4", "the lens doesn't answer"),
    QT_TRANSLATE_NOOP("zel4", "the lens doesn't drive this"),
    QT_TRANSLATE_NOOP("zel4", "this camera has no lens of its own"),
    QT_TRANSLATE_NOOP("zel4", "settings can't change in the state \"%1\""),
    QT_TRANSLATE_NOOP("zel4", "not possible in the state \"%1\""),
    QT_TRANSLATE_NOOP("zel4", "took %1 instead"),
    QT_TRANSLATE_NOOP("zel4", "preset %1 holds nothing"),
    QT_TRANSLATE_NOOP("zel4", "there is no preset %1"),
    QT_TRANSLATE_NOOP("zel4", "channel %1 holds nothing"),
    QT_TRANSLATE_NOOP("zel4", "there is no channel %1"),
    QT_TRANSLATE_NOOP("zel4", "there is no partition %1"),
    QT_TRANSLATE_NOOP("zel4", "this camera has no trigger mode %1"),
    QT_TRANSLATE_NOOP("zel4", "not with a dual slope shutter"),
    QT_TRANSLATE_NOOP("zel4", "not at this frame rate"),
    QT_TRANSLATE_NOOP("zel4", "low light is on"),
    QT_TRANSLATE_NOOP("zel4", "nothing is recorded"),
    QT_TRANSLATE_NOOP("zel4", "a dummy has no settings"),
    QT_TRANSLATE_NOOP("zel4", "another camera has this name"),
    QT_TRANSLATE_NOOP("zel4", "another camera has the address %1"),
    QT_TRANSLATE_NOOP("zel4", "there is no access point in row %1"),
    QT_TRANSLATE_NOOP("zel4", "the access point can't be found any more"),
    QT_TRANSLATE_NOOP("zel4", "The camera is busy."),
    QT_TRANSLATE_NOOP("zel4", "the file is empty"),
    QT_TRANSLATE_NOOP("zel4", "this is no camera settings file"),
    QT_TRANSLATE_NOOP("zel4", "the file has version %1, and this program reads version %2"),
    QT_TRANSLATE_NOOP("zel4", "the key \"%1\" is missing"),
    QT_TRANSLATE_NOOP("zel4", "an object is expected"),
    QT_TRANSLATE_NOOP("zel4", "must not be empty"),
    QT_TRANSLATE_NOOP("zel4", "must be from %1 to %2"),
    QT_TRANSLATE_NOOP("zel4", "must be a whole number from %1 to %2"),
    QT_TRANSLATE_NOOP("zel4", "whole numbers from %1 to %2 are expected"),
    QT_TRANSLATE_NOOP("zel4", "at least one is expected"),
    QT_TRANSLATE_NOOP("zel4", "[width, height] in pixels is expected"),
    QT_TRANSLATE_NOOP("zel4", "[x, y, width, height] is expected"),
    QT_TRANSLATE_NOOP("zel4", "[iris, focus, zoom] is expected"),
    QT_TRANSLATE_NOOP("zel4", "another camera is being focused"),
    QT_TRANSLATE_NOOP("zel4", "the recording ended the autofocus"),
    QT_TRANSLATE_NOOP("zel4", "this camera has no %1"),
    QT_TRANSLATE_NOOP("zel4", "%1 is expected"),
};

/// Matches what a template may have become.
QRegularExpression patternOf(const QString& text) {
    QString pattern = QRegularExpression::escape(text);
    for (const char* const place : {"%1", "%2"}) {
        pattern.replace(QRegularExpression::escape(QLatin1String(place)), QStringLiteral("(.*)"));
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

} // namespace

QString translatedReason(const QString& english) {
    for (const char* const text : kTemplates) {
        const auto match = patternOf(QString::fromUtf8(text)).match(english);
        if (!match.hasMatch()) {
            continue;
        }
        switch (match.lastCapturedIndex()) {
        case 0:
            return translated(text);
        case 1:
            return translated(text).arg(translatedReason(match.captured(1)));
        default:
            return translated(text).arg(match.captured(1), translatedReason(match.captured(2)));
        }
    }
    return translated(english.toUtf8().constData());
}

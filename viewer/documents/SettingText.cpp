#include "viewer/documents/SettingText.h"

#include "livecontrol/live/BrightnessSettings.h"
#include "viewer/cameras/SettingTable.h"
#include "viewer/messages/Translated.h"

#include <QJsonArray>

namespace {

QString wordsOf(const Setting& setting) {
    const QString words = translated(setting.words);
    if (qstrcmp(setting.group, "settings") == 0) {
        return words;
    }
    const bool exposes = qstrcmp(setting.group, "exposureControl") == 0;
    return translated(exposes ? "Auto Exposure" : "H/W Image Trigger") + QStringLiteral(", ") + words;
}

bool isLevel(const Setting& setting) {
    return qstrcmp(setting.group, "settings") != 0 &&
           (qstrcmp(setting.key, "value") == 0 || qstrcmp(setting.key, "range") == 0);
}

QString levelText(const Setting& setting, const QJsonValue& value, const SettingUnits& units) {
    const auto level = quint32(value.toDouble());
    const bool isShownAsIs = units.shownMax == units.valueMax; // as the pages have it, of both
    const quint32 max = qstrcmp(setting.key, "range") == 0 ? units.rangeMax : units.valueMax;
    return QString::number(isShownAsIs ? level : brightness::scaled(level, max, units.shownMax));
}

QString valueText(const Setting& setting, const QJsonValue& value, const SettingUnits& units) {
    if (value.isBool()) {
        return translated(value.toBool() ? "on" : "off");
    }
    if (value.isArray()) {
        QStringList parts;
        for (const QJsonValue part : value.toArray()) {
            parts.append(QString::number(part.toInt()));
        }
        return parts.join(setting.kind == Setting::Kind::Size ? QStringLiteral(" x ") : QStringLiteral(", "));
    }
    if (isLevel(setting)) {
        return levelText(setting, value, units);
    }
    const QLatin1String key(setting.key);
    if ((key == QLatin1String("shutter") || key == QLatin1String("maxTime")) && value.toDouble() > 0) {
        return translated(units.shutter.ofCamera(quint32(value.toDouble())));
    }
    if (key == QLatin1String("channel") && value.toInt() == 0) {
        return QStringLiteral("---");
    }
    const QString number = QString::number(value.toDouble());
    return key == QLatin1String("rate") ? number + QStringLiteral(" fps") : number;
}

QJsonValue valueIn(const QJsonObject& state, const Setting& setting) {
    return state.value(QLatin1String(setting.group)).toObject().value(QLatin1String(setting.key));
}

QStringList changesOf(Setting::Told told, const QJsonObject& before, const QJsonObject& now,
                      const SettingUnits& units) {
    const bool exposesItself =
        now.value(QStringLiteral("settings")).toObject().value(QStringLiteral("autoExposure")).toBool();
    QStringList lines;
    for (const Setting& row : SettingTable::rows()) {
        const bool followsLight = exposesItself && qstrcmp(row.key, "shutter") == 0;
        if (row.told != told || followsLight) {
            continue;
        }
        const QJsonValue was = valueIn(before, row);
        const QJsonValue is = valueIn(now, row);
        if (was != is) {
            lines.append(changeLine(wordsOf(row), valueText(row, was, units), valueText(row, is, units)));
        }
    }
    return lines;
}

} // namespace

QString changeLine(const QString& what, const QString& before, const QString& now) {
    return QStringLiteral("%1: %2 \u2192 %3").arg(what, before, now);
}

QStringList settingChanges(const QJsonObject& before, const QJsonObject& now, const SettingUnits& units) {
    return changesOf(Setting::Told::Always, before, now, units);
}

QStringList allSettingChanges(const QJsonObject& before, const QJsonObject& now,
                              const ShutterFormat& shutter) {
    SettingUnits units;
    units.shutter = shutter;
    return changesOf(Setting::Told::Always, before, now, units) +
           changesOf(Setting::Told::WithAll, before, now, units);
}

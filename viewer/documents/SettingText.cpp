#include "viewer/documents/SettingText.h"

#include "livecontrol/live/BrightnessSettings.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/messages/Translated.h"

#include <QRect>
#include <QSize>

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

QString levelText(const Setting& setting, const QVariant& value, const SettingUnits& units) {
    const auto level = value.toUInt();
    const bool isShownAsIs = units.shownMax == units.valueMax; // as the pages have it, of both
    const quint32 max = qstrcmp(setting.key, "range") == 0 ? units.rangeMax : units.valueMax;
    return QString::number(isShownAsIs ? level : brightness::scaled(level, max, units.shownMax));
}

QString valueText(const Setting& setting, const QVariant& value, const SettingUnits& units) {
    if (setting.kind == Setting::Kind::OnOff) {
        return translated(value.toBool() ? "on" : "off");
    }
    if (setting.kind == Setting::Kind::Size) {
        return QStringLiteral("%1 x %2").arg(value.toSize().width()).arg(value.toSize().height());
    }
    if (setting.kind == Setting::Kind::Area) {
        const QRect area = value.toRect();
        return QStringLiteral("%1, %2, %3, %4")
            .arg(area.x())
            .arg(area.y())
            .arg(area.width())
            .arg(area.height());
    }
    if (isLevel(setting)) {
        return levelText(setting, value, units);
    }
    const QLatin1String key(setting.key);
    if ((key == QLatin1String("shutter") || key == QLatin1String("maxTime")) && value.toUInt() > 0) {
        return translated(units.shutter.ofCamera(value.toUInt()));
    }
    if (key == QLatin1String("channel") && value.toInt() == 0) {
        return QStringLiteral("---");
    }
    const QString number = QString::number(value.toDouble());
    return key == QLatin1String("rate") ? number + QStringLiteral(" fps") : number;
}

QStringList changesOf(Setting::Told told, const HeadSettings& before, const HeadSettings& now,
                      const SettingUnits& units) {
    QStringList lines;
    for (const Setting& row : SettingTable::rows()) {
        const bool followsLight = now.exposure.on && qstrcmp(row.key, "shutter") == 0;
        if (row.told != told || followsLight) {
            continue;
        }
        const QVariant was = row.get(before);
        const QVariant is = row.get(now);
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

QStringList settingChanges(const HeadSettings& before, const HeadSettings& now, const SettingUnits& units) {
    return changesOf(Setting::Told::Always, before, now, units);
}

QStringList allSettingChanges(const HeadSettings& before, const HeadSettings& now,
                              const ShutterFormat& shutter) {
    SettingUnits units;
    units.shutter = shutter;
    return changesOf(Setting::Told::Always, before, now, units) +
           changesOf(Setting::Told::WithAll, before, now, units);
}

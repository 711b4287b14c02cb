#pragma once

#include "livecontrol/overlays/info/InfoSettings.h"

#include <QVariantMap>

/// What the preferences hold of the information, over the image and round a saved one.
inline QVariantMap storedInfo() {
    QVariantMap prefs{
        {QStringLiteral("info/display"), QStringLiteral("Comment:true,<hr>,RecDateTime:true,Mystery:false")},
        {QStringLiteral("info/FontName"), QStringLiteral("Sans")},
        {QStringLiteral("info/FontSize"), QStringLiteral("12")},
        {QStringLiteral("info/Width"), QStringLiteral("300")},
        {QStringLiteral("info/IconSize"), QStringLiteral("1")}};
    for (int group = 0; group < InfoSettings::Groups; ++group) {
        prefs.insert(QStringLiteral("saveinfo/display%1").arg(group), QStringLiteral("Comment:true"));
        prefs.insert(QStringLiteral("saveinfo/FontName%1").arg(group), QStringLiteral("Sans%1").arg(group));
        prefs.insert(QStringLiteral("saveinfo/Width%1").arg(group), QString::number(100 + group));
        prefs.insert(QStringLiteral("saveinfo/FixedFontSizeRatioBaseResolution%1").arg(group), QSize(64, 48));
        for (const char* const flag : {"Bold", "Italic", "UseBackgroundColor", "ToColumn"}) {
            prefs.insert(QStringLiteral("saveinfo/%1%2").arg(QLatin1String(flag)).arg(group), true);
        }
        prefs.insert(QStringLiteral("saveinfo/FontSize%1").arg(group), QStringLiteral("9"));
        prefs.insert(QStringLiteral("saveinfo/ForegroundColor%1").arg(group), QStringLiteral("#ff8000"));
        prefs.insert(QStringLiteral("saveinfo/BackgroundColor%1").arg(group), QStringLiteral("#0000ff"));
        prefs.insert(QStringLiteral("saveinfo/Alignment%1").arg(group), QStringLiteral("1"));
        prefs.insert(QStringLiteral("saveinfo/ColumnNum%1").arg(group), QStringLiteral("3"));
        prefs.insert(QStringLiteral("saveinfo/ColumnSpacing%1").arg(group), QStringLiteral("8"));
    }
    return prefs;
}

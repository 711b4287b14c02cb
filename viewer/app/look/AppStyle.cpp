#include "viewer/app/look/AppStyle.h"

#include "viewer/app/look/AppResources.h"
#include "viewer/app/look/ViewerStyle.h"

#include <QApplication>
#include <QFile>
#include <QPalette>

#include <QToolTip>

namespace {

bool g_dark = true;

// The same tones as the pages have, so that panel and window look like one.
struct Tones {
    QRgb ground, surface, field, text, dim, line, lineStrong, accent, accentGround, onAccent;
};

constexpr Tones kDark{0xff2b2d30, 0xff36393d, 0xff1f2123, 0xffeceef0, 0xffa2a8ae,
                      0xff54585e, 0xff7b8188, 0xff6cb6ff, 0xff1e4f80, 0xffffffff};
constexpr Tones kLight{0xffeeeff1, 0xffe1e3e6, 0xffffffff, 0xff17191b, 0xff565c63,
                       0xffb4b9bf, 0xff7c838b, 0xff0a58a5, 0xffcfe3f8, 0xff0b2a4a};

QPalette paletteOf(const Tones& tones) {
    QPalette palette(QColor(tones.surface), QColor(tones.ground));
    const auto set = [&palette](QPalette::ColorRole role, QRgb tone) {
        palette.setColor(role, QColor(tone));
    };
    set(QPalette::WindowText, tones.text);
    set(QPalette::Text, tones.text);
    set(QPalette::ButtonText, tones.text);
    set(QPalette::BrightText, tones.accent);
    set(QPalette::PlaceholderText, tones.dim);
    set(QPalette::Base, tones.field);
    set(QPalette::AlternateBase, tones.ground);
    set(QPalette::Highlight, tones.accentGround);
    set(QPalette::HighlightedText, tones.onAccent);
    set(QPalette::Link, tones.accent);
    set(QPalette::LinkVisited, tones.accent);
    set(QPalette::ToolTipBase, tones.surface);
    set(QPalette::ToolTipText, tones.text);
    set(QPalette::Mid, tones.line);
    set(QPalette::Midlight, tones.lineStrong);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(tones.dim));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(tones.line));
    return palette;
}

QString sheetOf(const Tones& tones) {
    QFile file(QStringLiteral(":/app/window.qss"));
    QString sheet = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    const std::pair<const char*, QRgb> names[] = {{"@line-strong", tones.lineStrong},
                                                  {"@line", tones.line},
                                                  {"@surface", tones.surface},
                                                  {"@accent-ground", tones.accentGround},
                                                  {"@on-accent", tones.onAccent},
                                                  {"@accent", tones.accent},
                                                  {"@ground", tones.ground},
                                                  {"@field", tones.field},
                                                  {"@text", tones.text},
                                                  {"@dim", tones.dim}};
    for (const auto& [name, tone] : names) {
        sheet.replace(QLatin1String(name), QColor(tone).name());
    }
    return sheet;
}

} // namespace

void AppStyle::apply(QApplication& app, const QString& name) {
    AppResources::ensure();
    g_dark = name.compare(QLatin1String(Light), Qt::CaseInsensitive) != 0;
    const Tones& tones = g_dark ? kDark : kLight;
    app.setStyle(new ViewerStyle); // owned by the application
    const QPalette palette = paletteOf(tones);
    app.setPalette(palette);
    QToolTip::setPalette(palette);
    app.setStyleSheet(sheetOf(tones));
}

bool AppStyle::isDark() { return g_dark; }

#include "livecontrol/foundation/WindowHelpers.h"

#include "livecontrol/interface/HostApplication.h"

#include <QFile>
#include <QGuiApplication>
#include <QPropertyAnimation>
#include <QScreen>
#include <QTextStream>
#include <QWidget>
#include <QWindow>

namespace {

constexpr int kFadeInMs = 500;

void applyStyle(HostApplication* host, QWidget* widget, const QString& family) {
    const QString style = host->getPrefString(QStringLiteral("env/style"), QStringLiteral("dark"), 0);
    const bool dark = style.toLower() == QLatin1String("dark");
    widget->setStyleSheet(
        readTextResource(QStringLiteral("://ui-%1-%2.css")
                             .arg(family, dark ? QStringLiteral("dark") : QStringLiteral("light"))));
}

} // namespace

QString readTextResource(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {};
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    return stream.readAll();
}

void applyNativeStyle(HostApplication* host, QWidget* widget) {
    applyStyle(host, widget, QStringLiteral("native"));
}

void applyMessageBoxStyle(HostApplication* host, QWidget* widget) {
    applyStyle(host, widget, QStringLiteral("messageBox"));
}

void centerOnScreen(HostApplication* host, QWidget* widget) {
    if (host->getDialogParent() || !widget) {
        return;
    }
    const QList<QScreen*> screens = QGuiApplication::screens();
    const int number = host->getPrefInt(QStringLiteral("main/scrno"), QVariant());
    const QScreen* const screen =
        number >= 0 && number < screens.size() ? screens.at(number) : widget->screen();
    widget->move(screen->geometry().center() - widget->rect().center());
}

QPropertyAnimation* createFadeIn(QWidget* widget) {
    auto* const animation = new QPropertyAnimation(widget, "windowOpacity", widget);
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    animation->setDuration(kFadeInMs);
    animation->setEasingCurve(QEasingCurve::InExpo);
    return animation;
}

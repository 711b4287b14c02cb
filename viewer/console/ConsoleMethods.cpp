// The console's methods, by domain. Each takes its parameters by name and throws ConsoleError with the
// reason.

#include "viewer/calls/CallRecorder.h"
#include "viewer/console/Console.h"
#include "viewer/console/ConsoleParameters.h"
#include "viewer/console/ConsoleTarget.h"
#include "viewer/console/WindowDriver.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/prefs/Preferences.h"

#include <QApplication>
#include <QDialog>
#include <QJsonArray>
#include <QMouseEvent>
#include <QPixmap>
#include <QWebView>

namespace {

Qt::MouseButton buttonOf(const QJsonObject& params) {
    const QString name = params.value(QLatin1String("button")).toString(QStringLiteral("left"));
    if (name == QLatin1String("left")) {
        return Qt::LeftButton;
    }
    if (name == QLatin1String("right")) {
        return Qt::RightButton;
    }
    if (name == QLatin1String("middle")) {
        return Qt::MiddleButton;
    }
    throw ConsoleError(QStringLiteral("\"%1\" is no button: left, right, middle").arg(name));
}

Qt::KeyboardModifiers modifiersOf(const QJsonObject& params) {
    Qt::KeyboardModifiers modifiers;
    for (const QJsonValue value : params.value(QLatin1String("modifiers")).toArray()) {
        const QString name = value.toString().toLower();
        if (name == QLatin1String("ctrl")) {
            modifiers |= Qt::ControlModifier;
        } else if (name == QLatin1String("shift")) {
            modifiers |= Qt::ShiftModifier;
        } else if (name == QLatin1String("alt")) {
            modifiers |= Qt::AltModifier;
        } else {
            throw ConsoleError(QStringLiteral("\"%1\" is no modifier: ctrl, shift, alt").arg(name));
        }
    }
    return modifiers;
}

/// A picture of the widget in that size for a moment; as it stands for an empty one.
QPixmap grabbedAt(QWidget& widget, const QSize& size) {
    const QSize before = widget.size();
    if (!size.isEmpty()) {
        widget.resize(size);
    }
    const QPixmap picture = widget.grab();
    widget.resize(before);
    return picture;
}

} // namespace

void Console::addPageMethods() {
    m_methods[QStringLiteral("page.eval")] = [this](const QJsonObject& p) {
        return page(p).evaluate(text(p, "script"));
    };
    m_methods[QStringLiteral("page.click")] = [this](const QJsonObject& p) {
        page(p).click(text(p, "selector"), buttonOf(p), modifiersOf(p));
        return kDone;
    };
    m_methods[QStringLiteral("page.move")] = [this](const QJsonObject& p) {
        page(p).move(text(p, "selector"));
        return kDone;
    };
    m_methods[QStringLiteral("page.type")] = [this](const QJsonObject& p) {
        page(p).type(optionalText(p, "selector"), text(p, "text"));
        return kDone;
    };
    m_methods[QStringLiteral("page.key")] = [this](const QJsonObject& p) {
        page(p).key(optionalText(p, "selector"), text(p, "key"));
        return kDone;
    };
    m_methods[QStringLiteral("page.drag")] = [this](const QJsonObject& p) {
        page(p).drag(text(p, "selector"), p.value(QLatin1String("dx")).toInt(),
                     p.value(QLatin1String("dy")).toInt(), p.value(QLatin1String("steps")).toInt(1));
        return kDone;
    };
    m_methods[QStringLiteral("page.errors")] = [this](const QJsonObject&) {
        return QJsonArray::fromStringList(m_target.takeScriptErrors());
    };
}

void Console::addWindowMethods() {
    m_methods[QStringLiteral("windows.list")] = [](const QJsonObject&) { return windows::list(); };
    m_methods[QStringLiteral("windows.press")] = [](const QJsonObject& p) {
        windows::press(text(p, "button"));
        return kDone;
    };
    m_methods[QStringLiteral("windows.close")] = [](const QJsonObject& p) {
        windows::close(text(p, "title"));
        return kDone;
    };
    m_methods[QStringLiteral("windows.choose")] = [this](const QJsonObject& p) {
        windows::choose(*m_target.window(), text(p, "action"));
        return kDone;
    };
    m_methods[QStringLiteral("files.answer")] = [](const QJsonObject& p) {
        const QJsonValue path = p.value(QLatin1String("path"));
        windows::answerFileDialog(path.toString(), path.isNull());
        return kDone;
    };
    m_methods[QStringLiteral("screenshot")] = [this](const QJsonObject& p) {
        const QString what = p.value(QLatin1String("what")).toString(QStringLiteral("window"));
        QWidget* widget = nullptr;
        if (what == QLatin1String("window")) {
            widget = m_target.window();
        } else if (what == QLatin1String("panel")) {
            widget = m_target.panel();
        } else if (what == QLatin1String("dialog")) {
            widget = windows::topDialog();
            if (!widget && windows::topDialogPage()) { // an open list
                widget = windows::topDialogPage()->window();
            }
        } else if (what == QLatin1String("image")) {
            widget = m_target.imageView(m_target.documents().currentKey());
        }
        if (!widget) {
            throw ConsoleError(QStringLiteral("there is no %1 to take a picture of").arg(what));
        }
        constexpr int kMostPixels = 8192; // a side
        const QSize size(p.value(QLatin1String("width")).toInt(), p.value(QLatin1String("height")).toInt());
        if (size.width() < 0 || size.width() > kMostPixels || size.height() < 0 ||
            size.height() > kMostPixels) {
            throw ConsoleError(QStringLiteral("a side of a picture has 1 to %1 pixels").arg(kMostPixels));
        }
        const QPixmap picture = grabbedAt(*widget, size);
        if (picture.isNull()) {
            throw ConsoleError(QStringLiteral("there is no memory for the picture"));
        }
        if (!picture.save(text(p, "path"))) {
            throw ConsoleError(QStringLiteral("can't write %1").arg(text(p, "path")));
        }
        return QJsonObject{{QStringLiteral("width"), picture.width()},
                           {QStringLiteral("height"), picture.height()}};
    };
}

void Console::addHostMethods() {
    m_methods[QStringLiteral("host.calls")] = [this](const QJsonObject& p) {
        CallRecorder& recorder = m_target.calls();
        QJsonArray calls;
        for (const CallRecorder::Call& call : recorder.calls()) {
            calls.append(QJsonObject{{QStringLiteral("name"), call.name()},
                                     {QStringLiteral("args"), QJsonArray::fromVariantList(call.args)}});
        }
        if (p.value(QLatin1String("clear")).toBool()) {
            recorder.clear();
        }
        return calls;
    };
    m_methods[QStringLiteral("host.fail")] = [this](const QJsonObject& p) {
        m_target.calls().fail(text(p, "operation"), optionalText(p, "message"),
                              p.value(QLatin1String("code")).toInt(),
                              p.value(QLatin1String("times")).toInt(1));
        return kDone;
    };
}

void Console::addProgramMethods() {
    m_methods[QStringLiteral("app.info")] = [this](const QJsonObject&) {
        static const char* const kModes[] = {"live", "memory", "file"};
        return QJsonObject{{QStringLiteral("version"), QCoreApplication::applicationVersion()},
                           {QStringLiteral("rig"), m_target.rigName()},
                           {QStringLiteral("mode"), QLatin1String(kModes[m_target.documents().mode()])},
                           {QStringLiteral("windows"), windows::list()}};
    };
    m_methods[QStringLiteral("app.quit")] = [this](const QJsonObject&) {
        m_target.quit();
        return kDone;
    };
    m_methods[QStringLiteral("prefs.get")] = [this](const QJsonObject& p) {
        return QJsonValue::fromVariant(m_target.preferences().value(text(p, "name")));
    };
    m_methods[QStringLiteral("prefs.set")] = [this](const QJsonObject& p) {
        m_target.preferences().setValue(text(p, "name"), p.value(QLatin1String("value")).toVariant());
        return kDone;
    };
    m_methods[QStringLiteral("log.lines")] = [this](const QJsonObject& p) {
        QJsonArray lines;
        for (const LogLine& line : m_target.logLines(p.value(QLatin1String("clear")).toBool())) {
            lines.append(
                QJsonObject{{QStringLiteral("level"), line.level}, {QStringLiteral("text"), line.text}});
        }
        return lines;
    };
}

void Console::addImageMethods() {
    const auto view = [this](const QJsonObject& p) {
        const DOCKEY key =
            p.contains(QLatin1String("document")) ? keyOf(p, "document") : m_target.documents().currentKey();
        QWidget* const widget = m_target.imageView(key);
        if (!widget) {
            throw ConsoleError(QStringLiteral("the document %1 has no image view").arg(key));
        }
        return widget;
    };
    const auto point = [](const QJsonObject& p) {
        return QPoint(p.value(QLatin1String("x")).toInt(), p.value(QLatin1String("y")).toInt());
    };
    m_methods[QStringLiteral("image.press")] = [=](const QJsonObject& p) {
        postMouse(view(p), QEvent::MouseButtonPress, point(p), Qt::LeftButton, Qt::LeftButton,
                  Qt::NoModifier);
        return kDone;
    };
    m_methods[QStringLiteral("image.move")] = [=](const QJsonObject& p) {
        const Qt::MouseButtons buttons =
            QApplication::mouseButtons() |
            (p.value(QLatin1String("pressed")).toBool(true) ? Qt::LeftButton : Qt::NoButton);
        postMouse(view(p), QEvent::MouseMove, point(p), Qt::NoButton, buttons, Qt::NoModifier);
        return kDone;
    };
    m_methods[QStringLiteral("image.release")] = [=](const QJsonObject& p) {
        postMouse(view(p), QEvent::MouseButtonRelease, point(p), Qt::LeftButton, Qt::NoButton,
                  Qt::NoModifier);
        return kDone;
    };
    m_methods[QStringLiteral("image.key")] = [=](const QJsonObject& p) {
        postKey(view(p), text(p, "key"));
        return kDone;
    };
}

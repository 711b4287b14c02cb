// The console's methods, by domain. Each takes its parameters by name and throws ConsoleError with the
// reason.

#include "viewer/calls/CallRecorder.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/cameras/Faults.h"
#include "viewer/cameras/Rig.h"
#include "viewer/console/Console.h"
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

QString text(const QJsonObject& params, const char* name) {
    const QJsonValue value = params.value(QLatin1String(name));
    if (!value.isString()) {
        throw ConsoleError(QStringLiteral("the parameter \"%1\" (text) is missing").arg(QLatin1String(name)));
    }
    return value.toString();
}

QString optionalText(const QJsonObject& params, const char* name) {
    return params.value(QLatin1String(name)).toString();
}

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

/// A document key: a number, or a decimal text.
DOCKEY keyOf(const QJsonObject& params, const char* name) {
    const QJsonValue value = params.value(QLatin1String(name));
    bool ok = value.isDouble();
    const DOCKEY key = ok ? static_cast<DOCKEY>(value.toDouble()) : value.toString().toUInt(&ok);
    if (!ok) {
        throw ConsoleError(
            QStringLiteral("the parameter \"%1\" (document key) is missing").arg(QLatin1String(name)));
    }
    return key;
}

CameraDocument& cameraOf(ConsoleTarget& target, const QJsonObject& params) {
    const DOCKEY key = keyOf(params, "key");
    for (CameraDocument* const camera : target.documents().cameras()) {
        if (camera->key() == key) {
            return *camera;
        }
    }
    throw ConsoleError(QStringLiteral("there is no camera with the key %1").arg(key));
}

const QJsonValue kDone(true);

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
        const QPixmap picture = grabbedAt(*widget, QSize(p.value(QLatin1String("width")).toInt(),
                                                         p.value(QLatin1String("height")).toInt()));
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

void Console::addCameraMethods() {
    m_methods[QStringLiteral("camera.list")] = [this](const QJsonObject&) {
        QJsonArray cameras;
        for (CameraDocument* const camera : m_target.documents().cameras()) {
            cameras.append(QJsonObject{{QStringLiteral("key"), static_cast<double>(camera->key())},
                                       {QStringLiteral("name"), camera->title()},
                                       {QStringLiteral("address"), camera->body()->address()},
                                       {QStringLiteral("connected"), camera->isConnected()},
                                       {QStringLiteral("selected"), camera->isSelected()}});
        }
        return cameras;
    };
    m_methods[QStringLiteral("camera.state")] = [this](const QJsonObject& p) {
        CameraDocument& camera = cameraOf(m_target, p);
        QJsonObject state = camera.body()->stateJson();
        state[QStringLiteral("head")] = camera.head()->state();
        return state;
    };
    m_methods[QStringLiteral("camera.set")] = [this](const QJsonObject& p) {
        CameraDocument& camera = cameraOf(m_target, p);
        const QString name = text(p, "name");
        const QVariant value = p.value(QLatin1String("value")).toVariant();
        static const QStringList kOfBody{QStringLiteral("temperature"), QStringLiteral("fanFault"),
                                         QStringLiteral("outOfPhase"),  QStringLiteral("name"),
                                         QStringLiteral("address"),     QStringLiteral("power"),
                                         QStringLiteral("plugged")};
        if (kOfBody.contains(name)) {
            camera.body()->set(name, value);
        } else {
            camera.head()->changeFromOutside(name, value);
        }
        return kDone;
    };
    m_methods[QStringLiteral("camera.plug")] = [this](const QJsonObject& p) {
        CameraBody* const body = cameraOf(m_target, p).body();
        body->plug();
        body->connectLink();
        return kDone;
    };
    m_methods[QStringLiteral("camera.unplug")] = [this](const QJsonObject& p) {
        CameraBody* const body = cameraOf(m_target, p).body();
        if (p.value(QLatin1String("duringNext")).toBool()) {
            body->faults().unplugDuringNext = true;
        } else {
            body->unplug();
        }
        return kDone;
    };
    m_methods[QStringLiteral("camera.delay")] = [this](const QJsonObject& p) {
        cameraOf(m_target, p).body()->faults().delayMs = p.value(QLatin1String("ms")).toDouble();
        return kDone;
    };
    m_methods[QStringLiteral("camera.refuse")] = [this](const QJsonObject& p) {
        cameraOf(m_target, p)
            .body()
            ->faults()
            .refuseNext(p.value(QLatin1String("times")).toInt(1),
                        p.value(QLatin1String("reason")).toString(QStringLiteral("busy")),
                        optionalText(p, "function"));
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

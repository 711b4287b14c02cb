#include "viewer/console/PageDriver.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>
#include <cmath>
#include <functional>

namespace {

QString quoted(const QString& text) {
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return list.mid(1, list.size() - 2);
}

// Answers {error} or {x, y}: the middle of the element in page pixels of the viewport.
const char kLocate[] = R"JS((function (selector) {
    var found = window.jQuery ? window.jQuery(selector)[0] : document.querySelector(selector);
    if (!found) { return { error: 'no element matches ' + selector }; }
    if (found.scrollIntoViewIfNeeded) { found.scrollIntoViewIfNeeded(true); }
    var box = found.getBoundingClientRect();
    if (box.width === 0 || box.height === 0 || getComputedStyle(found).visibility === 'hidden') {
        return { error: selector + ' is hidden' };
    }
    for (var node = found; node && node.nodeType === 1; node = node.parentNode) {
        if (node.disabled || /(^|\s)(ui-state-disabled|disabled)(\s|$)/.test(node.getAttribute('class') || '')
            || node.getAttribute('aria-disabled') === 'true') {
            return { error: selector + ' is disabled' };
        }
    }
    var x = box.left + box.width / 2, y = box.top + box.height / 2;
    if (x < 0 || y < 0 || x >= window.innerWidth || y >= window.innerHeight) {
        return { error: selector + ' is outside the view' };
    }
    var top = document.elementFromPoint(x, y);
    if (!top || !(found === top || found.contains(top))) {
        return { error: selector + ' is covered by ' + (top ? '<' + top.tagName.toLowerCase() + ' id="' + top.id
            + '" class="' + top.className + '">' : 'nothing') };
    }
    return { x: x, y: y };
}))JS";

/// A message may open in the middle of a drag: whether the widget is blocked shows when the event's turn
/// comes.
void post(QWidget* widget, const std::function<void()>& deliver) {
    const auto unlessBlocked = [widget, deliver] {
        if (!isBlocked(widget)) {
            deliver();
        }
    };
    QMetaObject::invokeMethod(widget, unlessBlocked, Qt::QueuedConnection);
}

void postKeyEvents(QWidget* widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        post(widget, [=] {
            QKeyEvent event(type, key, modifiers, text);
            QCoreApplication::sendEvent(widget, &event);
        });
    }
}

/// What the key types; control keys of the keyboard type nothing but these.
QString textOf(int key, Qt::KeyboardModifiers modifiers) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QStringLiteral("\r");
    case Qt::Key_Tab:
        return QStringLiteral("\t");
    case Qt::Key_Space:
        return QStringLiteral(" ");
    default:
        break;
    }
    if (key >= 0x20 && key < 0x01000000 && !(modifiers & (Qt::ControlModifier | Qt::AltModifier))) {
        const QString letter(QChar(static_cast<ushort>(key)));
        return modifiers & Qt::ShiftModifier ? letter : letter.toLower();
    }
    return {};
}

} // namespace

bool isBlocked(const QWidget* widget) {
    const QWidget* const modal = QApplication::activeModalWidget();
    for (; modal && widget; widget = widget->parentWidget()) { // an open list is a window of its own
        if (widget == modal) {
            return false;
        }
    }
    return modal;
}

void postMouse(QWidget* widget, int type, const QPoint& pos, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers modifiers) {
    post(widget, [=] {
        QMouseEvent event(static_cast<QEvent::Type>(type), pos, widget->mapToGlobal(pos), button, buttons,
                          modifiers);
        QCoreApplication::sendEvent(widget, &event);
    });
}

void postKey(QWidget* widget, const QString& name) {
    const QKeySequence sequence = QKeySequence::fromString(name, QKeySequence::PortableText);
    if (sequence.count() != 1 || (sequence[0] & ~Qt::KeyboardModifierMask) == Qt::Key_unknown) {
        throw ConsoleError(QStringLiteral("\"%1\" is no key").arg(name));
    }
    const auto modifiers = Qt::KeyboardModifiers(sequence[0] & Qt::KeyboardModifierMask);
    int key = sequence[0] & ~static_cast<int>(Qt::KeyboardModifierMask);
    if (key == Qt::Key_Tab && (modifiers & Qt::ShiftModifier)) {
        key = Qt::Key_Backtab; // what a keyboard sends
    }
    postKeyEvents(widget, key, modifiers, textOf(key, modifiers));
}

PageDriver::PageDriver(QWebView* view) : m_view(view) {
    if (!view) {
        throw ConsoleError(QStringLiteral("there is no such page"));
    }
}

QJsonValue PageDriver::evaluate(const QString& script) {
    const QString wrapped =
        QStringLiteral("(function () { try { var v = eval(%1); return JSON.stringify({ value: v === "
                       "undefined ? null : v });"
                       " } catch (e) { return JSON.stringify({ error: String(e) }); } })()")
            .arg(quoted(script));
    const QVariant answer = m_view->page()->mainFrame()->evaluateJavaScript(wrapped);
    const QJsonObject object = QJsonDocument::fromJson(answer.toString().toUtf8()).object();
    if (object.isEmpty()) {
        throw ConsoleError(QStringLiteral("the page gave no answer"));
    }
    if (object.contains(QLatin1String("error"))) {
        throw ConsoleError(object.value(QLatin1String("error")).toString());
    }
    return object.value(QLatin1String("value"));
}

QPoint PageDriver::middleOf(const QString& selector) {
    const QJsonObject place =
        evaluate(QString::fromLatin1(kLocate) + QStringLiteral("(%1)").arg(quoted(selector))).toObject();
    if (place.contains(QLatin1String("error"))) {
        throw ConsoleError(place.value(QLatin1String("error")).toString());
    }
    const double zoom = m_view->zoomFactor();
    return {static_cast<int>(std::floor(place.value(QLatin1String("x")).toDouble() * zoom)),
            static_cast<int>(std::floor(place.value(QLatin1String("y")).toDouble() * zoom))};
}

bool PageDriver::bringToFront() {
    if (isBlocked(m_view)) {
        return true; // it stays where it is
    }
    const bool isInFront = m_view->isActiveWindow();
    if (!isInFront) {
        m_view->activateWindow();
    }
    m_view->setFocus(Qt::MouseFocusReason);
    return isInFront;
}

void PageDriver::click(const QString& selector, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    bringToFront();
    const QPoint at = middleOf(selector);
    postMouse(m_view, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton, modifiers);
    postMouse(m_view, QEvent::MouseButtonPress, at, button, button, modifiers);
    postMouse(m_view, QEvent::MouseButtonRelease, at, button, Qt::NoButton, modifiers);
}

void PageDriver::move(const QString& selector) {
    postMouse(m_view, QEvent::MouseMove, middleOf(selector), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
}

void PageDriver::drag(const QString& selector, int dx, int dy, int steps) {
    bringToFront();
    const QPoint from = middleOf(selector);
    const double zoom = m_view->zoomFactor();
    const int count = qMax(1, steps);
    postMouse(m_view, QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    postMouse(m_view, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QPoint at = from;
    for (int i = 1; i <= count; ++i) {
        at = from + QPoint(qRound(dx * zoom * i / count), qRound(dy * zoom * i / count));
        postMouse(m_view, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    }
    postMouse(m_view, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
}

void PageDriver::focus(const QString& selector) {
    if (selector.isEmpty()) {
        return;
    }
    bringToFront();
    middleOf(selector); // an element that a person can't reach isn't typed into
    evaluate(QStringLiteral("(window.jQuery ? window.jQuery(%1)[0] : document.querySelector(%1)).focus()")
                 .arg(quoted(selector)));
}

void PageDriver::type(const QString& selector, const QString& text) {
    focus(selector);
    for (const QChar letter : text) {
        postKeyEvents(m_view, letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
    }
}

void PageDriver::key(const QString& selector, const QString& name) {
    focus(selector);
    postKey(m_view, name);
}

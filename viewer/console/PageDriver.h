#pragma once

#include <QJsonValue>
#include <QPoint>
#include <QString>
#include <Qt>
#include <stdexcept>

class QWebView;

/// Why something that a console or a test asked for can't be done. The text is for a person.
class ConsoleError : public std::runtime_error {
public:
    explicit ConsoleError(const QString& why) : std::runtime_error(why.toStdString()) {}
};

/// Drives a page as a person does: real mouse and key events at its elements. A selector is jQuery's where
/// the page has jQuery, else CSS; its first match counts. Everything throws ConsoleError with the reason when
/// it can't be done.
///
/// Input is posted, not sent: a click that opens a modal dialog returns before the dialog runs.
class PageDriver {
public:
    explicit PageDriver(QWebView* view);

    /// The script's value as JSON; undefined is null. Throws with the script's own error.
    QJsonValue evaluate(const QString& script);

    /// The window comes to the front and the view gets the keys, as when it is clicked. False while the
    /// window system has still to do so.
    bool bringToFront();
    void click(const QString& selector, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void move(const QString& selector);
    /// Press at the element's middle, `steps` moves by dx, dy page pixels in all, release.
    void drag(const QString& selector, int dx, int dy, int steps);
    /// Focuses the element (an empty selector leaves the focus where it is) and types the text.
    void type(const QString& selector, const QString& text);
    /// One key such as "Enter", "Shift+Tab" or "Down", to the focused element.
    void key(const QString& selector, const QString& name);

    /// The element's middle in view coordinates. Scrolls it into sight; throws if it is missing, hidden,
    /// covered, disabled or outside the view.
    QPoint middleOf(const QString& selector);

private:
    void focus(const QString& selector);

    QWebView* m_view;
};

/// Whether the window system would keep input from a widget, since a modal window stands before it.
bool isBlocked(const QWidget* widget);
/// Posts one key press and release to a widget. `name` is a key sequence of one key with its modifiers.
void postKey(QWidget* widget, const QString& name);
/// Posts a mouse event; `pos` in the widget's coordinates.
void postMouse(QWidget* widget, int type, const QPoint& pos, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers modifiers);

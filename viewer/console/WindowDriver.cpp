#include "viewer/console/WindowDriver.h"

#include "viewer/console/PageDriver.h"
#include "viewer/documents/commands/CommandWait.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QJsonObject>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QWebView>
#include <algorithm>
#include <functional>

namespace windows {

namespace {

/// Visible top windows, the active modal one first, then dialogs, then the rest.
QList<QWidget*> visibleWindows() {
    QList<QWidget*> found;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowType() != Qt::ToolTip && widget->windowType() != Qt::Popup) {
            found.append(widget);
        }
    }
    const auto rank = [](QWidget* widget) {
        if (widget == QApplication::activeModalWidget()) {
            return 0;
        }
        return widget->isModal() ? 1 : widget->inherits("QDialog") ? 2 : 3;
    };
    std::stable_sort(found.begin(), found.end(),
                     [&rank](QWidget* a, QWidget* b) { return rank(a) < rank(b); });
    return found;
}

QString plain(QString text) { return text.remove(QLatin1Char('&')); }

/// A box that stands over a window is a child of it as well.
template <class T>
QList<T*> shownIn(const QWidget* window) {
    QList<T*> found;
    for (T* const child : window->findChildren<T*>()) {
        if (child->isVisible() && child->window() == window) {
            found.append(child);
        }
    }
    return found;
}

/// Whether there is a box in the way shows when the action's turn comes.
void postTo(QWidget* window, const std::function<void()>& action) {
    QTimer::singleShot(0, window, [window, action] {
        if (!isBlocked(window)) {
            action();
        }
    });
}

void refuseBlocked(const QWidget* window) {
    if (isBlocked(window)) {
        throw ConsoleError(QStringLiteral("\"%1\" stands before \"%2\"")
                               .arg(QApplication::activeModalWidget()->windowTitle(), window->windowTitle()));
    }
}

QString textOf(QWidget* window) {
    if (const auto* const box = dynamic_cast<QMessageBox*>(window)) {
        const QStringList parts{box->text(), box->informativeText(), box->detailedText()};
        return QStringList(parts).filter(QRegExp(QStringLiteral("."))).join(QLatin1Char('\n'));
    }
    QStringList texts;
    for (const QLabel* const label : shownIn<QLabel>(window)) {
        if (!label->text().isEmpty()) {
            texts.append(label->text());
        }
    }
    return window->inherits("QDialog") ? texts.join(QLatin1Char('\n')) : QString();
}

} // namespace

QJsonArray list() {
    QJsonArray result;
    for (QWidget* const window : visibleWindows()) {
        QJsonArray buttons;
        if (window->inherits("QDialog")) {
            for (const QAbstractButton* const button : shownIn<QAbstractButton>(window)) {
                if (!button->text().isEmpty()) {
                    buttons.append(plain(button->text()));
                }
            }
        }
        result.append(
            QJsonObject{{QStringLiteral("class"), QString::fromLatin1(window->metaObject()->className())},
                        {QStringLiteral("title"), window->windowTitle()},
                        {QStringLiteral("text"), textOf(window)},
                        {QStringLiteral("buttons"), buttons},
                        {QStringLiteral("page"), !shownIn<QWebView>(window).isEmpty()},
                        {QStringLiteral("modal"), window->isModal()}});
    }
    return result;
}

void press(const QString& text) {
    const QWidget* covered = nullptr;
    for (QWidget* const window : visibleWindows()) {
        for (QAbstractButton* const button : shownIn<QAbstractButton>(window)) {
            if (plain(button->text()) != plain(text)) {
                continue;
            }
            if (isBlocked(window)) {
                covered = window;
                continue;
            }
            if (!button->isEnabled()) {
                throw ConsoleError(QStringLiteral("the button \"%1\" is disabled").arg(text));
            }
            postTo(window, [button = QPointer<QAbstractButton>(button)] {
                if (button) {
                    button->click();
                }
            });
            return;
        }
    }
    if (covered) {
        refuseBlocked(covered);
    }
    throw ConsoleError(QStringLiteral("no visible window has a button \"%1\"").arg(text));
}

void close(const QString& title) {
    for (QWidget* const window : visibleWindows()) {
        if (window->windowTitle() == title) {
            refuseBlocked(window);
            postTo(window, [window] { window->close(); });
            return;
        }
    }
    throw ConsoleError(QStringLiteral("no visible window has the title \"%1\"").arg(title));
}

void choose(const QWidget& window, const QString& action) {
    for (const QMenu* const menu : window.findChildren<QMenu*>()) {
        for (QAction* const entry : menu->actions()) {
            if (entry->objectName() == action && entry->isEnabled() && !QApplication::activeModalWidget()) {
                // As the user's input, never in the middle of a command: what it opens would keep that from
                // its end.
                QTimer::singleShot(0, entry, [entry] {
                    CommandWait::get().afterwards(entry, [entry] {
                        if (!QApplication::activeModalWidget()) {
                            entry->trigger();
                        }
                    });
                });
                return;
            }
        }
    }
    throw ConsoleError(QStringLiteral("no menu offers \"%1\" now").arg(action));
}

void answerFileDialog(const QString& path, bool cancel) {
    for (QWidget* const window : visibleWindows()) {
        auto* const dialog = dynamic_cast<QFileDialog*>(window);
        if (!dialog) {
            continue;
        }
        refuseBlocked(dialog);
        if (cancel) {
            postTo(dialog, [dialog] { dialog->reject(); });
            return;
        }
        // As a person does: write the path into the name box, press the button.
        auto* const name = dialog->findChild<QWidget*>(QStringLiteral("fileNameEdit"));
        if (!name) {
            throw ConsoleError(QStringLiteral("the file dialog has no box for a name"));
        }
        name->setProperty("text", path);
        postTo(dialog, [dialog] { QMetaObject::invokeMethod(dialog, "accept"); });
        return;
    }
    throw ConsoleError(QStringLiteral("no file dialog is open"));
}

QDialog* topDialog() {
    for (QWidget* const window : visibleWindows()) {
        if (auto* const dialog = dynamic_cast<QDialog*>(window)) {
            return dialog;
        }
    }
    return nullptr;
}

QWebView* topDialogPage() {
    for (QWidget* const window : visibleWindows()) {
        if (window->inherits("QDialog") || window->inherits("GUI_SelectBox")) {
            if (auto* const view = window->findChild<QWebView*>()) {
                return view;
            }
        }
    }
    return nullptr;
}

} // namespace windows

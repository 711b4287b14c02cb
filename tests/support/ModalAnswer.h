#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

/// Looks at the next modal window of the class `Window` that shows, and answers it as a user would: the
/// function presses one of its buttons. To be made before the window opens. If the function finds a fault,
/// the window is closed, so that the test goes on.
template <class Window>
class ModalAnswer : public QObject {
public:
    explicit ModalAnswer(std::function<void(Window&)> look) : m_look(std::move(look)) {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
            if (window && window->isVisible()) {
                m_timer.stop();
                seen = true;
                const QPointer<Window> guard(window);
                m_look(*window);
                if (guard && QTest::currentTestFailed()) {
                    static_cast<QDialog*>(window)->done(0); // a file dialog's own is protected
                }
            }
        });
        m_timer.start(5);
    }

    bool seen = false;

private:
    std::function<void(Window&)> m_look;
    QTimer m_timer;
};

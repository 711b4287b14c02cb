#include "tests/support/ModalSteps.h"

#include "tests/support/PanelTest.h"
#include "viewer/console/WindowDriver.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QWebView>
#include <QtTest>

namespace {
constexpr int kPollMs = 10;
constexpr int kPatienceMs = 5000;

// The page's own handlers are bound, so what a user does now has its effect.
const char kIsReady[] = "document.readyState === 'complete' && !!window.jQuery && jQuery('button').filter("
                        "function () { return jQuery._data(this, 'events'); }).length > 0";

QJsonObject inDialog(const char* name, const QString& value, QJsonObject more = {}) {
    more[QLatin1String(name)] = value;
    more[QStringLiteral("dialog")] = true;
    return more;
}
} // namespace

ModalSteps::ModalSteps(PanelTest& test) : m_test(test) {
    QObject::connect(&m_timer, &QTimer::timeout, [this] { next(); });
}

ModalSteps& ModalSteps::press(const QString& button) {
    return add(QStringLiteral("press %1").arg(button), [this, button] {
        auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible()) {
            return false;
        }
        const QString text = box->text();
        m_test.call("windows.press", {{QStringLiteral("button"), button}});
        m_boxes.append(text);
        return true;
    });
}

ModalSteps& ModalSteps::click(const QString& title, const QString& selector) {
    return add(QStringLiteral("click %1 in %2").arg(selector, title), [this, title, selector] {
        if (!isOpen(title)) {
            return false;
        }
        m_test.call("page.click", inDialog("selector", selector));
        return true;
    });
}

ModalSteps& ModalSteps::type(const QString& title, const QString& selector, const QString& text) {
    return add(QStringLiteral("type into %1 in %2").arg(selector, title), [this, title, selector, text] {
        if (!isOpen(title)) {
            return false;
        }
        m_test.call("page.key",
                    inDialog("selector", selector, {{QStringLiteral("key"), QStringLiteral("Ctrl+A")}}));
        m_test.call("page.key",
                    inDialog("selector", QString(), {{QStringLiteral("key"), QStringLiteral("Del")}}));
        m_test.call("page.type", inDialog("selector", QString(), {{QStringLiteral("text"), text}}));
        return true;
    });
}

ModalSteps& ModalSteps::key(const QString& title, const QString& selector, const QString& name) {
    return add(QStringLiteral("press %1 in %2").arg(name, title), [this, title, selector, name] {
        if (!isOpen(title)) {
            return false;
        }
        m_test.call("page.key", inDialog("selector", selector, {{QStringLiteral("key"), name}}));
        return true;
    });
}

ModalSteps& ModalSteps::expect(const QString& title, const QString& script) {
    return add(QStringLiteral("see %1 in %2").arg(script, title), [this, title, script] {
        return isOpen(title) && m_test.call("page.eval", inDialog("script", script)).toBool();
    });
}

ModalSteps& ModalSteps::run(const std::function<bool()>& step) {
    return add(QStringLiteral("run the test's own step"), step);
}

ModalSteps& ModalSteps::add(const QString& what, const std::function<bool()>& tryIt) {
    m_steps.push_back({what, tryIt});
    if (!m_timer.isActive()) {
        m_waited.start();
        m_timer.start(kPollMs);
    }
    return *this;
}

bool ModalSteps::isOpen(const QString& title) {
    QWidget* const front = QApplication::activeModalWidget();
    return front && front->isVisible() && front->windowTitle() == title && front->findChild<QWebView*>() &&
           m_test.call("page.eval", inDialog("script", QString::fromLatin1(kIsReady))).toBool();
}

void ModalSteps::next() {
    if (!m_failure.isEmpty()) { // closes one window after the other
        if (auto* const dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->done(0);
        }
        return;
    }
    if (m_steps.empty()) {
        return;
    }
    QString reason;
    try {
        if (m_steps.front().tryIt()) {
            m_steps.pop_front();
            m_waited.start();
            return;
        }
    } catch (const std::exception& error) { // not yet possible
        reason = QString::fromUtf8(error.what());
    }
    if (m_waited.elapsed() > kPatienceMs) {
        const QWidget* const front = QApplication::activeModalWidget();
        const QString box = front && front->inherits("QMessageBox")
                                ? static_cast<const QMessageBox*>(front)->text()
                                : QString();
        m_failure = QStringLiteral("could not %1 (%2); in front: %3 %4")
                        .arg(m_steps.front().what, reason,
                             front ? front->windowTitle() : QStringLiteral("no modal window"), box);
        m_steps.clear();
    }
}

QString ModalSteps::finish() {
    while (!m_steps.empty() || (!m_failure.isEmpty() && QApplication::activeModalWidget())) {
        QTest::qWait(kPollMs);
    }
    // What the last step answered comes to its end.
    QElapsedTimer closing;
    closing.start();
    while (QApplication::activeModalWidget() && closing.elapsed() < kPatienceMs) {
        QTest::qWait(kPollMs);
    }
    m_test.settle();
    if (m_failure.isEmpty() && QApplication::activeModalWidget()) {
        m_failure =
            QStringLiteral("a window stays open: ") + QApplication::activeModalWidget()->windowTitle();
        while (QApplication::activeModalWidget()) {
            QTest::qWait(kPollMs);
        }
    }
    m_timer.stop();
    return m_failure;
}

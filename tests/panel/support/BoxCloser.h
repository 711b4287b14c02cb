#pragma once

#include "tests/support/PanelTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QWebView>

/// Answers message boxes as they come, questions with yes, and runs a script once in each web dialog. Closes
/// a dialog that is still open behind its script, or whose page could not read what it needs. It counts its
/// own turns in the event loop, not the time: a busy machine gives the page as many of them.
class BoxCloser : public QObject {
public:
    explicit BoxCloser(PanelTest* test = nullptr) : m_test(test) { startTimer(5); }
    int closed = 0;
    int dialogs = 0;
    QString script;

protected:
    void timerEvent(QTimerEvent*) override {
        QWidget* const front = QApplication::activeModalWidget();
        if (auto* const box = dynamic_cast<QMessageBox*>(front)) {
            ++closed;
            QAbstractButton* const yes = box->button(QMessageBox::Yes);
            yes ? yes->click() : box->accept();
        } else if (auto* const files = dynamic_cast<QFileDialog*>(front)) {
            if (m_driven != files) {
                m_driven = files;
                ++dialogs;
                QMetaObject::invokeMethod(files, script.toUtf8().constData(), Qt::QueuedConnection);
            }
        } else if (front && front->findChild<QWebView*>()) {
            drive(front);
        }
    }

private:
    void drive(QWidget* dialog) {
        constexpr int kTurnsAtRest = 15; // for what the page has asked of a thread
        constexpr int kMaxTurns = 1000;  // of a page that never comes to rest
        if (m_driven != dialog) {
            m_driven = dialog;
            m_isRun = false;
            m_turns = m_turnsAtRest = 0;
            ++dialogs;
        }
        const auto eval = [this](const QString& text) {
            return m_test->call("page.eval",
                                {{QStringLiteral("script"), text}, {QStringLiteral("dialog"), true}});
        };
        const QString ready =
            QStringLiteral("document.readyState === 'complete' && !!window.jQuery && "
                           "!!jQuery._data(jQuery('.dialog-buttons button').last()[0], 'events')");
        if (!m_isRun && eval(ready).toBool()) {
            m_isRun = true;
            // In an event of its own: what opens a further window must not hold up this timer.
            eval(QStringLiteral("window.test_runs = true, setTimeout(function () {"
                                " try { %1 } finally { window.test_runs = false; } }, 0), 1")
                     .arg(script));
            return;
        }
        const bool isAtRest =
            eval(QStringLiteral("document.readyState === 'complete' && !window.test_runs")).toBool();
        m_turnsAtRest = isAtRest ? m_turnsAtRest + 1 : 0;
        if (m_turnsAtRest > kTurnsAtRest || ++m_turns > kMaxTurns) {
            dynamic_cast<QDialog*>(dialog)->done(0);
        }
    }

    PanelTest* m_test;
    QPointer<QWidget> m_driven;
    bool m_isRun = false;
    int m_turns = 0;
    int m_turnsAtRest = 0;
};

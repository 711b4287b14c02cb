#pragma once

#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/web/GUI_WebViewDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTimer>

/// Agrees to every modal window that shows while it lives, so that what opens dialogs comes back: a web
/// dialog once its page was loaded, a box by its Yes or OK. A file dialog is cancelled, what waits for work
/// is left alone. For tests that don't look at the windows.
class DialogCloser : public QObject {
public:
    DialogCloser() {
        qApp->installEventFilter(this);
        connect(&m_timer, &QTimer::timeout, this, &DialogCloser::agree);
        m_timer.start(2);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const dialog =
            event->type() == QEvent::Show ? qobject_cast<GUI_WebViewDialog*>(watched) : nullptr;
        if (dialog) {
            connect(dialog->view(), &QWebView::loadFinished, dialog,
                    [dialog] { QTimer::singleShot(0, dialog, &QDialog::accept); });
        }
        return false;
    }

private:
    static void agree() {
        QWidget* const window = QApplication::activeModalWidget();
        if (auto* const files = qobject_cast<QFileDialog*>(window)) {
            files->reject();
            return;
        }
        if (auto* const box = qobject_cast<QMessageBox*>(window)) {
            for (const QMessageBox::StandardButton button : {QMessageBox::Yes, QMessageBox::Ok}) {
                if (box->button(button)) {
                    box->button(button)->click();
                    return;
                }
            }
            box->close();
        } else if (auto* const dialog = qobject_cast<QDialog*>(window);
                   dialog && !qobject_cast<GUI_WebViewDialog*>(dialog) &&
                   !qobject_cast<QProgressDialog*>(dialog)) {
            dialog->accept();
        }
    }

    QTimer m_timer;
};

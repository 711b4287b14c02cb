#include "livecontrol/web/GUI_Dialog.h"

#include "livecontrol/bridge/UserOperationLog.h"

#include <QEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>

GUI_Dialog::GUI_Dialog(QWidget* parent, Qt::WindowFlags flags, bool ignoreEscape)
    : QDialog(parent, flags), m_ignoreEscape(ignoreEscape) {
    connect(this, &GUI_Dialog::signalEnableCloseButton, this, &GUI_Dialog::slotEnableCloseButton);
    connect(this, &GUI_Dialog::signalDisableCloseButton, this, &GUI_Dialog::slotDisableCloseButton);
    installEventFilter(this);
}

bool GUI_Dialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::Close) {
        logNativeClose(this);
    }
    return QDialog::eventFilter(watched, event);
}

void GUI_Dialog::userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                         const QString& id, const QString& className, const QVariant& value) {
    logUserOperation(url, operation, control, id, className, value);
}

void GUI_Dialog::userOperationErrorLog(const QString& message) { logUserOperationError(message); }

void GUI_Dialog::slotEnableCloseButton() { setCloseButton(true); }

void GUI_Dialog::slotDisableCloseButton() { setCloseButton(false); }

void GUI_Dialog::setCloseButton(bool on) {
    if (windowFlags().testFlag(Qt::WindowCloseButtonHint) != on) {
        const QScopedValueRollback<bool> changing(m_changingFlags, true);
        setWindowFlag(Qt::WindowCloseButtonHint, on);
        show(); // changing the flags hides the window
    }
}

void GUI_Dialog::setVisible(bool visible) {
    if (m_changingFlags) {
        // A dialog that hides would end its exec().
        QWidget::setVisible(visible); // NOLINT(bugprone-parent-virtual-call)
    } else {
        QDialog::setVisible(visible);
    }
}

void GUI_Dialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_ignoreEscape) {
        return;
    }
    QDialog::keyPressEvent(event);
}

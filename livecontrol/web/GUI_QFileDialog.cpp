#include "livecontrol/web/GUI_QFileDialog.h"

#include "livecontrol/bridge/UserOperationLog.h"

#include <QEvent>

GUI_QFileDialog::GUI_QFileDialog(QWidget* parent, HostObject* host, const QString& caption,
                                 const QString& dir, const QString& filter)
    : QFileDialog(parent, caption, dir, filter), m_host(host) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setOption(QFileDialog::DontUseNativeDialog);
    setOption(QFileDialog::DontConfirmOverwrite);
    installEventFilter(this);
}

bool GUI_QFileDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::Close) {
        logNativeClose(this);
    }
    return QFileDialog::eventFilter(watched, event);
}

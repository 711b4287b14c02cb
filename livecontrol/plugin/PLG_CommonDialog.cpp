// The modeless pattern dialog that a plug-in may have.

#include "livecontrol/bridge/JS_Mediator_Dialog.h"
#include "livecontrol/foundation/DeterUpdateScope.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/plugin/PLG_Common.h"
#include "livecontrol/web/GUI_ModelessPatternDialog.h"

GUI_ModelessPatternDialog* PLG_Common::ensureDialog(bool create) {
    if (!m_dialog && create) {
        m_dialog.reset(createDialog());
        if (m_dialog) {
            connect(m_dialog.get(), &GUI_ModelessPatternDialog::shown, this,
                    &PLG_Common::slotModelessPatternDialogShown);
            connect(m_dialog.get(), &GUI_ModelessPatternDialog::closed, this,
                    &PLG_Common::slotModelessPatternDialogClosed);
        }
    }
    return m_dialog.get();
}

void PLG_Common::showDialog() {
    if (!isReady("showDialog")) {
        return;
    }
    GUI_ModelessPatternDialog* const dialog = ensureDialog(true);
    if (!dialog || (!dialog->isHidden() && !dialog->isMinimized())) {
        return;
    }
    dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
    emit dialog->mediator()->open();
    dialog->show();
    if (m_holdLiveWhileOpen) {
        m_host->beginLiveHold();
    }
    notifyTool();
}

void PLG_Common::hideDialog() {
    if (isDialogVisible()) {
        m_dialog->hide();
    }
}

void PLG_Common::closeDialog() {
    if (m_dialog && !m_dialog->isHidden()) {
        m_dialog->close();
    }
}

void PLG_Common::onModeChanged(int mode) {
    if (!isDialogVisible()) {
        return;
    }
    m_dialog->onModeChanged(mode);
    if (!isEnabledInMode(mode) && m_closeDialogWhenDisabled && m_dialog) {
        closeDialog();
    }
}

bool PLG_Common::isDialogVisible() { return m_dialog && m_dialog->isVisible(); }

void PLG_Common::slotModelessPatternDialogClosed() {
    if (m_dialog && !m_dialog->canClose()) {
        return;
    }
    if (m_holdLiveWhileOpen) {
        m_host->endLiveHold();
    }
    {
        const DeterUpdateScope deter(m_host);
        if (m_dialog) {
            m_dialog->hide();
        }
        m_host->closePlugin(m_name);
    }
    m_host->updateAll(-1, true);
}

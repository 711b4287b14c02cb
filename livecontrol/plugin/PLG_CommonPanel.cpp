// The life cycle of a plug-in's panel and of its tool.

#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/interface/DOC_Display.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/plugin/PLG_Common.h"

namespace {
const QLatin1String kMultiLock("t_multilock");
} // namespace

void PLG_Common::onOpen() {
    if (!isReady("onOpen")) {
        return;
    }
    if (!m_hasPanel) {
        if (m_name != kMultiLock && (m_exclusiveTool == 1 || m_exclusiveTool == 4)) {
            m_host->setToolEnabled(m_name, true);
        }
        return;
    }
    if (m_name != kMultiLock) {
        if (m_exclusiveTool != 0) {
            m_host->setToolActive(m_name, true);
        } else if (m_quickToolOption == 1) {
            m_host->setActiveTool(QString());
            m_host->setToolActive(m_name, true);
        } else {
            m_host->setToolActive(m_name, false);
        }
    }
    if (isPerDocumentTool()) {
        m_host->setToolEffect(m_name, m_toolOption == 0, true);
        m_toolApplied = true;
    }
    if (m_kind != 6 && m_holdLiveWhileOpen) {
        m_host->beginLiveHold();
    }
}

void PLG_Common::onClose() {
    if (!isReady("onClose")) {
        return;
    }
    if (m_hasPanel) {
        clearWidget();
        m_modified = false;
        closePanel();
        return;
    }
    if (m_name == kMultiLock) {
        return;
    }
    if (m_exclusiveTool == 1) {
        m_host->setToolEnabled(m_name, false);
    }
    if (m_kind == 6) {
        m_host->closeTools(QStringList(m_name), -1);
    }
}

void PLG_Common::onClosed() {
    if (!isReady("onClosed") || !m_hasPanel) {
        return;
    }
    clearWidget();
    m_host->resetHistory();
    if (isPerDocumentTool() && m_toolApplied) {
        m_host->cancelTool(m_name);
        m_toolApplied = false;
    }
    if (m_holdLiveWhileOpen) {
        m_host->endLiveHold();
    }
}

void PLG_Common::onApply() {
    if (!isReady("onApply") || !m_hasPanel) {
        return;
    }
    if (isPerDocumentTool()) {
        m_host->commitTool(true, m_name);
        m_toolApplied = false;
    }
    m_modified = false;
    closePanel();
}

void PLG_Common::onCancel() {
    if (!isReady("onCancel") || !m_hasPanel) {
        return;
    }
    if (isPerDocumentTool()) {
        m_host->cancelTool(m_name);
        m_toolApplied = false;
    }
    m_modified = false;
    closePanel();
}

void PLG_Common::closePanel() {
    if (m_closeWithPlugin) {
        m_host->closeCurrentPlugin();
    } else {
        m_host->closePanel();
    }
}

void PLG_Common::onReset(bool pause) {
    if (!isReady("onReset")) {
        return;
    }
    if (!pause) {
        doReset();
        return;
    }
    const LiveSuspendGuard guard(m_host, false, false);
    doReset();
}

void PLG_Common::doReset() {
    if (isReady("doReset") && m_hasPanel) {
        m_modified = false;
        m_host->resetHistory();
    }
}

void PLG_Common::onResetTool(bool pause) {
    if (!isReady("onResetTool")) {
        return;
    }
    if (!pause) {
        doResetTool();
        return;
    }
    const LiveSuspendGuard guard(m_host, false, false);
    doResetTool();
}

void PLG_Common::doResetTool() {
    if (isReady("doResetTool") && m_hasPanel) {
        m_host->resetTool(m_name);
    }
}

void PLG_Common::notifyTool() {
    if (!isReady("notifyTool")) {
        return;
    }
    if (m_quickToolOption == 1) {
        m_host->setActiveTool(m_name);
    }
}

namespace {
/// State of the view tools, which belong to no document.
bool isViewToolOn(PLG_Interface& plugin, HostObject& host, const QString& name, bool& known) {
    known = true;
    if (name == kMultiLock) {
        return host.isMultiLock();
    }
    if (name == QLatin1String("t_zoomfit")) {
        return host.getZoom(0) <= 0;
    }
    if (plugin.getExclusiveTool() == 4) {
        return plugin.isAspectFixed();
    }
    if (name == QLatin1String("t_angle3d_lock")) {
        return host.isAngleLocked3D();
    }
    if (name == QLatin1String("t_texture3d")) {
        return host.isTexture3D();
    }
    if (name == QLatin1String("t_wireframe3d")) {
        return host.isWireframe3D();
    }
    if (name == QLatin1String("t_boundingbox3d")) {
        return host.isBoundingBox3D();
    }
    if (name == QLatin1String("t_compass3d")) {
        return host.isCompass3D();
    }
    known = false;
    return false;
}
} // namespace

bool PLG_Common::isChecked(DOC_Interface* document, bool flag) {
    if (!document || !isEnabled()) {
        return false;
    }
    switch (m_kind) {
    case 1:
    case 5:
        return true;
    case 2:
    case 3:
        return docAs<DOC_Display>(document).isToolApplied(m_name, flag);
    case 4: {
        PLG_Interface* const current = m_host->getCurrentPlugin();
        return current && current->getName() == m_name;
    }
    case 6:
        return m_host->getOpenTools().contains(m_name) ? docAs<DOC_Display>(document).isToolActive(m_name)
                                                       : isDialogVisible();
    default:
        break;
    }
    bool known = false;
    const bool on = isViewToolOn(*this, *m_host, m_name, known);
    return known ? on : docAs<DOC_Display>(document).isToolActive(m_name);
}

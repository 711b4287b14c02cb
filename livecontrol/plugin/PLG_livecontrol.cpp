#include "livecontrol/plugin/PLG_livecontrol.h"

#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/RUN_ObservePhaseAdjustWarningThread.h"
#include "livecontrol/live/GUI_ImageTriggerHistgramWidget.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"

#include <QThread>

PLG_livecontrol::PLG_livecontrol() {
    m_name = QStringLiteral("livecontrol");
    m_kind = 1;
    m_modeMask = 1;
    m_panelType = 4;
    m_hasPanel = true;
    m_refreshOnAreaChange = false;
}

PLG_livecontrol::~PLG_livecontrol() { m_deviceListMediator.reset(); }

void PLG_livecontrol::init(HostObject* host) {
    const bool isFirst = !m_host;
    PLG_HTML::init(host);
    if (!isFirst || !m_host) {
        return;
    }
    setMediator(std::make_unique<JS_Mediator_LiveControl>(host, this));
    m_deviceListMediator = std::make_unique<JS_Mediator_DeviceList>(host, QStringLiteral("deviceList"));
    m_deviceListMediator->setParentWidget(host->getDialogParent());
    host->addMediator(m_deviceListMediator.get());
    // By name: the observer's class lives in the host, so its meta-object is not the one that was compiled
    // here.
    if (QObject* const observer = host->getPhaseAdjustObserver()) {
        connect(observer, SIGNAL(signalWarning(bool)), this, SLOT(slotPhaseAdjustWarning(bool)));
    }
}

void PLG_livecontrol::update() {
    if (m_mediator) {
        emit m_mediator->update();
    }
}

JS_Mediator_LiveControl* PLG_livecontrol::liveControl() const {
    return static_cast<JS_Mediator_LiveControl*>(m_mediator.get());
}

void PLG_livecontrol::callPage(int livePage) {
    if (m_mediator) {
        emit liveControl()->signalCallLiveControlPage(livePage);
    }
}

void PLG_livecontrol::setVariableRegist(const QString& channel) {
    if (m_mediator) {
        emit liveControl()->signalSetVariableRegist(channel);
    }
}

int PLG_livecontrol::getLastPage() { return m_mediator ? liveControl()->getLastPage() : 0; }

bool PLG_livecontrol::isAreaPage() {
    switch (getLastPage()) {
    case LIVE_PAGE_VARIABLE:
        return !m_variableAreaLocked;
    case LIVE_PAGE_AUTO_EXPOSURE:
    case LIVE_PAGE_HW_IMAGE_TRIGGER:
        return true;
    default:
        return false;
    }
}

bool PLG_livecontrol::isCurrentOrLocked(DOC_Interface* document) {
    return m_host->isCurrentDocument(document) || m_host->isMultiLock();
}

bool PLG_livecontrol::isAreaSetting() {
    return m_host->isHwTriggerSetting() || m_host->isAutoExposureSetting() || m_host->isVariableSetting();
}

bool PLG_livecontrol::isAreaShown(DOC_Interface* document) {
    if (!document) {
        return false;
    }
    return called(
        "isAreaShown",
        [&] {
            auto& settings = docAs<DOC_Settings>(document);
            if (settings.isLowLight() && settings.getLowLightType() == kLowLightShowsArea) {
                return true;
            }
            return isCurrentOrLocked(document) && isAreaSetting();
        },
        false);
}

bool PLG_livecontrol::isAreaEditable(DOC_Interface* document) {
    if (!document) {
        return false;
    }
    return called(
        "isAreaEditable",
        [&] { return isCurrentOrLocked(document) && isAreaSetting() && !m_variableAreaLocked; }, false);
}

void PLG_livecontrol::setArea(DOC_Interface* /*document*/, const QRect& area, bool /*final*/) {
    if (QThread::currentThread() != thread()) {
        return;
    }
    m_selectArea = area;
    called("setArea", [&] { m_host->runPageScript(QStringLiteral("livecontrol_obj.recvRectArea();")); });
}

void PLG_livecontrol::createWidget() {
    setWidget(new GUI_ImageTriggerHistgramWidget(m_host, getName(), nullptr));
}

void PLG_livecontrol::setHistogramVisible(bool visible) {
    if (!visible) {
        clearWidget(); // the page drops the widget together with the histogram
    }
    m_histogramVisible = visible;
    m_overlayEnabled = visible;
}

void PLG_livecontrol::tellTriggerParameterApplied() {
    if (PLG_Interface* const daq = m_host->findPlugin(QStringLiteral("daq"))) {
        daq->onTriggerParameterApplied();
    }
}

void PLG_livecontrol::slotPhaseAdjustWarning(bool isWarn) {
    if (m_mediator) {
        liveControl()->changedPhaseAdjustWarning(isWarn);
    }
}

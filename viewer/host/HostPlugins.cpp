#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/host/Shell.h"
#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostPlugins";
}

void ViewerHost::refreshPlugins() {
    OPERATION();
    m_shell.refreshTools();
    m_updates.requestSoon(-1);
}

PLG_Interface* ViewerHost::findPlugin(const QString& name) {
    OPERATION(name);
    return m_plugins.find(name);
}

void ViewerHost::closePanel() {
    OPERATION();
    m_plugins.closeCurrent();
}

void ViewerHost::openPlugin(const QString& name) {
    OPERATION(name);
    if (name == QLatin1String("autofocus")) {
        m_autoFocus.start();
        return;
    }
    m_plugins.openPanel(name);
}

void ViewerHost::closePlugin(const QString& name) {
    OPERATION(name);
    m_plugins.closePanel(name);
}

void ViewerHost::closeCurrentPlugin() {
    OPERATION();
    m_plugins.closeCurrent();
}

PLG_Interface* ViewerHost::getCurrentPlugin() {
    OPERATION();
    return m_plugins.current();
}

QString ViewerHost::getCurrentPluginName() {
    OPERATION();
    return m_plugins.current() ? m_plugins.current()->getName() : QString();
}

bool ViewerHost::isVariableSetting() {
    OPERATION();
    return m_modes.isOn(SettingModes::Variable);
}

void ViewerHost::setVariableSetting(bool on) {
    OPERATION(on);
    m_modes.set(SettingModes::Variable, on);
    if (!on) {
        m_variableSetting.leave();
    }
}

void ViewerHost::setAutoExposureSetting(bool on) {
    OPERATION(on);
    m_modes.set(SettingModes::AutoExposure, on);
}

bool ViewerHost::isAutoExposureSetting() {
    OPERATION();
    return m_modes.isOn(SettingModes::AutoExposure);
}

void ViewerHost::setHwTriggerSetting(bool on) {
    OPERATION(on);
    m_modes.set(SettingModes::HwTrigger, on);
}

bool ViewerHost::isHwTriggerSetting() {
    OPERATION();
    return m_modes.isOn(SettingModes::HwTrigger);
}

QStringList ViewerHost::getOpenTools() {
    OPERATION();
    return m_documents.tools().activeNames();
}

// The state of tools that this program doesn't have.

bool ViewerHost::isSendingNodeCommand() {
    OPERATION();
    return false;
}

bool ViewerHost::isAdjustingImage() {
    OPERATION();
    return false;
}

bool ViewerHost::isDetectingPixelDefect() {
    OPERATION();
    return false;
}

bool ViewerHost::isImageTriggerCapturing() {
    OPERATION();
    return false;
}

bool ViewerHost::isImageTriggerDetecting() {
    OPERATION();
    return false;
}

bool ViewerHost::isCustomInfoAvailable() {
    OPERATION();
    return true;
}

bool ViewerHost::isQmonRunning() {
    OPERATION();
    return false;
}

bool ViewerHost::isDisplayingPersmatch(DOC_Interface* document) {
    OPERATION(document);
    return false;
}

bool ViewerHost::isAssigningPointMe(DOC_Interface* document) {
    OPERATION(document);
    return false;
}

bool ViewerHost::isAssigningPointOther(DOC_Interface* document) {
    OPERATION(document);
    return false;
}

// The part of HostApplication that leads to the windows: views, panel, tools, native boxes.

#include "viewer/cameras/CameraHead.h"
#include "viewer/host/Shell.h"
#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostApplication";
}

void ViewerHost::enterNativeWidget(QEvent* event) {
    OPERATION();
    m_shell.nativeWidgetEntered(event);
}

void ViewerHost::leaveNativeWidget(QEvent* event) {
    OPERATION();
    m_shell.nativeWidgetLeft(event);
}

void ViewerHost::nativeWidgetPressed(QMouseEvent* event) {
    OPERATION();
    m_shell.nativeWidgetPressed(event);
}

void ViewerHost::hideSelectBox() {
    OPERATION();
    m_shell.hideSelectBox();
}

bool ViewerHost::isShownDropBox() {
    OPERATION();
    return m_shell.isDropDownBoxShown();
}

void ViewerHost::showDropDownBox(const QString& key, const QRect& rect) {
    OPERATION(key, rect);
    m_shell.showDropDownBox(key, rect);
}

void ViewerHost::hideDropDownBoxAt(const QString& key, const QPoint& point) {
    OPERATION(key, point);
    m_shell.hideDropDownBoxAt(key, point);
}

void ViewerHost::hideDropDownBox(const QString& key) {
    OPERATION(key);
    m_shell.hideDropDownBox(key);
}

QWidget* ViewerHost::getDialogParent() {
    OPERATION();
    return m_shell.dialogParent();
}

QWidget* ViewerHost::getMainWindow() {
    OPERATION();
    return m_shell.mainWindow();
}

QObject* ViewerHost::getAppScriptObject() {
    OPERATION();
    return m_shell.appScriptObject();
}

QObject* ViewerHost::getMainScriptObject() {
    OPERATION();
    return m_shell.mainScriptObject();
}

QObject* ViewerHost::getMdiArea() {
    OPERATION();
    return m_shell.mdiArea();
}

void ViewerHost::attachMediator(GUI_WebView* view, JS_Mediator* mediator) {
    OPERATION();
    m_shell.attachMediator(view, mediator);
}

void ViewerHost::addMediator(JS_Mediator* mediator) {
    OPERATION();
    m_shell.addPanelMediator(mediator);
}

void ViewerHost::runPageScript(const QString& script) {
    OPERATION(script);
    m_shell.runPanelScript(script);
}

void ViewerHost::refreshTools() {
    OPERATION();
    m_shell.refreshTools();
}

bool ViewerHost::isDisplayInfoShowing() {
    OPERATION();
    return m_shell.isInfoShowing();
}

void ViewerHost::setDisplayInfoShowing(bool showing) {
    OPERATION(showing);
    m_shell.setInfoShowing(showing);
}

bool ViewerHost::isToolActive(const QString& name) {
    OPERATION(name);
    return current() ? current()->isToolActive(name) : m_documents.tools().isActive(name);
}

bool ViewerHost::isToolActive(const QString& name, DOC_Interface* document, bool flag) {
    OPERATION(name, document, flag);
    const Document* const asked = m_documents.find(document);
    return asked && asked->isToolActive(name);
}

bool ViewerHost::hasOpenViews(bool flag) {
    OPERATION(flag);
    return !m_shell.windowKeys(false).isEmpty();
}

bool ViewerHost::isCycleView() {
    OPERATION();
    return m_shell.isCycling();
}

void ViewerHost::showBusyText(const QString& text, DOCKEY key) {
    OPERATION(text, key);
    m_shell.setBusyText(key, text);
}

void ViewerHost::hideBusyText(DOCKEY key) {
    OPERATION(key);
    m_shell.setBusyText(key, QString());
}

bool ViewerHost::isOtherPluginOpen() {
    OPERATION();
    QStringList names = m_plugins.openNames();
    names.removeAll(QStringLiteral("livecontrol"));
    return !names.isEmpty();
}

bool ViewerHost::isOpenExceptFilecontrol() {
    OPERATION();
    QStringList names = m_plugins.openNames();
    names.removeAll(QStringLiteral("livecontrol"));
    names.removeAll(QStringLiteral("filecontrol"));
    return !names.isEmpty();
}

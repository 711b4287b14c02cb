#pragma once

#include "viewer/host/HostWindow.h"
#include "viewer/host/doors/ApplicationDoor.h"

/// Views, panel, tools, native boxes; tools and devices that this program and its cameras do not have.
class ApplicationWindowsDoor : public ApplicationDoor {
public:
    using ApplicationDoor::ApplicationDoor;

    void enterNativeWidget(QEvent* event) override {
        OPERATION();
        m_shell.nativeWidgetEntered(event);
    }

    void leaveNativeWidget(QEvent* event) override {
        OPERATION();
        m_shell.nativeWidgetLeft(event);
    }

    void nativeWidgetPressed(QMouseEvent* event) override {
        OPERATION();
        m_shell.nativeWidgetPressed(event);
    }

    void hideSelectBox() override {
        OPERATION();
        m_shell.hideSelectBox();
    }

    bool isShownDropBox() override {
        OPERATION();
        return m_shell.isDropDownBoxShown();
    }

    void showDropDownBox(const QString& key, const QRect& rect) override {
        OPERATION(key, rect);
        m_shell.showDropDownBox(key, rect);
    }

    void hideDropDownBoxAt(const QString& key, const QPoint& point) override {
        OPERATION(key, point);
        m_shell.hideDropDownBoxAt(key, point);
    }

    void hideDropDownBox(const QString& key) override {
        OPERATION(key);
        m_shell.hideDropDownBox(key);
    }

    QWidget* getDialogParent() override {
        OPERATION();
        return m_shell.dialogParent();
    }

    QWidget* getMainWindow() override {
        OPERATION();
        return m_shell.mainWindow();
    }

    QObject* getAppScriptObject() override {
        OPERATION();
        return m_shell.appScriptObject();
    }

    QObject* getMainScriptObject() override {
        OPERATION();
        return m_shell.mainScriptObject();
    }

    QObject* getMdiArea() override {
        OPERATION();
        return m_shell.mdiArea();
    }

    void attachMediator(GUI_WebView* view, JS_Mediator* mediator) override {
        OPERATION();
        m_shell.attachMediator(view, mediator);
    }

    void addMediator(JS_Mediator* mediator) override {
        OPERATION();
        m_shell.addPanelMediator(mediator);
    }

    void runPageScript(const QString& script) override {
        OPERATION(script);
        m_shell.runPanelScript(script);
    }

    void refreshTools() override {
        OPERATION();
        m_shell.refreshTools();
    }

    bool isDisplayInfoShowing() override {
        OPERATION();
        return m_shell.isInfoShowing();
    }

    void setDisplayInfoShowing(bool showing) override {
        OPERATION(showing);
        m_shell.setInfoShowing(showing);
    }

    bool isToolActive(const QString& name) override {
        OPERATION(name);
        return current() ? current()->isToolActive(name) : m_documents.tools().isActive(name);
    }

    bool isToolActive(const QString& name, DOC_Interface* document, bool flag) override {
        OPERATION(name, document, flag);
        const Document* const asked = m_documents.find(document);
        return asked && asked->isToolActive(name);
    }

    bool hasOpenViews(bool flag) override {
        OPERATION(flag);
        return !m_shell.windowKeys(false).isEmpty();
    }

    bool isCycleView() override {
        OPERATION();
        return m_shell.isCycling();
    }

    void showBusyText(const QString& text, DOCKEY key) override {
        OPERATION(text, key);
        m_shell.setBusyText(key, text);
    }

    void hideBusyText(DOCKEY key) override {
        OPERATION(key);
        m_shell.setBusyText(key, QString());
    }

    bool isOtherPluginOpen() override;
    bool isOpenExceptFilecontrol() override;
    bool isTracking() override { return OPERATION(); }
    bool isStepTracking() override { return OPERATION(); }
    bool isActiveOnQmon() override { return OPERATION(); }
    bool isQmonWindowShown() override { return OPERATION(); }
    bool isNt3DFile() override { return OPERATION(); }
    bool isLimited3DTool(DOC_Interface* document) override { return OPERATION(document); }
    QList<QPair<QString, QString>> findSavedData(const QList<QPair<QString, QString>>& pairs,
                                                 const QString& folder) override;

    void setSaveViewFontName(const QString& name, int index) override { OPERATION(name, index); }

private:
    static constexpr char kInterface[] = "HostApplication";
};

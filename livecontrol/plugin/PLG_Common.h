#pragma once

#include "livecontrol/interface/PLG_Interface.h"
#include "livecontrol/plugin/AreaGeometry.h"

#include <QColor>
#include <QHash>
#include <QMutex>
#include <QPointer>
#include <QWidget>
#include <memory>

class GUI_ModelessPatternDialog;
class UTL_TextCache;

/// What all plug-ins of the host's family share: the life cycle of a panel and its tool, an edit of a
/// rectangle on the image, and an optional modeless dialog. A subclass sets the attributes in its
/// constructor.
class PLG_Common : public PLG_Interface {
    Q_OBJECT

public:
    PLG_Common();
    ~PLG_Common() override;

    /// Once, with a host; anything else is refused with a line in the log.
    void init(HostObject* host) override;
    void onHostDeactivated() override;
    void update() override;

    void onPaintImage(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame, bool lock) override;
    void paintImage(DOC_Interface*, bool, IMG_FrameBuffer*) override {}
    void onPaintOverlay(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) override;
    void paintOverlay(DOC_Interface*, bool, IMG_FrameBuffer*) override {}
    void onPaintExtra(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) override;
    void paintExtra(DOC_Interface*, bool, IMG_FrameBuffer*) override {}

    QString getHtml() override;
    void onOpen() override;
    void onClose() override;
    void onClosed() override;
    void onApply() override;
    void onOK() override { onApply(); }
    void onCancel() override;
    void onReset(bool pause) override;
    void doReset() override;
    void onResetTool(bool pause) override;
    void doResetTool() override;
    void notifyTool() override;
    void reserved1() override {}
    void reserved2() override {}
    void reserved3() override {}

    JS_Mediator* getMediator() override { return m_mediator.get(); }
    QString getName() override { return m_name; }
    int getPageType() override { return m_pageType; }
    int getSubPageType() override { return m_subPageType; }
    int getPanelType() override { return m_panelType; }
    int getCategory() override { return m_category; }
    bool reserved4() override { return true; }
    void setPanelVisible(bool visible) override { m_panelVisible[currentView()] = visible; }
    void setModified(bool modified) override { m_modified = modified; }
    bool isModified() override { return m_modified; }
    bool isEnabledInMode(int mode) override;
    bool isEnabled() override;
    bool getCloseDialogWhenDisabled() override { return m_closeDialogWhenDisabled; }
    void setCloseDialogWhenDisabled(bool close) override { m_closeDialogWhenDisabled = close; }
    bool isPanelVisible() override { return m_panelVisible[currentView()]; }
    bool getHasPanel() override { return m_hasPanel; }
    bool getPanelFlag() override { return m_panelFlag[currentView()]; }

    void createWidget() override {}
    void clearWidget() override { m_widget = nullptr; }
    QWidget* getWidget() override { return m_widget; }

    void mousePress(const QPoint& pos, DOCKEY key) override;
    void reserved5() override {}
    void mouseMove(const QPoint& pos, DOCKEY key) override;
    void mouseCancel(DOCKEY key) override { mouseRelease(m_lastPos, key); }
    void mouseRelease(const QPoint& pos, DOCKEY key) override;
    void reserved6() override {}
    void reserved7() override {}
    void reserved8() override {}
    void mouseLeave() override;
    bool isDragging() override { return m_dragging; }
    QPoint getPressPos() override { return m_pressPos; }
    QPoint getDocumentPointerPos(DOCKEY key) override;
    void reserved9() override {}
    DOCKEY getPointerDocKey() override { return m_pointerDocKey; }
    int getKind() override { return m_kind; }
    int getToolOption() override { return m_toolOption; }
    bool reserved10() override { return true; }
    int reserved11() override { return 1; }
    int getExclusiveTool() override { return m_exclusiveTool; }
    int getToolFlagA() override { return m_toolFlagA; }
    int getToolFlagB() override { return m_toolFlagB; }
    int getExtraValue2() override { return m_extraValue2; }
    bool reserved12() override { return false; }

    void lock() override { m_mutex->lock(); }
    void unlock() override { m_mutex->unlock(); }
    bool isChecked(DOC_Interface* document, bool flag) override;

    GUI_ModelessPatternDialog* ensureDialog(bool create) override;
    void showDialog() override;
    void hideDialog() override;
    void closeDialog() override;
    void onModeChanged(int mode) override;
    int getGroupId() override { return m_groupId; }
    void reserved13() override {}
    bool getOverlayEnabled() override { return m_overlayEnabled; }
    void callPage(int) override {}
    void setVariableRegist(const QString&) override {}
    void keyPress(QKeyEvent* event) override;
    void clearKeyHeld() override { m_keyHeld = false; }
    QString getConfirmText() override { return QStringLiteral("Do you want to accept?"); }
    bool getFlagA() override { return m_flagA; }
    void reserved14() override {}
    bool reserved15() override { return false; }
    bool reserved16() override { return false; }
    bool reserved17() override { return false; }
    bool reserved18() override { return false; }
    bool reserved19() override { return false; }
    int getQuickToolOption() override { return m_quickToolOption; }
    bool isAreaPage() override { return false; }
    bool getFlagB() override { return m_flagB; }
    void reserved20() override {}
    int reserved21() override { return 0; }
    bool reserved22() override { return true; }
    void reserved23() override {}
    void reserved24() override {}
    bool isCustomInfoEnabled() override { return m_customInfoEnabled; }
    void setCustomInfoEnabled(bool enabled) override { m_customInfoEnabled = enabled; }
    void reserved25() override {}
    void reserved26() override {}
    int getLastPage() override { return 0; }

    bool isAreaEditable(DOC_Interface*) override { return false; }
    bool isAreaShown(DOC_Interface* document) override { return isAreaEditable(document); }
    QRect getArea() override { return {}; }
    QRect getAreaInImage(DOC_Interface* document, const QRect& area) override;
    void setArea(DOC_Interface*, const QRect&, bool) override {}
    QVariantMap getAreaProperties(DOC_Interface* document, const QSize& imageSize,
                                  const AreaPropertiesInput& input) override;
    void setStoredArea(const QRect& area) override { m_storedArea = area; }
    QRect getStoredArea() override { return m_storedArea; }
    void clearStoredArea() override { m_storedArea = QRect(); }
    void setRefreshOnAreaChange(bool refresh) override { m_refreshOnAreaChange = refresh; }
    bool getRefreshOnAreaChange() override { return m_refreshOnAreaChange; }
    void setRefreshAllOnMultiLock(bool refresh) override { m_refreshAllOnMultiLock = refresh; }
    bool getRefreshAllOnMultiLock() override { return m_refreshAllOnMultiLock; }
    bool getCloseWithPlugin() override { return m_closeWithPlugin; }
    void setCloseWithPlugin(bool close) override { m_closeWithPlugin = close; }
    int getExtraValue() override { return m_extraValue; }
    void setExtraValue(int value) override { m_extraValue = value; }
    void reserved27() override {}
    bool reserved28() override { return false; }
    bool reserved29() override { return false; }
    bool reserved30() override { return false; }
    void reserved31() override {}
    void reserved32() override {}
    void reserved33() override {}
    void reserved34() override {}
    void onTriggerParameterApplied() override {}

    bool hasDocument(DOCKEY key) override;
    void setCursorForHandle(DOC_Interface* document, int handle) override;
    bool isDialogVisible() override;
    bool getKeyHeld() override { return m_keyHeld; }

    bool reserved35() override { return false; }
    bool reserved36() override { return false; }
    double getAspectRatio() override { return 0.0; }
    bool isAspectFixed() override { return false; }
    GUI_ModelessPatternDialog* createDialog() override { return nullptr; }

public slots:
    void slotModelessPatternDialogShown() override {}
    void slotModelessPatternDialogClosed() override;
    void slotScreenShot(const QString&) override {}

signals:
    // A host or another plug-in may emit these; nothing here does.
    void signalRecord();
    void signalSaveFile();
    void signalSaveLayout();
    void signalEndRecording();
    void signalDisconnect();
    void signalStartAutoUpdate();
    void signalStopAutoUpdate();
    void signalScreenShot(const QString& path);

protected:
    /// Takes over the mediator and registers it with the host for the side panel page.
    void setMediator(std::unique_ptr<JS_Mediator> mediator);
    void setWidget(QWidget* widget) { m_widget = widget; }
    /// Limits of the rectangle, in sensor pixels; `maxSize` -1,-1 is no limit.
    void setAreaConstraints(const QPoint& posStep, const QSize& sizeStep, const QSize& maxSize,
                            const QSize& minSize, bool centerX, bool centerY);
    /// Runs what a host calls from its own handlers. Before `init` nothing runs, and a line in the log tells.
    /// A failure goes to the host's handleError() in place of its handler, the same one of an operation once
    /// until it works again.
    template <class Calls>
    void called(const char* operation, Calls&& calls) {
        called(
            operation, [&] { return std::forward<Calls>(calls)(), 0; }, 0);
    }
    /// The same with a result; `neutral` where there is none.
    template <class Calls, class Result>
    Result called(const char* operation, Calls&& calls, Result neutral) {
        if (!isReady(operation)) {
            return neutral;
        }
        try {
            neutral = std::forward<Calls>(calls)();
            if (!m_failures.isEmpty()) { // nothing is allocated in a paint pass
                m_failures.remove(operation);
            }
        } catch (std::exception& error) {
            tellFailure(operation, error); // after which this plug-in may be gone
        }
        return neutral;
    }
    /// Whether `init` has been called; a line in the log if not.
    bool isReady(const char* operation) const;
    /// Element of the per-view attributes: 1 in file mode, 0 otherwise.
    int currentView();
    /// Closes the panel, or the plug-in with `closeWithPlugin`.
    void closePanel();
    /// Draws the rectangle into the host's OpenGL pass, in view pixels. `color` null is white; `lineStyle` is
    /// the OpenGL capability of the line, GL_LINE_SMOOTH or GL_LINE_STIPPLE.
    void drawArea(DOC_Interface* document, bool pass, const QRect& area, const QColor* color, float lineWidth,
                  unsigned lineStyle);

    HostObject* m_host = nullptr; ///< Not owned.
    std::unique_ptr<UTL_TextCache> m_textCache;
    std::unique_ptr<GUI_ModelessPatternDialog> m_dialog;
    bool m_keyHeld = false;
    QPoint m_lastPos;
    bool m_holdLiveWhileOpen = false;
    int m_pageType = 0;
    int m_subPageType = 0;
    QString m_name;
    bool m_modified = false;
    unsigned m_modeMask = 7; ///< Bit 0 live, bit 1 memory, bit 2 file.
    bool m_panelVisible[2] = {false, false};
    int m_category = 0;
    int m_panelType = 0;
    bool m_hasPanel = false;
    bool m_panelFlag[2] = {false, false};
    std::unique_ptr<JS_Mediator> m_mediator;
    QPointer<QWidget> m_widget; ///< Belongs to the page that embeds it.
    int m_kind = 0;
    int m_toolOption = 0;
    int m_groupId = 3;
    bool m_dragging = false;
    QPoint m_pressPos;
    QRect m_pressArea;
    int m_handle = 9;
    DOCKEY m_pointerDocKey = kInvalidDockey;
    int m_exclusiveTool = 0;
    int m_quickToolOption = 0;
    int m_toolFlagA = 0;
    int m_toolFlagB = 2;
    int m_extraValue2 = 0;
    std::unique_ptr<QRecursiveMutex> m_mutex;
    bool m_overlayEnabled = false;
    bool m_toolApplied = false;
    bool m_flagA = false;
    bool m_flagB = false;
    bool m_customInfoEnabled = false;
    QRect m_storedArea;
    bool m_refreshOnAreaChange = true;
    bool m_refreshAllOnMultiLock = true;
    bool m_centerX = false;
    bool m_centerY = false;
    QPoint m_posStep{1, 1};
    QSize m_sizeStep{1, 1};
    QSize m_maxSize{-1, -1};
    QSize m_minSize{1, 1};
    bool m_closeWithPlugin = false;
    bool m_closeDialogWhenDisabled = true;
    int m_extraValue = 0;
    int m_dragDirection = 4;
    QHash<QByteArray, QByteArray> m_failures; ///< That were told, by operation.

private:
    void tellFailure(const char* operation, std::exception& error);
    void beginDrag(const QPoint& pos, DOCKEY key);
    void drag(const QPoint& pos, DOCKEY key);
    void endDrag(DOCKEY key);
    void moveByKey(const QKeyEvent& event);
    bool canEditArea(DOC_Interface* document);
    /// The document of a key, if this plug-in has it.
    DOC_Interface* ownDocument(DOCKEY key);
    /// Limits in the document's pixels, turned with its axes.
    area::Limits areaLimits(DOC_Interface* document);
    /// Takes over a changed rectangle, if anything of it is left.
    void commitArea(DOC_Interface* document, int handle, const QRect& changed, const QRect& pressed);
    void repaintAfterAreaChange(DOC_Interface* document);
    bool isPerDocumentTool() const { return m_kind == 2 || m_kind == 3; }
};

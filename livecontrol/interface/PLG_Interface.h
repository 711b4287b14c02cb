#pragma once

#include "livecontrol/interface/types.h"

#include <QKeyEvent>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVariantMap>

class DOC_Interface;
class GUI_ModelessPatternDialog;
class HostObject;
class IMG_FrameBuffer;
class JS_Mediator;
class QWidget;
struct AreaPropertiesInput;

/// The interface through which a host drives a plug-in.
///
/// A host calls by position, so the order of the operations is part of the interface: never reorder them, add
/// new ones at the end only. Positions named `reserved…` belong to operations of other plug-ins of the host's
/// family; they must stay where they are.
///
/// Life cycle: `makeHTMLPlugin` -> `init` -> `getName`, `getHtml` -> `open()` emitted on the mediator (the
/// page answers with `onOpen`) -> `update` and `onPaintOverlay` repeatedly -> `close()` emitted (the page
/// answers with `onClosed`) -> destructor. Everything but `makeHTMLPlugin` expects `init` to have happened.
/// All calls come on the GUI thread, the paint calls from the host's paint pass.
class PLG_Interface : public QObject {
    Q_OBJECT

public:
    ~PLG_Interface() override = default;

    /// Hands over the host object, which is not owned and outlives the plug-in.
    virtual void init(HostObject* host) = 0;
    /// The host's window lost its activation.
    virtual void onHostDeactivated() = 0;
    /// State changed: the plug-in tells its page.
    virtual void update() = 0;

    // Paint pass. `pass` is the host's pass flag, handed on to the document's mapping; `frame` may be null.
    virtual void onPaintImage(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame, bool lock) = 0;
    virtual void paintImage(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) = 0;
    virtual void onPaintOverlay(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) = 0;
    virtual void paintOverlay(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) = 0;
    virtual void onPaintExtra(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) = 0;
    virtual void paintExtra(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) = 0;

    /// The text of the panel's page; empty (and a warning in the log) if the resource is missing.
    virtual QString getHtml() = 0;

    // Panel life cycle.
    virtual void onOpen() = 0;
    virtual void onClose() = 0;
    virtual void onClosed() = 0;
    virtual void onApply() = 0;
    virtual void onOK() = 0;
    virtual void onCancel() = 0;
    /// Sets the plug-in back; with `pause` the live image is suspended meanwhile.
    virtual void onReset(bool pause) = 0;
    virtual void doReset() = 0;
    virtual void onResetTool(bool pause) = 0;
    virtual void doResetTool() = 0;
    virtual void notifyTool() = 0;
    virtual void reserved1() = 0;
    virtual void reserved2() = 0;
    virtual void reserved3() = 0;

    virtual JS_Mediator* getMediator() = 0;
    virtual QString getName() = 0;
    virtual int getPageType() = 0;
    virtual int getSubPageType() = 0;
    virtual int getPanelType() = 0;
    virtual int getCategory() = 0;
    /// True in every plug-in of this family.
    virtual bool reserved4() = 0;
    virtual void setPanelVisible(bool visible) = 0;
    virtual void setModified(bool modified) = 0;
    virtual bool isModified() = 0;
    /// Whether the plug-in serves a mode: 0 live, 1 memory, 2 file.
    virtual bool isEnabledInMode(int mode) = 0;
    virtual bool isEnabled() = 0;
    virtual bool getCloseDialogWhenDisabled() = 0;
    virtual void setCloseDialogWhenDisabled(bool close) = 0;
    virtual bool isPanelVisible() = 0;
    virtual bool getHasPanel() = 0;
    virtual bool getPanelFlag() = 0;

    // The native widget that the page embeds; it belongs to the page, the plug-in remembers the latest one.
    virtual void createWidget() = 0;
    virtual void clearWidget() = 0;
    virtual QWidget* getWidget() = 0;

    // Mouse on the image view, positions in view pixels.
    virtual void mousePress(const QPoint& pos, DOCKEY key) = 0;
    virtual void reserved5() = 0;
    virtual void mouseMove(const QPoint& pos, DOCKEY key) = 0;
    virtual void mouseCancel(DOCKEY key) = 0;
    virtual void mouseRelease(const QPoint& pos, DOCKEY key) = 0;
    virtual void reserved6() = 0;
    virtual void reserved7() = 0;
    virtual void reserved8() = 0;
    virtual void mouseLeave() = 0;
    virtual bool isDragging() = 0;
    virtual QPoint getPressPos() = 0;
    /// The pointer position that the document holds, image pixels; a null point without the document.
    virtual QPoint getDocumentPointerPos(DOCKEY key) = 0;
    virtual void reserved9() = 0;
    virtual DOCKEY getPointerDocKey() = 0;
    virtual int getKind() = 0;
    virtual int getToolOption() = 0;
    /// True in every plug-in of this family.
    virtual bool reserved10() = 0;
    /// 1 in every plug-in of this family.
    virtual int reserved11() = 0;
    virtual int getExclusiveTool() = 0;
    virtual int getToolFlagA() = 0;
    virtual int getToolFlagB() = 0;
    virtual int getExtraValue2() = 0;
    /// False in every plug-in of this family.
    virtual bool reserved12() = 0;

    /// Takes and releases the plug-in's recursive paint lock.
    virtual void lock() = 0;
    virtual void unlock() = 0;
    /// Whether the plug-in's tool button shows as on for the document.
    virtual bool isChecked(DOC_Interface* document, bool flag) = 0;

    // Modeless pattern dialog.
    virtual GUI_ModelessPatternDialog* ensureDialog(bool create) = 0;
    virtual void showDialog() = 0;
    virtual void hideDialog() = 0;
    virtual void closeDialog() = 0;
    /// The host changed its mode: 0 live, 1 memory, 2 file.
    virtual void onModeChanged(int mode) = 0;
    virtual int getGroupId() = 0;
    virtual void reserved13() = 0;
    virtual bool getOverlayEnabled() = 0;
    /// Asks the page to show one of its pages (`LIVE_PAGE`).
    virtual void callPage(int livePage) = 0;
    /// Tells the page the variable channel that was chosen for registration.
    virtual void setVariableRegist(const QString& channel) = 0;
    virtual void keyPress(QKeyEvent* event) = 0;
    virtual void clearKeyHeld() = 0;
    virtual QString getConfirmText() = 0;
    virtual bool getFlagA() = 0;
    virtual void reserved14() = 0;
    /// False in every plug-in of this family, like the four after it.
    virtual bool reserved15() = 0;
    virtual bool reserved16() = 0;
    virtual bool reserved17() = 0;
    virtual bool reserved18() = 0;
    virtual bool reserved19() = 0;
    virtual int getQuickToolOption() = 0;
    /// Whether the page that shows edits the rectangle on the image.
    virtual bool isAreaPage() = 0;
    virtual bool getFlagB() = 0;
    virtual void reserved20() = 0;
    /// 0 in every plug-in of this family.
    virtual int reserved21() = 0;
    /// True in every plug-in of this family.
    virtual bool reserved22() = 0;
    virtual void reserved23() = 0;
    virtual void reserved24() = 0;
    virtual bool isCustomInfoEnabled() = 0;
    virtual void setCustomInfoEnabled(bool enabled) = 0;
    virtual void reserved25() = 0;
    virtual void reserved26() = 0;
    virtual int getLastPage() = 0;

    // The rectangle on the image, in sensor-side image coordinates.
    virtual bool isAreaEditable(DOC_Interface* document) = 0;
    virtual bool isAreaShown(DOC_Interface* document) = 0;
    virtual QRect getArea() = 0;
    /// The rectangle in the pixels that the document shows: divided by image scale and binning.
    virtual QRect getAreaInImage(DOC_Interface* document, const QRect& area) = 0;
    virtual void setArea(DOC_Interface* document, const QRect& area, bool final) = 0;
    /// Values and limits for the host's edit of the rectangle as numbers.
    virtual QVariantMap getAreaProperties(DOC_Interface* document, const QSize& imageSize,
                                          const AreaPropertiesInput& input) = 0;
    virtual void setStoredArea(const QRect& area) = 0;
    virtual QRect getStoredArea() = 0;
    virtual void clearStoredArea() = 0;
    virtual void setRefreshOnAreaChange(bool refresh) = 0;
    virtual bool getRefreshOnAreaChange() = 0;
    virtual void setRefreshAllOnMultiLock(bool refresh) = 0;
    virtual bool getRefreshAllOnMultiLock() = 0;
    virtual bool getCloseWithPlugin() = 0;
    virtual void setCloseWithPlugin(bool close) = 0;
    virtual int getExtraValue() = 0;
    virtual void setExtraValue(int value) = 0;
    virtual void reserved27() = 0;
    /// False in every plug-in of this family, like the two after it.
    virtual bool reserved28() = 0;
    virtual bool reserved29() = 0;
    virtual bool reserved30() = 0;
    virtual void reserved31() = 0;
    virtual void reserved32() = 0;
    virtual void reserved33() = 0;
    virtual void reserved34() = 0;
    /// The live panel has set a parameter of the trigger: for the plug-in that records beside the cameras.
    virtual void onTriggerParameterApplied() = 0;

    virtual bool hasDocument(DOCKEY key) = 0;
    /// Sets the application's override cursor for a handle of the rectangle (0 to 9).
    virtual void setCursorForHandle(DOC_Interface* document, int handle) = 0;
    virtual bool isDialogVisible() = 0;
    virtual bool getKeyHeld() = 0;

public slots:
    virtual void slotModelessPatternDialogShown() = 0;
    virtual void slotModelessPatternDialogClosed() = 0;
    virtual void slotScreenShot(const QString& path) = 0;

public:
    /// False in every plug-in of this family, like the one after it.
    virtual bool reserved35() = 0;
    virtual bool reserved36() = 0;
    /// Width over height that an edit of the rectangle keeps; 0 when there is none.
    virtual double getAspectRatio() = 0;
    virtual bool isAspectFixed() = 0;
    /// Makes the modeless pattern dialog; null when the plug-in has none. The caller owns it.
    virtual GUI_ModelessPatternDialog* createDialog() = 0;
};

/// What a host knows when it asks for the values of the rectangle's edit.
struct AreaPropertiesInput {
    QRect area;               ///< Current rectangle, image pixels.
    bool fixedAspect = false; ///< Keep `aspectRatio` while the size changes.
    double aspectRatio = 0.0; ///< Width over height.
    double zoomRate = 100.0;  ///< Percent.
};

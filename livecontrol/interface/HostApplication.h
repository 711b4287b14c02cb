#pragma once

#include "livecontrol/interface/types.h"

#include <QList>
#include <QMap>
#include <QPair>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <exception>

class DOC_Interface;
class GUI_WebView;
class JS_Mediator;
class QDialog;
class QEvent;
class QMouseEvent;
class QObject;
class QWidget;
struct TimeCodeSetting;
template <class T>
class QFutureWatcher;

/// The host's preferences dialog, as far as a plug-in drives it. The host owns it.
class HostPrefsDialog {
public:
    virtual ~HostPrefsDialog() = default;

    /// Chooses the page that shows first; an empty name leaves the choice to the host.
    virtual void setPage(const QString& page) = 0;
    /// Runs the dialog modally. Returns a `QDialog::DialogCode`.
    virtual int exec() = 0;
};

/// The application: preferences, messages, dialogs, modes, update control.
///
/// GUI thread only, but for `writeSupportFile`. Preference names are texts with a slash such as "env/style".
/// Any operation may throw an exception derived from `std::exception`, except `handleError`. Widgets that are
/// handed out belong to the host; a null parent means the host's own choice.
class HostApplication {
public:
    virtual ~HostApplication() = default;

    /// Sends `update` to the pages of all open plug-ins and dialogs. `flags` is the host's bit mask (-1 all);
    /// with `force` also to those that the host would leave out.
    virtual void updateAll(int flags, bool force) = 0;
    /// The factory value of the preference `key`; invalid if it has none.
    virtual QVariant getPrefDefault(const QString& key) = 0;
    /// Removes the preference `key`, so that reads give their default again.
    virtual void removePref(const QString& key) = 0;
    /// The pointer entered a native widget that a page embeds.
    virtual void enterNativeWidget(QEvent* event) = 0;
    /// The pointer left a native widget that a page embeds.
    virtual void leaveNativeWidget(QEvent* event) = 0;
    /// Closes the select box, if one is open.
    virtual void hideSelectBox() = 0;
    /// True while a drop-down box is open.
    virtual bool isShownDropBox() = 0;
    /// Shows the native list box `key` over the page; `rect` in page pixels.
    virtual void showDropDownBox(const QString& key, const QRect& rect) = 0;
    /// Hides the native list box `key` unless `point` (page pixels) lies in it.
    virtual void hideDropDownBoxAt(const QString& key, const QPoint& point) = 0;
    /// Hides the native list box `key`.
    virtual void hideDropDownBox(const QString& key) = 0;
    /// True if a modal window may now begin; asked before `beginModal`.
    virtual bool canStartModal() = 0;
    /// The host's mode: 0 live, 1 memory, 2 file (`HostMode`).
    virtual int getMode() = 0;
    /// True in live mode.
    virtual bool isLiveMode() = 0;
    /// True in memory mode.
    virtual bool isMemoryMode() = 0;
    /// True in file mode.
    virtual bool isFileMode() = 0;
    /// Parent widget for dialogs; may be null.
    virtual QWidget* getDialogParent() = 0;
    /// The application's main window.
    virtual QWidget* getMainWindow() = 0;
    /// The object that pages see as `app`.
    virtual QObject* getAppScriptObject() = 0;
    /// The object that pages see as `main`.
    virtual QObject* getMainScriptObject() = 0;
    /// The widget that holds the document windows.
    virtual QObject* getMdiArea() = 0;
    /// Adds `mediator` to the main frame of `view` under its script name, now and whenever the frame's script
    /// objects are cleared, and stores the view in the mediator. Owns neither.
    virtual void attachMediator(GUI_WebView* view, JS_Mediator* mediator) = 0;
    /// Registers `mediator` for the side panel's page, which gets it under its script name. Not owned.
    virtual void addMediator(JS_Mediator* mediator) = 0;
    /// Shows the text of `error` to the user: the one way by which a failure reaches him. Never throws. May
    /// return before the user has read it.
    virtual void handleError(std::exception& error) = 0;
    /// Information box.
    virtual void info(const QString& text, QWidget* parent) = 0;
    /// Warning box with a list of lines under the message.
    virtual void showWarningList(const QString& message, const QStringList& list, QWidget* parent) = 0;
    /// Warning box.
    virtual void warn(const QString& text, QWidget* parent) = 0;
    /// Error box with a list of lines under the message.
    virtual void showAlertList(const QString& message, const QStringList& list, QWidget* parent) = 0;
    /// Error box.
    virtual void alert(const QString& text, QWidget* parent) = 0;
    /// Question box. `options` are options of the box by name, and one that the host does not know changes
    /// nothing; an empty map gives a plain box. "yes" and "no": wording of the buttons. "under": lines under
    /// the message, whom it concerns. "default": "no" makes Enter that. True means proceed.
    virtual bool confirm(const QString& message, QWidget* parent, const QMap<QString, QString>& options) = 0;
    /// Question box with OK and Cancel. True means proceed.
    virtual bool confirmOkCancel(const QString& text, QWidget* parent) = 0;
    /// Names of the fonts that information over the image can use.
    virtual QStringList getFontNameList() = 0;
    /// The host's translation of `text`; `text` itself if there is none. `context` may be null (the host's
    /// own), `n` is the number for a plural form, 0 for none.
    virtual QString translate(const QString& text, const char* context, int n) = 0;
    /// The label of an item of the information display.
    virtual QString getInfoItemLabel(const QString& key) = 0;
    /// The factory value of the preference "info/display".
    virtual QString getDefaultInfoDisplay() = 0;
    /// Refreshes the tool buttons.
    virtual void refreshTools() = 0;
    /// The preferences dialog, which the caller gives a page and runs. Owned by the host.
    virtual HostPrefsDialog* getPrefsDialog() = 0;
    /// True if the information over the image shows.
    virtual bool isDisplayInfoShowing() = 0;
    /// Opens the dialog with the application's version.
    virtual void openAboutDialog() = 0;
    /// Shows or hides the information over the image.
    virtual void setDisplayInfoShowing(bool showing) = 0;
    /// True if the tool `name` is active in the current document.
    virtual bool isToolActive(const QString& name) = 0;
    /// True if the tool `name` is active in `document`. Callers pass false for `flag`.
    virtual bool isToolActive(const QString& name, DOC_Interface* document, bool flag) = 0;
    /// True while a tracking tool runs.
    virtual bool isTracking() = 0;
    /// True while a tracking tool runs step by step.
    virtual bool isStepTracking() = 0;
    /// True if a view of a document is open. Asked, with `flag` false, after a search that found no camera.
    virtual bool hasOpenViews(bool flag) = 0;
    /// Evaluates `script` in the side panel's page.
    virtual void runPageScript(const QString& script) = 0;
    /// The time code setting of the host.
    virtual TimeCodeSetting getTimeCodeSetting() = 0;
    /// Replaces the time code setting of the host.
    virtual void setTimeCodeSetting(const TimeCodeSetting& setting) = 0;
    /// Builds the shown camera names anew, after the preference "use the address as name" changed.
    virtual void refreshCameraNames() = 0;
    /// True while the cameras are ready for recording.
    virtual bool isReady() = 0;
    /// True while the host shuts down.
    virtual bool isClosing() = 0;
    /// True if a page is to skip the update that it has just been sent.
    virtual bool isUpdateIgnore() = 0;
    /// True holds back `update` signals, false lets them go again. Calls nest.
    virtual void deterUpdateUI(bool deter) = 0;
    /// Fills `files` with the paths that a support file is to pack, and takes the screen captures among them.
    virtual void collectSupportFiles(QStringList& files) = 0;
    /// Packs `files` into the archive `path`. False if the archive could not be written. Called on a worker
    /// thread: it must not touch widgets. The list lives until the call returns.
    virtual bool writeSupportFile(const QString& path, QStringList* files) = 0;
    /// True if names for cameras may be chosen from a camera name file.
    virtual bool isCameraNameFileEnabled() = 0;
    /// The preference `name`, or `defaultValue` if it has none.
    virtual QVariant getPref(const QString& name, const QVariant& defaultValue) = 0;
    /// As `getPref`, as int.
    virtual int getPrefInt(const QString& name, const QVariant& defaultValue) = 0;
    /// As `getPref`, as bool.
    virtual bool getPrefBool(const QString& name, const QVariant& defaultValue) = 0;
    /// As `getPref`, as float.
    virtual float getPrefFloat(const QString& name, const QVariant& defaultValue) = 0;
    /// As `getPref`, as text. Callers pass 0 for `variant`.
    virtual QString getPrefString(const QString& name, const QVariant& defaultValue, int variant) = 0;
    /// Stores the preference `name`; written through.
    virtual void setPref(const QString& name, const QVariant& value) = 0;
    /// As `setPref`.
    virtual void setPrefInt(const QString& name, int value) = 0;
    /// As `setPref`.
    virtual void setPrefBool(const QString& name, bool value) = 0;
    /// As `setPref`.
    virtual void setPrefFloat(const QString& name, float value) = 0;
    /// As `setPref`.
    virtual void setPrefString(const QString& name, const QString& value) = 0;
    /// The font of the saved view's information changed: `name` is the font, `index` its place in the font
    /// box.
    virtual void setSaveViewFontName(const QString& name, int index) = 0;
    /// A mouse button went down on a native widget that a page embeds.
    virtual void nativeWidgetPressed(QMouseEvent* event) = 0;
    /// True while the host shows its documents in turn.
    virtual bool isCycleView() = 0;
    /// True if autofocus is active; with `currentOnly` the current document counts alone.
    virtual bool isAutoFocusActive(bool currentOnly) = 0;
    /// True while an autofocus run goes on.
    virtual bool isAutoFocussing() = 0;
    /// True if the open panel is not the live page; with `withDeviceSetting` neither the device settings
    /// page.
    virtual bool isNotPage(bool withDeviceSetting) = 0;
    /// True while the preferences dialog is open.
    virtual bool isPrefDialogOpening() = 0;
    /// True while a shading calibration runs.
    virtual bool isShading() = 0;
    /// True while a modal dialog is open.
    virtual bool isModalDialogOpening() = 0;
    /// A text field of a modeless dialog got or lost the focus.
    virtual void setModelessTextFocus(bool focussed) = 0;
    /// True while a text field of a modeless dialog has the focus.
    virtual bool isModelessTextFocused() = 0;
    /// A modal window of a plug-in has closed; pairs with `beginModal`.
    virtual void endModal() = 0;
    /// A modal window of a plug-in opens. Calls nest.
    virtual void beginModal() = 0;
    /// The dialog that waits while a camera's power changes, or null. Owned by the host.
    virtual QDialog* getPowerWaitDialog() = 0;
    /// Shows `text` on the view of the document `key`, until `hideBusyText`.
    virtual void showBusyText(const QString& text, DOCKEY key) = 0;
    /// Hides the text of `showBusyText`.
    virtual void hideBusyText(DOCKEY key) = 0;
    /// Name and version of the application.
    virtual QString getVersionText() = 0;
    /// Those of `pairs` (serial number, data number) that are found saved in `folder`.
    virtual QList<QPair<QString, QString>> findSavedData(const QList<QPair<QString, QString>>& pairs,
                                                         const QString& folder) = 0;
    /// Switches the LED (`isLed`) or the laser of the camera heads: `status` 1 on, 0 off.
    virtual void setHeadLedLaser(bool isLed, unsigned long status) = 0;
    /// True if the LED (`isLed`) or the laser of the current camera head is on.
    virtual bool getHeadLedLaser(bool isLed) = 0;
    /// A camera settings file is about to be chosen for loading. Callers pass false for `flag`.
    virtual void prepareSettingsLoad(bool flag) = 0;
    /// True if settings were restored, at the start or from a settings file, of which the user is still to be
    /// told something. Asked after each load.
    virtual bool wereSettingsRestored() = 0;
    /// Tells the user of them, then forgets them. Callers pass true for `show`.
    virtual void reportRestoredSettings(bool show) = 0;
    /// Rounds of 1 ms between event pumps in the wait for a paused worker thread; 0 or below means none.
    virtual int getEventPumpInterval() = 0;
    /// Waits modally, under a progress window with `title`, until the job of `watcher` has ended. Rethrows
    /// the exception that the job stored.
    virtual void runWithProgress(const QString& title, QFutureWatcher<void>& watcher) = 0;
    /// True if the multi-camera tool is the active one.
    virtual bool isActiveOnQmon() = 0;
    /// True if a plug-in other than the live control is open.
    virtual bool isOtherPluginOpen() = 0;
    /// True if the window of the multi-camera tool shows.
    virtual bool isQmonWindowShown() = 0;
    /// Opens the preferences on their Ethernet page.
    virtual void openPrefsEthernetSettings() = 0;
    /// True if the current document is a three-dimensional file.
    virtual bool isNt3DFile() = 0;
    /// True if `document` allows but a few tools because it is three-dimensional.
    virtual bool isLimited3DTool(DOC_Interface* document) = 0;
    /// True if a plug-in other than the file control and the live control is open.
    virtual bool isOpenExceptFilecontrol() = 0;
};

#pragma once

#include "livecontrol/devices/JS_Mediator_DeviceControl.h"
#include "livecontrol/interface/records.h"

#include <functional>
#include <optional>

class DOC_Interface;
class LivePlugin;
class QJsonObject;

namespace brightness {
struct Page;
}

/// The script object `livecontrol`: what the live panel reads of the cameras and sets on them. One class;
/// each file of this room holds the slots of one function. Nothing is cached: every getter asks the host,
/// every choice comes back as an index into a list that is fetched again.
class JS_Mediator_LiveControl : public JS_Mediator_DeviceControl {
    Q_OBJECT

public:
    /// Neither the host object nor the plug-in is owned; `Plugin` is the panel's plug-in and the keeper of
    /// the rectangle on the image in one.
    template <class Plugin>
    JS_Mediator_LiveControl(HostObject* host, Plugin* plugin)
        : JS_Mediator_LiveControl(host, plugin, plugin) {}
    JS_Mediator_LiveControl(HostObject* host, PLG_Interface* plugin, LivePlugin* livePlugin);

public slots:
    /// The page that showed last; outlives the page itself.
    int getLastPage() { return m_lastPage; }
    void setLastPage(int page) { m_lastPage = page; }

    // Shooting settings: JSON texts, empty after a failure.
    QString getResolutionSettings();
    QString getFrameRateSettings();
    QString getShutterSpeedSettings();
    QString getDSShutterSettings();
    QString getMaxResolution();
    bool isAvailableDSShutter();
    /// Whether width and height change places in the user's view; false without a document.
    bool isSwapResolution();

    // Setters by the row of the matching getter; a row that the list doesn't have changes nothing and is
    // logged.
    void setResolution(ulong selectValue);
    void setFrameRate(ulong selectValue);
    void setShutterSpeed(ulong selectValue);
    /// Runs during a drag: no update follows.
    void setDSShutterValue(ulong dsSutterValue);
    void toggleResolutionLockMode();
    void toggleShutterLockMode();

    // The trigger. A count below 1 switches the limit of random recordings off. Frames are those of the
    // memory, or of one random recording; the percentage is before the trigger and has two decimals.
    QString getTriggerModeSettings();
    QString getTriggerParameterSettings();
    void setTriggerMode(int zelTrigerMode, int beforeFrames, int afterFrames, float beforePercent,
                        int randomFrames, int randomCount);
    /// `lock` tells which value was edited: -1 none in particular, 0 before, 1 after, 2 percent. The page
    /// asks for what the camera took itself: no update follows. Without effect in low light.
    void applyTriggerParameter(int lock, int zelTrigerMode, int beforeFrames, int afterFrames,
                               float beforePercent, int randomFrames, int randomCount);
    /// Which value a change of the total leaves as it is; numbered as above.
    void setLockTriggerParam(int lock);
    int getLockTriggerParam();

    // The rectangle on the image. Texts are objects with X, Y, Width and Height in the user's view; without a
    // current document they are empty.
    /// Converts a rectangle of the original image.
    QString convertUserviewRect(int x, int y, int w, int h);
    /// True while no rectangle is registered.
    bool unsetSelectArea();
    void resetSelectArea();
    void sendSelectArea(const QString& selectAreaJSON);
    QString recvSelectArea();

    // Auto exposure. Levels are on the page's scale: of the real bit depth, or of 8 bits.
    /// The first call after autoExposureStart() takes the camera's own rectangle.
    QString getAutoExposureSettings();
    /// Notes the state of the page's box; the camera hears of it by setAutoExposure().
    void setAutoExposureSwitch(bool flag);
    /// Sends all to the selected cameras; the rectangle is the plug-in's, not the text's.
    void setAutoExposure(const QString& autoExposureJSON);
    /// Whether a camera took anything of the last page that was sent, by this or by setHWImageTrigger(). What
    /// was refused as a whole is still the user's, to be mended and sent again.
    bool isPageTaken() const { return m_isPageTaken; }
    /// Enters the setting mode; no effect while it is on.
    void autoExposureStart();
    void autoExposureEnd();
    /// Whether target and range together have a limit.
    bool hasAutoExposureUpperLimit();
    int getAutoExposureUpperLimit();

    // Image trigger: the camera judges the rectangle itself. Levels as above.
    QString getHWImageTriggerSettings();
    /// "--" while it isn't `active` or the camera doesn't judge, else "No Trigger" or "Triggered".
    QString getHWImageTriggerStatus(bool active);
    /// Starts or ends the host's watch over the camera's state. No update follows.
    void setImageTriggerObserver(bool active);
    /// Sends all to the selected cameras; the rectangle is the plug-in's, not the text's.
    void setHWImageTrigger(const QString& hwImageTrgJSON);
    /// Enters the setting mode; no effect while it is on.
    void hWImageTriggerStart();
    /// Leaves the setting mode; no effect while it is off.
    void hWImageTriggerEnd();
    /// Of both pages. Showing comes after the widget's creation, hiding before its end.
    void setHistgramVisible(bool isShow);

    // The lens. JSON text, empty after a failure. Values are positions on the slider of their axis; an
    // incremental move makes `coef` steps, small ones for a `size` of 0 and large ones for 1. No update
    // follows either: the lens takes its time, and the next update shows where it stands.
    QString getLensControlSettings();
    /// Milliseconds that a command of the lens takes.
    int getLensControlCommandTime();
    void closeLens();
    /// Reads the lens anew, under a text on the image.
    void resetLens();
    void setIrisValue(int value);
    void setFocusValue(int value);
    void setZoomValue(int value);
    void setIrisIncremental(int coef, int size);
    void setFocusIncremental(int coef, int size);
    void setZoomIncremental(int coef, int size);
    bool isAutoFocusActive();
    /// Opens the plug-in of that name.
    void openAutofocus();

    // Options. JSON texts, empty after a failure. Support levels as everywhere.
    QString getLiveImageQualitySettings();
    /// On favors the speed of the live image, off its quality.
    void setLiveImageDataReduceMode(bool on);
    QString getLowLightSettings();
    void setLowLightMode(bool mode);
    /// 2 shows the largest resolution, 3 the current one.
    void setLowLightType(int type);
    /// By the row of the shutter list. During a `slide` the host does not calibrate with the shutter, and no
    /// update follows.
    void setLowlightShutterSpeed(ulong selectValue, bool slide = true);
    QString getFanControlSettings();
    /// True lets the fan run.
    void setFanControl(bool value);
    void setShadingOn();
    bool isSupportedShadingOn();
    ulong existSupportedLedLaserControl();
    /// The LED, or the laser; `status` is 1 for on, 0 for off.
    void setHeadLedLaser(bool isLed, ulong status);
    bool getHeadLedLaser(bool isLed);
    bool isSupportedPhaseAdjust();
    /// The last warning of the host's observer of the links.
    bool isWarningPhaseAdjust() { return m_phaseAdjustWarning; }
    void execPhaseAdjust();
    /// Stores the warning of the host's link observer and tells the page.
    void changedPhaseAdjustWarning(bool isWarn);

    /// Does nothing without a camera, or where custom information is switched off.
    void editCustom() override;

    // Variable channels, 1 to 20. JSON texts, empty after a failure. A rate is named by its position in the
    // host's list; one that isn't there changes nothing and is logged.
    QString getCurrentVariableInfo();
    QString getVariableInfo(int channelNo);
    void setVariableChannel(ulong channel);
    void eraseVariableChannel(ulong channel);
    /// Enters the setting mode; false if it could not be entered.
    bool prepareVariableSetting();
    /// Puts back what was in force at the entry.
    void cancelVariableSetting();
    /// Leaves the setting mode.
    void finalizeVariableSetting();
    /// `priority`: all rates; otherwise those that the size can run, in the camera's orientation, the first
    /// preset without one.
    QString getVariableFramerateList(bool priority, ulong width = 0, ulong height = 0);
    /// `priority`: all presets; otherwise those that reach the rate.
    QString getVariableResolutionList(bool priority, int framerateIndex = 0);
    /// Limits in the user's orientation; with a rate those that it leaves, from the user's size on.
    QString getVariableRestriction(int framerateIndex = -1, ulong userWidth = 0, ulong userHeight = 0);
    /// Stores a channel with the rectangle on the image and makes it the active one. Size and position are
    /// logged only.
    void setVariableChannelInfo(ulong channel, int framerateIndex, ulong width, ulong height, ulong posX,
                                ulong posY, bool applySameCameras = false);
    /// Whether the last call of it stored its channel. The user knows of a failure by then.
    bool isVariableChannelStored() { return m_variableChannelStored; }
    void changeVariableResolutionInputType(bool isPreset);
    /// Hands the page's limits to the editing of the rectangle.
    void updateVariableLimit(bool opticalCenter, const QVariantMap& restriction);
    /// Walks along the grid, first down or up, to a size that the camera takes at the rate; after three turns
    /// gives up where it stands.
    ulong correctVariableResolution(int framerateIndex, ulong width, ulong height, ulong correctMax,
                                    bool correctHeight = true, bool correctDown = true);
    /// Whether the smallest size reaches the rate.
    bool validateFrameRateOnManual(int framerateIndex);

    // Settings of the cameras, kept in a file or in presets and brought back. Not while low light is on.
    void save();
    void load();

    // The list of cameras.
    /// Searches the network of a dotted address, which is remembered.
    void findCameras(const QString& ipAddres);
    /// Searches all adapters; the host shows what it found.
    void discoverySearch();
    void updateCameras();
    /// Lets the user edit the device of a document; the host opens the dialog.
    void editDoc(DOCKEY dockey);
    /// JSON with the address of the last search.
    QString getIPAddressSettings();
    bool isUseIpCameraName();
    void setUseIpCameraName(bool isUseIp);
    /// Turns the device of a document, or all that can be, off or restarts them, as the user answers.
    void controlCameraPower(DOCKEY dockey);
    /// Lets the user connect the camera of a document with an access point. Unknown keys do nothing.
    void wifiSetting(int docKey);

signals:
    void signalCallLiveControlPage(int livePage);
    void signalSetVariableRegist(const QString& channel);
    void signalPhaseAdjustWarning();

private:
    QString channelLabel(unsigned channel);
    void refreshIfNoCamera();
    VariableBackup variableBackup();
    /// The trigger, if its frame counts are the user's and differ from those at the entry.
    std::optional<TriggerConfig> changedTrigger();
    VariableChannelInfo channelOfSelectArea(DOC_Interface* document, unsigned long rate);
    void storeVariableChannel(unsigned channel, const VariableChannelInfo& content, bool applySameCameras);
    QSize firstPresetSize();
    bool isValidVariableSize(unsigned long rate, unsigned width, unsigned height);
    void limitToRate(VariableRestriction& limits, int framerateIndex, quint32 userWidth, quint32 userHeight);
    QRect selectAreaInUserview(DOC_Interface* document);
    /// Hands the limits on to the edit with the mouse.
    void takeAreaLimits(const AutoExposureLimits& limits);
    /// Registers an area of the camera (camera coordinates). Nothing without a size.
    void takeArea(const QRect& cameraArea, const AutoExposureLimits& limits, DOC_Interface* document);
    // The pages of auto exposure and of the image trigger; they throw what the host throws.
    void enterBrightnessPage(const brightness::Page& page);
    /// What both show. Without an area on the image yet, the camera's own is taken.
    QJsonObject brightnessText(const brightness::Page& page, const AutoExposureInfo& current,
                               AutoExposureLimits limits, DOC_Interface* document,
                               const std::optional<quint32>& upperLimit);
    using BrightnessReader = std::function<AutoExposureInfo(AutoExposureLimits&)>;
    using BrightnessSender = std::function<void(const AutoExposureInfo& wished, const QJsonObject& wish,
                                                const AutoExposureInfo& atCamera)>;
    /// Sends a page's text and the area on the image to the cameras; `atCamera` is what `read` gave before.
    /// Then registers the area that the current camera took. If it took nothing, what the user has set stays.
    void sendBrightness(const brightness::Page& page, const QString& text, const BrightnessReader& read,
                        const BrightnessSender& send);

    LivePlugin* m_livePlugin; ///< Not owned.
    VariableBackup m_variableBackup;
    int m_lastPage = 0;
    bool m_phaseAdjustWarning = false;
    bool m_showHistogram = false;
    bool m_imageTriggerOn = false; ///< State of the page's box and of the host's watch.
    bool m_isPageTaken = true;
    bool m_autoExposureOn = false; ///< State of the page's box, which the camera may not have yet.
    bool m_variableChannelStored = false;
};

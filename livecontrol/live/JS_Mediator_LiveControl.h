#pragma once

#include "livecontrol/devices/JS_Mediator_DeviceControl.h"

#include <functional>

class LivePlugin;
class QJsonObject;

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

    /// Stores the warning of the host's link observer and tells the page.
    void changedPhaseAdjustWarning(bool isWarn);

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
    /// `lock` tells which value was edited: -1 none in particular, 0 before, 1 after, 2 percent. The page asks
    /// for what the camera took itself: no update follows. Without effect in low light.
    void applyTriggerParameter(int lock, int zelTrigerMode, int beforeFrames, int afterFrames,
                               float beforePercent, int randomFrames, int randomCount);
    /// Which value a change of the total leaves as it is; numbered as above.
    void setLockTriggerParam(int lock);
    int getLockTriggerParam();

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

    LivePlugin* m_livePlugin; ///< Not owned.
    int m_lastPage = 0;
    bool m_phaseAdjustWarning = false;
};

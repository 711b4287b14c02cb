#pragma once

#include <QString>
#include <QStringList>

class DOC_Interface;
class PLG_Interface;

/// The plug-in manager, and the state of tools that other plug-ins run.
///
/// GUI thread only. Plug-in objects belong to the host. Any operation may throw an exception derived from
/// `std::exception`.
class HostPlugins {
public:
    virtual ~HostPlugins() = default;

    /// Sets the plug-ins anew, after a search left no camera document and no open view.
    virtual void refreshPlugins() = 0;
    /// The plug-in of that name, or null.
    virtual PLG_Interface* findPlugin(const QString& name) = 0;
    /// Closes the side panel of the plug-in.
    virtual void closePanel() = 0;
    /// Opens the tool plug-in of that name.
    virtual void openPlugin(const QString& name) = 0;
    /// Closes the plug-in of that name.
    virtual void closePlugin(const QString& name) = 0;
    /// Closes the plug-in that is open.
    virtual void closeCurrentPlugin() = 0;
    /// The plug-in that is open, or null.
    virtual PLG_Interface* getCurrentPlugin() = 0;
    /// The name of the plug-in that is open; empty without one.
    virtual QString getCurrentPluginName() = 0;
    /// True while the variable channel setting is open.
    virtual bool isVariableSetting() = 0;
    /// The variable channel setting opens or closes.
    virtual void setVariableSetting(bool on) = 0;
    /// The auto exposure setting opens or closes.
    virtual void setAutoExposureSetting(bool on) = 0;
    /// True while the auto exposure setting is open.
    virtual bool isAutoExposureSetting() = 0;
    /// The hardware image trigger setting opens or closes.
    virtual void setHwTriggerSetting(bool on) = 0;
    /// True while the hardware image trigger setting is open.
    virtual bool isHwTriggerSetting() = 0;
    /// Names of the tools that are open.
    virtual QStringList getOpenTools() = 0;
    /// True while a command goes to the camera nodes.
    virtual bool isSendingNodeCommand() = 0;
    /// True while an image adjustment is open.
    virtual bool isAdjustingImage() = 0;
    /// True while pixel defects are being detected.
    virtual bool isDetectingPixelDefect() = 0;
    /// True while the software image trigger takes its reference picture.
    virtual bool isImageTriggerCapturing() = 0;
    /// True while the software image trigger watches.
    virtual bool isImageTriggerDetecting() = 0;
    /// True if custom information can be edited.
    virtual bool isCustomInfoAvailable() = 0;
    /// True while the multi-camera tool runs.
    virtual bool isQmonRunning() = 0;
    /// True while perspective matching shows on `document`.
    virtual bool isDisplayingPersmatch(DOC_Interface* document) = 0;
    /// True while points are being assigned on `document` itself.
    virtual bool isAssigningPointMe(DOC_Interface* document) = 0;
    /// True while points are being assigned on a document other than `document`.
    virtual bool isAssigningPointOther(DOC_Interface* document) = 0;
};

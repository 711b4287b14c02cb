#pragma once

#include "viewer/host/doors/HistoryDoor.h"

/// The plug-ins, the setting modes of the live panel, and the state of tools that this program does not
/// have.
class PluginsDoor : public HistoryDoor {
public:
    using HistoryDoor::HistoryDoor;

    void refreshPlugins() override;

    PLG_Interface* findPlugin(const QString& name) override {
        OPERATION(name);
        return m_plugins.find(name);
    }

    void closePanel() override {
        OPERATION();
        m_plugins.closeCurrent();
    }

    void openPlugin(const QString& name) override {
        OPERATION(name);
        if (name == QLatin1String("autofocus")) {
            m_autoFocus.start();
            return;
        }
        m_plugins.openPanel(name);
    }

    void closePlugin(const QString& name) override {
        OPERATION(name);
        m_plugins.closePanel(name);
    }

    void closeCurrentPlugin() override {
        OPERATION();
        m_plugins.closeCurrent();
    }

    PLG_Interface* getCurrentPlugin() override {
        OPERATION();
        return m_plugins.current();
    }

    QString getCurrentPluginName() override;

    bool isVariableSetting() override {
        OPERATION();
        return m_modes.isOn(SettingModes::Variable);
    }

    void setVariableSetting(bool on) override {
        OPERATION(on);
        m_modes.set(SettingModes::Variable, on);
        if (!on) {
            m_variableSetting.leave();
        }
    }

    void setAutoExposureSetting(bool on) override {
        OPERATION(on);
        m_modes.set(SettingModes::AutoExposure, on);
    }

    bool isAutoExposureSetting() override {
        OPERATION();
        return m_modes.isOn(SettingModes::AutoExposure);
    }

    void setHwTriggerSetting(bool on) override {
        OPERATION(on);
        m_modes.set(SettingModes::HwTrigger, on);
    }

    bool isHwTriggerSetting() override {
        OPERATION();
        return m_modes.isOn(SettingModes::HwTrigger);
    }

    QStringList getOpenTools() override {
        OPERATION();
        return m_documents.tools().activeNames();
    }

    bool isSendingNodeCommand() override { return OPERATION(); }
    bool isAdjustingImage() override { return OPERATION(); }
    bool isDetectingPixelDefect() override { return OPERATION(); }
    bool isImageTriggerCapturing() override { return OPERATION(); }
    bool isImageTriggerDetecting() override { return OPERATION(); }

    bool isCustomInfoAvailable() override {
        OPERATION();
        return true;
    }

    bool isQmonRunning() override { return OPERATION(); }
    bool isDisplayingPersmatch(DOC_Interface* document) override { return OPERATION(document); }
    bool isAssigningPointMe(DOC_Interface* document) override { return OPERATION(document); }
    bool isAssigningPointOther(DOC_Interface* document) override { return OPERATION(document); }

private:
    static constexpr char kInterface[] = "HostPlugins";
};

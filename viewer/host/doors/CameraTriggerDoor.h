#pragma once

#include "viewer/host/doors/CameraShootingDoor.h"

/// The trigger.
class CameraTriggerDoor : public CameraShootingDoor {
public:
    using CameraShootingDoor::CameraShootingDoor;

    void getTriggerParameters(int& afterFrames, int& randomFrames, int& randomTimesMax) override {
        OPERATION();
        const TriggerConfig config = triggerConfig();
        afterFrames = config.afterFrames;
        randomFrames = config.randomFrames;
        randomTimesMax = config.randomCount;
    }

    int getTriggerMode() override {
        OPERATION();
        return settings() ? settings()->triggerMode : 0;
    }

    bool isTriggerModeDifferent() override;

    void getTriggerModeList(QList<int>& list) override {
        OPERATION();
        list = head() ? head()->model().triggerModes : QList<int>();
    }

    void setTriggerModeSimple(int mode, int afterFrames, int randomFrames, int randomCount) override {
        OPERATION(mode, afterFrames, randomFrames, randomCount);
        applyTrigger(m_cameras.all(),
                     {mode, TriggerRules::LockAfter, 0, afterFrames, 0, 0, randomFrames, randomCount}, {});
    }

    bool isRandomTimesEnable() override {
        OPERATION();
        return settings() && settings()->randomTimes;
    }

    int getMaxRandomTrgCount() override {
        OPERATION();
        return head() ? head()->model().randomCountMax : 0;
    }

    int getMaxRandomEndlessTrgCount() override {
        OPERATION();
        return head() ? head()->model().randomCountMaxAlways : 0;
    }

    void setRandomTimesEnable(bool enable) override;

    int getRandomFramesOffset() override {
        OPERATION();
        return head() ? head()->model().randomOffset : 0;
    }

    int getTotalFrames() override {
        OPERATION();
        return head() ? head()->totalFrames() : 0;
    }

    void applyTriggerParameterOf(const QList<DOC_Interface*>& documents, int lock, int mode, int before,
                                 int after, float percent, int randomFrames, int randomCount) override {
        OPERATION(documents, lock, mode, before, after, percent, randomFrames, randomCount);
        applyTrigger(m_cameras.of(documents),
                     {mode, lock, before, after, percent, 0, randomFrames, randomCount}, valuesText);
    }

    void applyTriggerParameter(int lock, int mode, int before, int after, float percent, int randomFrames,
                               int randomCount) override {
        OPERATION(lock, mode, before, after, percent, randomFrames, randomCount);
        applyTrigger(m_cameras.all(), {mode, lock, before, after, percent, 0, randomFrames, randomCount},
                     valuesText);
    }

    void setTriggerModeParameters(int mode, int before, int after, float percent, int randomFrames,
                                  int randomCount) override;

    void getTriggerConfig(TriggerConfig& config) override {
        OPERATION();
        config = triggerConfig();
    }

    bool isSameTriggerConfig(const TriggerConfig& a, const TriggerConfig& b) override;

    int existSupportRandomTrgTimes() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::RandomTimes);
    }

private:
    static constexpr char kInterface[] = "HostCameraControl";

    /// `taken`: see CameraCommands.
    void applyTrigger(const QList<CameraDocument*>& cameras, const TriggerConfig& wish,
                      const CameraCommands::Taken& taken);
    void changeMode(const QList<CameraDocument*>& cameras, const TriggerConfig& wish);
    static QString valuesText(const CameraHead& head);
    TriggerConfig triggerConfig() const;
};

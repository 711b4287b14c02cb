#pragma once

#include "viewer/host/doors/CameraExposureDoor.h"

/// Variable channels, and the partitions of the memory.
class CameraVariableDoor : public CameraExposureDoor {
public:
    using CameraExposureDoor::CameraExposureDoor;

    unsigned getVariableChannel() override {
        OPERATION();
        return settings() ? unsigned(settings()->channel) : 0;
    }

    void setVariableChannel(unsigned channel) override {
        OPERATION(channel);
        takeChannel(m_cameras.all(), channel);
    }

    void setVariableChannelOf(const QList<DOC_Interface*>& documents, unsigned channel) override;
    void getVariableChannelInfo(unsigned channel, VariableChannelInfo& info) override;
    void setVariableChannelInfoOf(const QList<DOC_Interface*>& documents, unsigned channel,
                                  const VariableChannelInfo& info) override;
    void listVariableTargets(QList<DOC_Interface*>& documents, bool applySameCameras) override;
    void eraseVariableChannel(unsigned channel) override;
    unsigned getVariableMaxWidth(unsigned long rate, unsigned height) override;
    unsigned getVariableMaxHeight(unsigned long rate, unsigned width) override;
    unsigned long getVariableMaxRate(unsigned width, unsigned height) override;
    void getVariableRestriction(VariableRestriction& restriction) override;
    void getVariableRateList(QList<unsigned long>& list) override;

    void beginVariableSetting() override {
        OPERATION();
        m_variableSetting.begin();
    }

    void restoreVariableSetting(const VariableBackup& backup) override {
        OPERATION();
        m_variableSetting.restore(backup);
    }

    void setCurrentPartition(int number, bool notify) override;

private:
    static constexpr char kInterface[] = "HostCameraControl";

    void takeChannel(const QList<CameraDocument*>& cameras, unsigned channel);
};

#pragma once

#include "viewer/host/doors/CameraOptionsDoor.h"

/// The cameras in the network, their names and addresses.
class CameraSearchDoor : public CameraOptionsDoor {
public:
    using CameraOptionsDoor::CameraOptionsDoor;

    QString getDefaultCameraName(int reserved) override;
    void editCamera(DOCKEY key, const QString& name, const QString& ip, const QString& mask,
                    const QString& gateway, bool isLive) override;
    void connectCameras(const QStringList& list) override;
    void findCameras(const QString& ip) override;
    void addCamera(const QString& name, const QString& ip, bool isDummy, bool connect) override;
    void updateCameras() override;
    void discoverySearch() override;
    QString discoverySearchAgain() override;
    void setDiscoveryNetwork(unsigned adapter, unsigned ip, unsigned mask, unsigned gateway,
                             const QString& mac) override;

private:
    static constexpr char kInterface[] = "HostCameraControl";

    /// The address in whose network a search looks; empty for everywhere.
    QString searchPlace() const;
};

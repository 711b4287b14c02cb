#pragma once

#include "viewer/host/doors/CameraOptionsDoor.h"
#include "viewer/host/parts/cameras/CameraFinder.h"

/// The cameras in the network, their names and addresses.
class CameraSearchDoor : public CameraOptionsDoor {
public:
    using CameraOptionsDoor::CameraOptionsDoor;

    QString getDefaultCameraName(int reserved) override {
        OPERATION(reserved);
        return m_finder.freeName();
    }

    void editCamera(DOCKEY key, const QString& name, const QString& ip, const QString& mask,
                    const QString& gateway, bool isLive) override;

    void connectCameras(const QStringList& list) override {
        OPERATION(list);
        m_finder.connectCameras(list);
    }

    void findCameras(const QString& ip) override {
        OPERATION(ip);
        m_finder.find(ip);
    }

    void addCamera(const QString& name, const QString& ip, bool isDummy, bool connect) override {
        OPERATION(name, ip, isDummy, connect);
        m_finder.add(name, ip, isDummy, connect);
    }

    void updateCameras() override {
        OPERATION();
        m_finder.update();
    }

    void discoverySearch() override;

    QString discoverySearchAgain() override {
        OPERATION();
        return m_finder.searchResults(searchPlace());
    }

    void setDiscoveryNetwork(unsigned adapter, unsigned ip, unsigned mask, unsigned gateway,
                             const QString& mac) override;

private:
    static constexpr char kInterface[] = "HostCameraControl";

    /// The address in whose network a search looks; empty for everywhere.
    QString searchPlace() const;
    /// Whether a camera may get an address at which it can't be reached.
    bool mayLeave(const QString& camera, const Reason& why);

    CameraFinder m_finder{m_documents};
};

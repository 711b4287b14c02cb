#pragma once

#include "viewer/cameras/Wifi.h"

#include <QMutex>

/// The Wi-Fi unit of a simulated camera and the access points around it. The waits are real time, whatever
/// the rig's clock does. A scan shows the access points that are in the air at that moment; one of them is
/// gone when it is to be joined.
class WifiUnit : public Wifi {
public:
    WifiUnit();

    /// Whether the camera can be talked to; at first it can. Scanning and joining fail without.
    void setLinked(bool linked);

    /// How long a scan and a join take, milliseconds.
    void setTimes(int scanMs, int joinMs);

    QList<AccessPoint> found() const override;
    bool isConnected() const override;
    void scan() override;
    void setPassword(int index, const QString& password) override;
    void join(int index) override;
    void leave() override;

private:
    struct Station {
        AccessPoint point;
        QString secret; // empty: open
        bool vanishes = false;
    };

    void requireLink() const; // with the mutex locked

    mutable QMutex m_mutex;
    QList<Station> m_air;
    QList<int> m_found; // rows of m_air
    bool m_linked = true;
    int m_scanMs = 1500;
    int m_joinMs = 2000;
};

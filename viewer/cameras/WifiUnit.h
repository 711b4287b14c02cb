#pragma once

#include <QList>
#include <QMutex>
#include <QString>

// The Wi-Fi unit of a camera body and the access points around it.
//
// Scanning and joining take long, so they are called on worker threads: everything here is thread-safe, and
// the waits are real time, whatever the rig's clock does. A scan shows the access points that are in the air
// at that moment; one of them is gone when it is to be joined.
class WifiUnit {
public:
    struct AccessPoint {
        QString ssid;
        QString mac;
        QString security;
        QString password; // what the camera knows of it; empty if nothing
        bool connected = false;
        int receive = 0; // percent
    };

    WifiUnit();

    // Whether the camera can be talked to; at first it can. Scanning and joining fail without.
    void setLinked(bool linked);

    // How long a scan and a join take, milliseconds.
    void setTimes(int scanMs, int joinMs);

    // Found by the last scan; none before the first.
    QList<AccessPoint> found() const;
    bool isConnected() const;

    // Both throw CameraError of kind LinkLost if there is no link when their time is over.
    void scan();
    // A password for the found point; without effect for a row that is not there.
    void setPassword(int index, const QString& password);
    // Joins a found point. With a wrong password it stays unconnected, as real units do. Throws CameraError
    // of kind LinkLost if the point is gone, BadValue for a row that is not there.
    void join(int index);
    void leave();

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

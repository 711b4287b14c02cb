#pragma once

#include <QList>
#include <QString>

/// The Wi-Fi unit of a camera. Scanning and joining take long and block: they are called on worker threads,
/// and everything here is thread-safe.
class Wifi {
public:
    virtual ~Wifi() = default;

    struct AccessPoint {
        QString ssid;
        QString mac;
        QString security;
        QString password; // what the camera knows of it; empty if nothing
        bool connected = false;
        int receive = 0; // percent
    };

    /// Found by the last scan; none before the first.
    virtual QList<AccessPoint> found() const = 0;
    virtual bool isConnected() const = 0;

    /// Both throw CameraError of kind LinkLost if there is no link to the camera when their time is over.
    virtual void scan() = 0;
    /// A password for the found point; without effect for a row that is not there.
    virtual void setPassword(int index, const QString& password) = 0;
    /// Joins a found point. With a wrong password it stays unconnected, as real units do. Throws CameraError
    /// of kind LinkLost if the point is gone, BadValue for a row that is not there.
    virtual void join(int index) = 0;
    virtual void leave() = 0;
};

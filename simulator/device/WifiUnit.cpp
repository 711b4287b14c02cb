#include "simulator/device/WifiUnit.h"

#include "viewer/cameras/CameraError.h"
#include "viewer/cameras/CommandKeys.h"

#include <QThread>

WifiUnit::WifiUnit() {
    const auto add = [this](const char* ssid, const char* mac, const char* secret, int receive,
                            bool vanishes) {
        Station station;
        station.point.ssid = QString::fromUtf8(ssid);
        station.point.mac = QString::fromLatin1(mac);
        station.point.security = *secret ? QStringLiteral("WPA2") : QStringLiteral("Open");
        station.point.receive = receive;
        station.secret = QString::fromLatin1(secret);
        station.vanishes = vanishes;
        m_air.append(station);
    };
    add("Test hall", "02:00:5e:00:00:01", "turbine-7", 82, false);
    add("Rig lab guest", "02:00:5e:00:00:02", "", 57, false);
    add("<b onmouseover=alert(1)>Free Wi-Fi</b>", "02:00:5e:00:00:03", "", 44, false);
    add("Phone of a visitor", "02:00:5e:00:00:04", "", 21, true);
}

void WifiUnit::setLinked(bool linked) {
    const QMutexLocker locker(&m_mutex);
    m_linked = linked;
}

void WifiUnit::requireLink() const {
    if (!m_linked) {
        throw CameraError(CameraError::Kind::LinkLost, CommandKey::Link, QString(),
                          reason("no link to the camera"));
    }
}

void WifiUnit::setTimes(int scanMs, int joinMs) {
    const QMutexLocker locker(&m_mutex);
    m_scanMs = scanMs;
    m_joinMs = joinMs;
}

QList<WifiUnit::AccessPoint> WifiUnit::found() const {
    const QMutexLocker locker(&m_mutex);
    QList<AccessPoint> points;
    for (const int row : m_found) {
        points.append(m_air.at(row).point);
    }
    return points;
}

bool WifiUnit::isConnected() const {
    const QMutexLocker locker(&m_mutex);
    for (const Station& station : m_air) {
        if (station.point.connected) {
            return true;
        }
    }
    return false;
}

void WifiUnit::scan() {
    m_mutex.lock();
    const int wait = m_scanMs;
    m_mutex.unlock();
    QThread::msleep(static_cast<unsigned long>(wait)); // the rows stay readable meanwhile
    const QMutexLocker locker(&m_mutex);
    requireLink();
    m_found.clear();
    for (int row = 0; row < m_air.size(); ++row) {
        m_found.append(row);
    }
}

void WifiUnit::setPassword(int index, const QString& password) {
    const QMutexLocker locker(&m_mutex);
    if (index >= 0 && index < m_found.size()) {
        m_air[m_found.at(index)].point.password = password;
    }
}

void WifiUnit::join(int index) {
    m_mutex.lock();
    const int wait = m_joinMs;
    m_mutex.unlock();
    QThread::msleep(static_cast<unsigned long>(wait));
    const QMutexLocker locker(&m_mutex);
    requireLink();
    const QString function = CommandKey::Link;
    if (index < 0 || index >= m_found.size()) {
        throw CameraError(CameraError::Kind::BadValue, function, QString(),
                          reason("there is no access point in row %1", {index}));
    }
    const int row = m_found.at(index);
    if (m_air.at(row).vanishes) {
        throw CameraError(CameraError::Kind::LinkLost, function, QString(),
                          reason("the access point can't be found any more"));
    }
    for (Station& station : m_air) {
        station.point.connected = false;
    }
    Station& chosen = m_air[row];
    chosen.point.connected = chosen.secret.isEmpty() || chosen.secret == chosen.point.password;
}

void WifiUnit::leave() {
    const QMutexLocker locker(&m_mutex);
    for (Station& station : m_air) {
        station.point.connected = false;
    }
}

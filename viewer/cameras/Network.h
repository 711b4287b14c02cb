#pragma once

#include "viewer/cameras/Reason.h"
#include <QList>

#include <QString>

class Rig;

// One network adapter of the simulated computer.
struct NetworkAdapter {
    QString name;
    QString address;
    QString mask;
};

// A camera that answered a search through an adapter. A search reaches every camera on the adapter's cable,
// whatever its address; talking to it afterwards needs an address in the adapter's network.
struct FoundCamera {
    QString name;
    QString model;
    QString address;
    QString mask;
    QString gateway;
    QString mac;
    NetworkAdapter adapter;
    bool reachable = false;
    Reason reason; // why it can't be reached; empty if it can
};

namespace network {

// The adapters of the simulated computer: the cameras' own network first.
QList<NetworkAdapter> adapters();

// Why a camera at that address can't be reached through the adapter; empty if it can.
Reason whyUnreachable(const NetworkAdapter& adapter, const QString& address);

// Whether a text is a dotted IPv4 address.
bool isAddress(const QString& text);
// Whether ones come before zeros in a mask.
bool isMask(const QString& text);
// Whether a camera can have that address in a network of that mask: neither the network's own nor one that
// calls all, and none of those that mean something else everywhere.
bool isHostAddress(const QString& address, const QString& mask);
quint32 toNumber(const QString& address);
QString toText(quint32 address);
// Whether both lie in one network of that mask.
bool isSameNetwork(const QString& a, const QString& b, const QString& mask);

// The cameras of a rig that answer a search: plugged in and switched on. Dummies don't.
QList<FoundCamera> search(const Rig& rig);
// A made-up hardware address that is the same for the same serial number.
QString macOf(const QString& serial);

} // namespace network

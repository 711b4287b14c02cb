#pragma once

#include "viewer/cameras/Reason.h"
#include <QList>

#include <QString>

/// One network adapter of the computer.
struct NetworkAdapter {
    QString name;
    QString address;
    QString mask;
};

/// A camera that answered a search through an adapter. A search reaches every camera on the adapter's cable,
/// whatever its address; talking to it afterwards needs an address in the adapter's network.
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

} // namespace network

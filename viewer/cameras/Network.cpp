#include "viewer/cameras/Network.h"

#include <QStringList>

namespace network {

bool isAddress(const QString& text) {
    const QStringList parts = text.split(QLatin1Char('.'));
    if (parts.size() != 4) {
        return false;
    }
    for (const QString& part : parts) {
        bool ok = false;
        const uint number = part.toUInt(&ok);
        if (!ok || number > 255) {
            return false;
        }
    }
    return true;
}

bool isMask(const QString& text) {
    const quint32 zeros = ~toNumber(text);
    return isAddress(text) && zeros != 0xFFFFFFFFU && (zeros & (zeros + 1)) == 0;
}

bool isHostAddress(const QString& address, const QString& mask) {
    const quint32 number = toNumber(address);
    const quint32 first = number >> 24;
    const quint32 host = number & ~toNumber(mask);
    return isAddress(address) && first > 0 && first < 224 && first != 127 && host != 0 &&
           host != ~toNumber(mask);
}

quint32 toNumber(const QString& address) {
    quint32 number = 0;
    const QStringList parts = address.split(QLatin1Char('.'));
    for (const QString& part : parts) {
        number = (number << 8) | (part.toUInt() & 0xFFU);
    }
    return number;
}

QString toText(quint32 address) {
    return QStringLiteral("%1.%2.%3.%4")
        .arg(address >> 24)
        .arg((address >> 16) & 0xFFU)
        .arg((address >> 8) & 0xFFU)
        .arg(address & 0xFFU);
}

bool isSameNetwork(const QString& a, const QString& b, const QString& mask) {
    return ((toNumber(a) ^ toNumber(b)) & toNumber(mask)) == 0;
}

Reason whyUnreachable(const NetworkAdapter& adapter, const QString& address) {
    if (!isAddress(address)) {
        return reason("The camera has no valid address.");
    }
    if (!isSameNetwork(adapter.address, address, adapter.mask)) {
        return reason("%1 is not in the network of this adapter (%2 / %3).",
                      {address, adapter.address, adapter.mask});
    }
    if (adapter.address == address) {
        return reason("This computer has the same address.");
    }
    return {};
}

} // namespace network

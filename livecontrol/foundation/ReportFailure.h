#pragma once

#include "livecontrol/plugin/host/HostApplication.h"

#include <QDebug>

/// Hands a failure to the host, which tells the user. The last place of all: never throws, not even if the
/// host does.
inline void reportFailure(HostApplication* host, std::exception& error) noexcept {
    try {
        host->handleError(error);
    } catch (const std::exception& second) {
        qCritical() << "a failure could not be shown:" << error.what() << "because of:" << second.what();
    }
}

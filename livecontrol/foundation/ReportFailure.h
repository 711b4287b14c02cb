#pragma once

#include "livecontrol/interface/HostApplication.h"

#include <QDebug>

#include <utility>

/// Hands a failure to the host, which tells the user. The last place of all: never throws, not even if the
/// host does.
inline void reportFailure(HostApplication* host, std::exception& error) noexcept {
    try {
        host->handleError(error);
    } catch (const std::exception& second) {
        qCritical() << "a failure could not be shown:" << error.what() << "because of:" << second.what();
    }
}

/// Runs host calls at a place from which nothing can be thrown, such as a destructor or a function that Qt or
/// the web engine calls. A failure goes to the host.
template <class Calls>
void reportingFailures(HostApplication* host, Calls&& calls) noexcept {
    try {
        std::forward<Calls>(calls)();
    } catch (std::exception& error) {
        reportFailure(host, error);
    }
}

/// The same of calls with a result; `neutral` after a failure.
template <class Calls, class Result>
Result reportingFailures(HostApplication* host, Calls&& calls, Result neutral) noexcept {
    reportingFailures(host, [&] { neutral = std::forward<Calls>(calls)(); });
    return neutral;
}

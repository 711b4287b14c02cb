#pragma once

#include "livecontrol/foundation/ReportFailure.h"

/// A scope that holds back the host's updates. Scopes nest.
class DeterUpdateScope {
public:
    explicit DeterUpdateScope(HostApplication* host) : m_host(host) { m_host->deterUpdateUI(true); }

    ~DeterUpdateScope() {
        try {
            m_host->deterUpdateUI(false);
        } catch (std::exception& error) { // an end of a scope has nobody to throw to
            reportFailure(m_host, error);
        }
    }
    Q_DISABLE_COPY(DeterUpdateScope)

private:
    HostApplication* m_host;
};

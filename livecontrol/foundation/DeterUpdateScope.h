#pragma once

#include "livecontrol/foundation/ReportFailure.h"

/// A scope that holds back the host's updates. Scopes nest. It never throws: what the host throws goes to its
/// `handleError`, and the scope then holds nothing.
class DeterUpdateScope {
public:
    explicit DeterUpdateScope(HostApplication* host) : m_host(host) {
        reportingFailures(m_host, [this] {
            m_host->deterUpdateUI(true);
            m_held = true;
        });
    }

    ~DeterUpdateScope() {
        if (m_held) {
            reportingFailures(m_host, [this] { m_host->deterUpdateUI(false); });
        }
    }
    Q_DISABLE_COPY(DeterUpdateScope)

private:
    HostApplication* m_host;
    bool m_held = false;
};

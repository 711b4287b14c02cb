#pragma once

#include "livecontrol/foundation/ReportFailure.h"

/// A scope in which a modal window of ours is on screen. The host is told of it if it lets one begin now.
/// The constructor throws what the host throws.
class ModalScope {
public:
    /// Whether a host that shuts down is told of the end.
    enum class AtShutdown { Tell, StaySilent };

    explicit ModalScope(HostApplication* host, AtShutdown atShutdown = AtShutdown::Tell)
        : m_host(host), m_atShutdown(atShutdown) {
        if (m_host->canStartModal()) {
            m_host->beginModal();
            m_begun = true;
        }
    }

    ~ModalScope() {
        if (m_begun) {
            reportingFailures(m_host, [this] {
                if (m_atShutdown == AtShutdown::Tell || !m_host->isClosing()) {
                    m_host->endModal();
                }
            });
        }
    }
    Q_DISABLE_COPY(ModalScope)

private:
    HostApplication* m_host; ///< Not owned.
    AtShutdown m_atShutdown;
    bool m_begun = false;
};

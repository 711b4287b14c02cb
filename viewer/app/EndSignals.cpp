#include "viewer/app/EndSignals.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> kSignals{SIGTERM, SIGINT, SIGHUP};
std::array<int, 2> s_pipe{-1, -1};

// Nothing but a write is safe in a handler.
void note(int signal) {
    const char byte = static_cast<char>(signal);
    const ssize_t written = ::write(s_pipe[1], &byte, 1);
    static_cast<void>(written); // a full pipe tells as much
}

void handleAll(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : kSignals) {
        ::sigaction(signal, &action, nullptr);
    }
}

} // namespace

EndSignals::EndSignals(std::function<void()> end) : m_end(std::move(end)) {
    if (::pipe2(s_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(s_pipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(s_pipe[0], &byte, 1) == 1) {
        }
        m_end();
    });
    handleAll(&note);
}

EndSignals::~EndSignals() {
    handleAll(SIG_DFL);
    m_notifier.reset();
    for (int& end : s_pipe) {
        ::close(end);
        end = -1;
    }
}

#include "viewer/recordings/BackgroundThread.h"

#include <algorithm>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
constexpr int kBehind = 10; // steps of niceness, which is a thread's own here: a tenth of the time of a rival
constexpr int kLast = 19;
} // namespace

void enterBackground() {
    // Behind the first thread, which is the user's; not behind this one's own, which may have been there
    // already.
    const int front = getpriority(PRIO_PROCESS, id_t(getpid()));
    setpriority(PRIO_PROCESS, id_t(syscall(SYS_gettid)), std::min(front + kBehind, kLast));
}

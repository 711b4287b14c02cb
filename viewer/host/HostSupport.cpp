#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostApplication";
}

void ViewerHost::collectSupportFiles(QStringList& files) {
    OPERATION();
    files = m_support.gather();
}

// Not recorded: it runs on another thread, in which nobody may touch what the GUI holds.
bool ViewerHost::writeSupportFile(const QString& path, QStringList* files) {
    m_support.pack(path, *files);
    return true;
}

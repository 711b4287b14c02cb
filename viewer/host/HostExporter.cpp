#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/host/ViewerHost.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {
constexpr char kInterface[] = "HostExporter";
constexpr int CopyArea = 2;
} // namespace

// Nothing here saves or converts in the background.

bool ViewerHost::isAutoExporting() {
    OPERATION();
    return false;
}

bool ViewerHost::isBackgroundSaving() {
    OPERATION();
    return false;
}

bool ViewerHost::isBackgroundConverting() {
    OPERATION();
    return false;
}

void ViewerHost::endNaming() {
    OPERATION();
    m_pending = {};
}

void ViewerHost::beginGroupNaming() { OPERATION(); }

void ViewerHost::beginFileNaming() { OPERATION(); }

void ViewerHost::setGroupDir(const QString& dir) {
    OPERATION(dir);
    m_pending.groupDir = dir;
}

void ViewerHost::addPendingFolder(const QString& folder) {
    OPERATION(folder);
    m_pending.folders.insert(folder);
}

void ViewerHost::addPendingPath(const QString& path) {
    OPERATION(path);
    m_pending.paths.insert(path);
}

bool ViewerHost::isPendingFolder(const QString& folder) {
    OPERATION(folder);
    return m_pending.folders.contains(folder);
}

bool ViewerHost::isPendingPath(const QString& path) {
    OPERATION(path);
    return m_pending.paths.contains(path);
}

QString ViewerHost::getGroupDir() {
    OPERATION();
    return m_pending.groupDir;
}

QString ViewerHost::getReplacementFolder() {
    OPERATION();
    return QString();
}

void ViewerHost::copyToClipboard(int mode) {
    OPERATION(mode);
    if (current() == nullptr) {
        return;
    }
    const QImage image = current()->frame().displayImage();
    PLG_Interface* const plugin = m_plugins.current();
    const QRect area = mode == CopyArea && plugin ? plugin->getArea() : QRect();
    QGuiApplication::clipboard()->setImage(area.isValid() ? image.copy(area) : image);
}

#include "viewer/host/doors/ExporterDoor.h"

#include "livecontrol/interface/PLG_Interface.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {
constexpr int CopyArea = 2;
} // namespace

void ExporterDoor::endNaming() {
    OPERATION();
    m_pending = {};
}

void ExporterDoor::copyToClipboard(int mode) {
    OPERATION(mode);
    if (current() == nullptr) {
        return;
    }
    const QImage image = current()->frame().displayImage();
    PLG_Interface* const plugin = m_plugins.current();
    const QRect area = mode == CopyArea && plugin ? plugin->getArea() : QRect();
    QGuiApplication::clipboard()->setImage(area.isValid() ? image.copy(area) : image);
}

// The autofocus, a tool of the viewer's own that pages open like a plug-in.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/Shell.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"

#include <QScopeGuard>

namespace {
constexpr char kInterface[] = "HostApplication";
} // namespace

void HostRooms::connectAutoFocus() {
    connect(&m_autoFocus, &AutoFocus::ended, this, [this](const QString& camera, const Reason& failure) {
        m_shell.setBusyText(m_focusedKey, QString());
        releaseViews();
        if (!failure.isEmpty()) {
            m_messages.deviceError({CommandKey::DriveLens, {{camera, failure}}});
        }
    });
}

bool HostRooms::canFocus() const { return head() && head()->lens().axis(LensAxis::Focus).drivable; }

// The page held the views for it.
void HostRooms::releaseViews() {
    for (Document* const document : m_documents.allDocuments()) {
        document->releaseReduction();
    }
    m_updates.requestSoon(-1);
}

void HostRooms::startAutoFocus() {
    const auto release = qScopeGuard([this] {
        if (!m_autoFocus.isRunning()) {
            releaseViews();
        }
    });
    if (!canFocus()) {
        refuse(CommandKey::DriveLens, current() ? current()->title() : QString(),
               reason("the lens doesn't drive this"));
    }
    CameraHead* const focused = head();
    if (m_autoFocus.isRunning() && m_autoFocus.head() != focused) {
        refuse(CommandKey::DriveLens, focused->fullName(), reason("another camera is being focused"));
    }
    CameraCommands(CommandKey::DriveLens).runNamed(focused->fullName(), [&] { m_autoFocus.start(focused); });
    m_focusedKey = current()->key();
    m_shell.setBusyText(m_focusedKey, translated("Focusing"));
    m_updates.requestSoon(-1);
}

bool ViewerHost::isAutoFocusActive(bool currentOnly) {
    OPERATION(currentOnly);
    return canFocus();
}

bool ViewerHost::isAutoFocussing() {
    OPERATION();
    // Asked at every update: no list is made while nothing runs.
    return m_autoFocus.isRunning() &&
           m_documents.targetCameras().contains(m_documents.find(m_autoFocus.head()));
}

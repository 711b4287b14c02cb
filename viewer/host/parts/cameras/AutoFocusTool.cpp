#include "viewer/host/parts/cameras/AutoFocusTool.h"

#include "viewer/cameras/CommandKeys.h"
#include "viewer/host/HostWindow.h"
#include "viewer/host/parts/UpdateGate.h"
#include "viewer/host/parts/cameras/TargetCameras.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"

#include <QScopeGuard>

AutoFocusTool::AutoFocusTool(const Surroundings& around) : m_around(around) {
    connect(&m_autoFocus, &AutoFocus::ended, this, [this](const QString& camera, const Reason& failure) {
        m_around.shell.setBusyText(m_key, QString());
        releaseViews();
        if (!failure.isEmpty()) {
            m_around.messages.deviceError({CommandKey::DriveLens, {{camera, failure}}});
        }
    });
}

bool AutoFocusTool::isAvailable() const {
    const CameraHead* const head = m_around.cameras.head();
    return head && head->lens().axis(LensAxis::Focus).drivable;
}

bool AutoFocusTool::isFocusing() const {
    // Asked at every update: no list is made while nothing runs.
    return m_autoFocus.isRunning() &&
           m_around.cameras.all().contains(m_around.documents.find(m_autoFocus.head()));
}

// The page held the views for it.
void AutoFocusTool::releaseViews() {
    for (Document* const document : m_around.documents.allDocuments()) {
        document->releaseReduction();
    }
    m_around.updates.requestSoon(-1);
}

void AutoFocusTool::start() {
    const auto release = qScopeGuard([this] {
        if (!m_autoFocus.isRunning()) {
            releaseViews();
        }
    });
    const Document* const current = m_around.documents.current();
    if (!isAvailable()) {
        refuse(CommandKey::DriveLens, current ? current->title() : QString(),
               reason("the lens doesn't drive this"));
    }
    CameraHead* const focused = m_around.cameras.head();
    if (m_autoFocus.isRunning() && m_autoFocus.head() != focused) {
        refuse(CommandKey::DriveLens, focused->fullName(), reason("another camera is being focused"));
    }
    CameraCommands(CommandKey::DriveLens).runNamed(focused->fullName(), [&] { m_autoFocus.start(focused); });
    m_key = current->key();
    m_around.shell.setBusyText(m_key, translated("Focusing"));
    m_around.updates.requestSoon(-1);
}

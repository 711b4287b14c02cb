#include "viewer/app/WaitGuard.h"

#include "viewer/documents/commands/CommandWait.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QShortcutEvent>
#include <QToolButton>
#include <QWindow>

namespace {

/// A copy that can be posted; null for an event that nobody keeps.
std::unique_ptr<QEvent> copyOf(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return std::make_unique<QMouseEvent>(static_cast<const QMouseEvent&>(event));
    case QEvent::Wheel:
        return std::make_unique<QWheelEvent>(static_cast<const QWheelEvent&>(event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return std::make_unique<QKeyEvent>(static_cast<const QKeyEvent&>(event));
    case QEvent::Shortcut:
        return std::make_unique<QShortcutEvent>(static_cast<const QShortcutEvent&>(event));
    case QEvent::InputMethod:
        return std::make_unique<QInputMethodEvent>(static_cast<const QInputMethodEvent&>(event));
    case QEvent::Close:
        return std::make_unique<QCloseEvent>();
    default:
        return nullptr;
    }
}

bool isInput(const QObject& receiver, const QEvent& event) {
    switch (event.type()) {
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        return true;
    case QEvent::Close: // of the window's frame, not of code that closes a widget
        return receiver.isWindowType();
    default:
        return copyOf(event) != nullptr;
    }
}

} // namespace

WaitGuard::WaitGuard(CommandWait& wait, QAction& free) : m_wait(wait), m_free(free) {
    m_signSoon.setSingleShot(true);
    connect(&m_signSoon, &QTimer::timeout, this, [this] { setShown(true); });
    connect(&m_wait, &CommandWait::begun, this, &WaitGuard::onBegun);
    connect(&m_wait, &CommandWait::ended, this, &WaitGuard::onEnded);
}

WaitGuard::~WaitGuard() { setShown(false); }

void WaitGuard::onBegun() {
    m_modal = QApplication::activeModalWidget();
    m_popup = QApplication::activePopupWidget();
    if (!m_isShown && !m_signSoon.isActive()) {
        m_signSoon.start(kSignMs);
    }
    qApp->removeEventFilter(this);
    qApp->installEventFilter(this);
}

// An operation may wait several times: the sign goes when the event loop runs without a wait.
void WaitGuard::onEnded() {
    qApp->removeEventFilter(this);
    m_isPressFree = false;
    for (Kept& kept : m_kept) {
        if (kept.receiver) {
            QCoreApplication::postEvent(kept.receiver, kept.event.release());
        }
    }
    m_kept.clear();
    QTimer::singleShot(0, this, [this] {
        if (!m_wait.isWaiting()) {
            m_signSoon.stop();
            setShown(false);
        }
    });
}

void WaitGuard::setShown(bool shown) {
    if (shown == m_isShown) {
        return;
    }
    m_isShown = shown;
    if (shown) {
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
        m_lostButtons = Qt::NoButton;
        m_lostKeys.clear();
    }
    emit signChanged();
}

bool WaitGuard::eventFilter(QObject* receiver, QEvent* event) {
    if (!m_wait.isWaiting() || !isInput(*receiver, *event) || isFree(receiver, event)) {
        return false;
    }
    if (isKept(*event)) {
        keep(receiver, *event);
    }
    return true;
}

bool WaitGuard::isFree(QObject* receiver, QEvent* event) {
    const QWidget* const modal = QApplication::activeModalWidget();
    const QWidget* const popup = QApplication::activePopupWidget();
    if ((modal && modal != m_modal) || (popup && popup != m_popup) || receiver == &m_free) {
        return true;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_isPressFree = isFreeButton(receiver, event);
        return m_isPressFree;
    case QEvent::MouseMove:
        return m_isPressFree;
    case QEvent::MouseButtonRelease:
        // To the window first, and from there to the button.
        return m_isPressFree && (receiver->isWindowType() || std::exchange(m_isPressFree, false));
    default:
        return false;
    }
}

bool WaitGuard::isFreeButton(QObject* receiver, QEvent* event) const {
    const auto* const mouse = static_cast<const QMouseEvent*>(event);
    QObject* const meant = receiver->isWidgetType() ? receiver : QApplication::widgetAt(mouse->globalPos());
    const auto* const button = qobject_cast<const QToolButton*>(meant);
    return button && button->defaultAction() == &m_free;
}

bool WaitGuard::isKept(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseMove:
    case QEvent::Close:
        return true;
    case QEvent::MouseButtonRelease: {
        const Qt::MouseButton button = static_cast<const QMouseEvent&>(event).button();
        const bool isLost = m_lostButtons.testFlag(button);
        m_lostButtons.setFlag(button, false);
        return !isLost;
    }
    case QEvent::KeyRelease: {
        const auto& key = static_cast<const QKeyEvent&>(event);
        return !key.isAutoRepeat() && !m_lostKeys.remove(key.key());
    }
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(event);
        if (key.isAutoRepeat()) {
            return false; // they would go on after the key has come up
        }
        if (m_isShown) {
            m_lostKeys.insert(key.key());
        }
        return !m_isShown;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_lostButtons.setFlag(static_cast<const QMouseEvent&>(event).button(), m_isShown);
        return !m_isShown;
    default:
        return !m_isShown;
    }
}

void WaitGuard::keep(QObject* receiver, const QEvent& event) {
    std::unique_ptr<QEvent> copy = copyOf(event);
    if (!copy) {
        return;
    }
    const bool replaces = !m_kept.empty() && m_kept.back().receiver == receiver &&
                          m_kept.back().event->type() == event.type() &&
                          (event.type() == QEvent::MouseMove || event.type() == QEvent::Close);
    if (replaces) {
        m_kept.pop_back();
    }
    m_kept.push_back({receiver, std::move(copy)});
}

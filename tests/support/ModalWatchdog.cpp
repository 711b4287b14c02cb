#include "tests/support/ModalWatchdog.h"

#include <QApplication>
#include <QMessageBox>
#include <QtTest>

namespace {

constexpr int kTickMs = 250;

QString described(const QWidget& window) {
    const auto* const box = qobject_cast<const QMessageBox*>(&window);
    return QStringLiteral("nobody closes the window \"%1\" (%2) %3")
        .arg(window.windowTitle(), QLatin1String(window.metaObject()->className()),
             box ? box->text() : QString());
}

} // namespace

void ModalWatchdog::failTest(const QByteArray& text) { QTest::qFail(text.constData(), __FILE__, __LINE__); }

ModalWatchdog::ModalWatchdog(int patienceMs, Fail fail) : m_patienceMs(patienceMs), m_fail(std::move(fail)) {
    connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
    m_timer.start(kTickMs);
}

// Counted in ticks rather than by a clock: while the program is held, it can't be a window that holds it.
void ModalWatchdog::look() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (!modal || modal != m_seen) {
        m_seen = modal;
        m_ticks = 0;
        m_refusals = 0;
        return;
    }
    if (++m_ticks * kTickMs < m_patienceMs) {
        return;
    }
    constexpr int kPatientRefusals = 20;
    const QByteArray text = described(*modal).toUtf8();
    if (m_refusals++ == 0) {
        m_fail(text);
    } else if (m_refusals > kPatientRefusals) {
        qFatal("%s, and it refuses to close", text.constData());
    }
    if (auto* const dialog = qobject_cast<QDialog*>(modal)) {
        dialog->reject();
    } else {
        modal->close();
    }
}

#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>

/// Ends a test that waits for a window that nobody closes: fails it with the window's title and text and
/// closes the window, so that the test goes on to its end. Without it such a fault shows as a hang without a
/// name.
class ModalWatchdog : public QObject {
public:
    /// Far above what any test leaves a window open for, sanitizers and a busy machine included.
    static constexpr int kPatienceMs = 30000;

    /// Fails the running test with that text.
    using Fail = std::function<void(const QByteArray& text)>;
    static void failTest(const QByteArray& text);

    explicit ModalWatchdog(int patienceMs = kPatienceMs, Fail fail = &ModalWatchdog::failTest);

private:
    void look();

    const int m_patienceMs;
    const Fail m_fail;
    QTimer m_timer;
    QPointer<QWidget> m_seen;
    int m_ticks = 0; // for which the window has been in front
    int m_refusals = 0;
};

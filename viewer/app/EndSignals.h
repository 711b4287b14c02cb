#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

/// While it lives, the system's wish that the program ends (a terminal that closes, a logout, SIGTERM,
/// SIGINT) becomes a call on the GUI thread. One at a time.
class EndSignals : public QObject {
    Q_OBJECT

public:
    explicit EndSignals(std::function<void()> end);
    ~EndSignals() override;

private:
    std::function<void()> m_end;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

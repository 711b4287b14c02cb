#pragma once

#include <QObject>

#include <functional>

/// Lets updates through to all that shows state, and holds them back while somebody asks for it.
///
/// Held updates are remembered and sent once, with all their flags, when the last hold is released. An update
/// that is asked for while another one is being sent comes after it, from the event loop: a page that
/// changes something in its update can't recurse, and a dialog that it opens there still gets updates.
class UpdateGate : public QObject {
    Q_OBJECT

public:
    using Send = std::function<void(int flags)>;

    explicit UpdateGate(const Send& send, QObject* parent = nullptr);

    void request(int flags);
    /// From the event loop, with all that is asked for until then in one.
    void requestSoon(int flags);
    void hold() { ++m_holds; }
    /// Without effect if nothing is held.
    void release();
    /// The same, but what was held comes from the event loop.
    void releaseSoon();

private:
    void deliver();
    void post();

    Send m_send;
    int m_holds = 0;
    int m_pending = 0; // flags that were asked for
    bool m_sending = false;
    bool m_posted = false;
};

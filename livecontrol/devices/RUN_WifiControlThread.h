#pragma once

#include "livecontrol/foundation/RUN_BaseThread.h"

class DOC_Interface;
class JS_Mediator_WifiSettingDialog;

/// Lets a camera look for access points or connect with one, which can take long. Runs once a start; has no
/// safe point. Between start and end the GUI thread waits under a box, so mode and result need no lock.
class RUN_WifiControlThread : public RUN_BaseThread {
    Q_OBJECT

public:
    enum ControlMode : int { Scan = 0, Connect = 1 };

    /// Owns nothing of what it gets; all of it outlives the thread.
    RUN_WifiControlThread(HostObject* host, JS_Mediator_WifiSettingDialog* mediator, DOC_Interface* document);

    /// What the next start does.
    void setControlMode(ControlMode mode) { m_controlMode = mode; }
    /// Whether the last run went its whole way.
    bool isSucceeded() const { return m_succeeded; }

protected:
    void run() override;

private:
    void control();

    JS_Mediator_WifiSettingDialog* m_mediator;
    DOC_Interface* m_document;
    ControlMode m_controlMode = Scan;
    bool m_succeeded = false;
};

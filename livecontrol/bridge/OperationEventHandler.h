#pragma once

#include "livecontrol/foundation/TraceItems.h"

class JS_Mediator;

/// The scope of a slot that changes something: "[ENTER]" at its start; at its end, also after a failure, the
/// mediator's `updateUI`, then "[LEAVE]".
class OperationEventHandler {
public:
    /// `operation` is class and slot; `args` comes from traceArgs(). Without a mediator nothing is updated.
    explicit OperationEventHandler(JS_Mediator* mediator, const QString& operation,
                                   const QString& args = QString());
    ~OperationEventHandler();
    Q_DISABLE_COPY(OperationEventHandler)

private:
    JS_Mediator* m_mediator;
    QString m_operation;
};

#pragma once

#include "livecontrol/foundation/TraceItems.h"

/// A scope that logs "[ENTER]" with the operation and its arguments at its start and "[LEAVE]" with the
/// operation at its end, at info level.
class OperationTrace {
public:
    /// `operation` is class and slot, as "JS_Mediator::openPlugin"; `args` comes from traceArgs().
    explicit OperationTrace(const QString& operation, const QString& args = QString());
    ~OperationTrace();
    Q_DISABLE_COPY(OperationTrace)

private:
    QString m_operation;
};

/// The two log lines of a traced operation, for scopes that do more between them.
namespace trace {
void logEnter(const QString& operation, const QString& args);
void logLeave(const QString& operation);
} // namespace trace

#include "livecontrol/foundation/OperationTrace.h"

#include <QDebug>

namespace trace {

void logEnter(const QString& operation, const QString& args) { qInfo() << "[ENTER]" << operation << args; }

void logLeave(const QString& operation) { qInfo() << "[LEAVE]" << operation; }

} // namespace trace

OperationTrace::OperationTrace(const QString& operation, const QString& args) : m_operation(operation) {
    QString text = args.trimmed();
    text.replace(QLatin1String("docKey:-1"), QLatin1String("docKey:Invalid"));
    trace::logEnter(operation, text);
}

OperationTrace::~OperationTrace() { trace::logLeave(m_operation); }

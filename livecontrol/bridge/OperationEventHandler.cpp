#include "livecontrol/bridge/OperationEventHandler.h"

#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/JS_Mediator.h"

OperationEventHandler::OperationEventHandler(JS_Mediator* mediator, const QString& operation,
                                             const QString& args)
    : m_mediator(mediator), m_operation(operation) {
    trace::logEnter(operation, args.trimmed());
}

OperationEventHandler::~OperationEventHandler() {
    if (m_mediator) {
        m_mediator->updateUI();
    }
    trace::logLeave(m_operation);
}

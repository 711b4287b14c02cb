#include "viewer/cameras/Answer.h"

#include <QFutureInterface>

Answer::Answer(CommandResult result) {
    QFutureInterface<CommandResult> promise;
    promise.reportStarted();
    promise.reportFinished(&result);
    m_future = promise.future();
}

Answer::Answer(const CameraError& error) {
    QFutureInterface<CommandResult> promise;
    promise.reportStarted();
    promise.reportException(error);
    promise.reportFinished();
    m_future = promise.future();
}

#include "livecontrol/foundation/APP_Exception.h"

#include "livecontrol/foundation/TraceItems.h"

#include <QDebug>

namespace {
void logFailure(const char* className, const QVector<TraceItem>& items) {
    // Reasons and paths hold quotes and back slashes of their own.
    qCritical().noquote() << className << ":" << traceArgs(items);
}
} // namespace

APP_Exception::APP_Exception(const QString& message, int errorCode)
    : std::runtime_error(message.toStdString()), m_errorCode(errorCode) {
    logFailure("APP_Exception", {{"message", message}, {"errorCode", errorCode}});
}

DOC_DeviceException::DOC_DeviceException(const QString& message, int errorCode)
    : DOC_Exception(QStringLiteral("Doc Error."), errorCode) {
    logFailure("DOC_DeviceException", {{"message", message}, {"errorCode", errorCode}});
}

DOC_FileException::DOC_FileException(const QString& message, const QString& path, int errorCode,
                                     const QString& reason)
    : DOC_Exception(message, errorCode), m_path(path), m_reason(reason) {
    logFailure("DOC_FileException", {{"message", message}, {"path", path}, {"errorCode", errorCode}});
}

DOC_ReadFileException::DOC_ReadFileException(const QString& path, const QString& reason)
    : DOC_FileException(QStringLiteral("File read failed."), path, 1, reason) {}

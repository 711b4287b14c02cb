#pragma once

#include <QDebug>
#include <QException>
#include <QString>
#include <stdexcept>

// Failures travel as exceptions. Each class writes a line to the log at critical level when it is built, so
// the log shows every failure at its source, whatever becomes of the exception later. May be built on any
// thread, by the host as by the plug-in: nothing needs to be linked.

/// Base of the application's failures: a message and an error code.
class APP_Exception : public std::runtime_error {
public:
    APP_Exception(const QString& message, int errorCode)
        : std::runtime_error(message.toStdString()), m_errorCode(errorCode) {
        log("APP_Exception", {{"message", message}, {"errorCode", QString::number(errorCode)}});
    }

    int errorCode() const { return m_errorCode; }

protected:
    /// Names and values of what the failure was built with. They hold quotes and back slashes of their own.
    static void log(const char* className, std::initializer_list<std::pair<const char*, QString>> items) {
        QString text;
        for (const auto& [name, value] : items) {
            text += QLatin1Char('[') + QLatin1String(name) + QLatin1Char(':') + value + QLatin1String("] ");
        }
        qCritical().noquote() << className << ":" << text;
    }

private:
    int m_errorCode;
};

/// A failure about a document.
class DOC_Exception : public APP_Exception {
public:
    using APP_Exception::APP_Exception;
};

/// A failure of a camera. `what()` is always "Doc Error."; the message stands in the log only.
class DOC_DeviceException : public DOC_Exception {
public:
    DOC_DeviceException(const QString& message, int errorCode)
        : DOC_Exception(QStringLiteral("Doc Error."), errorCode) {
        log("DOC_DeviceException", {{"message", message}, {"errorCode", QString::number(errorCode)}});
    }
};

/// A failure about the file at `path`. What is known of the cause is no part of `what()`: a host that shows
/// the failure may add path and reason.
class DOC_FileException : public DOC_Exception {
public:
    DOC_FileException(const QString& message, const QString& path, int errorCode,
                      const QString& reason = QString())
        : DOC_Exception(message, errorCode), m_path(path), m_reason(reason) {
        log("DOC_FileException",
            {{"message", message}, {"path", path}, {"errorCode", QString::number(errorCode)}});
    }

    const QString& path() const { return m_path; }
    /// A sentence, untranslated; empty if nothing is known.
    const QString& reason() const { return m_reason; }

private:
    QString m_path;
    QString m_reason;
};

/// A file that can't be read.
class DOC_ReadFileException : public DOC_FileException {
public:
    explicit DOC_ReadFileException(const QString& path, const QString& reason = QString())
        : DOC_FileException(QStringLiteral("File read failed."), path, 1, reason) {}
};

/// A failure in a utility.
class UTL_Exception : public APP_Exception {
public:
    using APP_Exception::APP_Exception;
};

/// Carries a copy of an APP_Exception out of a thread of the pool.
class APP_ConcurrentException : public QException {
public:
    explicit APP_ConcurrentException(const APP_Exception& exception) : m_exception(exception) {}

    const APP_Exception& exception() const { return m_exception; }
    const char* what() const noexcept override { return m_exception.what(); }
    void raise() const override { throw *this; }
    APP_ConcurrentException* clone() const override { return new APP_ConcurrentException(*this); }

private:
    APP_Exception m_exception;
};

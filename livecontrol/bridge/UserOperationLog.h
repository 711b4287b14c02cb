#pragma once

#include <QString>
#include <QVariant>

class QObject;

/// Writes one "[USER]" line at info level with five items: the page's address, the element by its id (or by
/// its class names, if it has no id), the kind of control, what the user did, and the value after it.
void logUserOperation(const QString& url, const QString& operation, const QString& control, const QString& id,
                      const QString& className, const QVariant& value);

/// Writes one "[USER][ERROR]" line at critical level.
void logUserOperationError(const QString& message);

/// The line of a native dialog that the user closes by its frame; the dialog's class name stands for the
/// address.
void logNativeClose(const QObject* dialog);

#pragma once

#include <QMap>
#include <QString>

/// What the functions of the camera library do, in words for a user, by the function's name such as
/// "KVC_SetResolution". "?" stands for functions that a user never meets by name. Read-only, any thread.
const QMap<QString, QString>& deviceOperations();

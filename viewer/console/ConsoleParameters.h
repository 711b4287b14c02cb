#pragma once

#include "livecontrol/interface/types.h"
#include "viewer/console/Console.h"

#include <QJsonObject>

// Parameters of the console's methods, by name. What is missing is a ConsoleError.

QString text(const QJsonObject& params, const char* name);
QString optionalText(const QJsonObject& params, const char* name);
/// A document key: a number, or a decimal text.
DOCKEY keyOf(const QJsonObject& params, const char* name);

/// The result of what has none.
const QJsonValue kDone(true);

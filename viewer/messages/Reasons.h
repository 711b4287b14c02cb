#pragma once

#include <QString>

/// Why a camera or a file was not taken, in the user's language. `english` is what cameras say and logs keep;
/// one that is not known stays as it is.
QString translatedReason(const QString& english);

#pragma once

#include <QString>

class HostObject;

/// The name that a record on a drive gets: with the sequence number, in six digits, if the user wants that.
QString composeDataName(HostObject* host, const QString& name, int sequence);

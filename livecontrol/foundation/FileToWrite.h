#pragma once

#include <QString>

class HostApplication;
class QWidget;

/// The file that is to be written after a save dialog gave `path`: with the suffix (without its point). A
/// file that the user named is meant to be replaced; one that got its suffix only here is not, so the
/// user is asked. Empty if `path` is, or after a no. GUI thread only. Throws what the host throws.
QString fileToWrite(HostApplication& host, QWidget* parent, const QString& path, const QString& suffix);

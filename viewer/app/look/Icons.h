#pragma once

#include <QIcon>

/// The program's icons: drawn from paths in the colors of the palette, so they are sharp at every scale and
/// follow the style. The names are in Icons.cpp.
namespace Icons {

/// An empty icon for an unknown name.
QIcon get(const QString& name);
QStringList names();

} // namespace Icons

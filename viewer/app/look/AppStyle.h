#pragma once

#include <QString>

class QApplication;

/// The look of the program: the Fusion style with a dark or a light palette and a sheet for what a palette
/// can't say.
namespace AppStyle {

constexpr auto Dark = "dark";
constexpr auto Light = "light";

/// Sets palette and sheet of the whole program. An unknown name is the dark one.
void apply(QApplication& app, const QString& name);
/// Whether the style in force is the dark one.
bool isDark();

} // namespace AppStyle

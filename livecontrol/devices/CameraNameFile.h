#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// Names for cameras by category.
using CameraNames = QMap<QString, QStringList>;

/// Stands for the category of names that have none.
extern const QString kDefaultCategory;

/// Reads a list of camera names: a line holds a category and names, separated by commas. Names lose what a
/// file name can't have, and are cut to 1,024 characters; each stands once in its category, in the order of
/// the file. The text is read with the default codec of text streams if it could be Shift-JIS, else as UTF-8.
///
/// False, with a line in the log unless there is just no such file, if the file can't be read.
bool readCameraNameFile(const QString& path, CameraNames& names);

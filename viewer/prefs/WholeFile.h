#pragma once

#include <QString>

class QByteArray;
class QSaveFile;

/// Puts a file in place of what is at `path`, as a whole or not at all. Gives the reason if it could not be;
/// empty when it stands. Any thread.
QString replaceFile(const QString& path, const QByteArray& bytes);

/// Ends the writing of a file, which then stands as a whole. A commit alone does not notice that the last
/// bytes found no room.
bool commitWhole(QSaveFile& file);

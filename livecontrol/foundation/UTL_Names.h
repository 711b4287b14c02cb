#pragma once

#include <QCollator>
#include <QString>

// Names and paths of files, as the user types them. A name is refused for what any of the systems that share
// the files refuses, and for the percent sign, which stands for a place in the naming of saved files.

/// No back slash, slash, asterisk, question mark, bar, tab, line feed, double quote, colon, angle bracket or
/// percent sign. The empty name passes.
bool isValidFileName(const QString& name);
/// The same for a whole path: slashes, back slashes and the colon are allowed.
bool isValidPath(const QString& path);
/// The name by which the naming of saved files knows the same check.
inline bool isValidFilePath(const QString& path) { return isValidPath(path); }

/// The name with `replacement` in place of each printable character that isValidFileName() refuses. In the
/// names "." and "..", which mean folders, the points are replaced too.
QString sanitizeFileName(const QString& name, const QString& replacement);

/// The path of a file that is to be written, as a save dialog gives it: with the suffix (without its point)
/// if it has not got that one. An empty path stays.
QString withSuffix(const QString& path, const QString& suffix);

/// Adds "/" to a path that isn't empty and doesn't end with it.
void appendSlash(QString& path);
/// The name by which the naming of saved files knows the same.
inline void addTrailingSlash(QString& path) { appendSlash(path); }

/// "C001H001S0001": each number stands there only if its digit count is above 0, padded with zeros to that
/// count, of which at most 255 are written.
QString composeSequenceNumber(int camera, int head, int session, int cameraDigits, int headDigits,
                              int sessionDigits);

/// Orders names as a user of the default locale counts, 2 before 10. The locale "C" has no such order.
QCollator countingOrder();

/// Free bytes of the volume that the path's part up to its first "/" stands for; 0 if there is none.
quint64 freeBytes(const QString& path);

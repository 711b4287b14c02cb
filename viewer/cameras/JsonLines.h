#pragma once

#include <QByteArray>
#include <QString>

/// Where things stand in a JSON text, for messages; QJsonDocument forgets it.
namespace JsonLines {

/// The line (from 1) of a byte of the text.
int lineOfOffset(const QByteArray& text, int offset);

/// The line of the value at a path such as "/cameras/2/name" in a text that is valid JSON: the line of the
/// key for a member, of the first character for an element. "" is the whole text; a path that does not exist
/// gives the line of its deepest part that does. Keys with escapes in them are not found.
int lineOfPath(const QByteArray& text, const QString& path);

} // namespace JsonLines

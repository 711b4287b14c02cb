#pragma once

#include <QJsonObject>
#include <QString>

/// What is known of a recording, as a text in a picture or a movie.
namespace PictureNote {

/// Under which a PNG has the text.
constexpr char Key[] = "Recording";

/// One line of JSON.
QString text(const QJsonObject& info);
/// The JSON within a text that may hold more; empty if it holds none.
QJsonObject info(const QString& text);

} // namespace PictureNote

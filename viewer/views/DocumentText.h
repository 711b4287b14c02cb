#pragma once

#include <QString>
#include <QStringList>

class Document;
class QSize;
enum class CameraState;

/// What the windows tell of a document, in the user's language.
namespace DocumentText {

/// The state as a word: live, ready, recording, replay, disconnected ...
QString state(const Document& document);
/// The state of a camera as a word.
QString cameraState(CameraState state);
/// "1/1,000 sec".
QString shutter(quint32 value);
/// "5,000 fps".
QString rate(quint32 value);
/// "1280 x 1024".
QString resolution(const QSize& size);
/// Rate, shutter and resolution of the picture that shows, most important first. Empty without a picture.
QStringList facts(const Document& document);
/// "12 / 500, 0.5000 s  (T+3, 0.0030 s)" of a recording: the frame, counted from 1, how many there are and
/// how long they take, and how far from the trigger it is.
QString position(const Document& document);

} // namespace DocumentText

#pragma once

#include "livecontrol/interface/records.h"
#include "viewer/recordings/CustomItems.h"

#include <QDateTime>
#include <QJsonObject>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

/// The frames round one trigger of a recording that has several.
struct RecordedShot {
    int first = 0;        // frame of the recording
    int triggerIndex = 0; // frame of the recording
    QDateTime triggered;  // invalid if nobody knows

    bool operator==(const RecordedShot& other) const {
        return first == other.first && triggerIndex == other.triggerIndex && triggered == other.triggered;
    }
    /// The one that a frame belongs to; null if there is none.
    static const RecordedShot* of(const QVector<RecordedShot>& shots, int frame);
};

/// All that is known of a recording beside its frames. What nobody knows has the value it starts with.
struct RecordingInfo {
    QString id;       // names the shot of one head; copies of it have the same
    QString camera;   // as the user reads it, with the head's name
    QString device;   // of the model
    QString headName; // empty for a camera with one head
    int head = 0;     // from 1; 0: unknown
    QString serial;
    int partition = 0; // from 1; 0: unknown
    QDateTime triggered;
    QDateTime ended;     // when it was complete
    quint32 rate = 0;    // fps
    quint32 shutter = 0; // n for 1/n s
    QSize size;          // pixels
    QRect area;          // the part of the sensor that the frames show
    int bitDepth = 8;    // significant bits of a sample
    bool color = false;
    int frames = 0;
    int triggerIndex = 0;    // among these frames
    quint32 firstNumber = 0; // running number of the first frame
    int recordedFrames = 0;  // that the camera had; more than `frames` for a part of it, 0: unknown
    int triggerMode = -1;
    CustomItems items; // that the camera had
    QString comment;   // with line feeds
    QString logoPath;  // of the image that stood beside them
    std::optional<TimeCodeSetting> timeCode;
    QVector<int> marks;          // frames that the user marked, rising
    QVector<RecordedShot> shots; // rising; empty for a recording with one trigger

    QJsonObject others; // entries of a newer program, kept as they came

    QJsonObject toJson() const;
    /// Never fails: an entry of the wrong type or out of range counts as missing.
    static RecordingInfo fromJson(const QJsonObject& json);

    /// The same of a part of its frames.
    RecordingInfo part(int first, int count) const;
    /// How the samples of its frames lie in an image.
    bool isWide() const { return bitDepth > 8; }
};

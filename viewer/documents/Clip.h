#pragma once

#include "livecontrol/interface/records.h"
#include "viewer/recordings/CustomItems.h"

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QString>

#include <optional>

class CameraHead;

/// A recording taken out of a camera's memory, with what is needed to read it.
struct Clip {
    QString cameraName;
    QString deviceName;  // of the model
    QDateTime time;      // of the trigger
    QDateTime end;       // when the recording was complete; invalid if nobody knows
    quint32 rate = 0;    // fps
    quint32 shutter = 0; // n for 1/n s
    int bitDepth = 8;
    int triggerIndex = 0;
    CustomItems items;    // that the camera had
    QString comment;      // that it had, with line feeds
    QString logoPath;     // of the image that stood beside them
    int triggerMode = -1; // -1: unknown
    std::optional<TimeCodeSetting> timeCode;
    QList<QImage> frames; // all of one size, in the storage of Frame

    /// Copies at most that many frames around the trigger. Empty if the head has no recording. `end`: when
    /// it was complete; now, if nobody knows.
    static Clip fromMemory(CameraHead& head, int maxFrames, const QDateTime& end = QDateTime());
    /// Reads a file that save() of this program or an older one wrote. Throws DOC_ReadFileException.
    static Clip load(const QString& path);
    /// Throws DOC_FileException.
    void save(const QString& path) const;
};

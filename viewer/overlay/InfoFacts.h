#pragma once

#include "livecontrol/interface/types.h"
#include "viewer/documents/Tones.h"
#include "viewer/recordings/RecordingInfo.h"

#include <QDateTime>
#include <QSize>
#include <QVector>

#include <optional>

class Document;

/// What the information over a picture is made from: plain values, so that gathering them costs next to
/// nothing and whether anything is new can be told without a text.
struct InfoFacts {
    HostMode mode = HOST_MODE_LIVE; // that of the picture: file for a recording in the computer
    QString cameraName;
    QString headName;
    QString deviceName;
    QString path;      // of a recording that has one
    int head = 0;      // from 1; 0 if nobody knows, as the next one
    int partition = 0; // from 1
    // With what the picture was taken: the settings in force, or those of the recording.
    quint32 rate = 0;
    quint32 shutter = 0; // n for 1/n s
    QSize resolution;
    int triggerMode = -1;
    int frames = 0;       // of the recording; live: that the memory holds
    int position = -1;    // in the recording, from 0
    int triggerIndex = 0; // in the recording
    QDateTime triggered;  // the shot that shows; invalid if nobody knows
    QDateTime ended;      // the recording; the same
    qint64 clock = 0;     // seconds, only where a clock shows
    QDateTime saved;      // when the picture is saved; invalid where it only shows
    int zoom = 0;         // percent of the original image
    Tones tones;
    QString comment;
    QList<CustomItem> items;
    QString logoPath;                        // the recording's own
    QVector<RecordedShot> shots;             // where goTo() is to find the trigger; empty with one trigger
    QVector<int> marks;                      // frames that the user marked, rising
    std::optional<TimeCodeSetting> timeCode; // the recording's own; it doesn't change

    static InfoFacts of(const Document& document);
    /// To another frame of the recording, from 0.
    void goTo(int frame);
    bool isRecorded() const { return position >= 0; }
    bool operator==(const InfoFacts& other) const;
};

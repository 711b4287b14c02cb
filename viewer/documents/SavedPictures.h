#pragma once

#include "livecontrol/interface/types.h"

#include <QDateTime>
#include <QImage>
#include <QSize>

class Document;

/// Makes what is saved of documents with its information: the program gives the list of documents one that
/// can draw. GUI thread only.
class SavedPictures {
public:
    /// Of what, and when.
    struct Shot {
        Document& document;
        PARTITIONNUMBER partition = 0; // of the camera's memory, from 1; 0: the current one
        int frame = 0;                 // of the recording, from 1; 0: the one that shows
        QDateTime moment;              // of saving; if it is invalid, the time of the recording counts
    };

    virtual ~SavedPictures() = default;

    /// How large it is, in pixels. The same for all frames of a recording.
    virtual QSize size(const Shot& shot) = 0;
    /// The picture, made larger or smaller to fit in; null without a picture.
    virtual QImage image(const Shot& shot, const QSize& limit) = 0;
};

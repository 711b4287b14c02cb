#pragma once

#include "livecontrol/interface/types.h"

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QString>

#include <functional>

/// How many frames are left out: of `step` frames one is saved.
struct FrameSkip {
    int frames = 1;          // the step of every recording
    double milliseconds = 0; // between two frames that are saved
    bool isInMilliseconds = false;

    /// Of a recording with so many frames a second.
    int step(quint32 rate) const {
        return qMax(1, isInMilliseconds ? qRound(milliseconds / 1000 * rate) : frames);
    }
};

/// What the user wants to have saved: plain values, composed when he agreed.
struct SaveRequest {
    struct Item {
        DOCKEY key = kInvalidDockey;
        PARTITIONNUMBER partition = 1;
        QString path; // with the folder, which may not exist yet, without extension
    };

    int saveType = 1; // as the naming knows what is saved
    QList<Item> items;
    int firstFrame = 0;
    int lastFrame = -1; // -1: to the end
    FrameSkip skip;
    QString format; // as the page lists them, in upper case
    QString codec;  // of a movie
    bool withInfo = false;
    QDateTime moment = QDateTime::currentDateTime(); // that names and pictures tell as the time of saving
    bool isUnasked = false; // nobody waits for it: no window opens, and a name that is taken gets a number
};

/// What a layout of these documents would look like, no larger than that; null if there is none.
using LayoutPicture = std::function<QImage(const QList<DOCKEY>& keys, bool withInfo, const QSize& size)>;

/// Writes the files, or begins to. What it throws is shown to the user, and the dialog stays open.
using SaveFunction = std::function<void(const SaveRequest&)>;

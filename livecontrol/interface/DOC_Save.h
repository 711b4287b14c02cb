#pragma once

#include "livecontrol/interface/types.h"

#include <QSize>
#include <QString>

class QDateTime;

/// Saving of a document. GUI thread only; any operation may throw an exception derived from `std::exception`.
class DOC_Save {
public:
    virtual ~DOC_Save() = default;

    /// Chooses the partition that is saved, from 1.
    virtual void setSavePartition(PARTITIONNUMBER partition) = 0;
    /// Sets the flags of `setSaveInfo` and its sisters back.
    virtual void resetSaveFlags() = 0;
    /// Size in pixels that the image has when it is saved. `saveType` selects the family of settings;
    /// partition 0 is the current one. `kind` is 1 for the size that a fixed ratio of the font counts from.
    virtual QSize getImageSize(int saveType, PARTITIONNUMBER partition, int kind) = 0;
    /// Whether information is saved with the image.
    virtual void setSaveInfo(bool on) = 0;
    /// Whether the image is saved as corrected.
    virtual void setSaveCorrect(bool on) = 0;
    /// Whether the image is saved in the scale of the view.
    virtual void setSaveScale(bool on) = 0;
    /// Reads the camera's settings anew. Callers pass false for `force`.
    virtual void refreshCameraSettings(bool force) = 0;
    /// The part of a file's name that the host adds. `used` tells whether the settings ask for one.
    virtual QString composeSaveSuffix(int saveType, PARTITIONNUMBER partition, int session, bool& used,
                                      const QDateTime& dateTime) = 0;
    /// Number of cameras that are saved together.
    virtual int getCameraCount() = 0;
};

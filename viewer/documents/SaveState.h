#pragma once

#include "livecontrol/interface/types.h"
#include "viewer/cameras/CameraStorage.h"

#include <QString>

/// What is to be saved of a document, as the dialog of saving has it.
struct SaveState {
    PARTITIONNUMBER partition = 0; // 0: none chosen
    bool withInfo = false;         // the information is saved with the picture
    bool corrected = false;        // the picture as the tools have it
    bool scaled = false;           // in the scale of the view
};

/// The drive that a recording was opened from.
struct DriveOrigin {
    QString drive; // as the user reads it
    QString serial;
    QString dataNo; // unique among all drives of the camera
    StorageKind kind = StorageKind::SDCard;
    int slot = -1; // of the camera

    /// The camera may have been called otherwise, and had another place in the list, when it was opened.
    bool isOn(const QString& camera, StorageKind drives, int number) const {
        return serial == camera && kind == drives && slot == number;
    }
};

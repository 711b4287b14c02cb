#pragma once

#include "livecontrol/interface/JS_Mediator.h"
#include "viewer/host/parts/CardDrives.h"

/// The script object `drives` of the dialogs that show cards and drives: what only the program knows of them,
/// and its questions before something on them is lost.
class DrivesMediator : public JS_Mediator {
    Q_OBJECT

public:
    /// Both outlive it.
    DrivesMediator(HostObject* host, CardDrives& drives, DocumentList& documents);

public slots:
    /// False unless the user says so: Enter alone keeps what is there. `details` stands below the question.
    bool confirmLoss(const QString& question, const QString& details);
    /// Recordings on a drive of a camera, by its kind ("sd", "fd", "cf"), the camera's index and the slot.
    int count(const QString& kind, int driveNo, int slotNo);
    /// Whether the camera has a link.
    bool isLinked(DOCKEY dockey);
    /// Whether the dock store in the slot asks for its password.
    bool isLocked(DOCKEY dockey, int slot);
    /// Asks for the password until it is right; false if the user gives up.
    bool unlock(DOCKEY dockey, int slot);

private:
    bool drive(DOCKEY dockey, int slot, CardDrives::Drive& found) const;

    CardDrives& m_drives;
    DocumentList& m_documents;
};

#pragma once

#include "livecontrol/interface/records.h"
#include "viewer/cameras/CameraHead.h"

class CameraDocument;
class DocumentList;
class Messages;
class SettingModes;
class TriggerSharing;

/// The setting of variable channels: meanwhile the current camera shows its whole sensor, so that an area can
/// be chosen on it, and goes back to what it had if nothing is taken.
class VariableSetting {
public:
    /// None is owned; all outlive it.
    VariableSetting(DocumentList& documents, SettingModes& modes, const TriggerSharing& sharing,
                    Messages& messages)
        : m_documents(documents), m_modes(modes), m_sharing(sharing), m_messages(messages) {}

    /// Only the current camera is widened: it is the one whose values are put back. Throws CameraFailure.
    void begin();
    /// What a camera has, or had before the setting widened it.
    HeadSettings settingsBefore(const CameraDocument& camera) const;
    /// These cameras have got a channel, which settles it for the one that is widened.
    void noteChannelSet(const QList<CameraDocument*>& cameras);
    /// Gives the widened camera, or else the current one, back what it had. Throws CameraFailure.
    void restore(const VariableBackup& backup);
    /// Neither a channel nor the settings before were taken: a camera that refuses a channel must not be left
    /// at the rate of its whole sensor. A failure is told.
    void leave();

private:
    CameraDocument* widened() const;

    DocumentList& m_documents;
    SettingModes& m_modes;
    const TriggerSharing& m_sharing;
    Messages& m_messages;
    DOCKEY m_widened = kInvalidDockey; // the camera that shows its whole sensor for a setting
    HeadSettings m_before;
};

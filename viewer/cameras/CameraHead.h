#pragma once

#include "viewer/cameras/CameraModel.h"
#include "viewer/cameras/Faults.h"
#include "viewer/cameras/Frame.h"

#include <QJsonObject>
#include <QObject>
#include <QVariant>

#include <memory>

class CameraBody;
class Scene;

/// How a command ended that did not throw: the camera took the value, or another one in its place.
enum class CommandResult { Ok, Clamped };

struct HeadSettings {
    QSize resolution;
    quint32 rate = 0;        // fps
    quint32 shutter = 0;     // n for 1/n s, the exposure in force
    quint32 shutterWish = 0; // n that a locked shutter goes back to
    bool shutterLock = false;
    bool resolutionLock = false;
    int dualSlope = 0; // percent, 0 off
    bool dualSlopeMode = false;
    int triggerMode = 0;
    int afterFrames = 1; // after the trigger, for the manual mode
    double aperture = 1; // relative light

    bool operator==(const HeadSettings& other) const;
    bool operator!=(const HeadSettings& other) const { return !(*this == other); }
};

/// A recording in the memory of a head. Frames are numbered by the head's running count, so frame n was
/// exposed at n / rate seconds of the rig's clock on. They are made when they are asked for, from the
/// settings that were in force: the scene is a function of time, so they are the same as if they had been
/// kept, and a whole memory costs nothing.
struct Recording {
    HeadSettings settings;     // in force while it was recorded
    quint64 firstNumber = 0;   // a frame carries the low 32 bits
    quint64 triggerNumber = 0; // the first frame after the trigger
    int frames = 0;

    bool isEmpty() const { return frames == 0; }
    int triggerIndex() const { return int(triggerNumber - firstNumber); }
};

/// One head of a camera: its settings, which behave as a real camera's do, and its pictures.
//
/// How settings clamp:
/// - Resolution: the largest preset that is neither wider nor higher than asked, else the smallest preset. If
/// the rate in
///   force is too high for it, the rate falls to the highest in the list that it can run.
/// - Rate: the highest in the model's list that is not above the one asked, else the lowest. If the
/// resolution can't run
///   it, a locked resolution stays and the rate falls to the highest that it can run; otherwise the
///   resolution becomes the largest preset that can.
/// - Shutter: the exposure is never longer than a frame, so 1/n with n at least the rate. A value between two
/// of the list
///   becomes the next shorter exposure. When the rate rises past the shutter, the exposure becomes 1/rate. It
///   stays there when the rate falls again; a locked shutter goes back to the exposure that was chosen as far
///   as the rate allows.
/// - A size that is smaller lets more frames into the memory; frames after the trigger are cut to what it
/// holds.
/// - Dual slope: 0, or from the model's smallest to its largest percentage; a rate above the model's limit
/// switches it off.
//
/// Each setter is one command: it costs the body's command time, throws CameraError when it is refused or the
/// link is lost (nothing has changed then), and emits settingsChanged() when anything did. Reads cost
/// nothing.
class CameraHead : public QObject {
    Q_OBJECT

public:
    CameraHead(CameraBody* body, int index, const QString& name, std::shared_ptr<const CameraModel> model);
    ~CameraHead() override;

    CameraBody* body() const { return m_body; }
    int index() const { return m_index; }          // in the body, from 0
    const QString& name() const { return m_name; } // of the head alone; empty for a body with one head
    QString fullName() const;                      // body's name, and the head's behind it
    const CameraModel& model() const { return *m_model; }
    const HeadSettings& settings() const { return m_settings; }

    /// What can be chosen at present. Empty for a dummy.
    QList<QSize> resolutionList() const;
    QList<quint32> rateList() const;    // with a locked resolution only what it can run
    QList<quint32> shutterList() const; // from 1/rate on
    QSize maxResolution() const;        // the sensor's size
    bool isDualSlopeAvailable() const;  // supported and possible at the present rate
    int totalFrames() const;            // that the memory holds at the present resolution
    QRect area() const;                 // the part of the sensor in use

    CommandResult setResolution(const QSize& size);
    CommandResult setRate(quint32 rate);
    CommandResult setShutter(quint32 shutter);
    CommandResult setShutterLock(bool on);
    CommandResult setResolutionLock(bool on);
    CommandResult setDualSlope(int percent);
    /// Modes that the model lacks are refused; afterFrames is clamped to 1..totalFrames().
    CommandResult setTrigger(int mode, int afterFrames);

    /// As if a button on the camera's own back were pressed: no command, no time, no link needed. Names are
    /// the keys of state()["settings"]; a resolution is "1280x1024" or [1280, 1024]. Clamps as the commands
    /// do. Throws CameraError of kind BadValue or Refused. Emits changedOutside() behind settingsChanged().
    CommandResult changeFromOutside(const QString& setting, const QVariant& value);

    /// The picture that the head sees now, no larger than maxSize if that is valid. Costs no command time;
    /// null when the camera is off, booting or has no link.
    Frame liveFrame(const QSize& maxSize = QSize());
    /// A frame of the recording, from 0. Null outside it.
    Frame memoryFrame(int index, const QSize& maxSize = QSize());
    const Recording& recording() const { return m_recording; }
    /// The running number of the frame being exposed.
    quint64 currentNumber() const;

    /// Pictures from elsewhere in place of the scene, as they are and without a stamp; an empty function ends
    /// it.
    void setFrameSource(const FrameSource& source) { m_source = source; }

    QJsonObject state() const;

signals:
    void settingsChanged(CameraHead* head);
    void changedOutside(CameraHead* head);

private:
    friend class CameraBody;

    using Edit = std::function<CommandResult(HeadSettings&)>;

    CommandResult change(const QString& function, const Edit& edit);
    CommandResult apply(const Edit& edit);
    [[noreturn]] void refuse(const QString& function, const QString& reason) const;
    void requireFunction(CameraFunction needed, const QString& function) const;
    Edit editTrigger(const QString& function, int mode, int afterFrames) const;
    Edit editDualSlope(const QString& function, int percent) const;
    Edit outsideEdit(const QString& setting, const QVariant& value) const;
    Frame makeFrame(quint64 number, const HeadSettings& settings, const QSize& maxSize);

    /// Called by the body: the ring starts to turn; the trigger; the time from now to the last frame; the
    /// ring stops.
    void beginRing();
    void trigger();
    double msToEnd() const;
    void endRecording();
    void clearRecording() { m_recording = Recording(); }

    CameraBody* m_body;
    int m_index;
    QString m_name;
    std::shared_ptr<const CameraModel> m_model;
    HeadSettings m_settings;
    Recording m_recording;
    quint64 m_ringStart = 0;
    quint64 m_triggerNumber = 0;
    quint64 m_endNumber = 0; // the first that is not recorded
    FrameSource m_source;
    std::unique_ptr<Scene> m_scene;
};

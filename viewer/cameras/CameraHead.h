#pragma once

#include "viewer/cameras/CameraModel.h"
#include "viewer/cameras/Faults.h"
#include "viewer/cameras/Frame.h"
#include "viewer/cameras/LensUnit.h"
#include "viewer/cameras/VariableSize.h"

#include <QJsonObject>
#include <QObject>
#include <QVariant>
#include <QVector>

#include <memory>
#include <vector>

class CameraBody;
class Scene;
struct Setting;

/// How a command ended that did not throw: the camera took the value, or another one in its place.
enum class CommandResult { Ok, Clamped };

/// A live picture for setting up in the dark: the frame rate does not limit its exposure. Nothing is recorded
/// with it.
struct LowLight {
    static constexpr int WholeSensor = 2; // of `type`: what the picture shows
    static constexpr int Resolution = 3;

    bool on = false;
    int type = Resolution;
    quint32 shutter = 0; // n for 1/n s

    bool showsWholeSensor() const { return on && type == WholeSensor; }
    bool operator==(const LowLight& other) const {
        return on == other.on && type == other.type && shutter == other.shutter;
    }
};

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
    int afterFrames = 1;      // after the trigger, for the manual modes
    int randomFrames = 1;     // of one random recording
    int randomCount = 1;      // of random recordings
    bool randomTimes = false; // whether the count holds in the modes that leave the choice
    double aperture = 1;      // relative light
    int channel = 0; // variable channel in force, from 1; 0: none, and the area is a preset in the centre
    QPoint position; // of the area on the sensor, while a channel is in force
    ExposureControl exposure;
    AreaJudge imageTrigger;
    LowLight lowLight;
    bool led = false;   // lights what is near
    bool laser = false; // marks the centre of the sensor
    LensView lens;      // in a recording what the lens made of its pictures; no setting, and never compared

    /// The exposure of the live picture, n for 1/n s.
    quint32 liveShutter() const { return lowLight.on ? lowLight.shutter : shutter; }

    bool operator==(const HeadSettings& other) const;
    bool operator!=(const HeadSettings& other) const { return !(*this == other); }
};

/// The frames round one trigger. They are numbered by the head's running count, or anew from the trigger on:
/// frame n was exposed at origin + n / rate.
struct Take {
    qint64 origin = 0;         // ns of the rig's clock
    quint64 triggerNumber = 0; // the first frame after the trigger; a frame carries the low 32 bits
    int before = 0;
    int after = 0;
    int step = 1; // before the trigger every step-th frame was kept

    int frames() const { return before + after; }
    quint64 numberOf(int index) const;
};

/// What lies in the memory of a head: one take, or several of a random mode. Frames are made when they are
/// asked for, from the settings that were in force: the scene is a function of time, so they are the same as
/// if they had been kept, and a whole memory costs nothing.
struct Recording {
    HeadSettings settings; // in force while it was recorded
    QVector<Take> takes;   // the oldest first
    int frames = 0;        // of all takes

    bool isEmpty() const { return frames == 0; }
    /// Of the first frame; 0 without one.
    quint64 firstNumber() const { return isEmpty() ? 0 : takes.first().numberOf(0); }
    /// Where the trigger of the take stands that the frame belongs to, in frames of the whole memory.
    int triggerIndex(int frame = 0) const;
    /// The take of a frame and the frame's index in it; null outside.
    const Take* takeOf(int frame, int& index) const;
};

/// One head of a camera: its settings, which behave as a real camera's do, and its pictures.
//
/// How settings clamp:
/// - Resolution: the largest preset that is neither wider nor higher than asked, else the smallest preset. If
///   the rate in force is too high for it, the rate falls to the highest in the list that it can run.
/// - Rate: the highest in the model's list that is not above the one asked, else the lowest. If the
///   resolution can't run it, a locked resolution stays and the rate falls to the highest that it can run;
///   otherwise the resolution becomes the largest preset that can.
/// - Shutter: the exposure is never longer than a frame, so 1/n with n at least the rate. A value between two
///   of the list becomes the next shorter exposure. When the rate rises past the shutter, the exposure
///   becomes 1/rate. It stays there when the rate falls again; a locked shutter goes back to the exposure
///   that was chosen as far as the rate allows.
/// - A size that is smaller lets more frames into the memory; frames after the trigger are cut to what it
///   holds.
/// - Auto exposure: while it is on and the camera is live, the exposure follows the brightness of its area
///   and may have any value up to the longest time; while a ring runs it stands. A shutter or a dual slope
///   that is chosen switches it off, and switched off it leaves the exposure that was chosen last. It can't
///   be switched on over a dual slope.
/// - Image trigger: the area follows a smaller image as that of the auto exposure does.
/// - Variable channel: takes rate, size and position as they are stored, whatever is locked. A change of rate
///   or resolution leaves it for a preset: the largest that is neither wider nor higher, else the smallest.
/// - Low light: begins with the exposure in force. A shutter that is chosen meanwhile is its own, and the
/// other
///   one comes back behind it. The camera can't get ready while it is on.
/// - Dual slope: 0, or from the model's smallest to its largest percentage; a rate above the model's limit
///   switches it off.
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
    QSize liveSize() const;             // of the live picture
    bool isLowLight() const { return m_settings.lowLight.on; }
    int triggerLimit() const; // frames that lie before and after the trigger together
    QRect area() const;       // the part of the sensor in use

    CommandResult setResolution(const QSize& size);
    CommandResult setRate(quint32 rate);
    CommandResult setShutter(quint32 shutter);
    CommandResult setShutterLock(bool on);
    CommandResult setResolutionLock(bool on);
    CommandResult setDualSlope(int percent);
    CommandResult setAutoExposure(bool on);
    /// All but whether it is on. Clamps as AutoExposure::fitted() tells.
    CommandResult setExposureControl(const ExposureControl& wish);
    /// On, a picture whose area meets the target triggers the camera while it is ready.
    CommandResult setImageTrigger(bool on);
    /// All but whether it is on. Clamps as AutoExposure::fittedJudge() tells.
    CommandResult setImageTriggerControl(const AreaJudge& wish);
    /// Judges the pictures for an onlooker too, whether the image trigger is on or not. No command.
    void observeImage(bool on);
    /// Whether the area has met its target within the last half second, while it is judged.
    bool isImageTriggered() const { return m_imageMet; }
    bool isImageJudged() const { return m_imageObserved || m_settings.imageTrigger.on; }
    /// Modes that the model lacks are refused. Numbers below 1 leave what is set; larger ones are clamped to
    /// what the memory holds, as TriggerRules tells.
    CommandResult setTrigger(int mode, int afterFrames, int randomFrames = 0, int randomCount = 0);
    /// Whether the count of random recordings holds.
    CommandResult setRandomTimes(bool on);

    CommandResult setLowLight(bool on);
    /// One of LowLight's two; another is refused.
    CommandResult setLowLightType(int type);
    CommandResult setLed(bool on);
    CommandResult setLaser(bool on);
    /// The corners of the sensor darken as its temperature departs from what it was at the last calibration.
    CommandResult calibrateShading();

    /// The lens. Its commands start a move, which goes on by itself: changedOutside() tells of its end. An
    /// axis that the lens doesn't drive is refused.
    const LensUnit& lens() const { return m_lens; }
    CommandResult moveLens(LensAxis axis, int value);
    CommandResult stepLens(LensAxis axis, int count, bool large);
    CommandResult closeLens();
    /// Refused without contact to the lens.
    CommandResult resetLens();

    /// Variable channels, numbered from 1 and kept by the body. A number of 0 leaves the channel in force;
    /// one that holds nothing is refused.
    CommandResult setVariableChannel(int number);
    /// Refused for a size that can't run its rate; a position is clamped. Heads that are in the channel take
    /// it over.
    CommandResult storeVariableChannel(int number, const VariableChannel& content);
    /// Heads that are in the channel leave it.
    CommandResult eraseVariableChannel(int number);
    /// Channel, or resolution and rate, then shutter and trigger go back to what they were, in one command. A
    /// channel that is gone gives the nearest preset.
    CommandResult restoreSettings(const HeadSettings& before);

    /// As if a button on the camera's own back were pressed: no command, no time, no link needed. Names are
    /// the keys of state()["settings"]; a resolution is "1280x1024" or [1280, 1024]. Clamps as the commands
    /// do. The lens takes "iris", "focus" and "zoom" as turned by hand, and "lensContact". Throws CameraError
    /// of kind BadValue or Refused. Emits changedOutside() behind settingsChanged().
    CommandResult changeFromOutside(const QString& setting, const QVariant& value);

    /// The picture that the head sees now, no larger than maxSize if that is valid. Costs no command time;
    /// null when the camera is off, booting or has no link.
    Frame liveFrame(const QSize& maxSize = QSize());
    /// A frame of the recording, from 0. Null outside it.
    Frame memoryFrame(int index, const QSize& maxSize = QSize());
    const Recording& recording() const; // in the body's current partition
    /// Of a partition, from 1; empty outside.
    Recording recording(int partition) const;
    /// The running number of the frame being exposed.
    quint64 currentNumber() const;

    /// Pictures from elsewhere in place of the scene, as they are and without a stamp; an empty function ends
    /// it.
    void setFrameSource(const FrameSource& source) { m_source = source; }

    /// Takes over settings of this camera or of another, in one command, as far as they fit; those of the
    /// live picture alone stay.
    CommandResult adopt(const HeadSettings& wish);

    QJsonObject state() const;

signals:
    void settingsChanged(CameraHead* head);
    void changedOutside(CameraHead* head); // or its lens came to rest
    /// isImageTriggered() or isImageJudged() gives something else now.
    void imageTriggerChanged(CameraHead* head);

private:
    friend class CameraBody;

    using Edit = std::function<CommandResult(HeadSettings&)>;

    CommandResult change(const QString& function, const Edit& edit);
    CommandResult apply(const Edit& edit);
    [[noreturn]] void refuse(const QString& function, const Reason& reason) const;
    void requireFunction(CameraFunction needed, const QString& function) const;
    /// Refuses what the camera lacks or can't take, in the name of the function.
    Edit edit(const Setting& setting, const QString& function, const QVariant& value) const;
    CommandResult setByKey(const char* key, const QString& function, const QVariant& value);
    double measuredLevel(const QRect& measured);
    void judgeImage();
    void judgeImageSoon();
    void setImageMet(bool met);
    void followLight();
    void followLightSoon();
    CommandResult lensCommand(const std::function<bool()>& act);
    void requireAxis(LensAxis axis) const;
    void tellLensRestSoon();
    bool turnLens(const QString& setting, const QVariant& value);
    QImage seen(Scene& scene, const FrameRequest& request, const LensView& lens) const;
    void addSensorFaults(QImage& image, const FrameRequest& request) const;
    HeadSettings liveSettings() const;
    Frame makeFrame(quint64 number, const HeadSettings& settings, const QSize& maxSize, qint64 origin = 0);

    /// Called by the body: the ring starts to turn; the trigger, unless the memory has all it is to hold; the
    /// time from now to the last frame; the take ends.
    void beginRing();
    void trigger();
    double msToEnd() const;
    void endTake();
    void addTake(const Take& take);
    bool wantsMore() const;
    bool endsByTrigger() const;
    bool hasRecording() const { return !recording().isEmpty(); }
    void clearRecordings();
    /// The channel holds something else now.
    void followChannel(int number);

    CameraBody* m_body;
    int m_index;
    QString m_name;
    std::shared_ptr<const CameraModel> m_model;
    HeadSettings m_settings;
    LensUnit m_lens;
    double m_shadedAt;                   // degrees Celsius
    bool m_lensDue = false;              // the end of a move is awaited
    std::vector<Recording> m_recordings; // one a partition
    quint64 m_ringStart = 0;
    bool m_triggered = false;
    qint64 m_origin = 0; // of the numbers below, as in Take
    quint64 m_triggerNumber = 0;
    quint64 m_endNumber = 0; // the first that is not recorded
    FrameSource m_source;
    std::unique_ptr<Scene> m_scene;
    std::unique_ptr<Scene> m_meterScene; // a map of its own, so that the picture keeps its map
    bool m_lightDue = false;             // a measurement is planned
    bool m_imageObserved = false;
    bool m_imageDue = false; // a judgement is planned
    bool m_imageMet = false;
    qint64 m_imageMetAt = 0; // ns of the rig's clock
};

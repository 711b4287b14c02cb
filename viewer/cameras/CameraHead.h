#pragma once

#include "viewer/cameras/Answer.h"
#include "viewer/cameras/CameraModel.h"
#include "viewer/cameras/Frame.h"
#include "viewer/cameras/MemoryReader.h"
#include "viewer/cameras/Recording.h"
#include "viewer/cameras/settings/VariableSize.h"

#include <QObject>
#include <QVariant>

#include <memory>

class CameraBody;
struct Setting;

/// One head of a camera: its settings, its pictures and what it has recorded.
//
/// Reads come from the program's own copy of what the camera said: they cost nothing and work without a link.
/// Each setter is one command: nothing has changed when it fails, a value that the camera can't take as it is
/// becomes the nearest that it can, and settingsChanged() comes when anything else stands there than before.
/// Functions that few cameras have are refused unless a camera brings its own.
class CameraHead : public QObject {
    Q_OBJECT

public:
    explicit CameraHead(CameraBody& body) : m_body(body) {}

    CameraBody* body() const { return &m_body; }
    virtual int index() const = 0;           // in the body, from 0
    virtual const QString& name() const = 0; // of the head alone; empty for a body with one head
    QString fullName() const;                // body's name, and the head's after it
    virtual const CameraModel& model() const = 0;
    virtual const HeadSettings& settings() const = 0;

    /// What can be chosen at present. Empty for a camera of which only name and address are known.
    virtual QList<QSize> resolutionList() const { return model().resolutions; }
    virtual QList<quint32> rateList() const {
        return model().rates;
    } // with a locked resolution what it can run
    virtual QList<quint32> shutterList() const { return model().shutters; } // at this rate
    virtual bool isDualSlopeAvailable() const { return false; } // supported and possible at the present rate
    QSize maxResolution() const { return model().sensor; }
    /// Of the shot that is awaited or under way; zeros at any other time.
    virtual ShotProgress shotProgress() const { return {}; }
    int totalFrames() const;  // that the memory holds at the present resolution
    int triggerLimit() const; // frames that lie before and after the trigger together
    QSize liveSize() const;   // of the live picture
    QRect area() const;       // the part of the sensor in use
    bool isLowLight() const { return settings().lowLight.on; }

    /// Sets what a row of the table of settings describes, in its command's name.
    virtual Answer set(const Setting& setting, const QVariant& value) = 0;
    /// The same by the row's key in the group "settings".
    Answer setByKey(const char* key, const QVariant& value);
    Answer setResolution(const QSize& size) { return setByKey("resolution", size); }
    Answer setRate(quint32 rate) { return setByKey("rate", rate); }
    Answer setShutter(quint32 shutter) { return setByKey("shutter", shutter); }
    Answer setShutterLock(bool on) { return setByKey("shutterLock", on); }
    Answer setResolutionLock(bool on) { return setByKey("resolutionLock", on); }
    Answer setDualSlope(int percent) { return setByKey("dualSlope", percent); }
    Answer setRandomTimes(bool on) { return setByKey("randomTimes", on); }
    Answer setAutoExposure(bool on) { return setByKey("autoExposure", on); }
    /// On, a picture whose area meets the target triggers the camera while it is ready.
    Answer setImageTrigger(bool on) { return setByKey("imageTrigger", on); }
    Answer setLowLight(bool on) { return setByKey("lowLight", on); }
    /// One of LowLight's two; another is refused.
    Answer setLowLightType(int type) { return setByKey("lowLightType", type); }
    Answer setLed(bool on) { return setByKey("led", on); }
    Answer setLaser(bool on) { return setByKey("laser", on); }
    /// A number of 0 leaves the channel in force; one that holds nothing is refused.
    Answer setVariableChannel(int number) { return setByKey("channel", number); }

    /// Modes that the model lacks are refused. Numbers below 1 leave what is set; larger ones are clamped to
    /// what the memory holds, as TriggerRules tells.
    virtual Answer setTrigger(int mode, int afterFrames, int randomFrames = 0, int randomCount = 0) = 0;
    /// All but whether it is on; size and position are moved into the image.
    virtual Answer setExposureControl(const ExposureControl& wish);
    virtual Answer setImageTriggerControl(const MeteringArea& wish);
    /// The camera judges its pictures for an onlooker too, whether the image trigger is on or not. No
    /// command.
    virtual void observeImage(bool /*on*/) {}
    /// Whether the area has met its target within the last half second, while it is judged.
    virtual bool isImageTriggered() const { return false; }
    virtual bool isImageMonitored() const { return false; }
    virtual Answer calibrateShading();

    /// Variable channels, numbered from 1 and kept by the body.
    /// Refused for a size that can't run its rate; a position is clamped. Heads that are in the channel take
    /// it over.
    virtual Answer storeVariableChannel(int number, const VariableChannel& content);
    /// Heads that are in the channel leave it.
    virtual Answer eraseVariableChannel(int number);
    /// Channel, or resolution and rate, then shutter and trigger go back to what they were, in one command. A
    /// channel that is gone gives the nearest preset.
    virtual Answer restoreSettings(const HeadSettings& before) = 0;
    /// Takes over settings of this camera or of another, in one command, as far as they fit; those of the
    /// live picture alone stay.
    virtual Answer adopt(const HeadSettings& wish) = 0;

    /// The lens. Its commands start a move, which goes on by itself: changedOutside() tells of its end. An
    /// axis that the lens doesn't drive is refused.
    virtual const Lens& lens() const;
    virtual double lensCommandMs() const { return 0; } // that a command to it takes
    virtual Answer moveLens(LensAxis axis, int value);
    virtual Answer stepLens(LensAxis axis, int count, bool large);
    virtual Answer closeLens(); // parks it
    virtual Answer resetLens(); // reads it anew; refused without contact to it

    /// The picture that the head sees now, no larger than maxSize if that is valid. No command; null when the
    /// camera is off, booting or has no link.
    virtual Frame liveFrame(const QSize& maxSize = QSize()) = 0;
    /// A frame of the recording, from 0. Null outside it.
    virtual Frame memoryFrame(int index, const QSize& maxSize = QSize()) = 0;
    /// Of the recording in a partition, from 1, as it is now; null if there is none, or the camera can't be
    /// read.
    virtual std::unique_ptr<MemoryReader> memoryReader(int /*partition*/) { return nullptr; }
    virtual const Recording& recording() const = 0; // in the body's current partition
    /// Of a partition, from 1; empty outside.
    virtual Recording recording(int partition) const = 0;

signals:
    void settingsChanged(CameraHead* head);
    void changedOutside(CameraHead* head); // or its lens came to rest
    /// isImageTriggered() or isImageMonitored() gives something else now.
    void imageTriggerChanged(CameraHead* head);

protected:
    CameraError refusal(const QString& function, const Reason& reason) const;
    CameraError lacks(CameraFunction needed, const QString& function) const;

private:
    CameraBody& m_body;
};

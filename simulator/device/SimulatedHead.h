#pragma once

#include "simulator/device/FrameMaker.h"
#include "simulator/device/LensUnit.h"
#include "viewer/cameras/CameraHead.h"

#include <QJsonObject>

#include <atomic>
#include <memory>
#include <vector>

class Scene;
class SimulatedBody;

/// Frames are made when they are asked for, from the settings that were in force: the scene is a function of
/// time, so they are the same as if they had been kept, and a whole memory costs nothing.
struct SimulatedRecording : Recording {
    LensView lens; // what it made of the pictures
    /// Whether the memory still holds it; for readers on other threads.
    std::shared_ptr<std::atomic<bool>> isThere = std::make_shared<std::atomic<bool>>(true);
};

/// One head of a simulated camera: its settings, which behave as a real camera's do, and its pictures.
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
///   other one comes back after it. The camera can't get ready while it is on.
/// - Dual slope: 0, or from the model's smallest to its largest percentage; a rate above the model's limit
///   switches it off.
/// A command costs the body's command time.
class SimulatedHead : public CameraHead {
    Q_OBJECT

public:
    SimulatedHead(SimulatedBody* body, int index, const QString& name,
                  std::shared_ptr<const SimulatedModel> model);
    ~SimulatedHead() override;

    SimulatedBody* body() const { return m_body; }
    int index() const override { return m_index; }
    const QString& name() const override { return m_name; }
    ShotProgress shotProgress() const override;
    const SimulatedModel& model() const override { return *m_model; }
    const HeadSettings& settings() const override { return m_settings; }

    QList<quint32> rateList() const override;
    QList<quint32> shutterList() const override; // from 1/rate on
    bool isDualSlopeAvailable() const override;

    Answer set(const Setting& setting, const QVariant& value) override;
    Answer setTrigger(int mode, int afterFrames, int randomFrames = 0, int randomCount = 0) override;
    Answer setExposureControl(const ExposureControl& wish) override;
    Answer setImageTriggerControl(const MeteringArea& wish) override;
    void observeImage(bool on) override;
    bool isImageTriggered() const override { return m_imageMet; }
    bool isImageMonitored() const override { return m_imageObserved || m_settings.imageTrigger.on; }
    /// The corners of the sensor darken as its temperature departs from what it was at the last calibration.
    Answer calibrateShading() override;
    Answer storeVariableChannel(int number, const VariableChannel& content) override;
    Answer eraseVariableChannel(int number) override;
    Answer restoreSettings(const HeadSettings& before) override;
    Answer adopt(const HeadSettings& wish) override;

    const LensUnit& lens() const override { return m_lens; }
    double lensCommandMs() const override;
    Answer moveLens(LensAxis axis, int value) override;
    Answer stepLens(LensAxis axis, int count, bool large) override;
    Answer closeLens() override;
    Answer resetLens() override;

    /// As if a button on the camera's own back were pressed: no command, no time, no link needed. Names are
    /// the keys of state()["settings"]; a resolution is "1280x1024" or [1280, 1024]. Clamps as the commands
    /// do. The lens takes "iris", "focus" and "zoom" as turned by hand, and "lensContact". Throws CameraError
    /// of kind BadValue or Refused. Emits changedOutside() after settingsChanged().
    CommandResult changeFromOutside(const QString& setting, const QVariant& value);

    Frame liveFrame(const QSize& maxSize = QSize()) override;
    Frame memoryFrame(int index, const QSize& maxSize = QSize()) override;
    std::unique_ptr<MemoryReader> memoryReader(int partition) override;
    const SimulatedRecording& recording() const override;
    Recording recording(int partition) const override;
    /// The running number of the frame being exposed.
    quint64 currentNumber() const;

    /// Pictures from elsewhere in place of the scene, as they are and without a stamp; an empty function ends
    /// it.
    /// A reader of the memory calls it on its own thread.
    void setPictureSource(const PictureSource& source) { m_source = source; }

    QJsonObject state() const;

private:
    friend class SimulatedBody;

    using Edit = std::function<CommandResult(HeadSettings&)>;

    /// `after` follows a change that was taken.
    Answer change(const QString& function, const Edit& edit, const std::function<void()>& after = {});
    CommandResult apply(const Edit& edit);
    void requireFunction(CameraFunction needed, const QString& function) const;
    /// Refuses what the camera lacks or can't shot, in the name of the function.
    Edit edit(const Setting& setting, const QString& function, const QVariant& value) const;
    double measuredLevel(const QRect& measured);
    void judgeImage();
    void judgeImageSoon();
    void setImageMet(bool met);
    void followLight();
    void followLightSoon();
    Answer lensCommand(const std::function<bool()>& act);
    void requireAxis(LensAxis axis) const;
    void tellLensRestSoon();
    bool turnLens(const QString& setting, const QVariant& value);
    /// As the head is now.
    FrameMaker frameMaker() const;
    HeadSettings liveSettings() const;

    /// Called by the body: the ring starts to turn; the trigger, unless the memory has all it is to hold; the
    /// time from now to the last frame; the shot ends.
    void beginRing();
    void trigger();
    double msToEnd() const;
    void endShot();
    void addShot(const Shot& shot);
    bool wantsMore() const;
    bool endsByTrigger() const;
    bool hasRecording() const { return !recording().isEmpty(); }
    void clearRecordings();
    void replace(SimulatedRecording& memory, const SimulatedRecording& with);
    /// The channel holds something else now.
    void followChannel(int number);

    SimulatedBody* m_body;
    int m_index;
    QString m_name;
    std::shared_ptr<const SimulatedModel> m_model;
    HeadSettings m_settings;
    LensUnit m_lens;
    double m_shadedAt;                            // degrees Celsius
    bool m_lensDue = false;                       // the end of a move is awaited
    std::vector<SimulatedRecording> m_recordings; // one a partition
    quint64 m_recordingId = 0;                    // the last one that was given
    quint64 m_ringStart = 0;
    bool m_triggered = false;
    qint64 m_origin = 0; // of the numbers below, as in Shot
    quint64 m_triggerNumber = 0;
    quint64 m_endNumber = 0; // the first that is not recorded
    PictureSource m_source;
    std::unique_ptr<Scene> m_scene;
    std::unique_ptr<Scene> m_meterScene; // a map of its own, so that the picture keeps its map
    bool m_lightDue = false;             // a measurement is planned
    bool m_imageObserved = false;
    bool m_imageDue = false; // a judgement is planned
    bool m_imageMet = false;
    qint64 m_imageMetAt = 0; // ns of the rig's clock
};

#pragma once

#include "viewer/cameras/CameraHead.h"
#include "viewer/cameras/Clock.h"

#include <QStringList>

#include <array>
#include <map>
#include <vector>

class WifiUnit;
struct BodyRecord;

enum class CameraState { Off, Booting, Live, WaitingReady, Ready, Recording, Memory };

QString
stateName(CameraState state); // "off", "booting", "live", "waitingReady", "ready", "recording", "memory"

enum FanState {
    FanStopped = 0,
    FanSpinning = 1,
    FanForced = 2, // it spins because the camera is hot, whatever was asked
    FanFault = 3,
    FanStoppedWhileReady = 4 // stopped only while the camera waits for its trigger: it is warm
};

/// Variable channels are numbered from 1 to this.
constexpr int LastVariableChannel = 20;

/// What makes one body differ from another of its model.
struct BodyDescription {
    QString name;
    QString model;
    QString address; // dotted IP
    QString mask = QStringLiteral("255.255.255.0");
    QString gateway = QStringLiteral("0.0.0.0"); // none
    QString serial;
    QString firmware = QStringLiteral("1.00");
    QStringList heads;       // names; at most one and no name: a body with one head
    double temperature = 38; // degrees Celsius
    bool powered = true;
    bool plugged = true;
    bool connected = true;     // linked from the start
    bool dummy = false;        // name and address only
    double commandTimeMs = -1; // of each command; below 0: what the model says
    QVariantMap settings;      // of each head, see CameraHead::changeFromOutside
};

/// A camera as a device: power, link, state and one or more heads. Reads come from the body's own memory,
/// cost no time and work without a link. A dummy has one head without any function and never gets a link.
class CameraBody : public QObject {
    Q_OBJECT

public:
    /// Throws CameraError of kind BadValue for a model or a setting that does not exist.
    CameraBody(Clock& clock, const BodyDescription& description, quint32 seed, QObject* parent = nullptr);
    ~CameraBody() override;

    QList<CameraHead*> heads() const;
    CameraHead* head(int index = 0) const { return m_heads.at(size_t(index)).get(); }

    const QString& name() const { return m_info.name; }
    const QString& address() const { return m_info.address; }
    const QString& mask() const { return m_info.mask; }
    const QString& gateway() const { return m_info.gateway; }
    const QString& serial() const { return m_info.serial; }
    const QString& firmware() const { return m_info.firmware; }
    bool isDummy() const { return m_info.dummy; }
    double temperature() const { return m_info.temperature; }
    FanState fanState() const;
    bool isFanAsked() const { return m_fanRuns; }
    /// The links of its heads have drifted apart.
    bool isOutOfPhase() const { return m_outOfPhase; }
    const CameraModel& model() const { return *m_model; }
    CameraState state() const { return m_state; }
    bool isPlugged() const { return m_info.plugged; }
    bool isConnected() const { return m_connected; }
    Clock& clock() const { return m_clock; }
    quint32 seed() const { return m_seed; }

    /// A variable channel, from 1 to LastVariableChannel; empty outside. The heads share them.
    VariableChannel variableChannel(int number) const;
    /// The partition of the memory that is recorded to and shown, from 1.
    int partition() const { return m_partition; }
    int partitionCount() const { return m_model->partitions; }

    Faults& faults() { return m_faults; }
    WifiUnit* wifi() const { return m_wifi.get(); }     // null without a Wi-Fi unit
    quint64 commandCount() const { return m_commands; } // tried, since the start
    /// What a command costs now.
    double commandTimeMs() const;

    /// The cable. Pulling it takes the link at once; plugging it in does not bring the link back.
    void plug();
    void unplug();
    /// The link. Throws LinkLost if the camera can't be reached: dummy, unplugged, off or booting.
    void connectLink();
    void disconnectLink();

    void setName(const QString& name); // the viewer's own name for it: no command
    CommandResult setNetwork(const QString& address, const QString& mask, const QString& gateway);
    /// As a search of the network does, which reaches the camera without a link: no command.
    void assignNetwork(const QString& address, const QString& mask, const QString& gateway);

    /// Off at once, the link with it. The recording is lost.
    void powerOff();
    /// Booting, and live after the model's boot time. A switch on the camera, no command. No effect unless
    /// off.
    void powerOn();
    /// Live to waiting for ready, and ready after the model's time. The ring of each head runs from then on.
    void recordReady();
    /// Whether a trigger counts now: when ready, and while a recording on command runs.
    bool acceptsTrigger() const;
    /// Ready to recording; memory when each head has all its frames, or ready again while a random mode has
    /// room for more. A start trigger needs the memory's whole length, an end trigger takes what the ring
    /// has.
    void triggerIn();
    /// From ready back to live, or to memory if a random mode has recorded something; from recording to
    /// memory with what there is.
    void stopRecording();
    /// Memory to live; the recording stays until the next ring runs.
    void goLive();
    /// Live to memory, if there is a recording.
    void goMemory();

    /// Not while a ring runs. Throws Refused for a partition that the memory doesn't have.
    void setPartition(int number);

    /// Presets of the body's own, numbered from 1. Storing makes it the current one.
    int presetCount() const { return m_model->presets; }
    int currentPreset() const { return m_preset; } // 0: none
    CommandResult storePreset(int number);
    /// Refused for one that holds nothing. Of a model that has to start again for it, no command and no link:
    /// the preset is in force behind the next boot.
    void loadPreset(int number);

    CommandResult setFan(bool runs);
    CommandResult adjustLink();

    /// From outside, without command: "temperature", "name", "address", and as truth values "fanFault",
    /// "outOfPhase", "power", "plugged". Throws CameraError of kind BadValue.
    void set(const QString& name, const QVariant& value);

    QJsonObject stateJson() const;

    /// Runs one command: counts it, spends its time, lets the faults act, then applies. Throws CameraError.
    CommandResult command(const QString& function, const QString& camera,
                          const std::function<CommandResult()>& apply);
    /// Throws Refused if settings can't change in this state.
    void requireIdle(const QString& function, const QString& camera) const;
    /// The same only while a ring runs: the rate of its frames must not change.
    void requireNoRing(const QString& function, const QString& camera) const;

signals:
    /// A command has ended so.
    void commandRun(const QString& function, const QString& camera, const QString& outcome);
    void linkChanged(CameraBody* body);
    void stateChanged(CameraBody* body);
    void infoChanged(CameraBody* body); // name, address, cable, temperature, fan, phase

private:
    friend class CameraHead;

    CommandResult runCommand(const QString& function, const QString& camera,
                             const std::function<CommandResult()>& apply);
    void keepVariableChannel(int number, const VariableChannel& content);
    void setState(CameraState state);
    void setConnected(bool connected);
    const BodyRecord& presetOf(int number, const QString& function) const;
    void bootPreset();
    void requireFunction(CameraFunction needed, const QString& function) const;
    void requireState(const QString& function, std::initializer_list<CameraState> states) const;
    bool anyHead(bool (CameraHead::*has)() const) const;
    void beginTakes();
    void triggerByPicture(); // by a head, while ready
    void endTakes();
    void finishTakes(); // and ready again for the next, or memory
    void laterUnlessChanged(double milliseconds, const std::function<void()>& action);

    Clock& m_clock;
    BodyDescription m_info;
    quint32 m_seed;
    std::shared_ptr<const CameraModel> m_model;
    std::vector<std::unique_ptr<CameraHead>> m_heads;
    Faults m_faults;
    std::unique_ptr<WifiUnit> m_wifi;
    CameraState m_state = CameraState::Off;
    bool m_connected = false;
    std::map<int, BodyRecord> m_presets; // by number
    int m_preset = 0;
    int m_presetAtBoot = 0; // 0: none
    bool m_fanRuns = true;  // as asked
    bool m_fanFault = false;
    bool m_outOfPhase = false;
    int m_partition = 1;
    std::array<VariableChannel, LastVariableChannel> m_channels;
    quint64 m_commands = 0;
    quint32 m_epoch = 0; // a change of state outdates what was planned before it
};

#pragma once

#include "simulator/device/Clock.h"
#include "simulator/device/CommandQueue.h"
#include "simulator/device/Faults.h"
#include "simulator/device/SimulatedHead.h"
#include "simulator/device/StorageUnit.h"
#include "simulator/device/WifiUnit.h"
#include "viewer/cameras/CameraBody.h"

#include <QStringList>

#include <array>
#include <map>
#include <vector>

struct BodyRecord;

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
    QVariantMap settings;      // of each head, see SimulatedHead::changeFromOutside

    struct Card {
        StorageKind kind = StorageKind::SDCard;
        int slot = 0; // from 0
        CardContent content;
    };
    QList<Card> cards;
};

/// A simulated camera as a device.
class SimulatedBody : public CameraBody {
    Q_OBJECT

public:
    /// Throws CameraError of kind BadValue for a model or a setting that does not exist.
    SimulatedBody(Clock& clock, const BodyDescription& description, quint32 seed, QObject* parent = nullptr);
    ~SimulatedBody() override;

    int headCount() const override { return int(m_heads.size()); }
    SimulatedHead* head(int index = 0) const override { return m_heads.at(size_t(index)).get(); }
    QList<SimulatedHead*> heads() const;

    const QString& name() const override { return m_info.name; }
    const QString& address() const override { return m_info.address; }
    const QString& mask() const override { return m_info.mask; }
    const QString& gateway() const override { return m_info.gateway; }
    QString mac() const override; // made up, the same for the same serial number; none for a dummy
    const QString& serial() const override { return m_info.serial; }
    const QString& firmware() const override { return m_info.firmware; }
    bool isDummy() const override { return m_info.dummy; }
    const SimulatedModel& model() const override { return *m_model; }
    CameraState state() const override { return m_state; }
    bool isPlugged() const override { return m_info.plugged; }
    bool isConnected() const override { return m_connected; }
    FanState fanState() const override;
    bool isFanAsked() const override { return m_fanRuns; }
    bool isOutOfPhase() const override { return m_outOfPhase; }
    VariableChannel variableChannel(int number) const override;
    int partition() const override { return m_partition; }
    WifiUnit* wifi() const override { return m_wifi.get(); }
    StorageUnit* storage() const override { return m_storage.get(); }
    double commandTimeMs() const override;
    double temperature() const { return m_info.temperature; }
    /// The present link, for other threads: false once it is lost, also if another one follows.
    std::shared_ptr<const std::atomic<bool>> link() const { return m_link; }
    Clock& clock() const { return m_clock; }
    quint32 seed() const { return m_seed; }

    Faults& faults() { return m_faults; }
    quint64 commandCount() const { return m_commands; } // tried, since the start

    /// The cable. Pulling it takes the link at once; plugging it in does not bring the link back.
    void plug();
    void unplug();
    /// Fails with LinkLost if the camera can't be reached: dummy, unplugged, off or booting.
    Answer connectLink() override;
    void disconnectLink() override;

    void setName(const QString& name) override;
    Answer setNetwork(const QString& address, const QString& mask, const QString& gateway) override;
    void assignNetwork(const QString& address, const QString& mask, const QString& gateway) override;

    /// The switch on the camera: no commands. Off at once, the link with it; the recording is lost.
    void powerOff();
    /// Booting, and live after the model's boot time. No effect unless off.
    void powerOn();
    Answer switchOff() override { return switchPower(false); }
    Answer restart() override { return switchPower(true); }
    Answer recordReady() override;
    bool acceptsTrigger() const override;
    Answer triggerIn() override;
    Answer stopRecording() override;
    Answer goLive() override;
    Answer goMemory() override;
    Answer setPartition(int number) override;

    int currentPreset() const override { return m_preset; }
    Answer storePreset(int number) override;
    Answer loadPreset(int number) override;
    Answer setFan(bool runs) override;
    Answer adjustLink() override;

    void after(double milliseconds, QObject* context, const std::function<void()>& action) const override {
        m_clock.after(milliseconds, context, action);
    }

    /// From outside, without command: "temperature", "name", "address", and as truth values "fanFault",
    /// "outOfPhase", "power", "plugged". Throws CameraError of kind BadValue.
    void set(const QString& name, const QVariant& value);

    QJsonObject stateJson() const;

    /// How a command goes: behind those that were sent before, or in front of all that still wait.
    struct Manner {
        double extraMs = 0; // on top of the usual time
        bool urgent = false;
    };
    /// Sends one command: counts it, and when its time is over lets the faults act, then applies, which may
    /// throw CameraError. Nothing has happened when this returns, so `apply` holds what it needs.
    Answer command(const QString& function, const QString& camera,
                   const std::function<CommandResult()>& apply, const Manner& manner);
    Answer command(const QString& function, const QString& camera,
                   const std::function<CommandResult()>& apply) {
        return command(function, camera, apply, Manner());
    }
    /// Throws Refused if settings can't change in this state.
    void requireIdle(const QString& function, const QString& camera) const;
    /// The same only while a ring runs: the rate of its frames must not change.
    void requireNoRing(const QString& function, const QString& camera) const;

signals:
    /// A command has ended so.
    void commandRun(const QString& function, const QString& camera, const QString& outcome);

private:
    friend class SimulatedHead;

    void requireLink(const QString& function, const QString& camera) const;
    void lookForFaults(const QString& function, const QString& camera);
    void keepVariableChannel(int number, const VariableChannel& content);
    void setState(CameraState state);
    void setConnected(bool connected);
    const BodyRecord& presetOf(int number, const QString& function) const;
    void bootPreset();
    void putInCards();
    void requireFunction(CameraFunction needed, const QString& function) const;
    Answer switchPower(bool comesBack);
    void requireState(const QString& function, std::initializer_list<CameraState> states) const;
    bool anyHead(bool (SimulatedHead::*has)() const) const;
    void beginShots();
    void triggerByPicture(); // by a head, while ready
    void endShots();
    void finishShots(); // and ready again for the next, or memory
    void laterUnlessChanged(double milliseconds, const std::function<void()>& action);

    Clock& m_clock;
    BodyDescription m_info;
    quint32 m_seed;
    std::shared_ptr<const SimulatedModel> m_model;
    std::vector<std::unique_ptr<SimulatedHead>> m_heads;
    Faults m_faults;
    CommandQueue m_queue{m_clock};
    std::unique_ptr<WifiUnit> m_wifi;
    std::unique_ptr<StorageUnit> m_storage;
    CameraState m_state = CameraState::Off;
    bool m_connected = false;
    std::shared_ptr<std::atomic<bool>> m_link = std::make_shared<std::atomic<bool>>(false); // the same
    std::map<int, BodyRecord> m_presets;                                                    // by number
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

#pragma once

#include "viewer/cameras/CameraHead.h"

#include <functional>

class CameraStorage;
class Wifi;

enum class CameraState { Off, Booting, Live, WaitingReady, Ready, Recording, Memory };

QString
stateName(CameraState state); // "off", "booting", "live", "waitingReady", "ready", "recording", "memory"
Reason stateReason(CameraState state); // the same as a word of a reason

enum FanState {
    FanStopped = 0,
    FanSpinning = 1,
    FanForced = 2, // it spins because the camera is hot, whatever was asked
    FanFault = 3,
    FanStoppedWhileReady = 4 // stopped only while the camera waits for its trigger: it is warm
};

/// Variable channels are numbered from 1 to this.
constexpr int LastVariableChannel = 20;

/// A camera as a device: power, link, state and one or more heads. Reads come from the program's own copy of
/// what the camera said: they cost nothing and work without a link. A dummy has one head without any function
/// and never gets a link.
class CameraBody : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual int headCount() const = 0;
    virtual CameraHead* head(int index = 0) const = 0;
    QList<CameraHead*> heads() const;

    virtual const QString& name() const = 0;
    virtual const QString& address() const = 0; // dotted IP
    virtual const QString& mask() const = 0;
    virtual const QString& gateway() const = 0;
    virtual QString mac() const = 0;
    virtual const QString& serial() const = 0;
    virtual const QString& firmware() const = 0;
    /// Only name and address are known of it.
    virtual bool isDummy() const = 0;
    virtual const CameraModel& model() const = 0;
    virtual CameraState state() const = 0;
    virtual bool isPlugged() const = 0; // into the network
    virtual bool isConnected() const = 0;
    virtual FanState fanState() const { return FanStopped; }
    virtual bool isFanAsked() const { return false; }
    /// The links of its heads have drifted apart.
    virtual bool isOutOfPhase() const { return false; }
    /// A variable channel, from 1 to LastVariableChannel; empty outside. The heads share them.
    virtual VariableChannel variableChannel(int /*number*/) const { return {}; }
    /// The partition of the memory that is recorded to and shown, from 1.
    virtual int partition() const { return 1; }
    int partitionCount() const { return model().partitions; }
    virtual Wifi* wifi() const { return nullptr; } // null without a Wi-Fi unit
    /// Cards and drives of its own; null if it has no slot.
    virtual CameraStorage* storage() const { return nullptr; }
    virtual double commandTimeMs() const = 0; // that a command takes now

    /// The link. Fails with LinkLost if the camera can't be reached.
    virtual Answer connectLink() = 0;
    virtual void disconnectLink() = 0;

    virtual void setName(const QString& name) = 0; // the viewer's own name for it: no command
    virtual Answer setNetwork(const QString& address, const QString& mask, const QString& gateway) = 0;
    /// As a search of the network does, which reaches the camera without a link: no command.
    virtual void assignNetwork(const QString& address, const QString& mask, const QString& gateway) = 0;

    /// From the computer: off, the link with it, and the recording is lost. Restarted it comes back by
    /// itself, and the link doesn't.
    virtual Answer switchOff();
    virtual Answer restart();
    /// Live to waiting for ready, and then ready. The ring of each head runs from then on.
    virtual Answer recordReady() = 0;
    /// Whether a trigger counts now: when ready, and while a recording on command runs.
    virtual bool acceptsTrigger() const = 0;
    /// Ready to recording; memory when each head has all its frames, or ready again while a random mode has
    /// room for more. A start trigger needs the memory's whole length, an end trigger takes what the ring
    /// has.
    virtual Answer triggerIn() = 0;
    /// From ready back to live, or to memory if a random mode has recorded something; from recording to
    /// memory with what there is.
    virtual Answer stopRecording() = 0;
    /// Memory to live; the recording stays until the next ring runs.
    virtual Answer goLive() = 0;
    /// Live to memory, if there is a recording.
    virtual Answer goMemory() = 0;

    /// Not while a ring runs. Refused for a partition that the memory doesn't have.
    virtual Answer setPartition(int number);

    /// Presets of the body's own, numbered from 1. Storing makes it the current one.
    int presetCount() const { return model().presets; }
    virtual int currentPreset() const { return 0; } // 0: none
    virtual Answer storePreset(int number);
    /// Refused for one that holds nothing. Of a model that has to start again for it, no command and no link:
    /// the preset is in force after the next boot.
    virtual Answer loadPreset(int number);

    virtual Answer setFan(bool runs);
    virtual Answer adjustLink();

    /// Does something once after that time as the camera counts it, unless the context is destroyed before.
    virtual void after(double milliseconds, QObject* context, const std::function<void()>& action) const;

signals:
    void linkChanged(CameraBody* body);
    void stateChanged(CameraBody* body);
    void infoChanged(CameraBody* body); // name, address, cable, temperature, fan, phase

protected:
    CameraError refusal(const QString& function, const Reason& reason) const;
    CameraError lacks(CameraFunction needed, const QString& function) const;
};

#pragma once

#include "viewer/cameras/CameraSource.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/cameras/settings/TriggerRules.h"

#include <memory>
#include <vector>

/// The smallest camera that the viewer can have: no physics, no time. It takes what it is told, unless
/// `answers` has something else for the next command, and remembers the commands.
class ListedHead : public CameraHead {
public:
    explicit ListedHead(CameraBody& body) : CameraHead(body) {
        kind.title = QStringLiteral("Listed");
        kind.sensor = kind.sizeStep = kind.sizeMin = QSize(64, 48);
        kind.resolutions = {{64, 48}, {32, 24}};
        kind.rates = {100, 200, 500};
        kind.shutters = {500, 1000, 2000};
        kind.triggerModes = {TriggerStart, TriggerEnd};
        now.resolution = {64, 48};
        now.rate = 100;
        now.shutter = now.shutterWish = 500;
    }

    int index() const override { return 0; }
    const QString& name() const override { return m_name; }
    const CameraModel& model() const override { return kind; }
    const HeadSettings& settings() const override { return now; }

    Answer set(const Setting& setting, const QVariant& value) override {
        return take(QLatin1String(setting.key) + QLatin1Char(' ') + value.toString(),
                    [&] { setting.put(now, value); });
    }
    Answer setTrigger(int mode, int afterFrames, int randomFrames, int randomCount) override {
        return take(QStringLiteral("trigger %1").arg(mode),
                    [&] { TriggerRules::set(kind, now, mode, afterFrames, randomFrames, randomCount); });
    }
    Answer restoreSettings(const HeadSettings& before) override { return adopt(before); }
    Answer adopt(const HeadSettings& wish) override {
        return take(QStringLiteral("adopt"), [&] { now = wish; });
    }

    Frame liveFrame(const QSize& /*maxSize*/) override {
        Frame frame;
        frame.image = QImage(now.resolution, QImage::Format_Grayscale8);
        frame.image.fill(0x80);
        frame.area = QRect(QPoint(), now.resolution);
        return frame;
    }
    Frame memoryFrame(int /*index*/, const QSize& /*maxSize*/) override { return {}; }
    const Recording& recording() const override { return m_recording; }
    Recording recording(int /*partition*/) const override { return m_recording; }

    /// The next answer of the list; without one the command is taken at once.
    template <class Apply>
    Answer take(const QString& command, const Apply& apply) {
        commands.append(command);
        if (!answers.isEmpty()) {
            return answers.takeFirst();
        }
        apply();
        emit settingsChanged(this);
        return CommandResult::Ok;
    }

    CameraModel kind;
    HeadSettings now;
    QStringList commands;
    QList<Answer> answers;

private:
    QString m_name;
    Recording m_recording;
};

class ListedBody : public CameraBody {
public:
    ListedBody(const QString& name, const QString& address) : m_name(name), m_address(address) {}

    int headCount() const override { return 1; }
    ListedHead* head(int /*index*/ = 0) const override { return m_head.get(); }
    const QString& name() const override { return m_name; }
    const QString& address() const override { return m_address; }
    const QString& mask() const override { return m_mask; }
    const QString& gateway() const override { return m_mask; }
    QString mac() const override { return m_address; }
    const QString& serial() const override { return m_address; }
    const QString& firmware() const override { return m_firmware; }
    bool isDummy() const override { return false; }
    const CameraModel& model() const override { return m_head->kind; }
    CameraState state() const override { return CameraState::Live; }
    bool isPlugged() const override { return true; }
    bool isConnected() const override { return m_isConnected; }
    double commandTimeMs() const override { return 0; }

    Answer connectLink() override { return link(true); }
    void disconnectLink() override { link(false).result(); }
    void setName(const QString& name) override { m_name = name; }
    Answer setNetwork(const QString& /*address*/, const QString& /*mask*/,
                      const QString& /*gateway*/) override {
        return CommandResult::Ok;
    }
    void assignNetwork(const QString& /*address*/, const QString& /*mask*/,
                       const QString& /*gateway*/) override {}
    Answer recordReady() override { return notRecording(); }
    bool acceptsTrigger() const override { return false; }
    Answer triggerIn() override { return notRecording(); }
    Answer stopRecording() override { return notRecording(); }
    Answer goLive() override { return CommandResult::Ok; }
    Answer goMemory() override { return notRecording(); }

private:
    Answer link(bool isConnected) {
        m_isConnected = isConnected;
        emit linkChanged(this);
        return CommandResult::Ok;
    }
    Answer notRecording() const { return refusal(QString(), reason("nothing is recorded")); }

    QString m_name;
    QString m_address;
    QString m_mask = QStringLiteral("255.255.255.0");
    QString m_firmware = QStringLiteral("1.00");
    bool m_isConnected = true;
    std::unique_ptr<ListedHead> m_head = std::make_unique<ListedHead>(*this);
};

/// Cameras of that kind, and nothing else in the network.
class ListedCameras : public CameraSource {
public:
    template <class Body = ListedBody>
    Body& add(const QString& name, const QString& address) {
        auto made = std::make_unique<Body>(name, address);
        Body& body = *made;
        m_bodies.push_back(std::move(made));
        tell(&body);
        return body;
    }

    QList<CameraBody*> cameras() const override {
        QList<CameraBody*> all;
        for (const auto& body : m_bodies) {
            all.append(body.get());
        }
        return all;
    }
    CameraBody* addDummy(const QString& name, const QString& address) override { return &add(name, address); }
    void removeBody(CameraBody* /*body*/) override {}
    QList<NetworkAdapter> adapters() const override {
        return {{QStringLiteral("Cameras"), QStringLiteral("192.168.0.1"), QStringLiteral("255.255.255.0")}};
    }
    QList<FoundCamera> search() const override { return {}; }

private:
    std::vector<std::unique_ptr<ListedBody>> m_bodies;
};

#pragma once

#include "simulator/device/SimulatedBody.h"
#include "simulator/files/RigFile.h"
#include "viewer/cameras/CameraSource.h"

/// Simulated cameras and the clock that they share.
class Rig : public CameraSource {
    Q_OBJECT

public:
    explicit Rig(Clock::Mode mode = Clock::Mode::Real, quint32 seed = 1, QObject* parent = nullptr);
    ~Rig() override;

    /// Reads a rig file (rigs/README.md tells its form), ":/rigs/default.json" is built in. Throws
    /// RigFileError.
    static std::unique_ptr<Rig> load(const QString& path, Clock::Mode mode = Clock::Mode::Real);

    Clock& clock() { return m_clock; }
    const QString& title() const { return m_title; }

    QList<SimulatedBody*> bodies() const;
    QList<SimulatedHead*> heads() const; // of all bodies, in order
    QList<CameraBody*> cameras() const override;
    SimulatedBody* findAddress(const QString& address) const override;
    SimulatedBody* findName(const QString& name) const override;

    /// Throws CameraError of kind BadValue: unknown model, a name or an address that another camera has.
    SimulatedBody* addBody(const BodyDescription& description);
    SimulatedBody* addDummy(const QString& name, const QString& address) override;
    void removeBody(CameraBody* body) override;

    QList<NetworkAdapter> adapters() const override;
    QList<FoundCamera> search() const override;
    QStringList commandLog() const override { return m_commandLog; }

private:
    void logCommand(const QString& function, const QString& camera, const QString& outcome);

    Clock m_clock;
    QString m_title;
    quint32 m_seed;
    QStringList m_commandLog;
    std::vector<std::unique_ptr<SimulatedBody>> m_bodies;
};

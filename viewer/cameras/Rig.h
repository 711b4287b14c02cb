#pragma once

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/RigFile.h"

/// All cameras that the viewer can see, dummies included, and the clock that they share.
class Rig : public QObject {
    Q_OBJECT

public:
    explicit Rig(Clock::Mode mode = Clock::Mode::Real, quint32 seed = 1, QObject* parent = nullptr);
    ~Rig() override;

    /// Reads a rig file (rigs/README.md tells its form), ":/rigs/default.json" is built in. Throws
    /// RigFileError.
    static std::unique_ptr<Rig> load(const QString& path, Clock::Mode mode = Clock::Mode::Real);

    Clock& clock() { return m_clock; }
    const QString& title() const { return m_title; }

    QList<CameraBody*> bodies() const;
    QList<CameraHead*> heads() const;                      // of all bodies, in order
    CameraBody* findAddress(const QString& address) const; // null if there is none
    CameraBody* findName(const QString& name) const;       // null if there is none

    /// Throws CameraError of kind BadValue: unknown model, a name or an address that another camera has.
    CameraBody* addBody(const BodyDescription& description);
    CameraBody* addDummy(const QString& name, const QString& address);
    /// bodyRemoved() comes first, while the body still exists.
    void removeBody(CameraBody* body);

    /// The last commands to the cameras, one a line, oldest first.
    const QStringList& commandLog() const { return m_commandLog; }

signals:
    void bodyAdded(CameraBody* body);
    void bodyRemoved(CameraBody* body);
    void linkChanged(CameraBody* body);
    void stateChanged(CameraBody* body);
    void infoChanged(CameraBody* body);
    void settingsChanged(CameraHead* head); // by a command or from outside
    void changedOutside(CameraHead* head);  // behind the viewer's back

private:
    void logCommand(const QString& function, const QString& camera, const QString& outcome);

    Clock m_clock;
    QString m_title;
    quint32 m_seed;
    QStringList m_commandLog;
    std::vector<std::unique_ptr<CameraBody>> m_bodies;
};

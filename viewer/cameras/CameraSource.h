#pragma once

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Network.h"

#include <QStringList>

/// Where cameras come from: those that are known, dummies included, and those that a search finds. It owns
/// them.
class CameraSource : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual QList<CameraBody*> cameras() const = 0;
    virtual CameraBody* findAddress(const QString& address) const; // null if there is none
    virtual CameraBody* findName(const QString& name) const;       // null if there is none

    /// Throws CameraError of kind BadValue: a name or an address that another camera has.
    virtual CameraBody* addDummy(const QString& name, const QString& address) = 0;
    /// bodyRemoved() comes first, while the body still exists.
    virtual void removeBody(CameraBody* body) = 0;

    /// The adapters of the computer, that of the cameras first.
    virtual QList<NetworkAdapter> adapters() const = 0;
    /// The cameras that answer a search: plugged in and switched on. Dummies don't.
    virtual QList<FoundCamera> search() const = 0;

    /// The last commands to the cameras, one a line, oldest first.
    virtual QStringList commandLog() const { return {}; }

signals:
    void bodyAdded(CameraBody* body);
    void bodyRemoved(CameraBody* body);
    void linkChanged(CameraBody* body);
    void stateChanged(CameraBody* body);
    void infoChanged(CameraBody* body);
    void settingsChanged(CameraHead* head); // by a command or from outside
    void changedOutside(CameraHead* head);  // behind the viewer's back

protected:
    /// Hands on the signals of a new camera, and tells of it.
    void tell(CameraBody* body);
};

#pragma once

#include "livecontrol/interface/DeviceObject.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "tests/smallhost/SmallPanel.h"
#include "tests/support/FakeDocument.h"
#include "tests/support/FakeHost.h"

#include <QLibrary>
#include <QMutex>

#include <memory>
#include <vector>

/// The body of a camera, an object of its own.
struct SmallDevice : FakeCamera, DeviceObject {
    using FakeCamera::FakeCamera;
};

/// A camera with one head: what it was told, and no more.
struct SmallCamera : FakeCamera {
    SmallCamera(CallRecorder& recorder, DOCKEY documentKey, const QString& cameraName,
                const QString& ipAddress);

    DOCKEY key;
    QString name;
    QString address;
    bool isChosen = false;
    unsigned long rate = 1000;
    unsigned long shutter = 1000;
    SmallDevice device;
};

/// A host with two cameras and a side panel: the road that docs/host-interface.md tells, and nothing else.
///
/// All that it doesn't need is answered by generated operations: a neutral value each, which a function in
/// `on...` can replace. cmake/generate_fakes.py writes them from the interfaces.
class SmallHost : public FakeHost {
public:
    /// Loads the module; the last object of it that goes unloads it. Throws std::runtime_error.
    explicit SmallHost(const QString& module);
    ~SmallHost() override { unload(); }
    Q_DISABLE_COPY_MOVE(SmallHost)

    SmallPanel panel;
    std::vector<std::unique_ptr<SmallCamera>> cameras;
    QStringList failures; ///< That the plug-in told.
    QStringList added;    ///< Cameras that the user added: "name address".

    SmallCamera& current();
    SmallCamera* find(DOCKEY key);
    PLG_Interface& plugin() { return *m_plugin; }
    /// Makes the plug-in and shows its page.
    void open();
    /// Closes the page and ends the plug-in.
    void close();
    /// Ends the plug-in without the page, and its module.
    void unload();

private:
    void answerDocuments();
    void answerSettings();
    void answerProgram();
    void update();

    QLibrary m_module;
    std::unique_ptr<PLG_Interface> m_plugin;
    QHash<QString, QVariant> m_preferences;
    QList<QPointer<QObject>> m_dialogs; // the script objects of their pages
    QMutex m_mutex;
    DOCKEY m_current = kInvalidDockey;
    int m_deterred = 0;
    bool m_isUpdateDue = false;
};

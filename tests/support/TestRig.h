#pragma once

#include "livecontrol/interface/DeviceObject.h"
#include "livecontrol/interface/RUN_ObservePhaseAdjustWarningThread.h"
#include "tests/support/FakeDocument.h"
#include "tests/support/FakeHost.h"

#include <QMutex>

/// A camera body, which answers as a document does.
struct FakeDevice : FakeCamera, DeviceObject {
    using FakeCamera::FakeCamera;
};

/// A fake host with one connected camera under the key 7, in live mode, that answers what every slot needs to
/// go its whole way. A test changes single answers.
struct TestRig {
    static constexpr DOCKEY kKey = 7;

    struct PrefsDialog : HostPrefsDialog {
        void setPage(const QString& name) override { page = name; }
        int exec() override { return 1; }
        QString page;
    };

    FakeHost host;
    FakeCamera camera{host.calls};
    FakeDevice device{host.calls}; ///< The body of the camera; has all functions.
    QMutex mutex;
    PrefsDialog prefsDialog;

    TestRig();
};

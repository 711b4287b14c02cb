#pragma once

#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/prefs/Preferences.h"

#include <QtTest>
#include <memory>

/// One viewer over rigs/default.json for all tests of a program, since to start one takes longer than most
/// tests. Its list of devices is as at the start before each test: names, addresses, links, order, selection.
class DefaultRig {
public:
    /// The page of the devices is open afterwards.
    PanelTest& prepare() {
        if (!m_test) {
            m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        } else {
            restore();
        }
        if (!m_test->eval(QStringLiteral("$('#livecontrol_page_devicesetting').is(':visible')")).toBool()) {
            m_test->openDevices();
        }
        m_test->clearLogs();
        return *m_test;
    }

    /// The script errors of the test. After a failure the next one starts a viewer of its own.
    QStringList finish() {
        const QStringList errors = m_test->call("page.errors").toVariant().toStringList();
        if (QTest::currentTestFailed() || !errors.isEmpty()) {
            m_test.reset();
        }
        return errors;
    }

    void close() { m_test.reset(); }

private:
    void restore() {
        DocumentList& documents = m_test->viewer().documents();
        documents.setMode(HOST_MODE_LIVE);
        documents.removeAll();
        restoreBodies(m_test->viewer().rig());
        documents.addAllCameras();
        for (const char* const name : {"cameraconnection/SearchIP", "cameraconnection/SearchWay"}) {
            m_test->viewer().preferences().remove(QLatin1String(name));
        }
        m_test->eval(QStringLiteral("document.activeElement.blur(), livecontrol.updateUI(), 1"));
        m_test->settle();
    }

    static void restoreBodies(Rig& rig) {
        const QList<QPair<const char*, const char*>> cameras{{"Marlin", "192.168.0.10"},
                                                             {"Plover", "192.168.0.11"},
                                                             {"Gemini", "192.168.0.12"},
                                                             {"Spare", "999.999.999.1"}};
        while (rig.bodies().size() > cameras.size()) {
            rig.removeBody(rig.bodies().last());
        }
        for (int i = 0; i < cameras.size(); ++i) {
            SimulatedBody& body = *rig.bodies().at(i);
            body.setName(QLatin1String(cameras.at(i).first));
            body.assignNetwork(QLatin1String(cameras.at(i).second), QStringLiteral("255.255.255.0"),
                               QStringLiteral("0.0.0.0"));
            body.plug();
            if (!body.isDummy() && !body.isConnected()) {
                body.connectLink().result();
            }
        }
    }

    std::unique_ptr<PanelTest> m_test;
};

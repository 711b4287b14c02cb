// The life of a plug-in: its panel by kind, and its dialog.

#include "livecontrol/bridge/JS_Mediator_ModelessPatternDialog.h"
#include "livecontrol/bridge/JS_Mediator_Plugin.h"
#include "livecontrol/web/GUI_ModelessPatternDialog.h"
#include "tests/support/LogCapture.h"
#include "tests/unit/plugin/TestPlugin.h"

#include <QtTest>
#include <stdexcept>

namespace {

const QString kUpdateAll = QStringLiteral("HostApplication.updateAll");
const QString kHandleError = QStringLiteral("HostApplication.handleError");

/// Notes what reaches it.
struct NotingPlugin : PLG_HTML {
    QStringList calls;
    bool throws = false;

    void note(const char* call) {
        calls += QLatin1String(call);
        if (throws) {
            throw std::runtime_error(call);
        }
    }
    void onOpen() override { note("onOpen"); }
    void onApply() override { note("onApply"); }
    void onOK() override { note("onOK"); }
    void onCancel() override { note("onCancel"); }
    void onReset(bool pause) override { note(pause ? "onReset with the live image suspended" : "onReset"); }
    void onClose() override { note("onClose"); }
    void onClosed() override { note("onClosed"); }
};

struct PatternDialog : GUI_ModelessPatternDialog {
    explicit PatternDialog(HostObject* host)
        : GUI_ModelessPatternDialog(
              host, QStringLiteral("Pattern"), QString(),
              std::make_unique<JS_Mediator_ModelessPatternDialog>(host, QStringLiteral("pattern")), nullptr) {
    }
    bool canClose() override { return mayClose; }
    void onModeChanged(int mode) override { modes += mode; }
    bool mayClose = true;
    QList<int> modes;
};

} // namespace

class tst_PluginLife : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;

private slots:
    void init() { m_rig = std::make_unique<TestRig>(); }
    void cleanup() { m_rig.reset(); }

    void handsThePanelsLifeOnToThePlugin() {
        TestRig& rig = *m_rig;
        NotingPlugin plugin;
        JS_Mediator_Plugin mediator(&rig.host, QStringLiteral("livecontrol"), &plugin);
        const struct {
            const char* slot;
            const char* reaches; ///< The plug-in, or the host by a full name.
            bool isTraced;
        } rows[] = {{"onOpen", "onOpen", false},
                    {"onApply", "onApply", true},
                    {"onOK", "onOK", true},
                    {"onCancel", "onCancel", true},
                    {"onReset", "onReset with the live image suspended", true},
                    {"onClose", "onClose", true},
                    {"onClosed", "onClosed", false},
                    {"undo", "HostHistory.undo", true},
                    {"redo", "HostHistory.redo", true},
                    {"beginMacro", "HostHistory.beginMacro", false},
                    {"endMacro", "HostHistory.endMacro", true}};
        for (const auto& row : rows) {
            LogCapture log;
            rig.host.calls.clear();
            plugin.calls.clear();
            QVERIFY2(QMetaObject::invokeMethod(&mediator, row.slot), row.slot);
            QStringList reached = plugin.calls + rig.host.calls.names();
            const QString name = QStringLiteral("\"JS_Mediator_Plugin::%1\"").arg(QLatin1String(row.slot));
            QStringList lines;
            for (const LogCapture::Line& line : log.lines()) {
                lines.append(line.text);
            }
            if (row.isTraced) {
                QCOMPARE(lines, QStringList({QStringLiteral("[ENTER] %1 \"\"").arg(name),
                                             QStringLiteral("[LEAVE] %1").arg(name)}));
                QVERIFY2(reached.size() == 2 && reached.takeLast() == kUpdateAll, row.slot);
            } else {
                QVERIFY2(lines.isEmpty(), row.slot);
            }
            QCOMPARE(reached, QStringList(QLatin1String(row.reaches)));
        }

        plugin.throws = true;
        rig.host.calls.clear();
        mediator.onOK();
        QCOMPARE(rig.host.calls.names(), QStringList({kHandleError, kUpdateAll}));

        rig.host.onTranslate = [](const QString& text, const char*, int) { return text.toUpper(); };
        rig.camera.onGetDisplayName = [] { return QStringLiteral("Marlin"); };
        rig.camera.onIsDummy = [] { return true; };
        QCOMPARE(mediator.uiName(), QStringLiteral("LIVECONTROL"));
        QCOMPARE(mediator.getCurrentWindowTitle(), QStringLiteral("Marlin"));
        QVERIFY(mediator.isCurrentDummy());
    }

    void worksWithoutAPlugin() {
        TestRig& rig = *m_rig;
        JS_Mediator_Plugin mediator(&rig.host, QStringLiteral("livecontrol"), nullptr);
        mediator.onOpen();
        mediator.onReset();
        mediator.onClosed();
        mediator.undo();
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostHistory.undo")), 1);
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
        rig.host.onCurrentDocument = [] { return nullptr; };
        QVERIFY(!mediator.isCurrentDummy());
        QCOMPARE(mediator.name(), QStringLiteral("livecontrol"));
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
    }

    void opensItsPanelByItsKindOfTool_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("exclusive");
        QTest::addColumn<int>("quick");
        QTest::addColumn<int>("option");
        QTest::addColumn<bool>("holds");
        QTest::addColumn<QString>("calls");
        QTest::newRow("panel") << 1 << 0 << 0 << 0 << false << "setToolActive tool false";
        QTest::newRow("exclusive") << 1 << 2 << 1 << 0 << false << "setToolActive tool true";
        QTest::newRow("quick") << 5 << 0 << 1 << 0 << false << "setActiveTool; setToolActive tool true";
        QTest::newRow("tool that is on")
            << 2 << 0 << 0 << 0 << false << "setToolActive tool false; setToolEffect tool true true";
        QTest::newRow("tool that is off")
            << 3 << 0 << 0 << 1 << false << "setToolActive tool false; setToolEffect tool false true";
        QTest::newRow("holds") << 4 << 0 << 0 << 0 << true << "setToolActive tool false; beginLiveHold";
        QTest::newRow("pattern") << 6 << 0 << 0 << 0 << true << "setToolActive tool false";
    }
    void opensItsPanelByItsKindOfTool() {
        QFETCH(int, kind);
        QFETCH(int, exclusive);
        QFETCH(int, quick);
        QFETCH(int, option);
        QFETCH(bool, holds);
        TestPlugin plugin(&m_rig->host);
        plugin.m_kind = kind;
        plugin.m_exclusiveTool = exclusive;
        plugin.m_quickToolOption = quick;
        plugin.m_toolOption = option;
        plugin.m_holdLiveWhileOpen = holds;
        plugin.onOpen();
        QTEST(told(*m_rig), "calls");
        plugin.onClosed();
        QString closed = QStringLiteral("resetHistory");
        if (kind == 2 || kind == 3) {
            closed += QStringLiteral("; cancelTool tool"); // nobody has taken it over
        }
        QCOMPARE(told(*m_rig), closed + (holds ? QStringLiteral("; endLiveHold") : QString()));
        plugin.notifyTool();
        QCOMPARE(told(*m_rig), quick ? QStringLiteral("setActiveTool tool") : QString());

        plugin.m_name = QStringLiteral("t_multilock"); // has a button of its own
        plugin.m_kind = 1;
        plugin.m_holdLiveWhileOpen = false;
        plugin.onOpen();
        QCOMPARE(told(*m_rig), QString());
    }

    void endsItsPanelOnceAndForAll() {
        TestPlugin plugin(&m_rig->host);
        const auto ended = [&](void (TestPlugin::*end)()) {
            plugin.setModified(true);
            m_rig->host.calls.clear();
            (plugin.*end)();
            const QString calls = told(*m_rig);
            return plugin.isModified() ? QStringLiteral("still modified") : calls;
        };
        for (const int kind : {1, 2, 3}) {
            const QString tool = kind == 1 ? QString() : QStringLiteral("%1 tool; ");
            plugin.m_kind = kind;
            for (const bool withPlugin : {false, true}) {
                plugin.m_closeWithPlugin = withPlugin;
                const QString close =
                    withPlugin ? QStringLiteral("closeCurrentPlugin") : QStringLiteral("closePanel");
                const QString commit =
                    kind == 1 ? close : tool.arg(QStringLiteral("commitTool true")) + close;
                const QString cancel = kind == 1 ? close : tool.arg(QStringLiteral("cancelTool")) + close;
                plugin.onOpen();
                QCOMPARE(ended(&TestPlugin::onApply), commit);
                plugin.onOpen();
                QCOMPARE(ended(&TestPlugin::onOK), commit);
                plugin.onClosed(); // its edit was taken over: there is nothing to cancel
                QCOMPARE(told(*m_rig), QStringLiteral("resetHistory"));
                plugin.onOpen();
                QCOMPARE(ended(&TestPlugin::onCancel), cancel);
                QCOMPARE(ended(&TestPlugin::onClose), close);
            }
        }
    }

    void actsWithoutAPanelAsItsToolDoes() {
        TestPlugin plugin(&m_rig->host);
        plugin.m_hasPanel = false;
        const auto calls = [&](int exclusive, int kind, const char* name = "tool") {
            plugin.m_exclusiveTool = exclusive;
            plugin.m_kind = kind;
            plugin.m_name = QLatin1String(name);
            plugin.onOpen();
            const QString opened = told(*m_rig);
            plugin.onClose();
            return opened + QStringLiteral(" | ") + told(*m_rig);
        };
        QCOMPARE(calls(0, 0), QStringLiteral(" | "));
        QCOMPARE(calls(1, 0), QStringLiteral("setToolEnabled tool true | setToolEnabled tool false"));
        QCOMPARE(calls(4, 0), QStringLiteral("setToolEnabled tool true | "));
        QCOMPARE(calls(0, 6), QStringLiteral(" | closeTools tool -1"));
        QCOMPARE(calls(1, 6, "t_multilock"), QStringLiteral(" | "));
        plugin.onApply();
        plugin.onCancel();
        plugin.onClosed();
        plugin.onReset(false);
        plugin.onResetTool(false);
        QCOMPARE(told(*m_rig), QString());
    }

    void resetsWithTheLiveImageSuspendedIfAsked() {
        TestPlugin plugin(&m_rig->host);
        plugin.setModified(true);
        plugin.onReset(false);
        QVERIFY(!plugin.isModified());
        QCOMPARE(told(*m_rig), QStringLiteral("resetHistory"));
        plugin.onResetTool(true);
        const QString calls = told(*m_rig);
        QVERIFY2(calls.indexOf(QLatin1String("suspendLive false")) >= 0 &&
                     calls.indexOf(QLatin1String("resetTool tool")) >
                         calls.indexOf(QLatin1String("suspendLive")) &&
                     calls.indexOf(QLatin1String("resumeLive")) > calls.indexOf(QLatin1String("resetTool")),
                 qPrintable(calls));
    }

    void itsButtonStandsDownWhileItIsOn() {
        TestPlugin plugin(&m_rig->host);
        TestPlugin other(&m_rig->host);
        FakeHost& host = m_rig->host;
        const auto isChecked = [&](int kind, const char* name = "tool") {
            plugin.m_kind = kind;
            plugin.m_name = QLatin1String(name);
            return plugin.isChecked(&m_rig->camera, true);
        };
        QVERIFY(isChecked(1) && isChecked(5));
        QVERIFY(!plugin.isChecked(nullptr, true));
        host.onGetMode = [] { return 1; };
        plugin.m_modeMask = 1; // live mode alone
        QVERIFY(!isChecked(1));
        plugin.m_modeMask = 2;
        QVERIFY(isChecked(1));
        m_rig->camera.onIsToolApplied = [](const QString& name, bool flag) {
            return name == QLatin1String("tool") && flag;
        };
        QVERIFY(isChecked(2) && isChecked(3));
        QVERIFY(!isChecked(4));
        host.onGetCurrentPlugin = [&] { return &other; };
        QVERIFY(isChecked(4));
        other.m_name = QStringLiteral("another");
        QVERIFY(!isChecked(4));
        m_rig->camera.onIsToolActive = [](const QString& name) { return name == QLatin1String("tool"); };
        QVERIFY(!isChecked(6)); // not among the open tools, and no dialog
        host.onGetOpenTools = [] { return QStringList(QStringLiteral("tool")); };
        QVERIFY(isChecked(6) && isChecked(0));

        host.onGetZoom = [](DOC_Interface*) { return 1.0F; };
        const QList<QPair<const char*, std::function<bool()>*>> viewTools{
            {"t_multilock", &host.onIsMultiLock},         {"t_angle3d_lock", &host.onIsAngleLocked3D},
            {"t_texture3d", &host.onIsTexture3D},         {"t_wireframe3d", &host.onIsWireframe3D},
            {"t_boundingbox3d", &host.onIsBoundingBox3D}, {"t_compass3d", &host.onIsCompass3D}};
        for (const auto& [name, state] : viewTools) {
            QVERIFY2(!isChecked(0, name), name);
            *state = [] { return true; };
            QVERIFY2(isChecked(0, name), name);
        }
        QVERIFY(!isChecked(0, "t_zoomfit"));
        host.onGetZoom = [](DOC_Interface*) { return 0.0F; };
        QVERIFY(isChecked(0, "t_zoomfit"));
        plugin.m_exclusiveTool = 4; // a fixed shape, which this one does not have
        QVERIFY(isChecked(0, "t_multilock") && !isChecked(0, "t_compass3d") && !isChecked(0));
    }

    void showsItsDialogAndTakesItAway() {
        TestPlugin plugin(&m_rig->host);
        PatternDialog* dialog = nullptr;
        plugin.makeDialog = [&] { return dialog = new PatternDialog(&m_rig->host); };
        plugin.m_holdLiveWhileOpen = true;
        plugin.m_quickToolOption = 1;
        plugin.m_modeMask = 1;
        QVERIFY(!plugin.ensureDialog(false));
        plugin.hideDialog();
        plugin.closeDialog();
        plugin.ensureDialog(true);
        QSignalSpy opened(dialog->mediator(), &JS_Mediator::open);
        told(*m_rig);
        plugin.showDialog();
        QVERIFY(plugin.isDialogVisible());
        QCOMPARE(opened.count(), 1);
        QVERIFY(told(*m_rig).contains(QLatin1String("beginLiveHold; setActiveTool tool")));
        plugin.showDialog(); // it shows already
        QCOMPARE(opened.count(), 1);

        plugin.onModeChanged(0);
        QVERIFY(plugin.isDialogVisible());
        plugin.setCloseDialogWhenDisabled(false);
        plugin.onModeChanged(1);
        QVERIFY(plugin.isDialogVisible());
        plugin.setCloseDialogWhenDisabled(true);
        plugin.onModeChanged(2);
        QVERIFY(!plugin.isDialogVisible());
        QCOMPARE(dialog->modes, (QList<int>{0, 1, 2}));

        plugin.showDialog();
        plugin.onHostDeactivated(); // a panel stays with a host in the background
        QVERIFY(plugin.isDialogVisible());
        plugin.m_kind = 6;
        plugin.onHostDeactivated();
        QVERIFY(!plugin.isDialogVisible());

        plugin.showDialog();
        QCoreApplication::processEvents();
        told(*m_rig);
        dialog->mayClose = false;
        emit dialog->closed();
        QVERIFY(plugin.isDialogVisible());
        QCOMPARE(told(*m_rig), QString());
        dialog->mayClose = true;
        emit dialog->closed();
        QVERIFY(!plugin.isDialogVisible());
        QCOMPARE(told(*m_rig), QStringLiteral("endLiveHold; deterUpdateUI true; closePlugin tool; "
                                              "deterUpdateUI false; updateAll -1 true"));
    }

    void repaintsAllViewsThatAreLockedTogether() {
        TestPlugin plugin(&m_rig->host);
        plugin.mousePress({}, TestRig::kKey);
        told(*m_rig);
        plugin.mouseRelease({}, TestRig::kKey);
        QVERIFY(told(*m_rig).endsWith(QLatin1String("; repaint 1 false; updateAll 4 false")));
        m_rig->host.onIsMultiLock = [] { return true; };
        plugin.mouseRelease({}, TestRig::kKey);
        QVERIFY(told(*m_rig).endsWith(QLatin1String("; updateAll 1 false; updateAll 4 false")));
        plugin.setRefreshAllOnMultiLock(false);
        plugin.mouseRelease({}, TestRig::kKey);
        QVERIFY(told(*m_rig).endsWith(QLatin1String("; repaint 1 false; updateAll 4 false")));
    }
};

QTEST_MAIN(tst_PluginLife)
#include "tst_plugin_life.moc"

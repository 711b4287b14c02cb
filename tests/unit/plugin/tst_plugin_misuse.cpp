// A host that does what it should not: calls too early, twice, with nothing, or throws in its own handlers.

#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/support/LogCapture.h"
#include "tests/unit/plugin/TestPlugin.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QtTest>

#include <stdexcept>

namespace {
const QString kHandleError = QStringLiteral("HostApplication.handleError");
} // namespace

class tst_PluginMisuse : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;

private slots:
    void init() { m_rig = std::make_unique<TestRig>(); }
    void cleanup() { m_rig.reset(); }

    // A host that calls too early, or with nothing, finds a line in the log.
    void standsAHostThatCallsInTheWrongOrder_data() {
        QTest::addColumn<bool>("isGiven");
        QTest::newRow("before init") << false;
        QTest::newRow("after init, without a document") << true;
    }
    void standsAHostThatCallsInTheWrongOrder() {
        QFETCH(bool, isGiven);
        LogCapture log;
        PLG_livecontrol plugin;
        plugin.init(nullptr);
        if (isGiven) {
            plugin.init(&m_rig->host);
            m_rig->host.onDocByKey = [](DOCKEY, bool) -> DOC_Interface* { return nullptr; };
            m_rig->host.onCurrentDocument = []() -> DOC_Interface* { return nullptr; };
        }
        DOC_Interface* const document = isGiven ? nullptr : &m_rig->camera;
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
        for (const auto& call : std::initializer_list<std::function<void()>>{
                 [&] { plugin.onOpen(); },
                 [&] { plugin.onClose(); },
                 [&] { plugin.onClosed(); },
                 [&] { plugin.onApply(); },
                 [&] { plugin.onCancel(); },
                 [&] { plugin.onReset(true); },
                 [&] { plugin.onResetTool(true); },
                 [&] { plugin.notifyTool(); },
                 [&] { plugin.update(); },
                 [&] { plugin.callPage(99); },
                 [&] { plugin.setPanelVisible(true); },
                 [&] { plugin.isPanelVisible(); },
                 [&] { plugin.isEnabled(); },
                 [&] { plugin.isChecked(document, true); },
                 [&] {
                     plugin.mousePress({1, 1}, 99);
                 },
                 [&] {
                     plugin.mouseMove({1, 1}, 99);
                 },
                 [&] {
                     plugin.mouseRelease({1, 1}, 99);
                 },
                 [&] { plugin.mouseCancel(99); },
                 [&] { plugin.mouseLeave(); },
                 [&] { plugin.keyPress(&key); },
                 [&] { plugin.keyPress(nullptr); },
                 [&] { plugin.onPaintImage(document, false, nullptr, true); },
                 [&] { plugin.onPaintOverlay(document, false, nullptr); },
                 [&] { plugin.onPaintExtra(document, false, nullptr); },
                 [&] { plugin.isAreaShown(document); },
                 [&] { plugin.isAreaEditable(document); },
                 [&] { plugin.setArea(document, QRect(1, 2, 3, 4), true); },
                 [&] { plugin.getAreaInImage(document, {}); },
                 [&] { plugin.getDocumentPointerPos(99); },
                 [&] { plugin.hasDocument(99); },
                 [&] { plugin.onModeChanged(77); }}) {
            call();
        }
        QVERIFY(!log.lines().isEmpty());
        QVERIFY(!plugin.isDragging());
    }

    // Whatever tool it is: without a panel of its own it would only tell the host.
    void standsEarlyCallsWithoutAPanel() {
        LogCapture log;
        TestPlugin plugin(nullptr);
        plugin.m_hasPanel = false;
        plugin.m_kind = 6;
        for (const int exclusive : {0, 1, 4}) {
            plugin.m_exclusiveTool = exclusive;
            plugin.onOpen();
            plugin.onClose();
            plugin.onClosed();
            plugin.showDialog();
        }
        QCOMPARE(log.lines().size(), 1 + 3 * 4); // of init and of each call
    }

    void asksForOneHost() {
        LogCapture log;
        FakeHost other;
        PLG_livecontrol plugin;
        plugin.init(&m_rig->host);
        JS_Mediator* const mediator = plugin.getMediator();
        plugin.init(&other);
        QCOMPARE(log.with(QStringLiteral("one host")).size(), 1);
        plugin.init(nullptr);
        QCOMPARE(log.lines().size(), 2);
        plugin.isEnabled();
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostApplication.getMode")), 1); // the first one's
        QCOMPARE(plugin.getMediator(), mediator);
        QVERIFY(other.calls.calls().isEmpty());
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostApplication.addMediator")), 2);
    }

    void aPageThatIsNeverOpenedStandsInTheLog() {
        LogCapture log;
        PLG_livecontrol plugin;
        plugin.init(&m_rig->host);
        plugin.getHtml();
        plugin.getHtml();
        const QList<QTimer*> timers = plugin.getMediator()->findChildren<QTimer*>(QStringLiteral("unopened"));
        QCOMPARE(timers.size(), 1);
        timers.first()->start(0); // the time is over
        QTRY_COMPARE(log.with(QStringLiteral("no open() came")).size(), 1);
        timers.first()->start();
        emit plugin.getMediator()->open();
        QVERIFY(!timers.first()->isActive());
    }

    void aDragEndsWithItsDocument() {
        TestPlugin plugin(&m_rig->host);
        for (const bool isCanceled : {false, true}) {
            plugin.mousePress({3, 3}, TestRig::kKey);
            QGuiApplication::setOverrideCursor(Qt::SizeAllCursor);
            m_rig->host.onDocByKey = [](DOCKEY, bool) -> DOC_Interface* { return nullptr; };
            told(*m_rig);
            isCanceled ? plugin.mouseCancel(TestRig::kKey) : plugin.mouseRelease({4, 4}, TestRig::kKey);
            QVERIFY(!plugin.isDragging());
            QVERIFY(told(*m_rig).contains(QLatin1String("endMacro")));
            QVERIFY(!QGuiApplication::overrideCursor());
            plugin.mouseRelease({4, 4}, TestRig::kKey); // of no drag
            QVERIFY(!told(*m_rig).contains(QLatin1String("endMacro")));
            m_rig->host.onDocByKey = [this](DOCKEY, bool) -> DOC_Interface* { return &m_rig->camera; };
        }
    }

    void aDragEndsThoughTheHostCantCloseItsSteps() {
        TestPlugin plugin(&m_rig->host);
        plugin.mousePress({3, 3}, TestRig::kKey);
        QGuiApplication::setOverrideCursor(Qt::SizeAllCursor);
        m_rig->host.onEndMacro = [] { throw std::runtime_error("no steps"); };
        plugin.mouseRelease({4, 4}, TestRig::kKey);
        QCOMPARE(m_rig->host.calls.count(kHandleError), 1);
        QVERIFY(!plugin.isDragging());
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void thePointerIsOverNoDocumentOnceItHasLeft() {
        TestPlugin plugin(&m_rig->host);
        plugin.mouseMove({3, 3}, TestRig::kKey);
        QCOMPARE(plugin.getPointerDocKey(), TestRig::kKey);
        QGuiApplication::setOverrideCursor(Qt::SizeAllCursor);
        plugin.mouseLeave();
        QCOMPARE(plugin.getPointerDocKey(), kInvalidDockey);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    // However the image is turned over, the arrows lie as the lines do in the view.
    void thePointerTellsWhatADragWouldDo() {
        PLG_livecontrol plugin;
        plugin.init(&m_rig->host);
        m_rig->host.onIsAutoExposureSetting = [] { return true; };
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        m_rig->camera.onMapRectToView = [](const QRect& area, bool) { return area; };
        m_rig->camera.onGetZoomFactor = [](bool) { return 1.0F; };
        plugin.setSelectArea({QPoint(100, 100), QPoint(300, 300)});
        const auto shapes = [&] {
            QList<int> seen;
            for (const QPoint& pos : {QPoint(100, 100), QPoint(300, 100), QPoint(200, 100), QPoint(100, 200),
                                      QPoint(200, 200), QPoint(10, 10)}) {
                plugin.mouseMove(pos, TestRig::kKey);
                const QCursor* const cursor = QGuiApplication::overrideCursor();
                seen.append(cursor ? int(cursor->shape()) : -1);
            }
            return seen;
        };
        const QList<int> all{Qt::SizeFDiagCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
                             Qt::SizeHorCursor,   Qt::SizeAllCursor,   -1};
        QCOMPARE(shapes(), all);
        m_rig->camera.onIsFlipB = [] { return true; };
        QCOMPARE(shapes(), all);
        m_rig->camera.onIsFlipA = [] { return true; };
        QCOMPARE(shapes(), all);
        m_rig->host.onIsToolActive1 = [](const QString& name) {
            return name == QLatin1String("t_crosscursor");
        };
        QCOMPARE(shapes(), (QList<int>{-1, -1, -1, -1, -1, -1})); // that has the mouse
    }

    // What the host throws in its own handlers comes to its own place for failures, and not with each move.
    void aFailureIsToldOnceUntilItWorksAgain() {
        TestPlugin plugin(&m_rig->host);
        const auto fail = [&](const char* why) {
            m_rig->host.onDocByKey = [why](DOCKEY, bool) -> DOC_Interface* { throw std::runtime_error(why); };
        };
        const auto reports = [&] { return m_rig->host.calls.count(kHandleError); };
        fail("gone");
        for (int i = 0; i < 5; ++i) {
            plugin.mouseMove({i, i}, TestRig::kKey);
        }
        QCOMPARE(reports(), 1);
        fail("other");
        plugin.mouseMove({}, TestRig::kKey);
        QCOMPARE(reports(), 2);
        m_rig->host.onDocByKey = [this](DOCKEY, bool) -> DOC_Interface* { return &m_rig->camera; };
        plugin.mouseMove({}, TestRig::kKey);
        fail("other");
        plugin.mouseMove({}, TestRig::kKey);
        QCOMPARE(reports(), 3);
        plugin.mousePress({}, TestRig::kKey);
        QCOMPARE(reports(), 4); // another operation
        QVERIFY(!plugin.isDragging());
    }

    // Paint and mouse come in turns: what works of one tells nothing of the other.
    void aFailureIsNotToldAgainForWhatWorksBesideIt() {
        TestPlugin plugin(&m_rig->host);
        m_rig->camera.onSetPointerPos = [](const QPoint&) { throw std::runtime_error("lost"); };
        for (int i = 0; i < 3; ++i) {
            plugin.mouseMove({i, i}, TestRig::kKey);
            plugin.mousePress({i, i}, TestRig::kKey);
            plugin.mouseRelease({i, i}, TestRig::kKey);
        }
        QCOMPARE(m_rig->host.calls.count(kHandleError), 1);
    }

    void aFailureMayEndThePlugin() {
        auto plugin = std::make_unique<TestPlugin>(&m_rig->host);
        m_rig->host.onDocByKey = [](DOCKEY, bool) -> DOC_Interface* { throw std::runtime_error("gone"); };
        m_rig->host.onHandleError = [&](std::exception&) { plugin.reset(); };
        plugin->mouseMove({}, TestRig::kKey);
        QVERIFY(!plugin);
    }
};

QTEST_MAIN(tst_PluginMisuse)
#include "tst_plugin_misuse.moc"

// Slow cameras, and many of them: what the program does while it waits, and what it does only once.

#include "simulator/device/Rig.h"
#include "tests/panel/support/Soak.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/WaitGuard.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/app/panes/RigDock.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/commands/CommandWait.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/views/DocumentArea.h"

#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QToolBar>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString kRate = QStringLiteral("#livecontrol_framerate");
const QString kHandle = QStringLiteral("#livecontrol_dsshutter_slider .ui-slider-handle");
const QString kDevices = QStringLiteral("#livecontrol_open_devicesetting");

/// Counts how often a list measures one of its texts.
class CountingDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        ++measured;
        return QStyledItemDelegate::sizeHint(option, index);
    }
    mutable int measured = 0;
};

} // namespace

class tst_Waiting : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;

    Viewer& viewer() { return m_test->viewer(); }
    RecordingControl& recording() { return viewer().recording(); }
    SimulatedBody& body(const char* name) { return *viewer().rig().findName(QLatin1String(name)); }
    void slowDown(double ms) {
        for (SimulatedBody* const each : viewer().rig().bodies()) {
            each->faults().delayMs = ms;
        }
    }
    QString busyText() {
        const auto* const label = viewer().window()->findChild<QLabel*>(QStringLiteral("busyText"));
        return label->isHidden() ? QString() : label->text();
    }
    QWidget* button(const char* action) {
        return viewer().window()->findChild<QToolBar*>()->widgetForAction(
            viewer().mainWindow().action(QLatin1String(action)));
    }
    bool areAll(CameraState state) {
        const QList<SimulatedBody*> bodies = viewer().rig().bodies();
        return std::all_of(bodies.begin(), bodies.end(),
                           [state](const SimulatedBody* each) { return each->state() == state; });
    }
    void start(const char* rig = "two-alike") {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/%1.json").arg(QLatin1String(rig)));
        m_test->eval(QStringLiteral("livecontrol.selectAllDocs(), 1"));
        m_test->settle();
        m_test->clearLogs();
    }

private slots:
    void cleanup() {
        if (!m_test) {
            return;
        }
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    // Both at the same time; images and timers go on, a sign shows, and clicks into it do nothing.
    void slowCamerasStopNothingElse() {
        start();
        constexpr int kSlowMs = 800;
        slowDown(kSlowMs);
        FrameTimer& pacer = viewer().window()->findChild<DocumentArea*>()->pacer();
        pacer.setPeriod(40);
        QSignalSpy beats(&pacer, &FrameTimer::beat);
        QElapsedTimer wait;
        qint64 waitMs = 0;
        int beatsInWait = 0;
        QString sign;
        bool isBusyCursor = false;
        const CommandWait& waiting = CommandWait::get();
        connect(&waiting, &CommandWait::begun, &pacer, [&] {
            wait.start();
            beats.clear();
        });
        connect(&waiting, &CommandWait::ended, &pacer, [&] {
            waitMs += wait.elapsed();
            beatsInWait += beats.count();
        });
        QTimer probe;
        connect(&probe, &QTimer::timeout, &probe, [&] {
            if (waiting.isWaiting() && sign.isEmpty() && !busyText().isEmpty()) {
                sign = busyText();
                isBusyCursor = QGuiApplication::overrideCursor() != nullptr;
                m_test->call("page.click", {{QStringLiteral("selector"), kDevices}});
            }
        });
        probe.start(10);
        m_test->choose(kRate, QStringLiteral("500 fps"));
        QTRY_COMPARE(m_test->caption(kRate), QStringLiteral("500 fps"));
        probe.stop();
        m_test->settle();
        for (SimulatedBody* const each : viewer().rig().bodies()) {
            QCOMPARE(each->head()->settings().rate, 500U);
        }
        QVERIFY2(waitMs >= kSlowMs - 100 && waitMs < kSlowMs * 2 - 100, qPrintable(QString::number(waitMs)));
        QVERIFY2(beatsInWait >= 5, qPrintable(QString::number(beatsInWait)));
        QVERIFY2(sign.contains(QStringLiteral("Marlin")), qPrintable(sign));
        QVERIFY(isBusyCursor && !QGuiApplication::overrideCursor() && busyText().isEmpty());
        QVERIFY(
            !m_test->eval(QStringLiteral("$('#livecontrol_page_devicesetting').is(':visible')")).toBool());
        m_test->click(kDevices);
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_devicesetting:visible').length")));
    }

    // A dialog that opens in the middle of a command would keep it from its end.
    void aScriptOpensNothingInTheMiddleOfACommand() {
        start();
        slowDown(300);
        const CommandWait& waiting = CommandWait::get();
        bool hasChosen = false;
        QTimer probe;
        connect(&waiting, &CommandWait::begun, &probe, [&] {
            hasChosen = true;
            m_test->call("windows.choose", {{QStringLiteral("action"), QStringLiteral("dialog:open")}});
        });
        bool isOpenInWait = false;
        connect(&probe, &QTimer::timeout, &probe, [&] {
            QWidget* const modal = QApplication::activeModalWidget();
            isOpenInWait = isOpenInWait || (modal && waiting.isWaiting());
            if (modal) {
                modal->close();
                probe.stop();
            }
        });
        probe.start(5);
        m_test->choose(kRate, QStringLiteral("500 fps"));
        QTRY_VERIFY(hasChosen && !probe.isActive());
        QVERIFY(!isOpenInWait);
        QTRY_COMPARE(m_test->caption(kRate), QStringLiteral("500 fps"));
    }

    // Behind a command that runs, the last place of the mouse counts alone.
    void aDragSendsTheNewestValue() {
        start();
        m_test->selectOnly(QStringLiteral("Marlin"));
        m_test->choose(QStringLiteral("#livecontrol_shutterspeed"), QStringLiteral("Dual Slope Shutter"));
        m_test->head(QStringLiteral("Marlin")).setDualSlope(20).result();
        m_test->eval(QStringLiteral("livecontrol.updateUI(), 1"));
        m_test->settle();
        SimulatedBody& marlin = body("Marlin");
        marlin.faults().delayMs = 1500;
        const quint64 before = marlin.commandCount();
        bool isMoved = false;
        const auto move = [&] { // all of it while the first command runs
            for (int i = 0; i < 9; ++i) {
                m_test->moveMouse(6);
            }
            m_test->releaseMouse();
            isMoved = true;
        };
        QObject once;
        connect(&CommandWait::get(), &CommandWait::begun, &once, [&] {
            QObject::disconnect(&CommandWait::get(), nullptr, &once, nullptr);
            QTimer::singleShot(0, viewer().window(), move);
        });
        m_test->holdMouse(kHandle);
        m_test->moveMouse(24); // to another step
        QTRY_VERIFY_WITH_TIMEOUT(isMoved && !CommandWait::get().isWaiting(), 10000);
        m_test->settle();
        QTRY_VERIFY(!CommandWait::get().isWaiting());
        const quint64 sent = marlin.commandCount() - before;
        const QStringList log = viewer().rig().commandLog();
        QVERIFY2(sent >= 2 && sent <= 3, qPrintable(log.mid(log.size() - int(sent)).join(QLatin1Char('\n'))));
        QTRY_COMPARE(
            m_test->eval(QStringLiteral("$('#livecontrol_dsshutter_slider').slider('value')")).toInt(),
            m_test->head(QStringLiteral("Marlin")).settings().dualSlope);
        QVERIFY(m_test->head(QStringLiteral("Marlin")).settings().dualSlope > 20);
    }

    // Stop gets through while another command is waited for; what else was clicked before the sign comes
    // after.
    void stopIsNeverBehindAnotherCommand() {
        start();
        recording().ready();
        QTRY_VERIFY(areAll(CameraState::Ready));
        QTRY_VERIFY(viewer().mainWindow().action(QStringLiteral("stop"))->isEnabled());
        const AnswerPromise slow;
        bool isStopped = false;
        int binnedInWait = -1;
        QTimer::singleShot(50, viewer().window(), [&] { QTest::mouseClick(button("stop"), Qt::LeftButton); });
        QTimer::singleShot(60, viewer().window(), [&] { QTest::mouseClick(button("bin"), Qt::LeftButton); });
        QSignalSpy binned(viewer().mainWindow().action(QStringLiteral("bin")), &QAction::triggered);
        QTimer::singleShot(700, viewer().window(), [&] {
            isStopped = areAll(CameraState::Live);
            binnedInWait = binned.count();
            slow.give(CommandResult::Ok);
        });
        CommandWait::get().until({slow.answer()}, {QStringLiteral("Marlin")});
        QVERIFY(isStopped && binnedInWait == 0);
        QTRY_COMPARE(binned.count(), 1);
    }

    // The sign tells the window that it goes when the program goes.
    void theProgramCanEndWithItsSignShown() {
        start();
        const AnswerPromise slow;
        QString sign;
        QTimer::singleShot(3 * WaitGuard::kSignMs, viewer().window(), [&] {
            sign = busyText();
            slow.give(CommandResult::Ok);
        });
        CommandWait::get().until(QVector<Answer>(4, slow.answer()).toList(),
                                 QStringLiteral("A B C D").split(QLatin1Char(' ')));
        QVERIFY(QGuiApplication::overrideCursor() && sign == QLatin1String("Waiting for 4 cameras"));
        m_test.reset();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    // What a held key repeats during a wait would go on after the key has come up.
    void repeatsOfAHeldKeyAreNotDoneAfterwards() {
        start();
        QLineEdit field;
        field.show();
        QPushButton pressed;
        pressed.show();
        const QSignalSpy clicks(&pressed, &QPushButton::clicked);
        const AnswerPromise slow;
        QTimer::singleShot(30, &field, [&] {
            QTest::keyClick(&pressed, Qt::Key_Space);
            QTest::mousePress(&pressed, Qt::LeftButton);
            QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&pressed, &move);
            QTest::mouseRelease(&pressed, Qt::LeftButton);
            for (const bool isRepeat : {false, true, true}) {
                QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"), isRepeat);
                QCoreApplication::sendEvent(&field, &press);
            }
            QTest::keyRelease(&field, Qt::Key_A);
            slow.give(CommandResult::Ok);
        });
        CommandWait::get().until({slow.answer()});
        QTRY_VERIFY(!field.text().isEmpty());
        m_test->settle();
        QCOMPARE(field.text(), QStringLiteral("a"));
        QCOMPARE(clicks.count(), 2); // which takes what comes after each press
    }

    // Nobody waits for slow cameras that get ready; Stop comes behind it at each of them, in its order.
    void readyAndStopGoToSlowCamerasWithoutWaiting() {
        start();
        slowDown(400);
        const QSignalSpy waits(&CommandWait::get(), &CommandWait::begun);
        QHash<SimulatedBody*, quint64> before;
        for (SimulatedBody* const each : viewer().rig().bodies()) {
            before.insert(each, each->commandCount());
        }
        recording().ready();
        recording().record(); // not yet
        recording().stop();
        QVERIFY(recording().isSending() && waits.isEmpty());
        for (auto each = before.cbegin(); each != before.cend(); ++each) {
            QVERIFY(each.key()->commandCount() > each.value()); // none waits for another
        }
        QVERIFY(!viewer().mainWindow().action(QStringLiteral("ready"))->isEnabled());
        QTRY_VERIFY(busyText().contains(QStringLiteral("Marlin")));
        QTRY_VERIFY(!recording().isSending());
        QVERIFY(areAll(CameraState::Live));
        QTRY_VERIFY(busyText().isEmpty());
    }

    // The page stays as it is, however often; none of its scripts finds itself without it.
    void quickChangesOfModeLeaveThePageAlone() {
        start();
        m_test->eval(QStringLiteral("$('#panels').attr('data-kept', 1), 1"));
        for (int i = 0; i < 6; ++i) {
            recording().setMode(HOST_MODE_FILE);
            QVERIFY(!viewer().panelView().isPageOpen());
            QTest::qWait(i * 30);
            viewer().documents().setNamesAreAddresses(i % 2); // updates come meanwhile
            recording().setMode(HOST_MODE_LIVE);
            QVERIFY(viewer().panelView().isPageOpen());
            QTest::qWait(i * 30);
        }
        viewer().documents().setNamesAreAddresses(false);
        QCOMPARE(m_test->text(QStringLiteral("$('#panels').attr('data-kept')")), QStringLiteral("1"));
        QCOMPARE(m_test->logged(QStringLiteral("prior to initialization")), QStringList());
        // What changed meanwhile shows.
        recording().setMode(HOST_MODE_FILE);
        body("Marlin").head()->changeFromOutside(QStringLiteral("rate"), 2000);
        recording().setMode(HOST_MODE_LIVE);
        m_test->selectOnly(QStringLiteral("Marlin"));
        QTRY_COMPARE(m_test->caption(kRate), QStringLiteral("2000 fps"));
    }

    // Only when it is asked for: as many minutes as SOAK_MINUTES says.
    void randomWorkOnManySlowCameras() {
        const int minutes = qEnvironmentVariableIntValue("SOAK_MINUTES");
        if (minutes <= 0) {
            QSKIP("a long run, see ./test --soak");
        }
        start("sixty-four");
        viewer().preferences().setValue(QStringLiteral("recording/AutoDownload"), false);
        slowDown(95);
        Soak soak(*m_test);
        soak.run(minutes);
        qInfo("%s", qPrintable(soak.summary()));
        QVERIFY2(soak.lateBeats() == 0, qPrintable(soak.summary()));
        QVERIFY2(soak.growth() < 1.1, qPrintable(soak.summary()));
        slowDown(0);
    }

    // The page and the rig's list show what all have become, not what each has.
    void manyCamerasAreOneUpdate() {
        start("sixty-four");
        auto* const list = viewer().window()->findChild<RigDock*>()->findChild<QTreeWidget*>();
        auto* const delegate = new CountingDelegate(list);
        list->setItemDelegate(delegate);
        m_test->eval(QStringLiteral("window.updates = 0,"
                                    "livecontrol.update.connect(function () { window.updates += 1; }), 1"));
        recording().ready();
        QTRY_VERIFY_WITH_TIMEOUT(areAll(CameraState::Ready), 20000);
        constexpr int kDelay = 50; // ms
        slowDown(kDelay);
        recording().record();
        QTRY_VERIFY_WITH_TIMEOUT(areAll(CameraState::Recording), 20000);
        recording().stop();
        QTRY_VERIFY_WITH_TIMEOUT(areAll(CameraState::Memory), 20000);
        QTRY_COMPARE(viewer().documents().mode(), HOST_MODE_MEMORY);
        const int updates = m_test->eval(QStringLiteral("window.updates")).toInt();
        QVERIFY2(updates < 20, qPrintable(QString::number(updates)));
        QVERIFY2(delegate->measured < 20 * 2 * 64, qPrintable(QString::number(delegate->measured)));
        quint64 first = std::numeric_limits<quint64>::max();
        quint64 last = 0;
        for (SimulatedHead* const head : viewer().rig().heads()) {
            first = std::min(first, head->recording().shots.first().triggerNumber);
            last = std::max(last, head->recording().shots.first().triggerNumber);
        }
        // Not one after the other, however busy the machine is.
        QVERIFY2((last - first) * 1000 / viewer().rig().heads().first()->settings().rate < 64 * kDelay / 2,
                 qPrintable(QStringLiteral("%1 to %2").arg(first).arg(last)));
    }

    // Those that had something to show from before come along when the last one has recorded, each asked
    // once, however many states that changes.
    void memoryModeIsAskedForOnce() {
        start("sixty-four");
        viewer().preferences().setValue(QStringLiteral("recording/AutoDownload"), false);
        recording().ready();
        QTRY_VERIFY_WITH_TIMEOUT(areAll(CameraState::Ready), 20000);
        recording().record();
        QTRY_VERIFY_WITH_TIMEOUT(areAll(CameraState::Recording), 20000);
        recording().stop();
        QTRY_COMPARE_WITH_TIMEOUT(viewer().documents().mode(), HOST_MODE_MEMORY, 20000);
        recording().setMode(HOST_MODE_LIVE);
        QTRY_COMPARE_WITH_TIMEOUT(viewer().documents().mode(), HOST_MODE_LIVE, 20000);
        const QList<SimulatedBody*> bodies = viewer().rig().bodies();
        SimulatedBody& first = *bodies.first();
        slowDown(95);
        QList<quint64> before;
        for (const SimulatedBody* const each : bodies) {
            before.append(each->commandCount());
        }
        first.recordReady().result();
        QTRY_COMPARE(first.state(), CameraState::Ready);
        first.triggerIn().result();
        first.stopRecording().result();
        QTRY_COMPARE_WITH_TIMEOUT(viewer().documents().mode(), HOST_MODE_MEMORY, 20000);
        QVERIFY(areAll(CameraState::Memory));
        for (int i = 1; i < bodies.size(); ++i) {
            QCOMPARE(bodies.at(i)->commandCount() - before.at(i), quint64(1));
        }
    }
};

QTEST_MAIN(tst_Waiting)
#include "tst_waiting.moc"

// What the window shows and takes while a command is waited for.

#include "tests/unit/viewer_app/RunningViewer.h"
#include "viewer/app/WaitGuard.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/commands/CommandWait.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>

class TestWaitGuard : public QObject, RunningViewer {
    Q_OBJECT

private slots:
    void init() { prepare(); }
    void cleanup() { m_viewer.reset(); }

    // One that ends before its sign is due.
    void aShortWaitLeavesNoSign() {
        start();
        const AnswerPromise slow;
        QTimer::singleShot(WaitGuard::kSignMs / 3, &m_viewer->mainWindow(),
                           [&] { slow.give(CommandResult::Ok); });
        CommandWait::get().until({slow.answer()}, {QStringLiteral("Marlin")});
        QTest::qWait(2 * WaitGuard::kSignMs);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    // A message in the status bar has the place of the text that says for whom is waited.
    void aMessageHidesForWhomIsWaited() {
        start();
        auto* const text = m_viewer->mainWindow().findChild<QLabel*>(QStringLiteral("busyText"));
        QStatusBar& bar = *m_viewer->mainWindow().statusBar();
        bar.clearMessage();
        const AnswerPromise slow;
        QList<bool> shown;
        QString whom;
        QTimer::singleShot(3 * WaitGuard::kSignMs, text, [&] {
            whom = text->text();
            shown.append(text->isVisible());
            emit m_viewer->documents().told(QStringLiteral("Saved"));
            shown.append(text->isVisible());
            bar.clearMessage();
            shown.append(text->isVisible());
            slow.give(CommandResult::Ok);
        });
        const QStringList names{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                                QStringLiteral("D")};
        CommandWait::get().until({slow.answer(), slow.answer(), slow.answer(), slow.answer()}, names);
        QCOMPARE(whom, QStringLiteral("Waiting for 4 cameras"));
        QCOMPARE(shown, QList<bool>({true, false, true})); // as what is told goes there
    }

    // As keys and presses do.
    void aTurnOfTheWheelWaits() {
        start();
        QWidget& window = m_viewer->mainWindow();
        struct Turns : QObject {
            int count = 0;
            bool eventFilter(QObject*, QEvent* event) override {
                count += event->type() == QEvent::Wheel ? 1 : 0;
                return false;
            }
        } turns;
        window.installEventFilter(&turns);
        const AnswerPromise slow;
        int turnsInWait = -1;
        QTimer::singleShot(WaitGuard::kSignMs / 4, &window, [&] {
            QWheelEvent turn(QPointF(5, 5), window.mapToGlobal(QPointF(5, 5).toPoint()), QPoint(),
                             QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&window, &turn);
            turnsInWait = turns.count;
            slow.give(CommandResult::Ok);
        });
        CommandWait::get().until({slow.answer()}, {QStringLiteral("Marlin")});
        QTRY_COMPARE(turns.count, 1);
        QCOMPARE(turnsInWait, 0);
    }

    // What is pressed in a dialog while its own command runs is done after it.
    void aDialogWaitsForItsOwnCommand() {
        start();
        QDialog dialog(&m_viewer->mainWindow());
        dialog.setModal(true);
        QPushButton button(&dialog);
        const QSignalSpy clicks(&button, &QPushButton::clicked);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const AnswerPromise slow;
        int clicksInWait = -1;
        QTimer::singleShot(WaitGuard::kSignMs / 4, &dialog, [&] {
            QTest::mouseClick(&button, Qt::LeftButton);
            clicksInWait = clicks.count();
            slow.give(CommandResult::Ok);
        });
        CommandWait::get().until({slow.answer()}, {QStringLiteral("Marlin")});
        QTRY_COMPARE(clicks.count(), 1);
        QCOMPARE(clicksInWait, 0);
    }
};

QTEST_MAIN(TestWaitGuard)
#include "tst_wait_guard.moc"

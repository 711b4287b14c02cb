// Lets every host and document operation that the panel uses fail, one at a time, while an update and each
// setter runs: nothing escapes, the user is told, and the panel works again afterwards.

#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CallRecorder.h"
#include "viewer/documents/DocumentList.h"

#include <QApplication>
#include <QJsonArray>
#include <QMessageBox>
#include <QtTest>

namespace {

/// Answers message boxes as they come.
class BoxCloser : public QObject {
public:
    BoxCloser() { startTimer(5); }
    int closed = 0;

protected:
    void timerEvent(QTimerEvent*) override {
        if (auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++closed;
            box->accept();
        }
    }
};

} // namespace

class tst_FaultSweep : public QObject {
    Q_OBJECT

    QStringList m_sweptByUpdate;

private slots:
    void thePanelSurvivesEveryFailure_data() {
        QTest::addColumn<QString>("action");
        QTest::newRow("update") << QStringLiteral("livecontrol_obj.update()");
        QTest::newRow("rate") << QStringLiteral("livecontrol.setFrameRate('1')");
        QTest::newRow("shutter") << QStringLiteral("livecontrol.setShutterSpeed('2')");
        QTest::newRow("resolution") << QStringLiteral("livecontrol.setResolution('1')");
        QTest::newRow("dual slope") << QStringLiteral("livecontrol.setDSShutterValue('10')");
        QTest::newRow("locks") << QStringLiteral(
            "livecontrol.toggleShutterLockMode(), livecontrol.toggleResolutionLockMode()");
        QTest::newRow("select") << QStringLiteral(
            "livecontrol.setSelectDoc(livecontrol.getSelectedDockey()[0])");
        QTest::newRow("select all") << QStringLiteral("livecontrol.selectAllDocs()");
        QTest::newRow("device page") << QStringLiteral(
            "livecontrol_obj.changePage(1), livecontrol_obj.changePage(0)");
    }

    void thePanelSurvivesEveryFailure() {
        QFETCH(QString, action);
        PanelTest test(QStringLiteral(RIGS_FOLDER "/one-camera.json"));
        test.viewer().documents().live().beginHold(); // no paint pass between
        BoxCloser boxes;
        CallRecorder& recorder = test.viewer().documents().calls();
        const QString script = action + QStringLiteral(", 1");
        test.settle();
        test.calls();
        test.eval(script); // the calls of the page alone: no event runs before they are read
        QStringList operations = test.calls();
        operations.removeDuplicates();
        // The update that ends every setter is swept once, by itself.
        for (const QString& swept : qAsConst(m_sweptByUpdate)) {
            operations.removeOne(swept);
        }
        if (m_sweptByUpdate.isEmpty()) {
            m_sweptByUpdate = operations;
            QVERIFY(operations.size() > 50);
        }
        int reported = 0;
        for (const QString& operation : qAsConst(operations)) {
            if (operation == QLatin1String("HostApplication.handleError")) {
                continue;
            }
            recorder.clear();
            recorder.fail(operation, QStringLiteral("cable of ") + operation, 1, 1);
            test.eval(script);
            QCoreApplication::processEvents();
            QVERIFY2(recorder.count(QStringLiteral("HostApplication.handleError")) >= 1,
                     qPrintable(operation));
            recorder.clearFailures();
            ++reported;
            QVERIFY2(test.call("page.errors").toArray().isEmpty(), qPrintable(operation));
        }
        QTRY_COMPARE(boxes.closed, reported);
        test.eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QVERIFY(!test.caption(QStringLiteral("#livecontrol_framerate")).isEmpty());
    }
};

QTEST_MAIN(tst_FaultSweep)
#include "tst_fault_sweep.moc"

// The panel over cameras that are not simulated: all that the viewer needs of a camera is its interface.

#include "tests/support/ListedCameras.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QJsonArray>
#include <QtConcurrent>
#include <QtTest>

namespace {

const QString kRate = QStringLiteral("#livecontrol_framerate");
const QString kShutter = QStringLiteral("#livecontrol_shutterspeed");

// As a camera that works on a thread of its own answers.
Answer later(const std::function<CommandResult()>& answer) { return Answer(QtConcurrent::run(answer)); }

} // namespace

class tst_OtherCameras : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    ListedBody* m_first = nullptr;
    ListedBody* m_second = nullptr;

private slots:
    void init() {
        auto cameras = std::make_unique<ListedCameras>();
        m_first = &cameras->add(QStringLiteral("First"), QStringLiteral("192.168.0.21"));
        m_second = &cameras->add(QStringLiteral("Second"), QStringLiteral("192.168.0.22"));
        m_test = std::make_unique<PanelTest>(std::move(cameras));
        m_test->selectOnly(QStringLiteral("First"));
        m_first->head()->commands.clear();
    }

    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void settingsReachTheCameraAndComeBack() {
        QCOMPARE(m_test->rows(kRate).size(), 3);
        m_test->choose(kRate, m_test->rows(kRate).at(1));
        QCOMPARE(m_first->head()->commands, QStringList{QStringLiteral("rate 200")});
        QCOMPARE(m_test->caption(kRate), m_test->rows(kRate).at(1));
        QCOMPARE(m_second->head()->now.rate, 100U);
        QCOMPARE(m_test->camera(QStringLiteral("First")).frame().image.size(), QSize(64, 48));
    }

    void anAnswerFromAnotherThreadIsWaitedFor() {
        m_first->head()->answers.append(later([this] {
            m_first->head()->now.shutter = 2000;
            return CommandResult::Clamped;
        }));
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->choose(kShutter, m_test->rows(kShutter).at(1));
        QCOMPARE(m_test->caption(kShutter), m_test->rows(kShutter).at(2));
    }

    void aRefusalFromAnotherThreadIsTold() {
        m_first->head()->answers.append(later([]() -> CommandResult {
            throw CameraError(CameraError::Kind::Refused, QStringLiteral("KVC_SetRecordRate"),
                              QStringLiteral("First"), reason("busy"));
        }));
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->choose(kRate, m_test->rows(kRate).at(2));
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("First")) &&
                     m_test->answeredBox().contains(QStringLiteral("busy")),
                 qPrintable(m_test->answeredBox()));
        QCOMPARE(m_test->caption(kRate), m_test->rows(kRate).at(0));
    }

    void aLostLinkTakesTheCameraOutOfTheSelection() {
        m_first->disconnectLink();
        m_test->settle();
        QVERIFY(!m_test->camera(QStringLiteral("First")).isConnected());
        QVERIFY(m_test->viewer().documents().selectedCameras().isEmpty());
        QVERIFY_EXCEPTION_THROWN(
            m_test->call("camera.unplug",
                         {{QStringLiteral("key"), double(m_test->keyOf(QStringLiteral("First")))}}),
            ConsoleError);
    }
};

QTEST_MAIN(tst_OtherCameras)
#include "tst_other_cameras.moc"

// What the bar below the window tells: each of its sources alone brings its text up and takes it away.

#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_app/RunningViewer.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/export/ExportJobs.h"
#include "viewer/export/ExportRequest.h"
#include "viewer/views/DocumentArea.h"

#include <QLabel>
#include <QStatusBar>
#include <algorithm>

class TestStatusBar : public QObject, RunningViewer {
    Q_OBJECT

    QStatusBar& bar() { return *m_viewer->mainWindow().statusBar(); }
    /// What goes on; empty if nothing shows.
    QString busy() {
        const auto* const label = m_viewer->mainWindow().findChild<QLabel*>(QStringLiteral("busyText"));
        return label->isHidden() ? QString() : label->text();
    }
    bool shows(const QString& text) {
        const QList<QLabel*> labels = bar().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel* label) { return label->isVisible() && label->text() == text; });
    }

private slots:
    void init() {
        prepare();
        start();
        bar().clearMessage();
    }
    void cleanup() { m_viewer.reset(); }

    void whatHasBeenDoneIsTold() {
        emit m_viewer->recordings().told(QStringLiteral("Kept"));
        QCOMPARE(bar().currentMessage(), QStringLiteral("Kept"));
        emit m_viewer->documents().told(QStringLiteral("Found"));
        QCOMPARE(bar().currentMessage(), QStringLiteral("Found"));
    }

    // It had no place while a message showed.
    void whatGoesOnShowsBehindAMessage() {
        DocumentArea& area = m_viewer->mainWindow().area();
        area.setBusyText(kInvalidDockey, QStringLiteral("Focus"));
        QCOMPARE(busy(), QStringLiteral("Focus"));
        area.setBusyText(kInvalidDockey, QString());
        QCOMPARE(busy(), QString());
        bar().showMessage(QStringLiteral("Kept"));
        area.setBusyText(kInvalidDockey, QStringLiteral("Focus"));
        QCOMPARE(busy(), QString());
        bar().clearMessage();
        QCOMPARE(busy(), QStringLiteral("Focus"));
    }

    void aJobTellsHowFarItIs() {
        ExportRequest request;
        request.source = recordingOf(RecordingInfo(), 5, QSize(4, 4));
        request.last = 4;
        request.path = m_folder->filePath(QStringLiteral("a.rchx"));
        m_viewer->jobs().start(request, QStringLiteral("Take"));
        QVERIFY(busy().startsWith(QStringLiteral("Take: ")) &&
                busy().endsWith(QStringLiteral(" of 5 frames")));
        QTRY_COMPARE(busy(), QString());
    }

    // Before any camera has answered, and without anybody waiting.
    void aSlowCameraIsNamed() {
        const QList<CameraDocument*> cameras = m_viewer->documents().cameras();
        m_viewer->documents().setSelection({cameras.first()});
        m_viewer->rig().bodies().first()->faults().delayMs = 1500;
        RecordingControl& recording = m_viewer->recording();
        recording.ready();
        QVERIFY(recording.isSending() && busy().isEmpty()); // it may be quick
        QTRY_VERIFY(!busy().isEmpty() || !recording.isSending());
        QCOMPARE(busy(), QStringLiteral("Waiting for %1").arg(cameras.first()->title()));
        QTRY_VERIFY(!recording.isSending());
        QCOMPARE(busy(), QString());
    }

    void theZoomIsThatOfTheImageThatShows() {
        action("zoomOne").trigger();
        QTRY_VERIFY(shows(QStringLiteral("100 %")));
    }
};

QTEST_MAIN(TestStatusBar)
#include "tst_status_bar.moc"

// Settings are saved on a thread of the pool, and gathered from the cameras on that of the windows.

#include "livecontrol/foundation/PoolJob.h"
#include "tests/support/ListedCameras.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/app/Dialogs.h"

#include <QApplication>
#include <QFutureWatcher>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

namespace {

struct ShellWithDialog : EmptyShell {
    void runWithProgress(const QString& title, QFutureWatcher<void>& watcher) override {
        BusyDialog(title, QString(), nullptr).runUntilFinished(watcher);
        watcher.waitForFinished();
    }
};

struct MuteBody : ListedBody {
    using ListedBody::ListedBody;
    int partition() const override {
        if (isMute) {
            throw std::runtime_error("the camera tells nothing");
        }
        return 1;
    }
    bool isMute = false;
};

} // namespace

class tst_SettingsThreads : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    ListedCameras m_cameras;
    MuteBody& m_body = m_cameras.add<MuteBody>(QStringLiteral("A"), QStringLiteral("192.168.0.10"));
    CallRecorder m_calls;
    DocumentList m_list{m_cameras, m_calls};
    MapPreferences m_preferences;
    KeptMessages m_messages;
    ShellWithDialog m_shell;
    ViewerHost m_host{m_list, m_preferences, m_messages, m_shell, m_calls};
    const QString m_path = m_folder.filePath(QStringLiteral("all.zcsx"));

private slots:
    void initTestCase() { m_list.addAllCameras(); }
    void cleanup() {
        m_body.isMute = false;
        QFile::remove(m_path);
    }

    void savesWhileTheWindowLives() {
        runOnPool(m_host, QString(), [this] { m_host.saveCameraSettings(m_path, 0); });
        QVERIFY(QFile::exists(m_path));
    }

    // The event loop of the progress goes, and with it what the job would wait for.
    void savesAlthoughTheProgramIsToldToQuit() {
        runOnPool(m_host, QString(), [this] {
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
            QThread::msleep(200);
            m_host.saveCameraSettings(m_path, 0);
        });
        QVERIFY(QFile::exists(m_path));
    }

    void aFailureOfACameraComesToWhoSaves() {
        m_body.isMute = true;
        QString failure;
        runOnPool(m_host, QString(), [this, &failure] { // on its own thread, and past no event loop
            try {
                m_host.saveCameraSettings(m_path, 0);
            } catch (const std::exception& error) {
                failure = QString::fromUtf8(error.what());
            }
        });
        QCOMPARE(failure, QStringLiteral("the camera tells nothing"));
        QVERIFY(!QFile::exists(m_path));
    }
};

QTEST_MAIN(tst_SettingsThreads)
#include "tst_settings_threads.moc"

// A program that is killed while it saves camera settings leaves the old file or the new one, never anything
// else.

#include "livecontrol/interface/APP_Exception.h"
#include "tests/support/FullDisk.h"
#include "tests/unit/viewer_host/HostTest.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

namespace {

constexpr unsigned long kShutters[] = {2000, 5000};

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Saves two states in turn until somebody ends it.
[[noreturn]] void saveForEver(const QString& path) {
    HostTest test;
    for (int round = 0;; ++round) {
        test.host.setShutterSpeed(kShutters[round % 2], true);
        test.host.saveCameraSettings(path, 0);
        if (round == 0) {
            std::puts("saving");
            std::fflush(stdout);
        }
    }
}

} // namespace

class tst_SettingsCrash : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QByteArray savedAt(unsigned long shutter) {
        HostTest test;
        test.host.setShutterSpeed(shutter, true);
        test.host.saveCameraSettings(path("one.zcsx"), 0);
        return contentOf(path("one.zcsx"));
    }

private slots:
    void aKilledSaveLeavesAWholeFile() {
        const QList<QByteArray> whole{savedAt(kShutters[0]), savedAt(kShutters[1])};
        QVERIFY(whole.at(0) != whole.at(1) && whole.at(0).size() > 1000);
        const QString target = path("killed.zcsx");
        QSet<QByteArray> seen;
        for (int kill = 0; kill < 200; ++kill) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--save"), target});
            QVERIFY(child.waitForStarted() && child.waitForReadyRead());
            QThread::usleep(QRandomGenerator::global()->bounded(20000U));
            child.kill();
            QVERIFY(child.waitForFinished());
            const QByteArray left = contentOf(target);
            QVERIFY2(whole.contains(left), left.right(200).constData());
            seen.insert(left);
        }
        QCOMPARE(seen.size(), 2); // the moments were spread over the work
    }

    void aFullDiskLeavesTheOldFile() {
        const QByteArray old = savedAt(kShutters[0]);
        HostTest test;
        test.host.setShutterSpeed(kShutters[1], true);
        {
            const FullDisk disk(500);
            QVERIFY_EXCEPTION_THROWN(test.host.saveCameraSettings(path("one.zcsx"), 0), APP_Exception);
            QVERIFY_EXCEPTION_THROWN(test.host.saveCameraSettings(path("two.zcsx"), 0), APP_Exception);
        }
        QCOMPARE(contentOf(path("one.zcsx")), old);
        QVERIFY(!QFile::exists(path("two.zcsx")));
        QVERIFY(QDir(m_folder.path()).entryList(QDir::Files).filter(QStringLiteral("two")).isEmpty());
    }

    // It takes seconds to get there, and then it stands where the file says.
    void aLensOnItsWayIsNotTold() {
        HostTest test;
        test.select({test.camera("Mono")});
        SimulatedHead& head = test.head("Mono");
        const auto driveTo = [&](int place) {
            head.moveLens(LensAxis::Focus, place).result();
            test.rig.clock().advanceMs(5000);
        };
        driveTo(640);
        test.host.saveCameraSettings(path("lens.zcsx"), 0);
        driveTo(300);
        test.host.loadCameraSettings(path("lens.zcsx"), 0, 0);
        QCOMPARE(head.lens().axis(LensAxis::Focus).target, 640);
        QVERIFY(head.lens().axis(LensAxis::Focus).value != 640);
        QVERIFY(!test.host.wereSettingsRestored());
    }

    void whatCannotBeAFileIsRefused() {
        HostTest test;
        QDir(m_folder.path()).mkpath(QStringLiteral("folder.zcsx"));
        QVERIFY_EXCEPTION_THROWN(test.host.saveCameraSettings(path("folder.zcsx"), 0), APP_Exception);
        QVERIFY_EXCEPTION_THROWN(test.host.saveCameraSettings(path("no/where.zcsx"), 0), APP_Exception);
        QVERIFY_EXCEPTION_THROWN(test.host.loadCameraSettings(path("folder.zcsx"), 0, 0), APP_Exception);
        QVERIFY_EXCEPTION_THROWN(test.host.loadCameraSettings(path("missing.zcsx"), 0, 0), APP_Exception);
        QFile huge(path("huge.zcsx"));
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(20 * 1024 * 1024));
        try {
            test.host.loadCameraSettings(huge.fileName(), 0, 0);
            QFAIL("read");
        } catch (const APP_Exception& error) {
            QVERIFY(QString::fromUtf8(error.what()).contains(huge.fileName()));
        }
        QVERIFY(!test.host.wereSettingsRestored());
    }
};

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc == 3 && app.arguments().at(1) == QLatin1String("--save")) {
        saveForEver(app.arguments().at(2));
    }
    tst_SettingsCrash test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_settings_crash.moc"

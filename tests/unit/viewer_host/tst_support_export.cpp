// What the support file holds, what it leaves out, and that a failure leaves what was there.

#include "livecontrol/interface/APP_Exception.h"
#include "tests/support/FullDisk.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/host/parts/SupportFile.h"

#include <KZip>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QMap<QString, QByteArray> unpacked(const QString& path) {
    QMap<QString, QByteArray> contents;
    KZip zip(path);
    if (zip.open(QIODevice::ReadOnly)) {
        const QStringList names = zip.directory()->entries();
        for (const QString& name : names) {
            contents.insert(name, zip.directory()->file(name)->data());
        }
    }
    return contents;
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_SupportExport : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private slots:
    void packsWhatTheQuestionNames() {
        HostTest test;
        test.preferences.values = {{QStringLiteral("env/style"), QStringLiteral("dark")},
                                   {QStringLiteral("wifi/password"), QStringLiteral("hunter2")},
                                   {QStringLiteral("wifi/hallKey"), QStringLiteral("hunter3")}};
        test.shell.lines = QStringList{
            QStringLiteral("info [ENTER] \"setX\" \"[value:3] [password:hunter2]b]\""),
            QStringLiteral("[wifi_key:a[hunter2] [x:1]"), QStringLiteral("info [USER] \u65e5\u672c")};
        test.host.setRecordRate(1000);
        const QSignalSpy told(&test.list, &DocumentList::told);
        QStringList files;
        test.host.collectSupportFiles(files);
        QVERIFY(test.host.writeSupportFile(path("a.zip"), &files));
        const QMap<QString, QByteArray> contents = unpacked(path("a.zip"));
        QCOMPARE(
            contents.keys().join(QLatin1Char(' ')),
            QStringLiteral("cameras.json environment.txt image.png operation-1.log operation.log screen.png "
                           "sdk.log settings.json version.txt"));
        const CameraBody& body = *test.list.devices().first()->body();
        const QJsonObject camera = QJsonDocument::fromJson(contents.value(QStringLiteral("cameras.json")))
                                       .array()
                                       .first()
                                       .toObject();
        for (const auto& [key, value] :
             {std::pair("name", body.name()), std::pair("serial", body.serial()),
              std::pair("firmware", body.firmware()), std::pair("address", body.address()),
              std::pair("mask", body.mask()), std::pair("mac", body.mac())}) {
            QVERIFY2(!value.isEmpty() && camera.value(QLatin1String(key)).toString() == value, key);
        }
        QVERIFY(contents.value(QStringLiteral("environment.txt")).contains("VmRSS"));
        QCOMPARE(told.size(), 1);
        QVERIFY(told.first().first().toString().contains(QStringLiteral("a.zip")));
        QVERIFY(contents.value(QStringLiteral("settings.json")).contains("env/style"));
        for (const QByteArray& content : contents) {
            QVERIFY2(!content.contains("hunter"), content.left(400));
        }
        const QString log = QString::fromUtf8(contents.value(QStringLiteral("operation.log")));
        QVERIFY(log.contains(QStringLiteral("[value:3] [password:***]\n")));
        QVERIFY(log.contains(QStringLiteral("\u65e5\u672c")));
        QVERIFY(contents.value(QStringLiteral("sdk.log")).contains("KVC_SetRecordRate"));
        const QImage image = QImage::fromData(contents.value(QStringLiteral("image.png")));
        QCOMPARE(image.size(), test.list.current()->imageSize());
        for (const QString& file : files) {
            QVERIFY(!QFile::exists(file)); // nothing stays behind
        }
    }

    void replacesAnOldFileOnlyWithAWholeOne() {
        SupportFolder folder;
        QString noise;
        for (int i = 0; i < 20000; ++i) {
            noise += QString::number(qHash(i, 7));
        }
        folder.addText(QStringLiteral("a.txt"), noise);
        packSupportFile(path("old.zip"), folder.files());
        // It holds the log and pictures.
        QVERIFY(!(QFile::permissions(path("old.zip")) & (QFile::ReadGroup | QFile::ReadOther)));
        const QByteArray old = contentOf(path("old.zip"));
        QVERIFY(old.size() > 20000);
        folder.addText(QStringLiteral("b.txt"), noise);
        {
            const FullDisk disk(10000);
            QVERIFY_EXCEPTION_THROWN(packSupportFile(path("old.zip"), folder.files()), APP_Exception);
            QVERIFY_EXCEPTION_THROWN(packSupportFile(path("new.zip"), folder.files()), APP_Exception);
        }
        QCOMPARE(contentOf(path("old.zip")), old);
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden).filter(QStringLiteral("new")),
                 QStringList());
        packSupportFile(path("old.zip"), folder.files());
        QCOMPARE(unpacked(path("old.zip")).size(), 2);
    }

    void saysWhereItCannotWrite() {
        SupportFolder folder;
        folder.addText(QStringLiteral("a.txt"), QStringLiteral("a"));
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("folder.zip")));
        for (const QString& target : {path("folder.zip"), path("nowhere/a.zip")}) {
            try {
                packSupportFile(target, folder.files());
                QFAIL("written");
            } catch (const APP_Exception& error) {
                QVERIFY(QString::fromUtf8(error.what()).contains(target));
            }
        }
        QVERIFY(QFileInfo(path("folder.zip")).isDir());
        QVERIFY_EXCEPTION_THROWN(packSupportFile(path("b.zip"), {path("missing.txt")}), APP_Exception);
        QVERIFY(!QFile::exists(path("b.zip")));
    }
};

QTEST_MAIN(tst_SupportExport)
#include "tst_support_export.moc"

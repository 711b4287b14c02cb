// Folders and drives that the dialogs open, without their pages.

#include "livecontrol/devices/GUI_ChangePasswordDialog.h"
#include "livecontrol/devices/GUI_InputPasswordDialog.h"
#include "livecontrol/devices/JS_Mediator_ChangePasswordDialog.h"
#include "livecontrol/devices/JS_Mediator_InputPasswordDialog.h"
#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ModalAnswer.h"
#include "tests/unit/storage/NamingRig.h"

#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <memory>

namespace {
QJsonObject objectOf(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }
} // namespace

class tst_FileDialogDrives : public QObject {
    Q_OBJECT

    std::unique_ptr<NamingRig> m_rig;

    FakeHost& host() { return m_rig->host; }
    int count(const char* operation) { return host().calls.count(QLatin1String(operation)); }
    /// Answers the password dialog; an empty password cancels.
    static void answerPassword(const QString& password) {
        auto* const waiting = new QTimer(qApp);
        connect(waiting, &QTimer::timeout, waiting, [waiting, password] {
            auto* const dialog = qobject_cast<GUI_InputPasswordDialog*>(QApplication::activeModalWidget());
            if (!dialog) {
                return;
            }
            waiting->deleteLater();
            waiting->stop();
            auto* const page = static_cast<JS_Mediator_InputPasswordDialog*>(dialog->mediator());
            password.isEmpty() ? page->onCancel() : page->onOk(password);
        });
        waiting->start(5);
    }

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); } // "C" counts no numbers
    void init() {
        m_rig = std::make_unique<NamingRig>();
        host().onSetPrefString = [this](const QString& key, const QString& value) {
            m_rig->prefs[key] = value;
        };
    }
    void cleanup() { m_rig.reset(); }

    void sdDrivesHaveLetters() {
        JS_Mediator_FileDialog dialog(&host(), "fileopendialog"_s);
        QCOMPARE(dialog.getSDDrives(), R"({"record":[],"select":-1})"_s);
        host().onGetSDDriveMask = [] { return (1U << 3) | (1U << 25) | (1U << 26); };
        host().onGetCurrentSDDrive = [](uint& mask) {
            mask = 1U << 25;
            return true;
        };
        const QJsonObject drives = objectOf(dialog.getSDDrives());
        QCOMPARE(drives["record"_s].toArray().size(), 2);
        QCOMPARE(drives["record"_s].toArray().at(1).toObject()["drivename"_s].toString(), "Z:"_s);
        QCOMPARE(drives["select"_s].toInt(), 1);

        QString question;
        bool agrees = false;
        host().onConfirm = [&](const QString& text, QWidget*, const QMap<QString, QString>&) {
            question = text;
            return agrees;
        };
        dialog.selectSDDrive(0);
        QCOMPARE(question, "Multiple SD cards can not be opened at the same time. Are you sure you want to "
                           "close all data of Z:?"_s);
        QCOMPARE(count("HostDocuments.openSDDrive"), 0);
        agrees = true;
        dialog.selectSDDrive(0);
        QVERIFY(
            host().calls.calledInOrder({"HostDocuments.closeSDDocuments"_s,
                                        "HostDocuments.setDocumentSource"_s, "HostDocuments.openSDDrive"_s}));
        QCOMPARE(host().calls.lastArgs("HostDocuments.openSDDrive"_s), QVariantList{1U << 3});
        dialog.selectSDDrive(1);
        QCOMPARE(count("HostDocuments.closeSDDocuments"), 1); // it is the open one
        dialog.selectSDDrive(2);
        QCOMPARE(count("HostDocuments.openSDDrive"), 2);
    }

    void aDriveAsksUntilItsPasswordIsRight() {
        const LogCapture quiet;
        bool isLocked = true;
        host().onOpenDockStore = [&](int, int, int, const QString&) {
            if (isLocked) {
                throw APP_Exception("locked"_s, 407);
            }
        };
        host().onCheckDockStorePassword = [&](int, int, const QString& password) {
            isLocked = password != "right"_s;
            if (isLocked) {
                answerPassword("right"_s);
            }
            return !isLocked;
        };
        JS_Mediator_FileDialog dialog(&host(), "fileopendialog"_s);
        answerPassword("wrong"_s);
        dialog.selectFDDrive(1, 2, 3, "store"_s);
        QVERIFY(!isLocked);
        QCOMPARE(host().calls.lastArgs("HostApplication.alert"_s).first(), QVariant("Invalid Password."_s));
        QCOMPARE(count("HostDocuments.openDockStore"), 2);
        QCOMPARE(host().calls.lastArgs("HostDocuments.setDocumentSource"_s), QVariantList{7});
        isLocked = true;
        answerPassword(QString());
        dialog.selectFDDrive(2, 2, 3, "store"_s);
        QCOMPARE(count("HostDocuments.openDockStore"), 3);
        QCOMPARE(count("HostDocuments.setDocumentSource"), 1); // type 2 has no source of its own
        QCOMPARE(count("HostApplication.handleError"), 0);
        host().onOpenDockStore = [](int, int, int, const QString&) { throw APP_Exception("torn"_s, 1); };
        dialog.selectFDDrive(1, 2, 3, "store"_s);
        QCOMPARE(count("HostApplication.handleError"), 1);
    }

    void oneCFastReaderAtATime() {
        host().onGetCurrentCFastCard = [](int& drive) {
            drive = 4;
            return true;
        };
        host().onListCFastCards = [] {
            return QList<QMap<QString, QString>>{
                {{"drivetype"_s, "1"_s}, {"driveno"_s, "4"_s}, {"drivename"_s, "camera"_s}},
                {{"drivetype"_s, "0"_s}, {"driveno"_s, "4"_s}, {"drivename"_s, "F:"_s}}};
        };
        QString question;
        host().onConfirm = [&](const QString& text, QWidget*, const QMap<QString, QString>&) {
            question = text;
            return false;
        };
        JS_Mediator_FileDialog dialog(&host(), "fileopendialog"_s);
        dialog.selectCFDrive(0, 5, 0, "G:"_s);
        QVERIFY(question.endsWith("close all data of F:?"_s));
        QCOMPARE(count("HostDocuments.openCFastCard"), 0);
        dialog.selectCFDrive(0, 4, 0, "F:"_s);
        dialog.selectCFDrive(1, 5, 0, "camera"_s);
        QCOMPARE(count("HostDocuments.setDocumentSource"), 2);
        dialog.selectCFDrive(2, 5, 0, "other"_s);
        QVERIFY(count("HostDocuments.setDocumentSource") == 2 && count("HostDocuments.openCFastCard") == 3);
        host().onConfirm = {};
        host().onListCFastCards = {}; // it has no name any more: nothing to ask for
        dialog.selectCFDrive(0, 5, 0, "G:"_s);
        QVERIFY(count("HostDocuments.closeCFastDocuments") == 1 && count("HostDocuments.openCFastCard") == 4);
        QCOMPARE(objectOf(dialog.getCFDrives())["select"_s].toInt(), -1);
    }

    void aFormatRefreshesWhatItEmptied() {
        JS_Mediator_FileDialog dialog(&host(), "fileopendialog"_s);
        dialog.formatDockStore(0, 1, 2);
        QVERIFY(host().calls.calledInOrder({"HostCameraControl.formatDockStore"_s,
                                            "HostDocuments.refreshDriveDocuments"_s,
                                            "HostDocuments.openDockStore"_s, "HostApplication.info"_s}));
        QCOMPARE(host().calls.lastArgs("HostDocuments.refreshDriveDocuments"_s), QVariantList{2});
        dialog.formatCFast(1, 1, 2);
        QCOMPARE(host().calls.lastArgs("HostDocuments.refreshDriveDocuments"_s), QVariantList{3});
        QCOMPARE(count("HostDocuments.openDockStore"), 1);
        host().calls.failNext("HostCameraControl.formatCFast"_s, throwing(std::runtime_error("refused")));
        dialog.formatCFast(0, 1, 2);
        QVERIFY(count("HostApplication.info") == 2 && count("HostApplication.handleError") == 1);
        host().onGetDockStoreUseRatio = [](int, int, int, int) { return 12.345; };
        host().onGetTotalWrittenAmount = [](int, int, int, int) { return quint64(1) << 29; };
        QCOMPARE(dialog.getFDUseRatio(0, 0, 0), "12.35%"_s);
        QCOMPARE(dialog.getTotalWrittenAmount(0, 0, 0), "50.0%"_s);
        QCOMPARE(dialog.capcityToString({}), QString());
        QCOMPARE(dialog.capcityToString({"1048576"_s, 1024}), "1.00MB"_s);
    }

    void aCardInAReaderIsRefreshedOnceItIsEmpty() {
        JS_Mediator_FileDialog dialog(&host(), "fileopendialog"_s);
        for (const auto& [type, documents] : {std::pair(0, 4), std::pair(1, 3)}) {
            host().calls.clear();
            dialog.formatCFast(ulong(type), 5, 6);
            QCOMPARE(host().calls.lastArgs("HostCameraControl.formatCFast"_s), (QVariantList{type, 5, 6}));
            QVERIFY(host().calls.calledInOrder({"HostCameraControl.formatCFast"_s,
                                                "HostDocuments.refreshDriveDocuments"_s,
                                                "HostApplication.info"_s}));
            QCOMPARE(host().calls.lastArgs("HostDocuments.refreshDriveDocuments"_s), QVariantList{documents});
            QCOMPARE(host().calls.lastArgs("HostApplication.info"_s).first(),
                     QVariant("Formatting is completed."_s));
        }
    }

    // A password that was taken is told, one that wasn't warned of; after a Cancel nothing was asked for.
    void theStoresGetANewPassword() {
        bool isTaken = true;
        host().onSetDockStorePassword = [&](int, int, const QString&, const QString&) { return isTaken; };
        JS_Mediator_FileDialog dialog(&host(), "fileopendialog"_s);
        const auto change = [&](bool agrees) {
            host().calls.clear();
            const ModalAnswer<GUI_ChangePasswordDialog> answer([&](GUI_ChangePasswordDialog& asked) {
                auto* const page = static_cast<JS_Mediator_ChangePasswordDialog*>(asked.mediator());
                agrees ? page->onOk("before"_s, "after"_s) : page->onCancel();
            });
            dialog.setDockStorePassword(1, 2);
        };
        change(true);
        QCOMPARE(host().calls.lastArgs("HostDocuments.setDockStorePassword"_s),
                 (QVariantList{1, 2, "before"_s, "after"_s}));
        QCOMPARE(host().calls.lastArgs("HostApplication.info"_s).first(),
                 QVariant("Password setting completed.."_s));
        QCOMPARE(count("HostApplication.alert"), 0);
        isTaken = false;
        change(true);
        QCOMPARE(host().calls.lastArgs("HostApplication.alert"_s).first(),
                 QVariant("Password setting failed."_s));
        QCOMPARE(count("HostApplication.info"), 0);
        change(false);
        QCOMPARE(count("HostDocuments.setDockStorePassword"), 0);
        QCOMPARE(count("HostApplication.info") + count("HostApplication.alert"), 0);
    }

    void openingAFolderTakesAllRecordingsBelow() {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("sub"_s));
        for (const char* const name : {"run10.rch", "run9.RCHX", "sub/a.tsi", "note.txt"}) {
            QVERIFY(touch(folder.filePath(QLatin1String(name))));
        }
        m_rig->set("import/dir", folder.path());
        host().onListNewKeys = [] { return QList<DOCKEY>{TestRig::kKey, 99}; };
        const ModalAnswer<QFileDialog> agree(
            [](QFileDialog& files) { static_cast<QDialog&>(files).accept(); });
        JS_Mediator_FileDialog dialog(&host(), "fileopendialog"_s);
        QVERIFY(dialog.openFolder());
        QStringList names = host().calls.lastArgs("HostDocuments.openFiles"_s).first().toStringList();
        for (QString& name : names) {
            name = QFileInfo(name).fileName();
        }
        QCOMPARE(names, (QStringList{"run9.RCHX"_s, "run10.rch"_s, "a.tsi"_s}));
        QCOMPARE(count("DOC_Interface.setSelected"), 1);
    }
};

QTEST_MAIN(tst_FileDialogDrives)
#include "tst_file_dialog_drives.moc"

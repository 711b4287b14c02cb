// Custom items: what reaches the documents and in which order, what cancelling brings back, and what files
// hold.

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/overlays/notes/CustomItemFile.h"
#include "livecontrol/overlays/notes/JS_Mediator_CustomInfoDialog.h"
#include "tests/support/FullDisk.h"
#include "tests/support/ModalAnswer.h"
#include "tests/unit/live/LiveSlotsTest.h"

#include <QBuffer>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QtTest>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kFileName = 2; // the kind of file name of an export

QVariantMap reported(const QString& name, const QString& value, bool display, bool useFileName) {
    const auto flag = [](bool on) { return on ? QStringLiteral("on") : QStringLiteral("off"); };
    return {{QStringLiteral("name"), name},
            {QStringLiteral("value"), value},
            {QStringLiteral("unit"), QStringLiteral("mm")},
            {QStringLiteral("display"), flag(display)},
            {QStringLiteral("usefilename"), flag(useFileName)}};
}

QVariantMap custom(const char* name, const char* value, bool selected, const char* oldName = "") {
    return {{QStringLiteral("name"), QString::fromUtf8(name)},
            {QStringLiteral("value"), QString::fromUtf8(value)},
            {QStringLiteral("unit"), QStringLiteral("s")},
            {QStringLiteral("selected"), selected},
            {QStringLiteral("oldname"), QLatin1String(oldName)}};
}

/// While it lives, nothing can be made in a folder, and a file there can be written still.
class LockedFolder {
public:
    LockedFolder(const QString& folder, const QString& file) : m_folder(folder.toLocal8Bit()) {
        chmod(file.toLocal8Bit().constData(), 0666);
        chmod(m_folder.constData(), 0555);
        if (m_user == 0 && seteuid(kNobody) != 0) { // root may do anything anywhere
            qFatal("the user can't be changed");
        }
    }
    ~LockedFolder() {
        if (seteuid(m_user) != 0) {
            qFatal("the user can't be changed back");
        }
        chmod(m_folder.constData(), 0700);
    }
    LockedFolder(const LockedFolder&) = delete;
    LockedFolder& operator=(const LockedFolder&) = delete;

private:
    static constexpr uid_t kNobody = 65534;
    const uid_t m_user = geteuid();
    const QByteArray m_folder;
};

/// "name=value unit*", with a star for a selected one.
QStringList shortOf(const QVariantList& items) {
    QStringList texts;
    for (const QVariant& item : items) {
        const QVariantMap map = item.toMap();
        texts.append(
            QStringLiteral("%1=%2 %3%4")
                .arg(map.value(QStringLiteral("name")).toString(),
                     map.value(QStringLiteral("value")).toString(),
                     map.value(QStringLiteral("unit")).toString(),
                     map.value(QStringLiteral("selected")).toBool() ? QStringLiteral("*") : QString()));
    }
    return texts;
}

} // namespace

class tst_CustomItems : public QObject, private LiveSlotsTest {
    Q_OBJECT

    std::unique_ptr<JS_Mediator_CustomInfoDialog> m_items;
    QVariantList m_targets{QStringLiteral("7"), QStringLiteral("99")}; // there is no document 99

    /// The operations of the document that change it, with their arguments.
    QStringList changes() {
        QStringList texts;
        const QList<CallRecorder::Call> calls = m_rig->host.calls.calls();
        for (const CallRecorder::Call& call : calls) {
            const QString operation = call.name().section(QLatin1Char('.'), -1);
            if (operation == QLatin1String("setComment") ||
                (operation.contains(QLatin1String("CustomItem")) &&
                 !operation.startsWith(QLatin1String("get")))) {
                QStringList args;
                for (const QVariant& argument : call.args) {
                    args.append(argument.toString());
                }
                texts.append(operation + QLatin1Char(' ') + args.join(QLatin1Char(',')));
            }
        }
        m_rig->host.calls.clear();
        return texts;
    }

private slots:
    void init() {
        setUp();
        m_rig->host.onGetSelectedKeys = [](bool) { return QList<DOCKEY>{99, TestRig::kKey}; };
        m_rig->host.onListTemporaryKeys = [] { return QList<DOCKEY>{TestRig::kKey}; };
        m_rig->camera.onGetDisplayName = [] { return QStringLiteral("<b>Marlin</b>"); };
        m_rig->camera.onGetCustomItems = [] {
            return QVariantList{reported(QStringLiteral("Load"), QStringLiteral("9"), true, false),
                                reported(QStringLiteral("Run"), QStringLiteral("1"), false, true)};
        };
        m_items = std::make_unique<JS_Mediator_CustomInfoDialog>(&m_rig->host, false);
        m_rig->host.calls.clear();
    }
    void cleanup() {
        m_items.reset();
        tearDown();
    }

    void tellsThePageOfDocumentsAndItems() {
        QCOMPARE(m_items->getDeviceInfo(),
                 QStringLiteral(R"({"InitSelect":1,"Records":[{"dockey":"7","name":"<b>Marlin</b>",)"
                                R"("recid":1}]})"));
        const QString shown = m_items->getCustomInfo(TestRig::kKey);
        QCOMPARE(shown,
                 QStringLiteral(R"([{"name":"Load","recid":1,"selected":true,"unit":"mm","value":"9"},)"
                                R"({"name":"Run","recid":2,"selected":false,"unit":"mm","value":"1"}])"));
        QCOMPARE(m_items->getCustomInfo(99), QStringLiteral("[]"));
        m_items->setCallbackType(kFileName);
        QVERIFY(m_items->getCustomInfo(TestRig::kKey)
                    .startsWith(QLatin1String(R"([{"name":"Load","recid":1,"selected":false)")));

        JS_Mediator_CustomInfoDialog temporary(&m_rig->host, true);
        m_rig->host.onGetCurrentKey = [] { return DOCKEY(99); };
        QCOMPARE(parsed(temporary.getDeviceInfo()).value(QStringLiteral("InitSelect")).toInt(), 1);
        QCOMPARE(parsed(m_items->getDeviceInfo()).value(QStringLiteral("InitSelect")).toInt(), 0);
    }

    void changesTheTargets() {
        m_items->addCustomData(m_targets, custom("New", "5", false));
        QCOMPARE(changes(), QStringList{QStringLiteral("addCustomItem New,5,s,true,true")});
        m_items->deleteCustomData(m_targets, {custom("Load", "", false), custom("Run", "", false)});
        QCOMPARE(changes(), (QStringList{QStringLiteral("removeCustomItem Load"),
                                         QStringLiteral("removeCustomItem Run")}));
        // What is not on the page stays as it is.
        m_items->editCustomData(m_targets, custom("Force", "8", true, "Load"));
        QCOMPARE(changes(), (QStringList{QStringLiteral("renameCustomItem Load,Force"),
                                         QStringLiteral("setCustomItem Force,8,s,true,false")}));
        m_items->editCustomData(m_targets, custom("Runs", "8", true, "Run"));
        QCOMPARE(changes(), (QStringList{QStringLiteral("renameCustomItem Run,Runs"),
                                         QStringLiteral("setCustomItem Runs,8,s,false,true")}));
        m_items->enableCustomData(m_targets, {custom("Run", "other", true)});
        QCOMPARE(changes(), QStringList{QStringLiteral("setCustomItem Run,1,mm,true,true")});
        m_items->setCallbackType(kFileName);
        m_items->enableCustomData(m_targets, {custom("Run", "", false), custom("Nobody", "", true)});
        QCOMPARE(changes(), (QStringList{QStringLiteral("setCustomItem Run,1,mm,false,false"),
                                         QStringLiteral("setCustomItem ,,,false,true")}));
        m_items->restoreCustomData(m_targets, {custom("A", "1", false), custom("Comments", "hello", true)});
        QCOMPARE(changes(), (QStringList{QStringLiteral("clearCustomItems "),
                                         QStringLiteral("addCustomItem A,1,s,false,true"),
                                         QStringLiteral("setComment hello")}));
        m_items->deleteCustomData(m_targets, {});
        QCOMPARE(lastArgs(QStringLiteral("HostDocuments.setToolsDisabled")), QVariantList{true});
    }

    // To the cameras that are still there, whichever has gone before them in the list.
    void cancellingBringsTheItemsBack() {
        DOC_Interface* const camera = &m_rig->camera;
        m_rig->host.onGetSelectedKeys = [](bool) { return QList<DOCKEY>{5, TestRig::kKey}; };
        m_rig->host.onDocByKey = [camera](DOCKEY, bool) { return camera; };
        m_items = std::make_unique<JS_Mediator_CustomInfoDialog>(&m_rig->host, false);
        m_rig->host.onDocByKey = [camera](DOCKEY key, bool) {
            return key == TestRig::kKey ? camera : nullptr;
        };
        m_rig->host.calls.clear();
        m_rig->camera.onGetCustomItems = [] { return QVariantList(); };
        m_items->cancel();
        QCOMPARE(changes(), (QStringList{QStringLiteral("clearCustomItems "),
                                         QStringLiteral("addCustomItem Load,9,mm,true,false"),
                                         QStringLiteral("addCustomItem Run,1,mm,false,true")}));
    }

    void aFailureIsToldAndEndsTheChange() {
        m_rig->host.calls.failNext(QStringLiteral("DOC_Settings.removeCustomItem"),
                                   throwing(std::runtime_error("locked")));
        m_items->deleteCustomData({QStringLiteral("7"), QStringLiteral("7")}, {custom("Load", "", false)});
        QCOMPARE(count("HostApplication.handleError"), 1);
        QCOMPARE(count("DOC_Settings.removeCustomItem"), 1);
        QCOMPARE(count("HostDocuments.setToolsDisabled"), 0);
    }

    void followsTheLastRecordThatWasSelected_data() {
        QTest::addColumn<QList<QList<int>>>("selections");
        QTest::addColumn<int>("current");
        using Selections = QList<QList<int>>;
        QTest::newRow("one") << Selections{{3}} << 3;
        QTest::newRow("none") << Selections{{3}, {}} << 0;
        QTest::newRow("last new one") << Selections{{2}, {1, 2, 3}} << 3;
        QTest::newRow("current one stays") << Selections{{1}, {1, 2}, {1, 2, 3}, {2, 3}} << 3;
        QTest::newRow("next of the old ones") << Selections{{1}, {1, 3}, {1, 2, 3}, {1, 3}} << 3;
        QTest::newRow("round to the first") << Selections{{1}, {1, 2}, {1, 2, 3}, {1, 2}} << 1;
    }
    void followsTheLastRecordThatWasSelected() {
        QFETCH(QList<QList<int>>, selections);
        for (const QList<int>& ids : selections) {
            m_items->setSelectedDeviceItems(ids);
        }
        QTEST(m_items->getCurrentDeviceRecord(), "current");
    }

    void aFileGivesBackWhatWasWritten() {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadWrite);
        CustomItemFile::write(
            buffer, {custom("A <&>", "\u00e4 \"1\"", true), custom("Comments", "two\nlines", false)},
            QStringLiteral("1.2.3"));
        QVERIFY2(bytes.startsWith("<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"?>\n<custom>\n  "
                                  "<version>1.2.3</version>\n  <customItems>\n    <customItem>\n"),
                 bytes.constData());
        QCOMPARE(bytes.count("<usefilename>true</usefilename>"), 2);
        buffer.seek(0);
        QCOMPARE(shortOf(CustomItemFile::read(buffer)),
                 (QStringList{QStringLiteral("A <&>=%1 s*").arg(QString::fromUtf8("\u00e4 \"1\"")),
                              QStringLiteral("Comments=two\nlines s")}));
    }

    void readsBothForms_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("items");
        QTest::newRow("items, any root, elements in any case")
            << QByteArray("<x><customItems><customItem><NAME>a</NAME><Value>1</Value><display>TRUE</display>"
                          "</customItem><other><name>b</name></other></customItems></x>")
            << QStringList{QStringLiteral("a=1 ")};
        QTest::newRow("an item without a name, lists in another case")
            << QByteArray("<x><customItems><customItem><value>1</value></customItem></customItems>"
                          "<CustomItems><customItem><name>c</name></customItem></CustomItems></x>")
            << QStringList();
        QTest::newRow("job, with names of other tools")
            << QByteArray(
                   "<JOB><Sf_TestCode unit='n'>12</Sf_TestCode><Cm_Comment display='no'>hi</Cm_Comment>"
                   "<Empty/></JOB>")
            << QStringList{QStringLiteral("TestNo=12 n*"), QStringLiteral("Comments=hi ")};
        QTest::newRow("other names of other tools")
            << QByteArray("<job><Cm_TestDate>1</Cm_TestDate><Cm_ProjectCode>2</Cm_ProjectCode>"
                          "<Cm_PlannerName>3</Cm_PlannerName><Cm_TestPerson>4</Cm_TestPerson></job>")
            << QStringList{QStringLiteral("Date=1 *"), QStringLiteral("Project=2 *"),
                           QStringLiteral("Engineer=3 *"), QStringLiteral("Technician=4 *")};
        QTest::newRow("cut off") << QByteArray("<x><customItems><customItem><name>a</name>") << QStringList();
        QTest::newRow("no XML") << QByteArray("\0\1\2PK", 5) << QStringList();
        QByteArray laughs("<!DOCTYPE x [<!ENTITY e0 'ha'>");
        for (int i = 1; i < 30; ++i) {
            laughs += "<!ENTITY e" + QByteArray::number(i) + " '" +
                      ("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
        }
        QTest::newRow("entities without end") << laughs + "]><job><n>&e29;</n></job>" << QStringList();
        QTest::newRow("elements without end") << "<job><n>1</n>" + QByteArray("<a>").repeated(100000) +
                                                     QByteArray("</a>").repeated(100000) + "</job>"
                                              << QStringList();
        QTest::newRow("a megabyte of items")
            << "<job>" + QByteArray("<name>value</name>").repeated(60000) + "</job>" << QStringList();
    }
    void readsBothForms() {
        QFETCH(QByteArray, text);
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        QString reason;
        const QStringList items = shortOf(CustomItemFile::read(buffer, &reason));
        QTEST(items, "items");
        QCOMPARE(reason.isEmpty(), !items.isEmpty()); // the user hears why there is nothing
    }

    void theUserHearsWhyThereIsNothing_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("reason");
        const QByteArray job("<job><n>1</n></job>");
        const QByteArray largest = job.leftJustified(1 << 20);
        QTest::newRow("largest") << largest << QString();
        QTest::newRow("larger") << largest + ' ' << QStringLiteral("The file is too large.");
        const auto nested = [](int depth) {
            return QByteArray("<a>").repeated(depth) + 'x' + QByteArray("</a>").repeated(depth);
        };
        QTest::newRow("deepest") << "<job>" + nested(15) + "</job>" << QString();
        QTest::newRow("deeper") << "<job>" + nested(16) + "</job>"
                                << QStringLiteral("The file is no XML file, or it is damaged.");
        QTest::newRow("many, none in another") << "<job>" + nested(1).repeated(40) + "</job>" << QString();
        QTest::newRow("cut off") << job.left(12)
                                 << QStringLiteral("The file is no XML file, or it is damaged.");
        QTest::newRow("prefix") << QByteArray("<job><x:n>1</x:n></job>") << QString();
        QTest::newRow("none") << QByteArray("<job/>") << QStringLiteral("The file holds no items.");
    }
    void theUserHearsWhyThereIsNothing() {
        QFETCH(QByteArray, text);
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        QString reason;
        CustomItemFile::read(buffer, &reason);
        QTEST(reason, "reason");
    }

    void aFileIsReplacedAsAWholeOrNotAtAll() {
        QTemporaryDir folder;
        QStringList errors;
        m_rig->host.onHandleError = [&](std::exception& error) {
            const auto& failure = dynamic_cast<const DOC_FileException&>(error);
            errors = QStringList{QString::fromUtf8(error.what()), failure.path(), failure.reason()};
        };
        QString lastFolder = QDir::tempPath();
        m_rig->host.onGetPref = [&](const QString& key, const QVariant&) {
            return key == QLatin1String("xml/dir") ? lastFolder : QVariant();
        };
        m_rig->host.onSetPref = [&](const QString& key, const QVariant& value) {
            lastFolder = key == QLatin1String("xml/dir") ? value.toString() : lastFolder;
        };
        const auto saveAs = [&](const char* name, const QVariantList& items) {
            ModalAnswer<QFileDialog> answer([&](QFileDialog& dialog) {
                QCOMPARE(dialog.directory().path(), lastFolder);
                dialog.findChild<QLineEdit*>()->setText(folder.filePath(QLatin1String(name)));
                QMetaObject::invokeMethod(&dialog, "accept");
            });
            m_items->save(items);
        };
        const auto content = [&] {
            QFile file(folder.filePath(QStringLiteral("items.xml")));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        saveAs("items", {custom("Load", "9", true)}); // as the dialog's filter says
        const QByteArray whole = content();
        QVERIFY(whole.contains("<name>Load</name>"));
        QVERIFY(errors.isEmpty());
        {
            const FullDisk disk(100);
            saveAs("items.xml", {custom("Run", "1", true)});
        }
        QCOMPARE(lastFolder, folder.path());
        QCOMPARE(errors.value(0), QStringLiteral("File write failed."));
        QCOMPARE(errors.value(1), folder.filePath(QStringLiteral("items.xml")));
        QCOMPARE(errors.value(2), QString::fromLocal8Bit(strerror(EFBIG)));
        QCOMPARE(content(), whole);
        m_rig->host.onConfirm = [](const QString&, QWidget*, const QMap<QString, QString>&) { return false; };
        saveAs("items", {custom("Run", "1", true)}); // which was not named
        QCOMPARE(content(), whole);
        errors.clear();
        {
            const LockedFolder locked(folder.path(), folder.filePath(QStringLiteral("items.xml")));
            const FullDisk disk(100);
            saveAs("items.xml", {custom("Run", "1", true)});
        }
        QCOMPARE(content().size(), 100); // only the file itself could be written
        QCOMPARE(errors.value(2), QString::fromLocal8Bit(strerror(EFBIG)));
    }

    void opensOnlyWithACameraAndWhereItIsWanted() {
        m_rig->host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>{TestRig::kKey}; };
        m_rig->host.onIsCustomInfoAvailable = [] { return true; };
        m_live->editCustom(); // the host has not switched it on
        QCOMPARE(count("HostDocuments.getSelectedKeys"), 0);
        m_plugin->setCustomInfoEnabled(true);
        m_rig->host.onIsCustomInfoAvailable = [] { return false; };
        m_live->editCustom();
        m_rig->host.onIsCustomInfoAvailable = [] { return true; };
        m_rig->host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>(); };
        m_live->editCustom();
        QCOMPARE(count("HostDocuments.getSelectedKeys"), 0);
    }
};

QTEST_MAIN(tst_CustomItems)
#include "tst_custom_items.moc"

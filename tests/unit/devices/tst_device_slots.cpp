// The slots behind the rows and buttons of the camera lists, the search dialogs' mediators included.

#include "livecontrol/devices/JS_Mediator_CameraNetworkSettingDialog.h"
#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/devices/JS_Mediator_DiscoverySearchDialog.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/support/DialogCloser.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <stdexcept>

namespace {
const QString kUpdateAll = QStringLiteral("HostApplication.updateAll");
const QString kHandleError = QStringLiteral("HostApplication.handleError");
const QString kSetPref = QStringLiteral("HostApplication.setPref");
const QString kFind = QStringLiteral("HostCameraControl.findCameras");
const QString kRefresh = QStringLiteral("HostPlugins.refreshPlugins");
const QString kConnect = QStringLiteral("HostCameraControl.connectCameras");
const QString kNetwork = QStringLiteral("HostCameraControl.setDiscoveryNetwork");
} // namespace

class tst_DeviceSlots : public QObject {
    Q_OBJECT

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<PLG_livecontrol> m_plugin;
    std::unique_ptr<JS_Mediator_LiveControl> m_live;
    std::unique_ptr<JS_Mediator_DeviceList> m_list;

    CallRecorder& calls() { return m_rig->host.calls; }

private slots:
    void init() {
        m_log = std::make_unique<LogCapture>();
        m_rig = std::make_unique<TestRig>();
        m_plugin = std::make_unique<PLG_livecontrol>();
        m_plugin->init(&m_rig->host);
        m_live = std::make_unique<JS_Mediator_LiveControl>(&m_rig->host, m_plugin.get());
        m_list = std::make_unique<JS_Mediator_DeviceList>(&m_rig->host, QStringLiteral("deviceList"));
        calls().clear();
    }
    void cleanup() {
        m_list.reset();
        m_live.reset();
        m_plugin.reset();
        m_rig.reset();
        m_log.reset();
    }

    // Each way through a selection, all of it while the live image is held.
    void selectsWithTheLiveImageHeld_data() {
        QTest::addColumn<bool>("selects");
        QTest::addColumn<QString>("kind"); // of the document under the key
        QTest::addColumn<bool>("isOtherSelected");
        QTest::addColumn<QStringList>("changes");
        const QString select = QStringLiteral("selectDocument"),
                      unselect = QStringLiteral("unselectDocument");
        const QString headsChanged = QStringLiteral("onHeadsChanged");
        const QString device = QStringLiteral("device"), head = QStringLiteral("head"),
                      plain = QStringLiteral("plain");
        const auto row = [](const char* name, bool selects, const QString& kind, bool isOtherSelected,
                            const QStringList& changes) {
            QTest::newRow(name) << selects << kind << isOtherSelected << changes;
        };
        row("device", true, device, false, {select, QStringLiteral("onDeviceSelected")});
        row("head", true, head, false,
            {QStringLiteral("selectDocumentKeepCurrent"), QStringLiteral("setActiveHead"), headsChanged,
             QStringLiteral("onDeviceSelected")});
        row("head of a selected device", true, head, true, {QStringLiteral("onDeviceSelected")});
        row("plain", true, plain, false, {select});
        row("unknown", true, QString(), false, {});
        row("no device", false, device, false, {unselect, QStringLiteral("onDeviceUnselected")});
        row("no head", false, head, true,
            {unselect, QStringLiteral("setCurrentDocument"), headsChanged}); // the other is current now
        row("no last head", false, head, false, {unselect, headsChanged});
        row("no plain", false, plain, false, {unselect});
        row("not unknown", false, QString(), false, {});
    }
    void selectsWithTheLiveImageHeld() {
        QFETCH(bool, selects);
        QFETCH(QString, kind);
        QFETCH(bool, isOtherSelected);
        QFETCH(QStringList, changes);
        FakeCamera device(calls());
        FakeCamera other(calls());
        const auto answerOther = [isOtherSelected] { return isOtherSelected; };
        device.onGetDeviceKey = [] { return DOCKEY(3); };
        device.onIsSelected = answerOther;
        device.onGetHeads = [&](bool) { return QList<DOC_Interface*>{&m_rig->camera, &other}; };
        other.onIsSelected = answerOther;
        m_rig->camera.onIsSelected = [] { return true; };
        m_rig->camera.onIsDeviceDocument = [&kind] { return kind == QLatin1String("device"); };
        m_rig->camera.onIsHeadDocument = [&kind] { return kind == QLatin1String("head"); };
        m_rig->host.onGetParentDocument = [&device](DOC_Interface*) { return &device; };
        const QVariant key = kind.isEmpty() ? 99U : TestRig::kKey;
        selects ? m_live->selectDoc(key) : m_live->unselectDoc(key);
        QStringList done;
        for (const QString& name : calls().names()) {
            const QString operation = name.section(QLatin1Char('.'), 1);
            if (name.startsWith(QLatin1String("HostLive.")) ||
                !operation.contains(QRegularExpression(QStringLiteral("^(is|get|docByKey)")))) {
                done.append(operation);
            }
        }
        changes.prepend(QStringLiteral("suspendLive"));
        changes.append(QStringLiteral("resumeLive"));
        QCOMPARE(done, changes);
        if (changes.contains(QStringLiteral("selectDocumentKeepCurrent"))) {
            QCOMPARE(calls().lastArgs(QStringLiteral("HostDocuments.selectDocumentKeepCurrent")),
                     (QVariantList{3U, true}));
        }
    }

    void viewsAllWithTheCurrentCameraKept() {
        DOCKEY current = TestRig::kKey;
        m_rig->host.onGetCurrentKey = [&current] { return current; };
        m_rig->host.onSelectAll = [&current](JS_Mediator*) { current = 8; };
        m_live->viewAll();
        QCOMPARE(calls().names(), (QStringList{QStringLiteral("HostDocuments.getCurrentKey"),
                                               QStringLiteral("HostApplication.deterUpdateUI"),
                                               QStringLiteral("HostDocuments.selectAll"),
                                               QStringLiteral("HostDocuments.setCurrentKey"),
                                               QStringLiteral("HostApplication.deterUpdateUI"), kUpdateAll}));
        QCOMPARE(calls().lastArgs(QStringLiteral("HostDocuments.setCurrentKey")),
                 (QVariantList{TestRig::kKey, true}));
    }

    void answersForARow_data() {
        QTest::addColumn<bool>("connected");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<int>("heads");
        QTest::newRow("linked") << true << true << 2;
        QTest::newRow("without link") << false << true << 2;
        QTest::newRow("one head, free") << true << false << 1;
    }
    void answersForARow() {
        QFETCH(bool, connected);
        QFETCH(bool, selected);
        QFETCH(int, heads);
        m_rig->camera.onIsConnected = [connected] { return connected; };
        m_rig->camera.onIsSelected = [selected] { return selected; };
        m_rig->camera.onIsSelectedMulti = [selected] { return selected; };
        m_rig->camera.onGetHeadCount = [heads] { return heads; };
        QCOMPARE(m_list->isSelectedDoc(TestRig::kKey), connected && selected);
        QCOMPARE(m_list->isSelectedMultiDoc(QStringLiteral("7")), selected);
        QCOMPARE(m_list->isMultiHead(TestRig::kKey), connected && heads > 1);
        QVERIFY(!m_list->isSelectedDoc(99) && !m_list->isSelectedMultiDoc(99) && !m_list->isMultiHead(99));

        calls().clear();
        m_list->selectDoc(TestRig::kKey);
        QCOMPARE(calls().lastArgs(QStringLiteral("HostDocuments.setCurrentKey")),
                 connected ? (QVariantList{TestRig::kKey, true}) : QVariantList());
        QCOMPARE(calls().lastArgs(QStringLiteral("DOC_Interface.setSelected")),
                 connected ? QVariantList() : QVariantList{true});
        m_list->selectDoc(99); // the list never shows such a key
        m_list->unselectDoc(TestRig::kKey);
        QCOMPARE(calls().lastArgs(QStringLiteral("HostDocuments.unselectDocument")),
                 QVariantList{TestRig::kKey});
        QCOMPARE(calls().count(kHandleError) + calls().count(kUpdateAll), 0);
    }

    void asksBeforeItDeletes_data() {
        QTest::addColumn<bool>("shared");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QString>("question");
        const QString heads =
            QStringLiteral("Heads connected to the same device are also removed from the list. Is it OK?");
        const QString plain = QStringLiteral("Do you want to delete?");
        QTest::newRow("one") << false << true << plain;
        QTest::newRow("one, no") << false << false << plain;
        QTest::newRow("heads") << true << true << heads;
        QTest::newRow("heads, no") << true << false << heads;
    }
    void asksBeforeItDeletes() {
        QFETCH(bool, shared);
        QFETCH(bool, yes);
        QFETCH(QString, question);
        m_rig->camera.onIsSharedHeadSettings = [shared] { return shared; };
        m_rig->host.onTranslate = [](const QString& text, const char*, int) { return text.toUpper(); };
        QMap<QString, QString> options;
        m_rig->camera.onGetDisplayName = [] { return QStringLiteral("Marlin"); };
        m_rig->host.onConfirm = [&](const QString&, QWidget*, const QMap<QString, QString>& given) {
            options = given;
            return yes;
        };
        m_list->deleteDoc(TestRig::kKey);
        QCOMPARE(calls().lastArgs(QStringLiteral("HostApplication.confirm")).first().toString(),
                 question.toUpper());
        QCOMPARE(options.value(QStringLiteral("under")), QStringLiteral("Marlin"));
        QCOMPARE(options.value(QStringLiteral("default")), QStringLiteral("no"));
        QCOMPARE(calls().count(QStringLiteral("HostDocuments.deleteDocument")), yes ? 1 : 0);
        QCOMPARE(calls().count(kUpdateAll), 1);

        calls().clear();
        m_list->deleteDoc(99);
        QCOMPARE(calls().count(QStringLiteral("HostApplication.confirm")), 0);
    }

    void deletesAllWithoutAQuestion() {
        m_list->deleteAllDocs();
        QCOMPARE(calls().lastArgs(QStringLiteral("HostDocuments.deleteAllDocuments")),
                 (QVariantList{0, false}));
        m_list->deleteAllDocs(true);
        QCOMPARE(calls().lastArgs(QStringLiteral("HostDocuments.deleteAllDocuments")),
                 (QVariantList{0, true}));
        QCOMPARE(calls().count(QStringLiteral("HostApplication.confirm")), 0);
    }

    void runsTheAddDialogThenUpdates() {
        m_rig->host.onCanStartModal = [] { return true; };
        const DialogCloser closer;
        m_list->addDoc(false);
        QStringList modal;
        for (const QString& name : calls().names()) {
            if (name == QLatin1String("HostApplication.attachMediator") ||
                name.endsWith(QLatin1String("Modal"))) {
                modal.append(name.section(QLatin1Char('.'), 1));
            }
        }
        QCOMPARE(modal.join(QLatin1Char(' ')),
                 QStringLiteral("canStartModal beginModal attachMediator attachMediator endModal"));
        QCOMPARE(calls().names().last(), kUpdateAll);
        QCOMPARE(calls().lastArgs(kUpdateAll), (QVariantList{63, true}));
        QVERIFY(!m_log->with(QStringLiteral("[connect:false]")).isEmpty());
    }

    void remembersTheAddressOfEachSearch() {
        m_rig->host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>{TestRig::kKey}; };
        m_live->findCameras(QStringLiteral("10.0.1.0"));
        QCOMPARE(calls().lastArgs(kSetPref),
                 (QVariantList{QStringLiteral("cameraconnection/SearchIP"), QStringLiteral("10.0.1.0")}));
        QCOMPARE(calls().lastArgs(kFind), QVariantList{QStringLiteral("10.0.1.0")});
        QVERIFY(calls().names().indexOf(kSetPref) < calls().names().indexOf(kFind));
        QCOMPARE(calls().count(kRefresh), 0);
        QCOMPARE(calls().names().last(), kUpdateAll);
        QVERIFY(!m_log->with(QStringLiteral("[ipAddress:10.0.1.0]")).isEmpty());
    }

    void tidiesUpAfterAFailedSearch() {
        calls().failNext(kFind, throwing(std::runtime_error("adapter")));
        m_live->findCameras(QStringLiteral("10.0.1.0"));
        QCOMPARE(calls().count(kSetPref), 1);
        QCOMPARE(calls().count(kHandleError), 1);
        QCOMPARE(calls().count(kRefresh), 1);
    }

    void refreshesPluginsOnlyWithNothingLeft_data() {
        QTest::addColumn<bool>("camera");
        QTest::addColumn<bool>("view");
        QTest::newRow("nothing") << false << false;
        QTest::newRow("a view") << false << true;
        QTest::newRow("a camera") << true << false;
    }
    void refreshesPluginsOnlyWithNothingLeft() {
        QFETCH(bool, camera);
        QFETCH(bool, view);
        m_rig->host.onListCameraKeys = [camera](bool, bool) {
            return camera ? QList<DOCKEY>{TestRig::kKey} : QList<DOCKEY>();
        };
        m_rig->host.onHasOpenViews = [view](bool) { return view; };
        m_live->updateCameras();
        QCOMPARE(calls().count(kRefresh), camera || view ? 0 : 1);
        QCOMPARE(calls().names().first(), QStringLiteral("HostCameraControl.updateCameras"));
    }

    void passesOnSearchEditAndNames() {
        m_live->discoverySearch();
        QCOMPARE(calls().names(),
                 (QStringList{QStringLiteral("HostCameraControl.discoverySearch"), kUpdateAll}));
        m_live->editDoc(TestRig::kKey);
        QCOMPARE(calls().lastArgs(QStringLiteral("HostDocuments.editDocument")), QVariantList{TestRig::kKey});
        calls().clear();
        m_live->setUseIpCameraName(true);
        QCOMPARE(calls().names(),
                 (QStringList{kSetPref, QStringLiteral("HostApplication.refreshCameraNames"), kUpdateAll}));
        QCOMPARE(calls().lastArgs(kSetPref),
                 (QVariantList{QStringLiteral("devicemanager/useipcameraname"), true}));
        QVERIFY(!m_live->isUseIpCameraName());
        m_rig->host.onGetPrefBool = [](const QString& key, const QVariant&) {
            return key == QLatin1String("devicemanager/useipcameraname");
        };
        QVERIFY(m_live->isUseIpCameraName());
    }

    void givesTheAddressOfTheLastSearch() {
        QCOMPARE(m_live->getIPAddressSettings(), QStringLiteral("{\"IPAddress\":\"\"}"));
        m_rig->host.onGetPrefString = [](const QString&, const QVariant&, int) {
            return QStringLiteral("\"</script>");
        };
        QCOMPARE(m_live->getIPAddressSettings(), QStringLiteral("{\"IPAddress\":\"\\\"</script>\"}"));
    }

    void opensNoWifiDialogForAnUnknownKey() {
        m_live->wifiSetting(99);
        QCOMPARE(calls().names(), QStringList{QStringLiteral("HostDocuments.docByKey")});
    }

    void searchesAgainOnDemandOnly() {
        JS_Mediator_DiscoverySearchDialog dialog(&m_rig->host, QStringLiteral("[1]"));
        m_rig->host.onDiscoverySearchAgain = [] { return QStringLiteral("[2]"); };
        QCOMPARE(dialog.getSearchResults(), QStringLiteral("[1]"));
        QCOMPARE(dialog.getSearchAgainResults(), QStringLiteral("[2]"));
        QCOMPARE(dialog.getSearchResults(), QStringLiteral("[1]"));
        QCOMPARE(calls().count(QStringLiteral("HostCameraControl.discoverySearchAgain")), 1);
    }

    void connectsWhatThePageChose_data() {
        QTest::addColumn<QString>("json");
        QTest::addColumn<QStringList>("cameras");
        QTest::newRow("two") << QStringLiteral("[\"a\",\"b \\u3042\"]")
                             << QStringList{QStringLiteral("a"), QStringLiteral("b ") + QChar(0x3042)};
        QTest::newRow("numbers") << QStringLiteral("[12]") << QStringList{QStringLiteral("12")};
        for (const char* const nothing : {"[]", "", "[\"a\"", "{\"a\":1}", "null", "\"a\""}) {
            QTest::newRow(nothing) << QString::fromLatin1(nothing) << QStringList();
        }
    }
    void connectsWhatThePageChose() {
        QFETCH(QString, json);
        QFETCH(QStringList, cameras);
        JS_Mediator_DiscoverySearchDialog dialog(&m_rig->host, QString());
        dialog.connect(json);
        QCOMPARE(calls().count(kConnect), cameras.isEmpty() ? 0 : 1);
        QCOMPARE(calls().lastArgs(kConnect).value(0).toStringList(), cameras);
        QCOMPARE(calls().count(kUpdateAll), 1);
    }

    void correctsAnAddress_data() {
        QTest::addColumn<QString>("json");
        QTest::addColumn<QVariantList>("args");
        QTest::newRow("right") << QStringLiteral("{\"adapteraddress\":\"192.168.0.1\",\"ipaddress\":"
                                                 "\"255.255.255.255\",\"subnetmask\":\"255.255.255.0\","
                                                 "\"defaultgateway\":\"0.0.0.1\",\"macaddress\":\"00:0a\"}")
                               << QVariantList{0xC0A80001U, 0xFFFFFFFFU, 0xFFFFFF00U, 1U,
                                               QStringLiteral("00:0a")};
        const QVariantList zeros{0U, 0U, 0U, 0U, QString()};
        for (const char* const broken : {"", "{", "[]", "{\"ipaddress\":7}", "{\"ipaddress\":\"a.b.c.d\"}"}) {
            QTest::newRow(broken) << QString::fromLatin1(broken) << zeros;
        }
    }
    void correctsAnAddress() {
        QFETCH(QString, json);
        QFETCH(QVariantList, args);
        JS_Mediator_DiscoverySearchDialog dialog(&m_rig->host, QString());
        dialog.setNetworkSettings(json);
        QCOMPARE(calls().lastArgs(kNetwork), args);
    }

    void holdsHowTheSearchLooks() {
        JS_Mediator_CameraNetworkSettingDialog dialog(&m_rig->host);
        QCOMPARE(dialog.getCameraSearchWay(), 0);
        QCOMPARE(dialog.getCameraSearchIPAddress(), QString());
        calls().failNext(QStringLiteral("HostApplication.getPrefString"),
                         throwing(std::runtime_error("disk")));
        QCOMPARE(dialog.getCameraSearchIPAddress(), QStringLiteral("192.168.0.0"));
        calls().clear();
        dialog.setCameraSearchWay(2);
        QCOMPARE(calls().lastArgs(kSetPref), (QVariantList{QStringLiteral("cameraconnection/SearchWay"), 2}));
        dialog.setCameraSearchIPAddress(QStringLiteral("10.1.1.0"));
        QCOMPARE(calls().lastArgs(kSetPref),
                 (QVariantList{QStringLiteral("cameraconnection/SearchIP"), QStringLiteral("10.1.1.0")}));
        QCOMPARE(calls().count(kUpdateAll), 0);
        const QSignalSpy accepted(&dialog, &JS_Mediator_Dialog::accept);
        const QSignalSpy rejected(&dialog, &JS_Mediator_Dialog::reject);
        dialog.ok();
        QCOMPARE(calls().count(kUpdateAll), 1);
        dialog.cancel();
        QCOMPARE(accepted.size(), 1);
        QCOMPARE(rejected.size(), 1);
    }
};

QTEST_MAIN(tst_DeviceSlots)
#include "tst_device_slots.moc"

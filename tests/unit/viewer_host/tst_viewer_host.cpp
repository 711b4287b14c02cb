// Failures, neutral values without documents, selection by key, playback, undo.
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_host/HostTest.h"

#include "livecontrol/interface/APP_Exception.h"
#include "tests/support/LogCapture.h"
#include "viewer/documents/FileDocument.h"

#include <QTranslator>
#include <QtTest>

namespace {

/// A language in which every text of the program begins with a mark.
class Marked : public QTranslator {
public:
    Marked() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override {
        return qstrcmp(context, "zel4") == 0 ? QStringLiteral("# ") + QString::fromUtf8(text) : QString();
    }
};

} // namespace

class tst_ViewerHost : public QObject {
    Q_OBJECT

private slots:
    void aRefusedSetterNamesOperationAndCamera() {
        HostTest test;
        test.list.selectAll();
        test.body("Colour")->faults().refuseNext(1, QStringLiteral("jammed"));
        try {
            test.host.setShutterSpeed(8000, true);
            QFAIL("nothing was thrown");
        } catch (std::exception& error) {
            QCOMPARE(error.what(), "Doc Error.");
            test.host.handleError(error);
        }
        QVERIFY(!test.messages.failures.isEmpty());
        const DeviceFailure& failure = test.messages.failures.first();
        QCOMPARE(failure.operation, QStringLiteral("KVC_SetShutterSpeedFps"));
        QCOMPARE(failure.cameras.first().name, QStringLiteral("Colour"));
        QCOMPARE(failure.cameras.first().reason.english(), QStringLiteral("jammed"));
        QCOMPARE(test.head("Mono").settings().shutter, 8000U);
        // What no camera can do says whether it could with a link.
        const auto reasonOf = [&test](const char* camera) {
            test.messages.failures.clear();
            test.select({test.camera(camera)});
            try {
                test.host.setFanControl(true);
            } catch (std::exception& error) {
                test.host.handleError(error);
            }
            return test.messages.failures.value(0).cameras.value(0).reason.english();
        };
        QCOMPARE(reasonOf("Plain"), QStringLiteral("there is no such function"));
        test.body("Plain")->disconnectLink();
        QCOMPARE(reasonOf("Plain"), QStringLiteral("no link to the camera"));
    }

    void handlingAFailureNeverThrows() {
        HostTest test;
        test.messages.throws = true;
        test.calls.fail(QStringLiteral("*"), QStringLiteral("ordered"), 0, 1);
        std::runtime_error error("something else");
        test.host.handleError(error);
        QCOMPARE(test.messages.errors, QStringList{QStringLiteral("something else")});
    }

    void aFailureOfAFileNamesItOnce() {
        HostTest test;
        const QString path = QStringLiteral("/no/such/file.zcsx");
        try {
            test.host.loadCameraSettings(path, 0, 0);
        } catch (std::exception& error) {
            test.host.handleError(error);
        }
        DOC_ReadFileException plain(path, QStringLiteral("It is damaged."));
        test.host.handleError(plain);
        QCOMPARE(test.messages.errors,
                 QStringList({QStringLiteral("The camera settings file can't be read: %1 (%2)")
                                  .arg(path, QString::fromLocal8Bit(strerror(ENOENT))),
                              QStringLiteral("File read failed.\n%1\nIt is damaged.").arg(path)}));
    }

    void theLogIsEnglishAndTheBoxIsNot() {
        HostTest test;
        const Marked language;
        LogCapture log;
        QTemporaryDir folder;
        const QString path = folder.path();
        const QString english = QStringLiteral("The camera settings file can't be read: %1 (%2)");
        try {
            test.host.loadCameraSettings(path, 0, 0);
        } catch (std::exception& error) {
            test.host.handleError(error);
        }
        QCOMPARE(test.messages.errors,
                 QStringList{QStringLiteral("# ") +
                             english.arg(path, QStringLiteral("# A folder has this name."))});
        QVERIFY(!log.with(english.arg(path, QStringLiteral("A folder has this name."))).isEmpty());
        QCOMPARE(log.with(QStringLiteral("#")), QStringList());
    }

    // What a camera took is told as the panel's box shows it.
    void aShutterIsToldInTheUnitOfTheBox() {
        HostTest test;
        test.select({test.camera("Mono"), test.camera("Plain")}); // the second one lacks the speed
        const auto toldAfter = [&](unsigned long speed) {
            test.host.setShutterSpeed(1000, false);
            try {
                test.host.setShutterSpeed(speed, true);
            } catch (const CameraFailure& failure) {
                return failure.failure().cameras.first().reason.english();
            }
            return QString();
        };
        unsigned long lacking = 0;
        for (const quint32 speed : test.head("Mono").shutterList()) {
            if (speed > 4000 && !test.head("Plain").shutterList().contains(speed)) {
                lacking = speed;
                break;
            }
        }
        QVERIFY(lacking > 0);
        const QString perSecond = toldAfter(lacking);
        QVERIFY2(perSecond.startsWith(QStringLiteral("took 1/")), qPrintable(perSecond));
        const auto taken = double(test.head("Plain").settings().shutter);
        test.preferences.setValue(QStringLiteral("display/ShutterSpeed"), 0);
        QCOMPARE(toldAfter(lacking),
                 QStringLiteral("took %1 \u00b5s instead").arg(QString::number(1e6 / taken, 'f', 2)));
    }

    void theTimeCodeIsAPreference() {
        HostTest test;
        TimeCodeSetting setting;
        setting.index = 1;
        setting.displayUnit = QStringLiteral("\u00b0");
        setting.oneFrame = -0.1;
        setting.resetValue = 1e9;
        setting.reset = setting.realTime = true;
        setting.usingRchFileInfo = false;
        test.host.setTimeCodeSetting(setting);
        QCOMPARE(TimeCodeRecord::toMap(test.host.getTimeCodeSetting()), TimeCodeRecord::toMap(setting));
        // A file of settings may hold anything.
        test.preferences.setValue(TimeCodeRecord::kPreference,
                                  QVariantMap{{QStringLiteral("oneFrame"), QStringLiteral("1,5")},
                                              {QStringLiteral("reset"), 7},
                                              {QStringLiteral("index"), 2.0}});
        const TimeCodeSetting read = test.host.getTimeCodeSetting();
        QVERIFY(read.oneFrame == 0 && !read.reset && read.index == 2 && read.usingRchFileInfo);
    }

    void commentsInFileModeAreThoseOfRecordings() {
        HostTest test;
        const Document* const file = test.list.addRecording(recordingOf({}, 1, QSize(8, 8)));
        QVERIFY(!test.host.listCameraKeys(true, false).contains(file->key()));
        test.list.setMode(HOST_MODE_FILE);
        QCOMPARE(test.host.listCameraKeys(true, false), QList<DOCKEY>{file->key()});
        QVERIFY(!test.host.listCameraKeys(false, false).contains(file->key()));
    }

    void withoutDocumentsEverythingIsNeutral() {
        HostTest test;
        test.list.removeAll();
        QVERIFY(test.host.currentDocument() == nullptr);
        QCOMPARE(test.host.getCurrentKey(), kInvalidDockey);
        QCOMPARE(test.host.getRecordRate(), 0UL);
        QCOMPARE(test.host.getShutterSpeed(1), 0UL);
        unsigned width = 7;
        unsigned height = 7;
        test.host.getResolution(width, height);
        QCOMPARE(width + height, 0U);
        QList<unsigned long> list{1};
        test.host.getShutterSpeedList(1, list);
        QVERIFY(list.isEmpty());
        QCOMPARE(test.host.existSupportedShutterLockMode(), int(MULTIPLE_DOCS_NOTHING));
        QCOMPARE(test.host.getTotalFrames(), 0);
        test.host.setRecordRate(1000); // reaches nobody
        test.host.setCurrentKey(5, true);
        test.host.deleteDocument(5);
        QVERIFY(test.host.docByKey(5, true) == nullptr);
        QCOMPARE(test.host.keyOfDocument(nullptr), kInvalidDockey);
    }

    void aDummyIsNeutralToo() {
        HostTest test;
        test.host.setCurrentKey(test.camera("Dummy")->key(), true);
        unsigned width = 7;
        unsigned height = 7;
        test.host.getMaxResolution(width, height);
        QCOMPARE(width + height, 0U);
        QCOMPARE(test.host.getTotalFrames(), 0);
        QCOMPARE(test.host.existSupportedShutterLockMode(),
                 int(MULTIPLE_DOCS_NOT_IN_CURRENT)); // "Mono" has it
        QVERIFY(test.host.isMultiLock() == false && test.host.isLowLight() == false);
    }

    void unknownKeysDontEmptyTheSelection() {
        HostTest test;
        test.host.setSelection({99}, false);
        QCOMPARE(test.host.getSelectedCount(), 1);
        test.host.setSelection({test.camera("Plain")->key(), 99}, false);
        QCOMPARE(test.host.getSelectedKeys(false), QList<DOCKEY>{test.camera("Plain")->key()});
        QCOMPARE(test.host.getCurrentKey(), test.camera("Plain")->key());
        test.host.deleteAllDocuments(0, true);
        QCOMPARE(test.host.getSelectedCount(), 0);
        QCOMPARE(test.host.getDocumentCount(), 6);
        test.host.deleteAllDocuments(0, false);
        QCOMPARE(test.host.getDocumentCount(), 0);
    }

    // A page that is left open by going over to the recordings comes back with live mode.
    void recordingsAreFreeOfWhatAPageForbids() {
        const QString binning = QStringLiteral("binning");
        HostTest test;
        SettingModes& modes = test.host.modes();
        test.host.setSelection({test.camera("Plain")->key(), test.camera("Mono")->key()}, false);
        Document* const current = test.list.current();
        const char* const other = current == test.camera("Mono") ? "Plain" : "Mono";
        const auto bin = [](Document& document, int level) {
            ViewState view = document.view();
            view.binning = level;
            document.setView(view);
        };
        bin(*current, 1);
        modes.set(SettingModes::AutoExposure, true);
        modes.forbid({binning}, true);
        QCOMPARE(current->view().binning, 0);
        Document& recording = *test.list.addRecording(recordingOf({}, 1, QSize(4, 4)));
        test.list.setMode(HOST_MODE_FILE);
        QVERIFY(test.list.tools().isAllowed(binning));
        QCOMPARE(current->view().binning, 1);
        bin(recording, 2);
        test.body(other)->unplug(); // not the camera that is edited
        QVERIFY(modes.isOn(SettingModes::AutoExposure));
        test.list.setMode(HOST_MODE_LIVE);
        QVERIFY(!test.list.tools().isAllowed(binning));
        QCOMPARE(current->view().binning, 0);
        test.list.setMode(HOST_MODE_FILE);
        QCOMPARE(recording.view().binning, 2);
        test.rig.findName(current->body()->name())->unplug();
        QVERIFY(!modes.isAny());
        test.list.setMode(HOST_MODE_LIVE);
        QVERIFY(test.list.tools().isAllowed(binning));
        QCOMPARE(current->view().binning, 1);
        QCOMPARE(recording.view().binning, 2);
    }

    void playbackGoesOnBehindTheLastPause() {
        HostTest test;
        FileDocument* const document = test.list.addRecording(recordingOf({}, 2, QSize(4, 4)));
        test.list.setMode(HOST_MODE_FILE);
        document->setPlaying(true);
        test.host.pausePlayback();
        test.host.pausePlayback();
        QVERIFY(!document->isPlaying());
        test.host.resumePlayback();
        QVERIFY(!document->isPlaying());
        test.host.resumePlayback();
        QVERIFY(document->isPlaying());
        test.host.resumePlayback(); // one too many
        QVERIFY(document->isPlaying());
    }

    // Refused in the middle of its way: the focus goes back to where it was, and the user hears why.
    void aRefusedAutofocusDrivesTheFocusBack() {
        HostTest test;
        test.select({test.camera("Mono")});
        SimulatedHead& head = test.head("Mono");
        const auto focus = [&head] { return head.lens().axis(LensAxis::Focus).target; };
        head.moveLens(LensAxis::Focus, 640).result();
        test.rig.clock().advanceMs(2000);
        test.host.openPlugin(QStringLiteral("autofocus"));
        QVERIFY(test.host.isAutoFocussing());
        test.rig.clock().advanceMs(1500);
        QVERIFY(test.host.isAutoFocussing());
        QVERIFY(focus() != 640 && !test.shell.busyText.isEmpty());
        test.body("Mono")->faults().refuseNext(1, QStringLiteral("jammed"));
        test.rig.clock().advanceMs(2000);
        QVERIFY(!test.host.isAutoFocussing());
        QCOMPARE(test.messages.failures.size(), 1);
        QCOMPARE(test.messages.failures.first().cameras.first().reason.english(), QStringLiteral("jammed"));
        QCOMPARE(focus(), 640);
        QCOMPARE(test.shell.busyText, QString());
    }

    // Each run compares its own pictures: those of the one before may have been brighter.
    void anAutofocusInDimmerLightFindsThePlaceToo() {
        HostTest test;
        test.select({test.camera("Mono")});
        SimulatedHead& head = test.head("Mono");
        const auto focused = [&] {
            head.moveLens(LensAxis::Focus, head.lens().axis(LensAxis::Focus).min).result();
            test.rig.clock().advanceMs(5000);
            test.host.openPlugin(QStringLiteral("autofocus"));
            for (int i = 0; i < 100 && test.host.isAutoFocussing(); ++i) {
                test.rig.clock().advanceMs(1000);
            }
            return head.lens().view().blur;
        };
        const double bright = focused();
        head.setShutter(head.settings().rate * 8).result();
        const double dim = focused();
        QVERIFY2(dim <= bright + 1, qPrintable(QStringLiteral("%1 against %2").arg(dim).arg(bright)));
    }

    // A camera that is out of phase warns while it is there.
    void thePhaseWarningGoesWithTheLink() {
        HostTest test;
        QList<bool> warnings;
        QObject here; // the warnings come from the observer's own thread
        connect(
            test.host.getPhaseAdjustObserver(), &RUN_ObservePhaseAdjustWarningThread::signalWarning, &here,
            [&](bool isWarn) { warnings.append(isWarn); }, Qt::QueuedConnection);
        test.body("Mono")->set(QStringLiteral("outOfPhase"), true);
        QTRY_COMPARE(warnings, QList<bool>({true}));
        test.body("Mono")->disconnectLink();
        QTRY_COMPARE(warnings, QList<bool>({true, false}));
        test.body("Mono")->connectLink().result();
        QTRY_COMPARE(warnings, QList<bool>({true, false, true}));
    }

    void theLiveImageRunsAgainWhenNobodyHoldsIt() {
        HostTest test;
        test.host.suspendLive(false);
        test.host.beginLiveHold();
        test.host.resumeLive();
        QVERIFY(!test.list.live().isRunning());
        test.host.endLiveHold();
        QVERIFY(test.list.live().isRunning());
    }

    void aMacroIsOneStep() {
        HostTest test;
        test.host.endMacro(); // none is open
        test.host.beginMacro(QString());
        test.host.history().push(std::make_unique<QUndoCommand>());
        test.host.history().push(std::make_unique<QUndoCommand>());
        test.host.undo(); // not in the middle of it
        test.host.endMacro();
        QVERIFY(test.host.canUndo());
        test.host.undo();
        QVERIFY(!test.host.canUndo());
        QVERIFY(test.host.canRedo());
        test.host.beginMacro(QString());
        test.host.endMacro(); // empty: nothing to undo
        QVERIFY(!test.host.canUndo() && test.host.canRedo());
        test.host.beginMacro(QString());
        test.host.beginMacro(QString());
        test.host.history().push(std::make_unique<QUndoCommand>());
        test.host.resetHistory();
        QVERIFY(!test.host.canUndo() && !test.host.canRedo());
    }

    // The end of a setting mode takes back what was recorded of its area, and nothing else.
    void theHistoryForgetsWithAnAreaAlone() {
        History history;
        QSignalSpy changes(&history, &History::changed);
        history.push(std::make_unique<QUndoCommand>());
        history.forgetAreaSteps();
        QVERIFY(history.stack().canUndo());
        history.beginMacro(QStringLiteral("drag"));
        history.pushAreaStep(std::make_unique<QUndoCommand>());
        history.endMacro();
        history.forgetAreaSteps();
        QVERIFY(!history.stack().canUndo() && !history.isInMacro());
        const auto areaOnly = [&changes](int i) { return changes.at(i).first().toBool(); };
        QVERIFY(!areaOnly(0));
        QVERIFY(areaOnly(1));
        QVERIFY(areaOnly(changes.size() - 1)); // the page leaves the area by itself
        history.push(std::make_unique<QUndoCommand>());
        QVERIFY(!areaOnly(changes.size() - 1));
        history.forgetAreaSteps(); // the steps on the area went the first time
        QVERIFY(history.stack().canUndo());
    }
};

QTEST_MAIN(tst_ViewerHost)
#include "tst_viewer_host.moc"

// What a plug-in sees of documents: kinds, names, coordinates, texts.
#include "livecontrol/interface/DOC_Camera.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Members.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DOC_Transfer.h"
#include "livecontrol/interface/DeviceObject.h"
#include "livecontrol/interface/DocumentCast.h"
#include "tests/support/Recordings.h"
#include "tests/support/SmallRig.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/SettingText.h"
#include "viewer/documents/commands/CameraCommands.h"
#include "viewer/recordings/FrameList.h"

#include <QtTest>

class tst_DocumentAdapter : public QObject {
    Q_OBJECT

    std::unique_ptr<SmallRig> m_small;

private slots:
    void init() { m_small = std::make_unique<SmallRig>(); }

    void theCastTellsACameraFromAFile() {
        DOC_Interface* const file = m_small->list.addRecording(recordingOf({}, 1, QSize(4, 4)))->face();
        QVERIFY(dynamic_cast<DOC_Camera*>(file) == nullptr);
        QVERIFY(file->isStandaloneKindA());
        QVERIFY(docAs<DOC_Settings>(file).isListHidden());
        QVERIFY(!docAs<DOC_Settings>(file).isFunctionSupported(117, true));
        QCOMPARE(docAs<DOC_Members>(file).getDeviceKey(), kInvalidDockey);
        QVERIFY(!file->canDeleteFile()); // it has none
        Document* const recording = m_small->list.recordings().first();
        recording->setPlaying(true);
        docAs<DOC_Transfer>(file).prepareShutdown(true, true, true);
        QVERIFY(!recording->isPlaying());
        QVERIFY(dynamic_cast<DOC_Camera*>(m_small->camera("Mono")->face()));
    }

    void devicesHeadsAndPlainCameras() {
        DOC_Interface* const plain = m_small->camera("Plain")->face();
        DOC_Interface* const right = m_small->camera("Twin", 1)->face();
        DOC_Interface* const device = m_small->camera("Twin")->parentDevice()->face();
        QVERIFY(!docAs<DOC_Members>(plain).isHeadDocument() && !docAs<DOC_Members>(plain).isDeviceDocument());
        QVERIFY(docAs<DOC_Members>(right).isHeadDocument());
        QVERIFY(docAs<DOC_Members>(device).isDeviceDocument());
        QCOMPARE(docAs<DOC_Members>(right).getDeviceKey(), m_small->camera("Twin")->parentDevice()->key());
        QCOMPARE(docAs<DOC_Settings>(right).getHeadCount(), 2);
        QCOMPARE(docAs<DOC_Settings>(right).getHeadNumber(), 2);
        QCOMPARE(docAs<DOC_Settings>(plain).getHeadNumber(), 0);
        QCOMPARE(device->getHeads(false).size(), 2);
        QVERIFY(docAs<DOC_Settings>(right).isSharedHeadSettings());
        QVERIFY(!docAs<DOC_Settings>(plain).isSharedHeadSettings());
        for (const auto& [face, type] : {std::pair(right, 1), std::pair(plain, 0)}) { // that has no Wi-Fi
            docAs<DOC_Settings>(face).setEtherType(1);
            QCOMPARE(docAs<DOC_Settings>(face).getEtherType(), type);
        }
    }

    void severalSelectedAreMarkedAndNoOther() {
        DOC_Interface* const mono = m_small->camera("Mono")->face();
        QVERIFY(!mono->isSelectedMulti());
        m_small->list.selectKeepCurrent(m_small->camera("Colour"));
        QVERIFY(mono->isSelectedMulti() && !m_small->camera("Plain")->face()->isSelectedMulti());
    }

    void presetsAreStoredAndSaidToBe() {
        const QSignalSpy told(&m_small->list, &DocumentList::told);
        auto& color = docAs<DOC_Settings>(m_small->camera("Colour")->face());
        color.storePreset(2);
        QCOMPARE(told.value(0).value(0).toString(),
                 QStringLiteral("Colour: the settings are stored as preset 2."));
        QVERIFY(color.isPresetLoadedAfterReboot());
        QVERIFY(!docAs<DOC_Settings>(m_small->camera("Mono")->face()).isPresetLoadedAfterReboot());
    }

    // Levels on the scale that the pages count on, target and range each from its own.
    void aChangedLevelIsToldAsThePagesShowIt() {
        HeadSettings before;
        HeadSettings now;
        now.exposure.value = 512;
        now.exposure.range = 16;
        now.shutter = before.shutter + 1;
        const SettingUnits units{1023, 63, 255, {}};
        const auto told = [&] { return settingChanges(before, now, units).join(QLatin1Char(';')); };
        QVERIFY2(told().contains(QStringLiteral("\u2192 128")) &&
                     told().contains(QStringLiteral("\u2192 64")),
                 qPrintable(told()));
        QVERIFY(told().contains(QStringLiteral("hutter")));
        now.exposure.on = true; // the shutter follows the light, nobody changed it
        QVERIFY2(!told().contains(QStringLiteral("hutter")), qPrintable(told()));
    }

    void headsShareADeviceObjectThatAnswersAsADocument() {
        auto* const left = dynamic_cast<DOC_Camera*>(m_small->camera("Twin", 0)->face());
        auto* const right = dynamic_cast<DOC_Camera*>(m_small->camera("Twin", 1)->face());
        auto* const plain = dynamic_cast<DOC_Camera*>(m_small->camera("Plain")->face());
        QCOMPARE(left->getDevice(), right->getDevice());
        QVERIFY(left->getDevice() != plain->getDevice());
        QCOMPARE(docAs<DOC_Interface>(plain->getDevice()).getHeads(false), QList<DOC_Interface*>{plain});
        docAs<DOC_Settings>(plain->getDevice()).powerOff();
        QVERIFY(!plain->isConnected());
        QCOMPARE(m_small->body("Plain")->state(), CameraState::Off);
    }

    void namesAreOwnNamesOrAddresses() {
        auto& right = docAs<DOC_Settings>(m_small->camera("Twin", 1)->face());
        QCOMPARE(right.getCameraName(true), QStringLiteral("Twin"));
        QVERIFY(right.getCameraName(false).contains(QLatin1Char('R')));
        const QSignalSpy renamed(&m_small->list, &DocumentList::namesChanged);
        m_small->list.setNamesAreAddresses(true);
        m_small->list.setNamesAreAddresses(true);
        QCOMPARE(renamed.count(), 1);
        QVERIFY(right.getCameraName(false).startsWith(QStringLiteral("192.168.0.14")));
        QCOMPARE(right.getCameraName(true), QStringLiteral("Twin")); // what an edit starts from
        QCOMPARE(right.getSerialNumber(true), 1014U);
    }

    void linkingWhatCannotBeReachedFails() {
        DOC_Interface* const mono = m_small->camera("Mono")->face();
        mono->setConnected(false);
        QVERIFY(!mono->isConnected());
        mono->setConnected(true);
        QVERIFY(mono->isConnected());
        m_small->body("Mono")->unplug();
        QVERIFY_EXCEPTION_THROWN(mono->setConnected(true), CameraFailure);
    }

    void coordinatesTurnThenMirrorThenShrink() {
        Document* const mono = m_small->camera("Mono");
        auto& geometry = docAs<DOC_Geometry>(mono->face());
        const QSize size = mono->imageSize();
        const QPointF corner(10, 20);
        QCOMPARE(geometry.mapOriginalToUserview(corner, 0), corner);
        ViewState view;
        view.quarterTurns = 1;
        mono->setView(view);
        QVERIFY(geometry.isAxisSwapped());
        QCOMPARE(geometry.mapOriginalToUserview(corner, 0), QPointF(size.height() - 20, 10));
        view.flipA = true;
        mono->setView(view);
        QCOMPARE(geometry.mapOriginalToUserview(corner, 0), QPointF(20, 10));
        view.binning = 1;
        mono->setView(view);
        QCOMPARE(geometry.mapOriginalToUserview(corner, 0), QPointF(10, 5));
        for (int turns = 0; turns < 4; ++turns) {
            view.quarterTurns = turns;
            view.flipB = turns % 2 == 0;
            mono->setView(view);
            QCOMPARE(geometry.mapUserviewToOriginal(geometry.mapOriginalToUserview(corner, 0)), corner);
        }
    }

    void aPointOutsideTheImageIsClampedOnRequest() {
        Document* const mono = m_small->camera("Mono");
        auto& geometry = docAs<DOC_Geometry>(mono->face());
        ViewState view;
        view.imageToView = QTransform::fromScale(0.5, 0.5) * QTransform::fromTranslate(100, 0);
        mono->setView(view);
        QCOMPARE(geometry.mapViewToImage(QPoint(110, 7), false), QPoint(20, 14));
        QCOMPARE(geometry.mapViewToImage(QPoint(0, 9999), true), QPoint(0, mono->imageSize().height() - 1));
        QCOMPARE(geometry.mapRectToView(QRect(20, 14, 10, 10), false), QRect(110, 7, 5, 5));
        const QRect shown = view.imageToView.mapRect(QRect(QPoint(), mono->imageSize()));
        QCOMPARE(geometry.mapRectToView(QRect(-20, -20, 9999, 9999), true), shown);
    }

    void shutterTextsFollowUnitAndGrouping() {
        QLocale::setDefault(QLocale(QLocale::English));
        DOC_Interface* const mono = m_small->camera("Mono")->face();
        QCOMPARE(mono->formatShutterSpeed(20000, 0), QStringLiteral("1/20000 sec"));
        m_small->list.setDisplayFormat([] {
            DisplayFormat format;
            format.shutter = ShutterFormat{2, true};
            return format;
        });
        QCOMPARE(ShutterFormat::fromCamera(300000, 2), 3333UL);
        QCOMPARE(mono->formatShutterSpeed(3333, 0), QStringLiteral("3.33 \u00b5s"));
        QCOMPARE(mono->formatShutterSpeed(ShutterFormat::fromCamera(60, 2), 0), QStringLiteral("16.67 ms"));
        QCOMPARE(mono->formatShutterSpeed(0, 0), QString());
        QVERIFY(ShutterFormat::fromCamera(1000000, 2) < ShutterFormat::fromCamera(900000, 2));
    }

    void valuesAreWrittenAsChosen() {
        QLocale::setDefault(QLocale(QLocale::English));
        DisplayFormat format;
        format.shutter = ShutterFormat{2, true, ShutterFormat::Seconds};
        QCOMPARE(format.shutter.text(16666667), QStringLiteral("0.01666667 s"));
        format.shutter.timeUnit = ShutterFormat::Milliseconds;
        QCOMPARE(format.shutter.text(3330), QStringLiteral("0.00333 ms"));
        format.shutter.timeUnit = ShutterFormat::Microseconds;
        QCOMPARE(format.shutter.text(16666667), QStringLiteral("16,666.67 \u00b5s"));
        format.shutter.timeUnit = 9; // from a file of settings
        QCOMPARE(format.shutter.text(16666667), QStringLiteral("16.67 ms"));

        QCOMPARE(format.rate(20000) + format.frames(-1500), QStringLiteral("20,000-1,500"));
        format.groupsRates = format.groupsFrames = false;
        QCOMPARE(format.rate(20000) + format.frames(-1500), QStringLiteral("20000-1500"));

        QCOMPARE(format.recordingTime(3661500, 1000), QStringLiteral("01:01:01.500"));
        format.recordingTimeUnit = DisplayFormat::Seconds;
        QCOMPARE(format.recordingTime(1, 3000), QStringLiteral("0.000333 s"));
        format.recordingTimeUnit = DisplayFormat::Milliseconds;
        QCOMPARE(format.recordingTime(1, 3000), QStringLiteral("0.333 ms"));
        format.recordingTimeUnit = DisplayFormat::Microseconds;
        QCOMPARE(format.recordingTime(1, 3000), QStringLiteral("333 \u00b5s"));
        QCOMPARE(format.recordingTime(1, 0), QString());
    }

    void valuesAtTheEndsOfTheirRange() {
        QLocale::setDefault(QLocale(QLocale::English));
        QCOMPARE(ShutterFormat::fromCamera(0, 2), 0UL);
        QCOMPARE(ShutterFormat::fromCamera(29, 1), 29UL); // as the camera has it
        QCOMPARE(ShutterFormat::fromCamera(1, 2), 1000000000UL);
        QCOMPARE(ShutterFormat::fromCamera(29, 2), 34482759UL); // the nearest one
        const ShutterFormat format{2, false};
        QCOMPARE(format.text(1000000), QStringLiteral("1.00 ms"));
        QCOMPARE(format.text(999990), QStringLiteral("999.99 \u00b5s"));
        const DisplayFormat plain;
        QCOMPARE(plain.recordingTime(86399999, 1000), QStringLiteral("23:59:59.999"));
        QCOMPARE(plain.recordingTime(100 * 3600, 1), QStringLiteral("100:00:00.000"));
        QCOMPARE(plain.recordingTime(1, 1000), QStringLiteral("00:00:00.001"));
    }

    void aThumbnailOfATurnedPictureIsSharp() {
        QImage frame(300, 100, QImage::Format_Grayscale8);
        frame.fill(Qt::black);
        frame.setPixelColor(7, 3, Qt::white);
        Document* const file =
            m_small->list.addRecording(std::make_shared<FrameList>(RecordingInfo(), QVector<QImage>{frame}));
        ViewState view;
        view.quarterTurns = 1;
        file->setView(view);
        const QImage picture =
            docAs<DOC_Geometry>(file->face()).renderThumbnail(0, 100, 300, 0, 0, nullptr).toImage();
        QCOMPARE(picture.size(), QSize(100, 300));
        QCOMPARE(qRed(picture.pixel(96, 7)), 255);
        QCOMPARE(qRed(picture.pixel(96, 8)), 0);
    }

    // The bits of a frame's number are no part of the picture once they can't be read.
    void aSmallerPictureHasNoSpecks() {
        QImage frame(400, 100, QImage::Format_Grayscale8);
        frame.fill(90);
        FrameStamp::write(frame, 12345, 8);
        Document* const file =
            m_small->list.addRecording(std::make_shared<FrameList>(RecordingInfo(), QVector<QImage>{frame}));
        const QImage small = file->recordedFrame(0, QSize(300, 300)).image;
        QCOMPARE(small.size(), QSize(300, 75));
        for (int x = 0; x < small.width(); ++x) {
            QCOMPARE(qRed(small.pixel(x, 0)), 90);
        }
        QVERIFY(FrameStamp::read(file->recordedFrame(0, QSize()).image));
    }

    // A plug-in reads and writes line breaks in a form of its own.
    void commentsKeepTheirLines() {
        Document* const mono = m_small->camera("Mono");
        auto& geometry = docAs<DOC_Geometry>(mono->face());
        geometry.setComment(QStringLiteral("one\r\ntwo{Separator}three\rfour\n"));
        QCOMPARE(mono->comment(), QStringLiteral("one\ntwo\nthree\nfour\n"));
        QCOMPARE(geometry.getComment(),
                 QStringLiteral("one{Separator}two{Separator}three{Separator}four{Separator}"));
    }
};

QTEST_MAIN(tst_DocumentAdapter)
#include "tst_document_adapter.moc"

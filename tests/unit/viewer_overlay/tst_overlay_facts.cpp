// What the information over an image knows of a camera and of its recording, and the texts at the ends of
// their range: nothing there, the first one, the last one that is taken.

#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/documents/DisplayFormat.h"
#include "viewer/overlay/InfoFacts.h"
#include "viewer/overlay/InfoText.h"
#include "viewer/overlay/NoteLines.h"
#include "viewer/overlay/SavedViewSettings.h"
#include "viewer/overlay/TimeCodeText.h"
#include "viewer/recordings/TimeCodeRecord.h"

#include <QtTest>

#include <functional>

using Change = std::function<void(InfoFacts&, OverlaySettings&)>;
Q_DECLARE_METATYPE(Change)

namespace {

InfoFacts recorded() {
    InfoFacts facts;
    facts.mode = HOST_MODE_MEMORY;
    facts.head = facts.partition = 1;
    facts.rate = 1000;
    facts.frames = 100;
    facts.position = facts.triggerIndex = 0;
    facts.triggered = QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6));
    facts.triggerMode = 0;
    facts.marks = {0, 7};
    return facts;
}

} // namespace

class tst_OverlayFacts : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void aCameraTellsWhatIsSetOrWithWhatWasRecorded() {
        HostTest test;
        SimulatedHead& head = test.head("Mono");
        const CameraDocument& camera = *test.camera("Mono");
        head.setResolution(QSize(128, 128)).result();
        head.setRate(1000).result();
        head.setTrigger(2, 1).result();
        test.record("Mono");
        const Recording recording = head.recording();
        QVERIFY(!recording.isEmpty());
        test.body("Mono")->goLive().result();
        head.setRate(500).result();
        head.setTrigger(1, 1).result();
        head.setResolution(QSize(256, 128)).result();

        const InfoFacts live = InfoFacts::of(camera);
        QCOMPARE(live.mode, HOST_MODE_LIVE);
        QCOMPARE(live.rate, 500U);
        QVERIFY(live.resolution != recording.settings.resolution);
        QCOMPARE(live.triggerMode, 1);
        QCOMPARE(live.frames, head.totalFrames());
        QVERIFY(live.position == -1 && !live.triggered.isValid() &&
                !live.ended.isValid()); // whatever lies there
        test.list.setMode(HOST_MODE_MEMORY);
        const InfoFacts replay = InfoFacts::of(camera);
        QCOMPARE(replay.mode, HOST_MODE_MEMORY);
        QCOMPARE(replay.rate, 1000U);
        QCOMPARE(replay.triggerMode, 2);
        QCOMPARE(replay.shutter, recording.settings.liveShutter());
        QCOMPARE(replay.resolution, recording.settings.resolution);
        QCOMPARE(replay.frames, recording.frames);
        QVERIFY(replay.frames != live.frames);
        QCOMPARE(replay.position, camera.playPosition());
        QCOMPARE(replay.triggerIndex, recording.triggerIndex());
        QVERIFY(replay.ended.isValid());
        QCOMPARE(replay.triggered.msecsTo(replay.ended), recording.triggerToEnd(replay.position) / 1000000);
        // One that has nothing in its memory tells what is set.
        const InfoFacts empty = InfoFacts::of(*test.camera("Colour"));
        QCOMPARE(empty.rate, test.head("Colour").settings().rate);
        QVERIFY(empty.rate > 0 && empty.frames == 0 && empty.position == -1);
    }

    void aHeadIsNamedAsTheListNamesIt() {
        HostTest test;
        const Document& right = *test.camera("Twin", 1);
        const auto name = [&] {
            return InfoText::value(QStringLiteral("Camera name"), InfoFacts::of(right), {}, {});
        };
        QCOMPARE(name(), QStringLiteral("Twin R"));
        QCOMPARE(InfoText::value(QStringLiteral("Head"), InfoFacts::of(right), {}, {}),
                 QStringLiteral("Head 2"));
        test.list.setNamesAreAddresses(true);
        QCOMPARE(name(), QStringLiteral("192.168.0.14 R"));
    }

    // Whatever can show makes the image's information new.
    void everyFactCounts() {
        const QVector<std::function<void(InfoFacts&)>> changes{
            [](InfoFacts& it) { it.mode = HOST_MODE_FILE; },
            [](InfoFacts& it) { it.cameraName += QLatin1Char('x'); },
            [](InfoFacts& it) { it.headName += QLatin1Char('x'); },
            [](InfoFacts& it) { it.deviceName += QLatin1Char('x'); },
            [](InfoFacts& it) { it.path += QLatin1Char('x'); },
            [](InfoFacts& it) { ++it.head; },
            [](InfoFacts& it) { ++it.partition; },
            [](InfoFacts& it) { ++it.rate; },
            [](InfoFacts& it) { ++it.shutter; },
            [](InfoFacts& it) { it.resolution = QSize(1, 1); },
            [](InfoFacts& it) { ++it.triggerMode; },
            [](InfoFacts& it) { ++it.frames; },
            [](InfoFacts& it) { ++it.position; },
            [](InfoFacts& it) { ++it.triggerIndex; },
            [](InfoFacts& it) { it.triggered = it.triggered.addMSecs(1); },
            [](InfoFacts& it) { it.ended = it.triggered; },
            [](InfoFacts& it) { ++it.clock; },
            [](InfoFacts& it) { it.saved = it.triggered; },
            [](InfoFacts& it) { ++it.zoom; },
            [](InfoFacts& it) { ++it.tones.saturation; },
            [](InfoFacts& it) { it.comment += QLatin1Char('x'); },
            [](InfoFacts& it) { it.items.append(CustomItem()); },
            [](InfoFacts& it) { it.logoPath += QLatin1Char('x'); },
            [](InfoFacts& it) { it.marks.append(9); },
            [](InfoFacts& it) { it.shots.append(RecordedShot()); }};
        QVERIFY(recorded() == recorded());
        for (int i = 0; i < changes.size(); ++i) {
            InfoFacts other = recorded();
            changes.at(i)(other);
            QVERIFY2(!(other == recorded()), qPrintable(QString::number(i)));
        }
    }

    void textsAtTheEndsOfTheRange_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* key, const char* text, const Change& change) {
            QTest::addRow("%s: %s", key, text)
                << QString::fromLatin1(key) << change << QString::fromUtf8(text);
        };
        const Change none = [](InfoFacts&, OverlaySettings&) {};
        const Change live = [](InfoFacts& it, OverlaySettings&) { it.position = -1; };
        row("Head", "Head 1", none);
        row("Head", "", [](InfoFacts& it, OverlaySettings&) { it.head = 0; });
        row("PartitionNumber", "Partition 1", none);
        row("PartitionNumber", "", [](InfoFacts& it, OverlaySettings&) { it.partition = 0; });
        row("FrameRate", "", [](InfoFacts& it, OverlaySettings&) { it.rate = 0; });
        row("FrameNumber", "1 (T+0)", none);
        row("FrameNumber", "", live);
        row("FrameNumber", "6 (T\u22121)", [](InfoFacts& it, OverlaySettings&) {
            it.position = 5;
            it.triggerIndex = 6;
        });
        row("MaxFrames", "1", [](InfoFacts& it, OverlaySettings&) { it.frames = 1; });
        row("MaxFrames", "", [](InfoFacts& it, OverlaySettings&) { it.frames = 0; });
        row("Length", "00:00:00.001", [](InfoFacts& it, OverlaySettings&) { it.frames = 1; });
        row("Length", "", [](InfoFacts& it, OverlaySettings&) { it.frames = 0; });
        row("EventMarker", "1", none);
        row("EventMarker", "2", [](InfoFacts& it, OverlaySettings&) { it.position = 7; });
        row("EventMarker", "", [](InfoFacts& it, OverlaySettings&) { it.position = 8; });
        row("EventMarker", "", [](InfoFacts& it, OverlaySettings&) {
            it.position = -1; // live
            it.marks = {-1};
        });
        row("Trigger", "Start Trg", none);
        row("Trigger", "", [](InfoFacts& it, OverlaySettings&) { it.triggerMode = -1; });
        row("RecEndTime", "", none); // nobody saw it
        row("RecEndTime", "", [](InfoFacts& it, OverlaySettings&) {
            it.ended = it.triggered;
            it.position = -1;
        });
        row("IrigCode", "034:04:05:06.000000", none);
        row("IrigCode", "", [](InfoFacts& it, OverlaySettings&) { it.rate = 0; });
        row("IrigCode", "", [](InfoFacts& it, OverlaySettings&) { it.triggered = QDateTime(); });
        row("IrigCode", "", live);
        row("IrigCode", "001:00:00:00.250000", [](InfoFacts& it, OverlaySettings&) {
            it.position = -1; // a live picture, when it is saved
            it.saved = QDateTime(QDate(2026, 1, 1), QTime(0, 0, 0, 250));
        });
        row("TimeCode", "+00:00:00", none);
        row("TimeCode", "", live);
        row("TimeCode", "", [](InfoFacts& it, OverlaySettings&) { it.rate = 0; });
        const auto own = [](InfoFacts& it, OverlaySettings& settings) {
            it.timeCode = TimeCodeSetting();
            it.timeCode->index = settings.timeCode.index = 1;
            it.timeCode->startValue = 5;
            settings.timeCode.startValue = 8;
        };
        row("TimeCode", "+005.0000 deg", own);
        row("TimeCode", "+008.0000 deg", [own](InfoFacts& it, OverlaySettings& settings) {
            own(it, settings);
            settings.timeCode.usingRchFileInfo = false;
        });
    }

    void textsAtTheEndsOfTheRange() {
        QFETCH(QString, key);
        QFETCH(Change, change);
        InfoFacts facts = recorded();
        OverlaySettings settings;
        change(facts, settings);
        QTEST(InfoText::value(key, facts, settings, {}), "text");
    }

    // The rest of a long comment is told by its last line, and what has no line has no separator either.
    void anItemOfManyLinesTellsWhatIsLeftOut() {
        OverlaySettings settings;
        settings.entries = DisplayEntries::read(
            QStringLiteral("Comment:true,<hr>,Custom:true,Resolution:true,<hr>,MaxFrames:true"));
        InfoFacts facts = recorded();
        facts.comment = QStringLiteral("line\n").repeated(NoteLines::Most + 3);
        facts.items = {{QStringLiteral("Hidden"), QStringLiteral("1"), QString(), false}};
        const QVector<InfoLine> lines = InfoText::lines(facts, settings, {});
        QCOMPARE(lines.size(), NoteLines::Most + 2);
        QCOMPARE(lines.at(NoteLines::Most - 1).leftOut, 3);
        QCOMPARE(lines.at(NoteLines::Most - 2).leftOut, 0);
        QVERIFY(lines.at(NoteLines::Most).kind == InfoLine::Kind::Separator);
        QCOMPARE(lines.last().text, QStringLiteral("Frame Count: 100"));
        facts.items.first().display = true;
        QCOMPARE(InfoText::lines(facts, settings, {}).at(NoteLines::Most + 1).key, QStringLiteral("Custom"));
    }

    void eachKindOfBreakIsOne() {
        QCOMPARE(NoteLines::of(QStringLiteral("one\rtwo\r\n\r\nfour\v{Separato\fsix\r")).lines,
                 (QStringList{QStringLiteral("one"), QStringLiteral("two"), QString(), QStringLiteral("four"),
                              QStringLiteral("{Separato"), QStringLiteral("six")}));
        QCOMPARE(NoteLines::of(QStringLiteral("x{Separator")).lines,
                 QStringList(QStringLiteral("x{Separator")));
        const QString longest(NoteLines::Longest, QLatin1Char('m'));
        QCOMPARE(NoteLines::of(longest).lines, QStringList(longest));
    }

    void settingsHoldWithinTheirLimitsAlone() {
        MapPreferences preferences;
        const auto style = [&](const char* name, int value) {
            preferences.values.clear();
            preferences.setValue(QStringLiteral("info/") + QLatin1String(name), value);
            return OverlaySettings::read(preferences).style;
        };
        QVERIFY(style("FontSize", 4).fontSize == 4 && style("FontSize", 200).fontSize == 200);
        QVERIFY(style("FontSize", 3).fontSize == 10 && style("FontSize", 201).fontSize == 10);
        QVERIFY(style("Width", 1).width == 1 && style("Width", 9999).width == 9999);
        QCOMPARE(style("Width", 10000).width, 600);
        const std::pair<Qt::AlignmentFlag, int> kinds[] = {
            {Qt::AlignLeft, 128}, {Qt::AlignHCenter, 64}, {Qt::AlignRight, 32}};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(style("Alignment", i).alignment, kinds[i].first);
            QCOMPARE(style("IconSize", i).logoHeight, kinds[i].second);
        }
        QVERIFY(!style("Width", 1).bold && !style("Width", 1).italic && !style("Width", 1).blankLine);
        for (const auto& [columns, expected] : {std::make_pair(1, 2), {2, 2}, {10, 10}, {11, 2}}) {
            preferences.setValue(QStringLiteral("saveinfo/ToColumn6"), true);
            preferences.setValue(QStringLiteral("saveinfo/ColumnNum6"), columns);
            preferences.setValue(QStringLiteral("saveinfo/ColumnSpacing6"), 12);
            const SavedGroup group = SavedViewSettings::read(preferences, {}).groups[5];
            QCOMPARE(group.columns, expected);
            QCOMPARE(group.columnSpacing, 12);
        }
    }

    void timeCodesAtTheirTurningPoints() {
        TimeCodeSetting crank;
        crank.index = 1;
        crank.oneFrame = 0.5;
        crank.resetValue = 10;
        QCOMPARE(TimeCodeText::text(crank, 20, 0), QStringLiteral("+010.0000 deg")); // it doesn't start anew
        QCOMPARE(TimeCodeText::text(TimeCodeSetting(), 5, 0), QString());
        const QDateTime second(QDate(2026, 1, 1), QTime(0, 0, 1));
        QCOMPARE(TimeCodeText::irig(second, -1000000000), QStringLiteral("001:00:00:00.000000"));
        QCOMPARE(TimeCodeText::irig(second, -1000), QStringLiteral("001:00:00:00.999999"));
        QCOMPARE(TimeCodeText::irig(second, 0), QStringLiteral("001:00:00:01.000000"));
    }

    // From a file that somebody has edited.
    void whatIsNoTimeCodeCountsAsMissing() {
        QVariantMap map =
            TimeCodeRecord::toMap({7, QStringLiteral("mm"), 0.5, 2, true, 12, 3, 4, true, false});
        map[QStringLiteral("index")] = 7.0; // as files give all numbers
        map[QStringLiteral("scopeDisplayIndex")] = 3LL;
        map[QStringLiteral("oneFrame")] = 2;
        TimeCodeSetting read = TimeCodeRecord::fromMap(map);
        QVERIFY(read.index == 7 && read.scopeDisplayIndex == 3 && read.oneFrame == 2.0);
        for (const char* const name : {"index", "displayUnit", "oneFrame", "startValue", "reset"}) {
            map[QLatin1String(name)] = QLatin1String(name) == QLatin1String("displayUnit")
                                           ? QVariant(5)
                                           : QVariant(QStringLiteral("1"));
        }
        map[QStringLiteral("resetValue")] = qInf();
        map.remove(QStringLiteral("decimalPlaceIndex"));
        read = TimeCodeRecord::fromMap(map);
        const TimeCodeSetting none;
        QCOMPARE(read.displayUnit, none.displayUnit);
        QVERIFY(read.index == 0 && read.oneFrame == 0 && read.startValue == 0 && !read.reset);
        QVERIFY(read.resetValue == 0 && read.decimalPlaceIndex == 0);
        QVERIFY(read.decimalDivide && !read.usingRchFileInfo); // the others hold
    }
};

QTEST_GUILESS_MAIN(tst_OverlayFacts)
#include "tst_overlay_facts.moc"

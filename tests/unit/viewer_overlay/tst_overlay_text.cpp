// What the information over an image says: the list of items, the settings however damaged, and the texts.

#include "livecontrol/interface/InfoItems.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/documents/DisplayFormat.h"
#include "viewer/overlay/InfoFacts.h"
#include "viewer/overlay/InfoText.h"
#include "viewer/overlay/NoteLines.h"
#include "viewer/overlay/OverlaySettings.h"
#include "viewer/overlay/SavedViewSettings.h"
#include "viewer/overlay/TimeCodeText.h"
#include "viewer/prefs/FilePreferences.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

QStringList list(std::initializer_list<const char*> texts) {
    QStringList result;
    for (const char* const text : texts) {
        result += QString::fromUtf8(text);
    }
    return result;
}

/// With each item of the table switched on, in its order.
OverlaySettings everything() {
    MapPreferences preferences;
    QVector<DisplayEntry> entries;
    for (const InfoItem& item : kInfoItems) {
        if (*item.key != '\0') {
            entries.append({QLatin1String(item.key), true});
        }
    }
    preferences.setValue(QStringLiteral("info/display"), DisplayEntries::text(entries));
    return OverlaySettings::read(preferences);
}

InfoFacts recorded(HostMode mode) {
    InfoFacts facts;
    facts.mode = mode;
    facts.cameraName = QStringLiteral("Marlin");
    facts.headName = QStringLiteral("L");
    facts.deviceName = QStringLiteral("Mono 12");
    facts.head = 2;
    facts.partition = 3;
    facts.rate = 2000;
    facts.shutter = 5000;
    facts.resolution = QSize(1280, 1024);
    facts.triggerMode = 1;
    facts.frames = 1500;
    facts.position = 1233;
    facts.triggerIndex = 1234;
    facts.triggered = QDateTime(QDate(2024, 12, 31), QTime(23, 59, 59, 999));
    facts.ended = facts.triggered.addSecs(2);
    facts.zoom = 50;
    facts.tones = {1, 150};
    facts.comment = QStringLiteral("one{Separator}two");
    facts.items = {{QStringLiteral("Load"), QStringLiteral("9"), QStringLiteral("kN"), true},
                   {QStringLiteral("Hidden"), QStringLiteral("1"), QString(), false}};
    return facts;
}

QStringList texts(const QVector<InfoLine>& lines) {
    QStringList result;
    for (const InfoLine& line : lines) {
        result += line.kind == InfoLine::Kind::Separator ? QStringLiteral("-")
                  : line.kind == InfoLine::Kind::Logo    ? QStringLiteral("(logo)")
                                                         : line.text;
    }
    return result;
}

} // namespace

class tst_OverlayText : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void aStoredListIsReadAgain() {
        QRandomGenerator random(20240229);
        for (int run = 0; run < 500; ++run) {
            QVector<DisplayEntry> list;
            for (int i = random.bounded(60); i > 0; --i) {
                const InfoItem& item = kInfoItems[random.bounded(int(std::size(kInfoItems)) - 1)];
                const QString key = random.bounded(5) > 0 ? QString::fromLatin1(item.key)
                                                          : QStringLiteral("No \u00e4 <b>%1").arg(i);
                const bool isSeparator = key == QLatin1String(kInfoSeparator);
                list.append({key, !isSeparator && random.bounded(2) == 1});
            }
            QCOMPARE(DisplayEntries::read(DisplayEntries::text(list)), list);
        }
        QCOMPARE(DisplayEntries::text(
                     DisplayEntries::read(QStringLiteral(",,Head:true,Nonsense,:true,<hr>,Head:,"))),
                 QStringLiteral("Head:true,<hr>,Head:false"));
    }

    void theFactoryListHoldsEachItemThatAModeOffers() {
        const FilePreferences preferences{QString()};
        QStringList expected;
        for (const InfoItem& item : kInfoItems) {
            if (item.key != QByteArray(kInfoSeparator) && (item.live || item.memory || item.file)) {
                expected += QLatin1String(item.key);
            }
        }
        QStringList keys;
        for (const DisplayEntry& entry :
             DisplayEntries::read(preferences.factoryDefault(QStringLiteral("info/display")).toString())) {
            keys += entry.isSeparator() ? QStringList() : QStringList(entry.key);
        }
        QCOMPARE(keys, expected);
        QCOMPARE(preferences.factoryDefault(QStringLiteral("info/BlankLine")), QVariant(false));
        const OverlayStyle style = OverlaySettings::read(preferences).style;
        QCOMPARE(style.width, OverlayStyle().width); // what stands in for nonsense is the same
        QCOMPARE(style.fontSize, OverlayStyle().fontSize);
        QCOMPARE(style.color, OverlayStyle().color);
    }

    void nonsenseInThePreferencesIsLeftOut_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        for (const char* const key : {"info/Width", "info/FontSize", "info/Alignment", "info/IconSize"}) {
            for (const char* const value : {"0x", "-1", "1e9", "99999999999", "", "<b>", "1,5"}) {
                QTest::addRow("%s=%s", key, value)
                    << QString::fromLatin1(key) << QVariant(QLatin1String(value));
            }
            QTest::addRow("%s map", key) << QString::fromLatin1(key) << QVariant(QVariantMap());
        }
        QTest::newRow("width 0") << QStringLiteral("info/Width") << QVariant(0);
        for (const char* const value : {"no color", "#12", "rgb(1,2)", "rgb(999,0,0)"}) {
            QTest::newRow(value) << QStringLiteral("info/ForegroundColor") << QVariant(QLatin1String(value));
        }
    }

    void nonsenseInThePreferencesIsLeftOut() {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        MapPreferences preferences;
        preferences.setValue(key, value);
        const OverlayStyle style = OverlaySettings::read(preferences).style;
        const OverlayStyle start;
        QCOMPARE(style.width, start.width);
        QCOMPARE(style.fontSize, start.fontSize);
        QCOMPARE(style.alignment, start.alignment);
        QCOMPARE(style.logoHeight, start.logoHeight);
        QCOMPARE(style.color, start.color);
    }

    void settingsAreReadWhateverTheirType() {
        MapPreferences preferences;
        for (const QVariant& width : {QVariant(321), QVariant(QStringLiteral("321"))}) {
            preferences.setValue(QStringLiteral("info/Width"), width);
            QCOMPARE(OverlaySettings::read(preferences).style.width, 321);
        }
        for (const char* const color : {"#ff8000", "rgb(255, 128, 0)", "rgba(255,128,0, 1)"}) {
            preferences.setValue(QStringLiteral("info/ForegroundColor"), QLatin1String(color));
            QCOMPARE(OverlaySettings::read(preferences).style.color, QColor(255, 128, 0));
        }
        preferences.setValue(QStringLiteral("info/Alignment"), QStringLiteral("2"));
        QCOMPARE(OverlaySettings::read(preferences).style.alignment, Qt::AlignRight);
        preferences.setValue(QStringLiteral("info/BlankLine"), QStringLiteral("true"));
        QVERIFY(OverlaySettings::read(preferences).style.blankLine);
        for (const SavedGroup& group : SavedViewSettings::read(preferences, {}).groups) {
            QVERIFY(group.texts.style.blankLine); // one setting for both
        }
        preferences.setValue(QStringLiteral("info/FontName"), QStringLiteral("Serif"));
        preferences.setValue(QStringLiteral("info/FontSize"), 44);
        preferences.setValue(QStringLiteral("info/Italic"), true);
        preferences.setValue(QStringLiteral("info/LogoPath"), QStringLiteral("/over.png"));
        preferences.setValue(QStringLiteral("info/IconSize"), 0);
        preferences.setValue(QStringLiteral("saveinfo/LogoPath"), QStringLiteral("/saved.png"));
        preferences.setValue(QStringLiteral("info/timeCode"), QVariantMap{{QStringLiteral("oneFrame"), 0.5}});
        const SavedViewSettings saved = SavedViewSettings::read(preferences, {});
        QCOMPARE(saved.logoPath, QStringLiteral("/saved.png"));
        QCOMPARE(saved.groups[2].texts.timeCode.oneFrame, 0.5);
        const OverlaySettings read = OverlaySettings::read(preferences);
        QVERIFY(read.style.logoHeight == 128 && read.timeCode.oneFrame == 0.5);
        QCOMPARE(read.style.font().family(), QStringLiteral("Serif"));
        QVERIFY(read.style.font().italic() && read.style.font().pointSize() == 44);
        QCOMPARE(read.logoPath, QStringLiteral("/over.png"));
        QString list;
        for (int i = 0; i < 10000; ++i) {
            list += QStringLiteral("Head:true,<hr>,Unknown %1:true,Comment,").arg(i);
        }
        preferences.setValue(QStringLiteral("info/display"), list + QStringLiteral("Trigger:true"));
        const QVector<DisplayEntry> entries = OverlaySettings::read(preferences).entries;
        QCOMPARE(DisplayEntries::text(entries), QStringLiteral("Head:true,<hr>,Trigger:true"));
    }

    void aChangeIsReadOnce() {
        MapPreferences preferences;
        OverlayPreferences overlay(preferences);
        QCOMPARE(overlay.settings().style.width, OverlayStyle().width);
        const unsigned before = overlay.revision();
        preferences.setValue(QStringLiteral("info/Width"), 77);
        QVERIFY(!overlay.noteChange(QStringLiteral("env/style")));
        QCOMPARE(overlay.settings().style.width, OverlayStyle().width);
        QCOMPARE(overlay.revision(), before);
        QVERIFY(overlay.noteChange(QStringLiteral("info/Width")));
        QCOMPARE(overlay.settings().style.width, 77);
        QVERIFY(overlay.revision() != before);
    }

    void eachModeShowsWhatItOffers() {
        const OverlaySettings settings = everything();
        InfoFacts live = recorded(HOST_MODE_LIVE);
        live.position = -1;
        live.clock = QDateTime(QDate(2024, 5, 1), QTime(7, 8, 9)).toSecsSinceEpoch();
        QCOMPARE(texts(InfoText::lines(live, settings, {})), list({"Marlin L",
                                                                   "Head 2",
                                                                   "Partition 3",
                                                                   "-",
                                                                   "Frame rate: 2,000 fps",
                                                                   "Shutter speed: 1/5,000 sec",
                                                                   "Resolution: 1280 x 1024",
                                                                   "-",
                                                                   "Frame Count: 1,500",
                                                                   "Rec Time: 00:00:00.750",
                                                                   "-",
                                                                   "Current Time: 07:08:09",
                                                                   "-",
                                                                   "Trigger mode: Center Trg",
                                                                   "-",
                                                                   "LUT: Gamma 1.5",
                                                                   "Saturation: 150 %",
                                                                   "Zoom rate: 50 %",
                                                                   "-",
                                                                   "Comment: one",
                                                                   "two",
                                                                   "(logo)",
                                                                   "Load: 9 kN"}));
        QCOMPARE(texts(InfoText::lines(recorded(HOST_MODE_MEMORY), settings, {})),
                 list({"Marlin L",
                       "Head 2",
                       "Partition 3",
                       "-",
                       "Frame rate: 2,000 fps",
                       "Shutter speed: 1/5,000 sec",
                       "Resolution: 1280 x 1024",
                       "-",
                       "Frame No: 1,234 (T\u22121)",
                       "Frame Count: 1,500",
                       "Rec Time: 00:00:00.750",
                       "-",
                       "Current Time: -00:00:00.0005",
                       "-",
                       "Trigger mode: Center Trg",
                       "-",
                       "LUT: Gamma 1.5",
                       "Saturation: 150 %",
                       "Zoom rate: 50 %",
                       "-",
                       "Comment: one",
                       "two",
                       "(logo)",
                       "Load: 9 kN",
                       "-",
                       "Rec end time: 2025-01-01 00:00:01.999"}));
        QCOMPARE(texts(InfoText::lines(recorded(HOST_MODE_FILE), settings, {})).mid(0, 4),
                 list({"Mono 12", "-", "Date/Time Rec: 2024-12-31 23:59:59.999", "-"}));
    }

    // An empty camera, and a list in an order of the user's.
    void separatorsStandBetweenItemsAlone() {
        MapPreferences preferences;
        preferences.setValue(
            QStringLiteral("info/display"),
            QStringLiteral("<hr>,FrameNumber:true,<hr>,Zoom:true,<hr>,Comment:true,<hr>,<hr>,"
                           "Resolution:true,Camera name:true,<hr>,Trigger:true,<hr>"));
        InfoFacts facts;
        facts.cameraName = QStringLiteral("Marlin");
        facts.resolution = QSize(8, 6);
        const auto shown = [&] {
            return texts(InfoText::lines(facts, OverlaySettings::read(preferences), {}));
        };
        QCOMPARE(shown(), list({"Resolution: 8 x 6", "Marlin"}));
        facts.triggerMode = 99;
        QCOMPARE(shown(), list({"Resolution: 8 x 6", "Marlin", "-", "Trigger mode: None Error Trg"}));
    }

    void theRecordingsOwnTimeCodeCounts() {
        OverlaySettings settings = everything();
        InfoFacts facts = recorded(HOST_MODE_FILE);
        const auto shown = [&] {
            return InfoText::value(QStringLiteral("TimeIrigCode"), facts, settings, {});
        };
        facts.timeCode = TimeCodeSetting();
        facts.timeCode->index = 1;
        facts.timeCode->oneFrame = 2;
        QCOMPARE(shown(), QStringLiteral("-002.0000 deg"));
        facts.timeCode->realTime = true;
        QCOMPARE(shown(), QStringLiteral("-002.0000 deg")); // which has no time of day
        facts.timeCode->index = 0;                          // half a millisecond before the trigger
        QCOMPARE(shown(), QStringLiteral("366:23:59:59.998500"));
        settings.timeCode.overwrite = true;
        QCOMPARE(shown(), QStringLiteral("-00:00:00.0005"));
        settings.timeCode.realTime = true;
        QCOMPARE(shown(), QStringLiteral("366:23:59:59.998500"));
        facts.triggered = QDateTime();
        QCOMPARE(shown(), QStringLiteral("-00:00:00.0005"));
    }

    void aTimeIsWrittenInItsScope_data() {
        QTest::addColumn<int>("scope");
        QTest::addColumn<int>("places");
        QTest::addColumn<bool>("divided");
        QTest::addColumn<QString>("text");
        QTest::newRow("hours") << 0 << 0 << false << "+01:01:01.002";
        QTest::newRow("hours, places") << 0 << 4 << true << "+01:01:01.002 0";
        QTest::newRow("minutes") << 1 << 1 << false << "+61:01.0";
        QTest::newRow("seconds") << 2 << 9 << true << "+3661.002 000 000 sec";
        QTest::newRow("milliseconds") << 3 << 0 << false << "+3661002 msec";
        QTest::newRow("microseconds") << 4 << 3 << true << "+3661002000.000 usec";
        QTest::newRow("nanoseconds") << 5 << 0 << true << "+3661002000000 nsec";
        QTest::newRow("nonsense") << 77 << -5 << false << "+01:01:01.002";
        QTest::newRow("too many places") << 2 << 77 << false << "+3661.002000000 sec";
    }

    void aTimeIsWrittenInItsScope() {
        QFETCH(int, scope);
        QFETCH(int, places);
        QFETCH(bool, divided);
        TimeCodeSetting setting;
        setting.scopeDisplayIndex = scope;
        setting.decimalPlaceIndex = places;
        setting.decimalDivide = divided;
        QTEST(TimeCodeText::text(setting, 3661002, 1000), "text");
    }

    void aValueStartsAnew() {
        TimeCodeSetting crank;
        crank.index = 1;
        crank.oneFrame = 0.1;
        crank.startValue = 10;
        crank.reset = true;
        crank.resetValue = 730;
        QCOMPARE(TimeCodeText::text(crank, 0, 0), QStringLiteral("+010.0000 deg"));
        QCOMPARE(TimeCodeText::text(crank, 7199, 0), QStringLiteral("+729.9000 deg"));
        for (const qint64 turn : {-2, -1, 1, 100000}) {
            QCOMPARE(TimeCodeText::value(crank, turn * 7200 + 3), TimeCodeText::value(crank, 3));
        }
        crank.oneFrame = -0.1; // never comes there
        QCOMPARE(TimeCodeText::text(crank, 7200, 0), QStringLiteral("-710.0000 deg"));
        crank.resetValue = -10;
        QCOMPARE(TimeCodeText::value(crank, 200), 10.0);
        crank.oneFrame = qQNaN();
        crank.startValue = 1e300;
        QCOMPARE(TimeCodeText::text(crank, 5, 0), QStringLiteral("+999900000.0000 deg"));
    }

    void aMomentIsWrittenAsIrigHasIt() {
        const QDateTime moment(QDate(2023, 12, 31), QTime(23, 59, 59, 999));
        QCOMPARE(TimeCodeText::irig(moment, 1500000), QStringLiteral("001:00:00:00.000500"));
        QCOMPARE(TimeCodeText::irig(moment, -999000001), QStringLiteral("365:23:59:59.000000"));
        QCOMPARE(TimeCodeText::irig(moment, -1000000000), QStringLiteral("365:23:59:58.999000"));
    }

    void notesKeepTheirLines() {
        const NoteLines notes = NoteLines::of(QString::fromUtf8("one\r\ntwo{Separator}\n\tthree\xe2\x80\xa8"
                                                                "four\n\n{Separator} \n"));
        QCOMPARE(notes.lines, list({"one", "two", "", " three", "four"}));
        QCOMPARE(notes.leftOut, 0);
        QCOMPARE(NoteLines::of({QStringLiteral("Load"), QStringLiteral("a\nb"), QStringLiteral("kg")}).lines,
                 list({"Load: a", "b kg"}));
        QVERIFY(NoteLines::of(QStringLiteral(" \n \t\n")).lines.isEmpty());
        const NoteLines many = NoteLines::of(QStringLiteral("<b>line</b>\n\n").repeated(100000));
        QCOMPARE(many.lines.size(), int(NoteLines::Most));
        QCOMPARE(many.lines.size() + many.leftOut, 199999); // the last ones are blank
        const QString camera = QString::fromUtf8("\xf0\x9f\x93\xb7");
        const QString line = NoteLines::of(QStringLiteral("x") + camera.repeated(500000)).lines.value(0);
        QCOMPARE(line.size(), int(NoteLines::Longest)); // a sign for half a character
        QVERIFY(line.endsWith(camera + QChar(0x2026)));
    }

    // A pixel of a binned image stands for several of the original.
    void theZoomIsThatOfTheOriginal() {
        HostTest test;
        Document& camera = *test.camera("Mono");
        ViewState view = camera.view();
        view.zoom = 3;
        camera.setView(view);
        QCOMPARE(InfoFacts::of(camera).zoom, 300);
        view.binning = 1;
        camera.setView(view);
        QCOMPARE(InfoFacts::of(camera).zoom, 150);
    }

    void theHostTellsTheLabel() {
        HostTest test;
        QCOMPARE(test.host.getInfoItemLabel(QStringLiteral("Device")), QStringLiteral("Device name"));
        QCOMPARE(test.host.getInfoItemLabel(QStringLiteral("FanStatus")), QStringLiteral("FanStatus"));
        QCOMPARE(test.host.getInfoItemLabel(QString()), QString());
    }
};

QTEST_GUILESS_MAIN(tst_OverlayText)
#include "tst_overlay_text.moc"

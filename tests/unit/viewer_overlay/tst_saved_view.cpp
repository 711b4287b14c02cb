// What is saved of a picture with its information: where the places stand, what is in them, that all frames
// of a recording have one size, and that a preview is what will be saved.

#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DOC_Save.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/messages/Translated.h"
#include "viewer/overlay/SavedViewPictures.h"
#include "viewer/recordings/FrameList.h"

#include <QFontMetrics>
#include <QTemporaryDir>
#include <QtConcurrent>
#include <QtTest>

namespace {

using View = SavedViewSettings;
const QColor kBlue(0, 0, 255);

QString key(const char* name, int group) {
    return QStringLiteral("saveinfo/") + QLatin1String(name) + QString::number(group);
}

QColor groundOf(int group) { return QColor(200, 20 * group, 10); }

QImage blue(const QSize& size) {
    QImage image(size, QImage::Format_RGB888);
    image.fill(kBlue);
    return image;
}

/// What encloses the pixels of that color.
QRect part(const QImage& image, const QColor& color) {
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color.rgb()) {
                found |= QRect(x, y, 1, 1);
            }
        }
    }
    return found;
}

InfoFacts facts() {
    InfoFacts facts;
    facts.mode = HOST_MODE_FILE;
    facts.cameraName = QStringLiteral("Marlin");
    facts.rate = 1000;
    facts.frames = 1000;
    facts.position = 0;
    facts.triggerIndex = 500;
    facts.triggered = QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6));
    facts.saved = QDateTime(QDate(2026, 10, 11), QTime(12, 13, 14));
    facts.path = QStringLiteral("/recordings/drop.zrec");
    facts.comment = QStringLiteral("one\ntwo");
    return facts;
}

QVector<InfoLine> items(int count) {
    QVector<InfoLine> lines;
    for (int i = 0; i < count; ++i) {
        lines.append({InfoLine::Kind::Text, QString::number(i), QStringLiteral("text %1").arg(i)});
    }
    return lines;
}

} // namespace

class tst_SavedView : public QObject {
    Q_OBJECT

    MapPreferences m_preferences;

    void set(const char* name, int group, const QVariant& value) {
        m_preferences.values[key(name, group)] = value;
    }
    SavedViewSettings settings() { return View::read(m_preferences, DisplayFormat()); }
    SavedView view() { return SavedView(settings(), QImage()); }
    /// Every place has a ground of its own and that item.
    void fillPlaces(const char* item) {
        for (int group = 0; group <= View::Places; ++group) {
            set("display", group, QLatin1String(item) + QStringLiteral(":true"));
            set("UseBackgroundColor", group, true);
            set("BackgroundColor", group, groundOf(group).name());
            set("Width", group, QStringLiteral("100"));
        }
    }
    FileDocument& openRecording(HostTest& test) {
        RecordingInfo info;
        info.camera = QStringLiteral("Marlin");
        info.rate = 1000;
        info.comment = QStringLiteral("one");
        QVector<QImage> frames(3, QImage(301, 99, QImage::Format_Grayscale8));
        for (QImage& frame : frames) {
            frame.fill(40 * int(&frame - frames.constData() + 1));
        }
        FileDocument& document = *test.list.addRecording(std::make_shared<FrameList>(info, frames));
        test.list.setMode(HOST_MODE_FILE);
        return document;
    }

private slots:
    void init() { m_preferences.values.clear(); }

    void placesStandAroundThePicture() {
        fillPlaces("Camera name");
        const QImage image = view().compose(blue({321, 201}), facts());
        const QRect picture = part(image, kBlue);
        QCOMPARE(picture.size(), QSize(321, 201));
        const auto ground = [&](int group) { return part(image, groundOf(group)); };
        QVERIFY(part(image, groundOf(0)).isNull()); // the stock stands nowhere
        QCOMPARE(ground(1), QRect(0, 0, image.width(), picture.top()));
        QCOMPARE(ground(6).bottom(), image.height() - 1);
        QCOMPARE(ground(6).top(), picture.bottom() + 1);
        for (const int left : {2, 4}) {
            QCOMPARE(ground(left).right(), picture.left() - 1);
            QCOMPARE(ground(left + 1).left(), picture.right() + 1);
            QCOMPARE(ground(left).height(), ground(left + 1).height());
        }
        QCOMPARE(ground(2).top(), picture.top());
        QCOMPARE(ground(4).bottom(), picture.bottom());
        QCOMPARE(image.size(), view().size({321, 201}, facts()));
        QVERIFY(image.width() % 2 == 0 && image.height() % 2 == 0);
    }

    void placesStandWithinThePicture() {
        fillPlaces("Camera name");
        m_preferences.values[QStringLiteral("saveinfo/WithinImage")] = true;
        set("Alignment", 1, QStringLiteral("1"));
        set("Alignment", 6, QStringLiteral("2"));
        const QImage image = view().compose(blue({401, 301}), facts());
        QCOMPARE(image.size(), QSize(401, 301));
        const auto ground = [&](int group) { return part(image, groundOf(group)); };
        QVERIFY(qAbs(ground(1).center().x() - 200) < 2 && ground(1).top() == 0);
        QCOMPARE(ground(6).bottomRight(), QPoint(400, 300));
        QCOMPARE(ground(2).topLeft(), QPoint(0, ground(1).bottom() + 1));
        QCOMPARE(ground(3).topRight(), QPoint(400, ground(1).bottom() + 1));
        QCOMPARE(ground(4).bottomLeft(), QPoint(0, ground(6).top() - 1));
        QCOMPARE(ground(5).bottomRight(), QPoint(400, ground(6).top() - 1));
    }

    void textsAlongThePictureStandWhereTheAlignmentSays() {
        set("display", 1, QStringLiteral("Camera name:true"));
        set("FontSize", 1, QStringLiteral("24")); // strokes as wide as a pixel
        set("ForegroundColor", 1, QStringLiteral("#00ff00"));
        for (const int alignment : {0, 1, 2}) {
            set("Alignment", 1, alignment);
            const QRect ink = part(view().compose(blue({600, 20}), facts()), QColor(0, 255, 0));
            const int expected[] = {ink.width() / 2, 300, 600 - ink.width() / 2};
            QVERIFY2(qAbs(ink.center().x() - expected[alignment]) < 25,
                     qPrintable(QString::number(alignment)));
        }
    }

    // However much there is, the places of a picture don't run into each other.
    void fullPlacesStayApart() {
        fillPlaces("Comment");
        m_preferences.values[QStringLiteral("saveinfo/WithinImage")] = true;
        InfoFacts much = facts();
        much.comment =
            QString(300, QLatin1Char('m')) + QString(100, QLatin1Char('\n')) + QStringLiteral("end");
        const QImage image = view().compose(blue({400, 300}), much);
        for (int one = 1; one <= View::Places; ++one) {
            const QRect ground = part(image, groundOf(one));
            QVERIFY(!ground.isEmpty());
            for (int other = 1; other < one; ++other) {
                QVERIFY2(!ground.intersects(part(image, groundOf(other))), qPrintable(QString::number(one)));
            }
        }
        for (const QSize& size : {QSize(1, 1), QSize(64, 8), QSize(9, 4000)}) {
            QCOMPARE(view().compose(blue(size), much).size(), size);
        }
    }

    void itemsRunDownTheColumns() {
        SavedGroup group;
        group.texts.style.fontPixels = 20;
        const QSize most(1000, 1000);
        const auto size = [&](const QVector<InfoLine>& lines) {
            return SavedBlock(lines, group, QImage(), most).size();
        };
        const int line = QFontMetrics(group.texts.style.font()).lineSpacing();
        const QSize one = size(items(2));
        QCOMPARE(one.height(), 2 * line + 1);
        group.columns = 3;
        group.columnSpacing = 30;
        QCOMPARE(size(items(6)).height(), one.height());
        QCOMPARE(size(items(6)).width(), 3 * one.width() + 60);
        QCOMPARE(size(items(4)), size(items(6)));                              // two, one and one
        QCOMPARE(size(items(7)), QSize(size(items(6)).width(), 3 * line + 1)); // three, two and two
        QCOMPARE(size(items(2)).height(), line + 1);                           // no more columns than items
        QVector<InfoLine> lines = items(3);
        lines[1].key = lines[0].key; // two lines of one item
        QCOMPARE(size(lines).height(), 2 * line + 1);
        lines.insert(2, {InfoLine::Kind::Separator, QString(), QString()}); // columns are apart anyway
        QCOMPARE(size(lines).height(), 2 * line + 1);
        group.texts.style.width = size(items(6)).width() - 10; // of all columns and what lies between them
        QVERIFY(size(items(6)).width() <= group.texts.style.width);
    }

    void aFixedRatioFollowsThePicture() {
        set("display", 2, QStringLiteral("Camera name:true,File name:true"));
        set("FontSize", 2, QStringLiteral("24"));
        set("ToColumn", 2, true);
        set("ColumnSpacing", 2, 90); // grows with the texts
        const auto margin = [&](int width) { return view().size({width, 3000}, facts()).width() - width; };
        const int plain = margin(400);
        QCOMPARE(margin(1600), plain);
        set("FixedFontSizeRatio", 2, true);
        QCOMPARE(margin(1600), plain); // nobody knows of what
        set("FixedFontSizeRatioBaseResolution", 2, QSize(400, 300));
        QCOMPARE(margin(400), plain);
        QVERIFY2(qAbs(margin(1600) - 4 * plain) <= 0.05 * 4 * plain,
                 qPrintable(QString::number(margin(1600))));
        QVERIFY(margin(100) < plain / 2);
    }

    void allFramesHaveOneSizeAndOnlyNewTextsAreLaidOut() {
        set("display", 1, QStringLiteral("Camera name:true"));
        set("display", 4, QStringLiteral("FrameNumber:true"));
        SavedView view = this->view();
        InfoFacts frame = facts();
        const QSize size = view.compose(blue({320, 200}), frame).size();
        const int first = view.layoutCount();
        view.compose(blue({320, 200}), frame);
        QCOMPARE(view.layoutCount(), first);
        for (const int position : {9, 99, 500, 999}) {
            frame.position = position;
            QCOMPARE(view.compose(blue({320, 200}), frame).size(), size);
        }
        QCOMPARE(view.layoutCount(), first + 4);
        QCOMPARE(this->view().size({320, 200}, frame), size); // whichever frame comes first
        InfoFacts alone = facts();
        alone.frames = 1;
        QVERIFY(this->view().size({320, 200}, alone).width() < size.width()); // the last number is longer
    }

    void whatIsSavedHasItsOwnItems() {
        OverlaySettings settings;
        settings.isSaved = true;
        settings.entries = DisplayEntries::read(
            QStringLiteral("File name:true,Date:true,Time:true,IrigCode:true,Head:true,ZoomRate:true"));
        QStringList texts;
        InfoFacts frame = facts();
        frame.position = 501; // a millisecond after the trigger
        for (const InfoLine& line : InfoText::lines(frame, settings, DisplayFormat())) {
            texts += line.text;
        }
        QCOMPARE(
            texts.join(QLatin1Char('|')),
            QStringLiteral("drop.zrec|Date: 2026-10-11|Time(Alt): 12:13:14|IRIG Time: 034:04:05:06.001000"));
    }

    void nothingOfItNeedsToMakeSense() {
        QCOMPARE(view().compose(blue({31, 7}), facts()), blue({31, 7}).convertToFormat(QImage::Format_RGB32));
        QVERIFY(view().compose(QImage(), facts()).isNull());
        fillPlaces("Camera name");
        for (const QVariant& value : {QVariant(QStringLiteral("<b>")), QVariant(-1), QVariant(1e30)}) {
            for (const char* const name : {"FontSize", "Width", "Alignment", "ColumnNum", "ColumnSpacing",
                                           "BackgroundColor", "FixedFontSizeRatioBaseResolution"}) {
                set(name, 2, value);
            }
            set("ToColumn", 2, true);
            set("FixedFontSizeRatio", 2, true);
            const QSize size = view().size({100, 100}, facts());
            QVERIFY(size.width() > 100 && size.width() < 2000);
        }
    }

    void anotherThreadMakesTheSame() {
        fillPlaces("Comment");
        const SavedView made = view();
        const auto compose = [made] { return SavedView(made).compose(blue({320, 200}), facts()); };
        QCOMPARE(QtConcurrent::run(compose).result(), compose());
    }

    void theOutputHasALanguageOfItsOwn() {
        struct : QTranslator {
            bool isEmpty() const override { return false; }
            QString translate(const char*, const char* text, const char*, int) const override {
                return QStringLiteral("program's ") + QLatin1String(text);
            }
        } program;
        QCoreApplication::installTranslator(&program);
        {
            const OutputLanguage::Scope none(OutputLanguage::chosen(0));
            QCOMPARE(translated("Date"), QStringLiteral("program's Date"));
        }
        {
            const OutputLanguage::Scope english(OutputLanguage::chosen(1));
            QCOMPARE(translated("Date"), QStringLiteral("Date"));
        }
        QCOMPARE(translated("Date"), QStringLiteral("program's Date"));
        QCoreApplication::removeTranslator(&program);
    }

    // What a page shows and what is saved come from the same drawing.
    void thePreviewIsWhatIsSaved() {
        HostTest test;
        fillPlaces("Comment");
        test.preferences.values = m_preferences.values;
        SavedViewPictures pictures(test.list, test.preferences);
        test.list.setSavedPictures(&pictures);
        FileDocument& document = openRecording(test);
        document.setPlayPosition(1);
        auto& save = dynamic_cast<DOC_Save&>(*document.face());
        auto& geometry = dynamic_cast<DOC_Geometry&>(*document.face());
        for (const bool isWithin : {false, true}) {
            test.preferences.setValue(QStringLiteral("saveinfo/WithinImage"), isWithin);
            const QSize size = save.getImageSize(1, 1, 0);
            const SavedPictures::Shot shot{document, 0, 3, QDateTime()};
            const QImage saved = pictures.view(shot).compose(document.recordedFrame(2).image,
                                                             SavedViewPictures::factsOf(shot));
            QCOMPARE(saved.size(), size);
            QCOMPARE(SavedViewPictures::factsOf(shot).position, 2);
            QCOMPARE(SavedViewPictures::factsOf({document, 0, 1, QDateTime()}).position, 0);
            QVERIFY(!part(saved, QColor(120, 120, 120)).isEmpty());
            for (const int kind : {10, 11, 17, 18}) {
                const QImage preview =
                    geometry.renderThumbnail(kind, size.width(), size.height(), 1, 3, nullptr).toImage();
                QCOMPARE(preview, saved);
            }
            const QImage small = geometry.renderThumbnail(10, 200, 200, 1, 0, nullptr).toImage();
            QCOMPARE(small.width(), 200);
            QVERIFY(isWithin ||
                    qAbs(part(small, QColor(80, 80, 80)).width() - 301.0 * 200 / size.width()) <= 2);
        }
    }

    void aPlainPictureStaysPlain() {
        HostTest test;
        fillPlaces("Comment");
        test.preferences.values = m_preferences.values;
        SavedViewPictures pictures(test.list, test.preferences);
        test.list.setSavedPictures(&pictures);
        FileDocument& document = openRecording(test);
        auto& save = dynamic_cast<DOC_Save&>(*document.face());
        auto& geometry = dynamic_cast<DOC_Geometry&>(*document.face());
        const auto thumbnail = [&](int frame) {
            return geometry.renderThumbnail(9, 301, 400, 1, frame, nullptr).toImage();
        };
        QCOMPARE(thumbnail(0).size(), QSize(301, 99));
        QCOMPARE(qRed(thumbnail(0).pixel(5, 5)), 40);
        QCOMPARE(qRed(thumbnail(2).pixel(5, 5)), 80);
        QVERIFY(thumbnail(4).isNull());
        QCOMPARE(save.getImageSize(1, 1, 1), QSize(301, 99));
        ViewState turned = document.view();
        turned.quarterTurns = 1;
        document.setView(turned);
        QCOMPARE(save.getImageSize(1, 1, 1), QSize(99, 301));
        QVERIFY(save.getImageSize(1, 1, 0).height() > 301);
        QCOMPARE(geometry.renderThumbnail(9, 500, 301, 1, 0, nullptr).size(), QSize(99, 301));
    }

    void aPartitionIsShownByItsOwnRecording() {
        HostTest test;
        SavedViewPictures pictures(test.list, test.preferences);
        test.list.setSavedPictures(&pictures);
        DOC_Interface& face = *test.camera("Mono")->face();
        auto& save = dynamic_cast<DOC_Save&>(face);
        auto& geometry = dynamic_cast<DOC_Geometry&>(face);
        const auto width = [&](int partition, int kind) {
            return geometry.renderThumbnail(kind, 100, 100, partition, 0, nullptr).width();
        };
        QCOMPARE(width(2, 9) + width(2, 10), 200); // live there is but one picture
        const QSize live = save.getImageSize(1, 2, 1);
        QVERIFY(!live.isEmpty());
        test.list.setMode(HOST_MODE_MEMORY);
        for (const int kind : {9, 10}) {
            QCOMPARE(width(2, kind), 0);
            QVERIFY(save.getImageSize(1, 2, kind - 9).isEmpty()); // nothing is recorded there
        }
        QCOMPARE(save.getImageSize(1, 1, 1), live);
    }

    void aLogoStandsInItsPlaceAndIsReadAnew() {
        HostTest test;
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("logo.png"));
        test.preferences.setValue(key("display", 3), QStringLiteral("Logo:true"));
        SavedViewPictures pictures(test.list, test.preferences);
        FileDocument& document = openRecording(test);
        const SavedPictures::Shot shot{document, 0, 0, QDateTime()};
        QCOMPARE(pictures.size(shot), QSize(301, 99));
        document.setLogoPath(path);
        QCOMPARE(pictures.size(shot), QSize(301, 99)); // not there yet
        QVERIFY(blue({20, 10}).save(path));
        const QImage image = pictures.image(shot, pictures.size(shot));
        QCOMPARE(part(image, kBlue).size(), QSize(20, 10));
        QVERIFY(part(image, kBlue).left() > 301);
    }
};

QTEST_MAIN(tst_SavedView)
#include "tst_saved_view.moc"

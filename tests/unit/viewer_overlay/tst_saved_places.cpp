// Where each thing of a saved picture stands, to the pixel: the places, their columns, a logo in its place.

#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/overlay/LogoImage.h"
#include "viewer/overlay/SavedPlaces.h"
#include "viewer/overlay/SavedView.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

#include <array>

namespace {

using View = SavedViewSettings;
const QColor kBlue(0, 0, 255);

/// What encloses the pixels of that color.
QRect part(const QImage& image, const QColor& color) {
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            found |= image.pixel(x, y) == color.rgb() ? QRect(x, y, 1, 1) : QRect();
        }
    }
    return found;
}

QImage filled(const QSize& size, const QColor& color, QImage::Format format = QImage::Format_RGB32) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image.convertToFormat(format);
}

constexpr std::array<int, View::Places> kGaps{1, 2, 3, 4, 5, 6};

/// The texts of the places are so large, as far as there is room.
SavedPlaces::Measure measureOf(const std::array<QSize, View::Places>& texts) {
    return [texts](int place, const QSize& most) { return texts[size_t(place)].boundedTo(most); };
}

} // namespace

class tst_SavedPlaces : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private slots:
    void eachPlaceHasWhatItNeedsAroundThePicture() {
        std::array<QSize, View::Places> texts;
        texts[View::Upper] = {40, 9};
        texts[View::LeftUpper] = {30, 20};
        texts[View::RightUpper] = {15, 5};
        texts[View::LeftLower] = {10, 50};
        texts[View::RightLower] = {21, 7};
        texts[View::Lower] = {33, 8};
        const SavedPlaces made = SavedPlaces::around({100, 60}, kGaps, measureOf(texts));
        QCOMPARE(made.size, QSize(166, 114)); // one more each, to be even
        QCOMPARE(made.picture, QRect(34, 22, 100, 60));
        const auto cell = [&](int place) { return made.places[size_t(place)].cell; };
        QCOMPARE(cell(View::Upper), QRect(0, 0, 166, 11));
        QCOMPARE(cell(View::LeftUpper), QRect(0, 11, 34, 24));
        QCOMPARE(cell(View::LeftLower), QRect(0, 35, 34, 58));
        QCOMPARE(cell(View::RightUpper), QRect(134, 11, 32, 11));
        QCOMPARE(cell(View::RightLower), QRect(134, 76, 32, 17));
        QCOMPARE(cell(View::Lower), QRect(0, 93, 166, 21));
        QCOMPARE(made.places[View::Upper].most, QSize(163, 398));
        QCOMPARE(made.places[View::LeftLower].most.height(), 392);
        QCOMPARE(SavedPlaces::around({9, 500}, kGaps, measureOf(texts)).places[View::Lower].most.height(),
                 488);
        const SavedPlaces none = SavedPlaces::around({101, 61}, kGaps, measureOf({}));
        QCOMPARE(none.size, QSize(101, 61)); // a picture alone stays as it is
        QVERIFY(none.places[View::Lower].cell.isEmpty());
        std::array<QSize, View::Places> right; // is the higher side
        right[View::RightUpper] = right[View::RightLower] = {10, 40};
        QCOMPARE(SavedPlaces::around({100, 60}, kGaps, measureOf(right)).size, QSize(120, 96));
    }

    void placesWithinThePictureShareItsHeight() {
        std::array<QSize, View::Places> texts;
        texts[View::Upper] = {40, 9};
        texts[View::LeftUpper] = {30, 500};
        texts[View::RightUpper] = {500, 5};
        texts[View::LeftLower] = {500, 500};
        texts[View::Lower] = {33, 8};
        std::array<Qt::AlignmentFlag, View::Places> alignments{};
        alignments[View::Upper] = Qt::AlignHCenter;
        alignments[View::Lower] = Qt::AlignRight;
        const SavedPlaces made = SavedPlaces::within({301, 201}, kGaps, alignments, measureOf(texts));
        QCOMPARE(made.size, QSize(301, 201));
        QCOMPARE(made.picture, QRect(0, 0, 301, 201));
        const auto cell = [&](int place) { return made.places[size_t(place)].cell; };
        QCOMPARE(cell(View::Upper), QRect(129, 0, 42, 11));
        QCOMPARE(cell(View::Lower), QRect(256, 181, 45, 20));
        QCOMPARE(cell(View::LeftUpper), QRect(0, 11, 34, 85)); // half of what is left
        QCOMPARE(cell(View::LeftLower), QRect(0, 96, 150, 85));
        QCOMPARE(cell(View::RightUpper), QRect(151, 11, 150, 11));
        QVERIFY(cell(View::RightLower).isEmpty());
        QCOMPARE(made.places[View::Upper].most, QSize(299, 65));       // a third
        QCOMPARE(made.places[View::RightUpper].most, QSize(144, 164)); // nothing is below it
    }

    void columnsStandSideBySide() {
        SavedGroup group;
        group.columns = 2;
        group.columnSpacing = 30;
        OverlayStyle& style = group.texts.style;
        style.fontPixels = 20;
        style.width = 200;
        style.alignment = Qt::AlignRight;
        QVector<InfoLine> lines;
        for (const char* const text : {"first", "mmmmmmmmmmmmmmmmmm", "third"}) {
            lines.append({InfoLine::Kind::Text, QLatin1String(text), QLatin1String(text)});
        }
        OverlayLayout::Room room;
        room.width = 85;
        room.height = 1000;
        room.isTight = true;
        const OverlayLayout left(lines.mid(0, 2), style, QImage(), room);
        const OverlayLayout right(lines.mid(2), style, QImage(), room);
        const SavedBlock block(lines, group, QImage(), QSize(1000, 1000));
        QCOMPARE(block.size(), QSize(left.size().width() + 30 + right.size().width(), left.size().height()));
        QImage expected = filled(block.size(), Qt::darkGreen);
        QImage painted = expected;
        {
            QPainter painter(&expected);
            left.paint(painter);
            painter.translate(left.size().width() + 30, 0);
            right.paint(painter);
        }
        QPainter painter(&painted);
        block.paint(painter);
        QVERIFY(painter.transform().isIdentity());
        QCOMPARE(painted, expected);
    }

    void aLogoStandsAtTheGapFromItsEdges() {
        MapPreferences preferences;
        preferences.setValue(QStringLiteral("saveinfo/display1"), QStringLiteral("Logo:true"));
        preferences.setValue(QStringLiteral("saveinfo/FontSize1"), 24); // 32 pixels: gaps of 16
        for (const int alignment : {0, 1, 2}) {
            preferences.setValue(QStringLiteral("saveinfo/Alignment1"), alignment);
            const View settings = View::read(preferences, {});
            QVERIFY(settings.isShown("Logo") && !settings.isShown("Comment"));
            SavedView view(settings, filled({21, 10}, kBlue));
            const QImage image = view.compose(filled({300, 40}, Qt::red), {});
            QCOMPARE(image.size(), QSize(300, 40 + 32 + 11 + 1));
            const int lefts[] = {16, 139, 262}; // a logo has a column of its edge at the right
            QCOMPARE(part(image, kBlue), QRect(lefts[alignment], 16, 21, 10));
        }
        SavedView large(View::read(preferences, {}), filled({400, 400}, kBlue));
        QCOMPARE(large.size({300, 40}, {}).height(), 40 + 32 + 128 + 2); // four lines, and even
    }

    void aViewIsArrangedAnewForWhatIsNew() {
        MapPreferences preferences;
        preferences.setValue(QStringLiteral("saveinfo/display2"), QStringLiteral("Comment:true"));
        const View settings = View::read(preferences, {});
        SavedView view(settings, QImage());
        InfoFacts facts;
        const auto isAsNew = [&](const QSize& picture) {
            return view.size(picture, facts) == SavedView(settings, QImage()).size(picture, facts);
        };
        QVERIFY(isAsNew({64, 48}));
        facts.comment = QStringLiteral("longer");
        QVERIFY(isAsNew({64, 48}));
        QVERIFY(isAsNew({128, 48}));
        const auto picture = [](const QSize& size) { return filled(size, kBlue); };
        QCOMPARE(view.fitted({64, 48}, facts, view.size({64, 48}, facts), picture).size(),
                 view.size({64, 48}, facts));
        QVERIFY(view.fitted({64, 48}, facts, QSize(0, 9), picture).isNull());
        QVERIFY(view.fitted(QSize(), facts, QSize(9, 9), picture).isNull());
        QVERIFY(view.fitted({64, 48}, facts, {9, 9}, [](const QSize&) { return QImage(); }).isNull());
    }

    void aLargeLogoIsMadeSmallerWhateverItsForm() {
        const auto read = [this](const QSize& size, const char* name, QImage::Format format) {
            filled(size, kBlue, format).save(path(name));
            return LogoImage::read(path(name));
        };
        for (const char* const name : {"logo.png", "logo.bmp", "logo.jpg"}) {
            for (const QImage::Format format :
                 {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_Indexed8}) {
                const QImage wide = read({2048, 40}, name, format);
                QCOMPARE(wide.size(), QSize(1024, 20));
                QVERIFY(qBlue(wide.pixel(1000, 10)) > 250 && qRed(wide.pixel(1000, 10)) < 5);
                QCOMPARE(read({40, 2048}, name, format).size(), QSize(20, 1024));
                QCOMPARE(read({1024, 1024}, name, format).size(), QSize(1024, 1024));
            }
        }
        QCOMPARE(read({4096, 1}, "line.png", QImage::Format_RGB32).size(), QSize(1024, 1));
    }
};

QTEST_MAIN(tst_SavedPlaces)
#include "tst_saved_places.moc"

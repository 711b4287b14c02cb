// Where the information over an image stands and what it looks like, judged by rows and by pixels, and when
// it is made anew.

#include "tests/support/Recordings.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/overlay/InfoOverlay.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QStringList list(std::initializer_list<const char*> texts) {
    QStringList result;
    for (const char* const text : texts) {
        result += QString::fromUtf8(text);
    }
    return result;
}

QVector<InfoLine> textLines(const QStringList& texts) {
    QVector<InfoLine> lines;
    for (const QString& text : texts) {
        lines.append({text == QLatin1String("-") ? InfoLine::Kind::Separator : InfoLine::Kind::Text,
                      QStringLiteral("Comment"), text});
    }
    return lines;
}

QStringList rowTexts(const OverlayLayout& layout) {
    QStringList texts;
    for (const OverlayLayout::Row& row : layout.rows()) {
        texts += row.text;
    }
    return texts;
}

/// What encloses the pixels of that color, as it is mixed with nothing.
QRect part(const QImage& image, const QColor& color) {
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                found |= QRect(x, y, 1, 1);
            }
        }
    }
    return found;
}

OverlayStyle red() {
    OverlayStyle style;
    style.color = QColor(255, 0, 0);
    style.fontSize = 24; // strokes as wide as a pixel
    return style;
}

QImage painted(const OverlayLayout& layout) {
    QImage image(layout.size(), QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QPainter painter(&image);
    layout.paint(painter);
    return image;
}

QImage filled(int width, int height, const QColor& color) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

FrameSourcePtr framesOf(int count) {
    RecordingInfo info;
    info.camera = QStringLiteral("Marlin");
    info.rate = 1000;
    info.shutter = 2000;
    return recordingOf(info, count, QSize(8, 6));
}

} // namespace

class tst_OverlayLayout : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private slots:
    void textsWrapAtTheWidth() {
        OverlayStyle style;
        style.width = 120;
        const QString text = QStringLiteral("several words that don't fit into one row and a-very-long-one-"
                                            "without-any-blank-that-fits-into-none");
        const OverlayLayout layout(textLines({text, QString(), QStringLiteral("end")}), style, QImage(), {});
        QVERIFY(layout.rows().size() > 5);
        QString joined;
        int bottom = 0;
        for (const OverlayLayout::Row& row : layout.rows()) {
            QVERIFY2(row.box.width() <= 120 && row.box.top() == bottom, qPrintable(row.text));
            QVERIFY(
                !row.text.endsWith(QLatin1Char(' '))); // at the right it would keep the text from the edge
            bottom = row.box.bottom() + 1;
            joined += row.text;
        }
        QString expected = text + QStringLiteral("end");
        QCOMPARE(joined.remove(QLatin1Char(' ')), expected.remove(QLatin1Char(' ')));
        style.width = OverlayStyle::LargestWidth;
        OverlayLayout::Room room;
        room.width = 5000; // the view is narrower than the width that was asked for
        style.alignment = Qt::AlignRight;
        const OverlayLayout wide(textLines({text}), style, QImage(), room);
        QCOMPARE(wide.rows().size(), 1);
        QCOMPARE(wide.rows().first().box.right(), 4999);
        style.width = 1; // one character a row is the least
        QVERIFY(OverlayLayout(textLines({QStringLiteral("abc")}), style, QImage(), {}).rows().size() == 3);
    }

    void textsStandWhereTheAlignmentSays() {
        OverlayStyle style = red();
        style.width = 300;
        for (const Qt::AlignmentFlag alignment : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
            style.alignment = alignment;
            const QRect ink = part(
                painted(OverlayLayout(textLines({QStringLiteral("HHH")}), style, QImage(), {})), style.color);
            QVERIFY(ink.width() > 20 && ink.height() > 10);
            const int expected = alignment == Qt::AlignLeft    ? ink.width() / 2
                                 : alignment == Qt::AlignRight ? 300 - ink.width() / 2
                                                               : 150;
            QVERIFY2(qAbs(ink.center().x() - expected) < 12, // a letter has room at its sides
                     qPrintable(QString::number(ink.center().x())));
        }
    }

    void fontAndColorShow() {
        OverlayStyle style = red();
        const auto ink = [&] {
            return part(painted(OverlayLayout(textLines({QStringLiteral("HHHH")}), style, QImage(), {})),
                        style.color)
                .size();
        };
        const QSize plain = ink();
        style.bold = true;
        QVERIFY(ink().width() > plain.width());
        style.fontSize = 12;
        QVERIFY(ink().height() < plain.height() && !ink().isEmpty());
        style.fontName = QStringLiteral("No Such Font <b>");
        QVERIFY(!ink().isEmpty());
        style.color = Qt::black; // with a light edge
        const QImage dark = painted(OverlayLayout(textLines({QStringLiteral("HHHH")}), style, QImage(), {}));
        int light = 0;
        for (int x = 0; x < dark.width(); ++x) {
            light += dark.pixelColor(x, dark.height() / 2).lightness() > 150 ? 1 : 0;
        }
        QVERIFY(light > 2);
    }

    void aSeparatorIsALineOrAnEmptyLine() {
        OverlayStyle style = red();
        const QVector<InfoLine> lines =
            textLines({QStringLiteral(" "), QStringLiteral("-"), QStringLiteral(" ")});
        const auto longest = textLines({QStringLiteral("          .")}) + lines;
        const OverlayLayout line(longest, style, QImage(), {});
        const QRect ink = part(painted(line).copy(line.rows().at(2).box), style.color);
        QCOMPARE(ink.height(), 1);
        QCOMPARE(ink.width(), line.rows().first().box.width());
        style.blankLine = true;
        const OverlayLayout blank(lines, style, QImage(), {});
        QCOMPARE(part(painted(blank), style.color), QRect());
        QCOMPARE(blank.rows().at(1).box.height(), QFontMetrics(style.font()).lineSpacing());
        QVERIFY(OverlayLayout(textLines({QStringLiteral("-")}), style, QImage(), {}).isEmpty());
    }

    void whatIsLeftOutIsTold() {
        const OverlayStyle style;
        const int spacing = QFontMetrics(style.font()).lineSpacing();
        const auto rows = [&](const QVector<InfoLine>& lines, int height) {
            OverlayLayout::Room room;
            room.height = height * spacing;
            return rowTexts(OverlayLayout(lines, style, QImage(), room));
        };
        const QVector<InfoLine> lines = textLines(list({"one", "two", "three", "four", "five"}));
        const auto count = [](int left) { return QStringLiteral("\u2026 (+%1)").arg(left); };
        QCOMPARE(rows(lines, 5), list({"one", "two", "three", "four", "five"}));
        QCOMPARE(rows(lines, 3), (list({"one", "two"}) << count(3)));
        QCOMPARE(rows(lines, 1), QStringList(QStringLiteral("one ") + count(4)));
        QVERIFY(rows(lines, 0).isEmpty());
        QVector<InfoLine> notes = lines;
        notes.last().leftOut = 100;
        QCOMPARE(rows(notes, 6).last(), count(100)); // all that is here stands, and the sign
        QCOMPARE(rows(notes, 3), (list({"one", "two"}) << count(103)));
        for (const int height : {2, 3}) { // a separator stands before no sign
            QCOMPARE(rows(textLines(list({"one", "-", "two", "three"})), height),
                     (list({"one"}) << count(2)));
        }
        OverlayLayout::Room low;
        low.height = spacing; // less than the logo needs
        const QVector<InfoLine> logo{{InfoLine::Kind::Logo, QStringLiteral("Logo"), QString()}};
        QVERIFY(OverlayLayout(logo, style, filled(64, 64, Qt::blue), low).isEmpty());
        const QString longest =
            rows(textLines({QString(5000, QLatin1Char('m')), QStringLiteral("two")}), 1).value(0);
        QVERIFY(QFontMetrics(style.font()).horizontalAdvance(longest) <= style.width);
        QVERIFY(longest.startsWith(QLatin1String("mmm")) && longest.contains(QStringLiteral("\u2026 (+")));
        OverlayStyle narrow;
        narrow.width = QFontMetrics(style.font()).horizontalAdvance(QStringLiteral("m\u2026"));
        OverlayLayout::Room room;
        room.height = 3 * spacing;
        const OverlayLayout cut(lines, narrow, QImage(), room);
        QVERIFY(QFontMetrics(style.font()).horizontalAdvance(cut.rows().last().text) <= narrow.width);
    }

    // Written from the right, with markup, with marks that turn what follows: it stays in its row.
    void anyTextIsTextAlone() {
        const OverlayStyle style = red();
        const QString hebrew = QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d 12 \xe2\x80\xae<b>&amp;");
        // The letters may come from a font that needs more height than a row of ours: one stays between them.
        const OverlayLayout layout(textLines({hebrew, QString(), QStringLiteral("HHHH")}), style, QImage(),
                                   {});
        QCOMPARE(rowTexts(layout), QStringList({hebrew, QString(), QStringLiteral("HHHH")}));
        const QImage image = painted(layout);
        const QRect second = part(image.copy(layout.rows().at(2).box), style.color);
        const OverlayLayout alone(textLines({QStringLiteral("HHHH")}), style, QImage(), {});
        QCOMPARE(second, part(painted(alone).copy(alone.rows().first().box), style.color));
    }

    void theLogoIsDrawnInItsPlace() {
        OverlayStyle style;
        QVector<InfoLine> lines = textLines({QStringLiteral("one")});
        lines.append({InfoLine::Kind::Logo, QStringLiteral("Logo"), QString()});
        lines += textLines({QStringLiteral("two")});
        const OverlayLayout layout(lines, style, filled(400, 200, Qt::blue), {});
        const QRect box = layout.rows().at(1).box;
        QCOMPARE(box.size(), QSize(128, 64));
        QCOMPARE(part(painted(layout), Qt::blue), box);
        QCOMPARE(layout.rows().at(2).box.top(), box.bottom() + 1);
        style.logoHeight = 32;
        QCOMPARE(OverlayLayout(lines, style, filled(10, 5, Qt::blue), {}).rows().at(1).box.size(),
                 QSize(10, 5));
        style.width = 40;
        QCOMPARE(OverlayLayout(lines, style, filled(400, 4, Qt::blue), {}).rows().at(1).box.size(),
                 QSize(40, 1));
        QCOMPARE(OverlayLayout(lines, style, QImage(), {}).rows().size(), 2);
        const QVector<InfoLine> separator = textLines({QStringLiteral("-")});
        lines = lines.mid(0, 1) + separator + lines.mid(1, 1) + separator + lines.mid(2);
        QCOMPARE(rowTexts(OverlayLayout(lines, style, QImage(), {})), list({"one", "", "two"})); // one line
    }

    void anyFileMayBeTheLogo() {
        QVERIFY(filled(3000, 1500, Qt::blue).save(path("large.png")));
        QCOMPARE(LogoImage::read(path("large.png")).size(), QSize(1024, 512));
        QVERIFY(filled(30, 15, Qt::blue).save(path("odd.txt"), "JPG"));
        QCOMPARE(LogoImage::read(path("odd.txt")).size(), QSize(30, 15));
        QImage huge(20000, 20000, QImage::Format_Mono);
        huge.fill(0);
        QVERIFY(huge.save(path("huge.png")));
        huge = QImage();
        QVERIFY(LogoImage::read(path("huge.png")).isNull()); // it would take seconds
        QFile whole(path("large.png"));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        QFile cut(path("cut.png"));
        QVERIFY(cut.open(QIODevice::WriteOnly));
        cut.write(whole.read(60));
        cut.close();
        QVERIFY(LogoImage::read(path("cut.png")).isNull());
        QVERIFY(LogoImage::read(path("missing.png")).isNull());
        QVERIFY(LogoImage::read(m_folder.path()).isNull());
        QVERIFY(LogoImage::read(QStringLiteral("/dev/zero")).isNull());
    }

    void nothingIsMadeAnewWithoutAChange() {
        HostTest test;
        test.preferences.setValue(
            QStringLiteral("info/display"),
            QStringLiteral(
                "FrameRate:true,FrameNumber:true,ZoomRate:true,Comment:true,Custom:true,Logo:true"));
        FileDocument& document = *test.list.addRecording(framesOf(5));
        test.list.setMode(HOST_MODE_FILE);
        OverlayPreferences preferences(test.preferences);
        InfoOverlay overlay;
        InfoOverlay::Place place{QSize(400, 400), 8, 1};
        const auto isNew = [&] {
            const int before = overlay.layoutCount();
            const bool is = overlay.update(document, preferences, place);
            return is && overlay.layoutCount() == before + 1;
        };
        QVERIFY(isNew() && !isNew() && !isNew());
        document.setPlayPosition(3);
        QVERIFY(isNew() && !isNew());
        document.setComment(QStringLiteral("new"));
        QVERIFY(isNew() && !isNew());
        CustomItem load{QStringLiteral("Load"), QStringLiteral("9"), QString(), true};
        document.customItems().add(load);
        QVERIFY(isNew() && !isNew());
        for (const bool isShown : {false, true}) { // by its tick alone
            load.display = isShown;
            document.customItems().replace(load.name, load);
            QVERIFY(isNew() && !isNew());
        }
        place.view = QSize(300, 400);
        QVERIFY(isNew() && !isNew());
        test.preferences.setValue(QStringLiteral("info/Bold"), true);
        preferences.noteChange(QStringLiteral("info/Bold"));
        QVERIFY(isNew() && !isNew());
        QVERIFY(preferences.noteChange(QStringLiteral("display/frameInsertDelimiter")));
        QVERIFY(isNew() && !isNew());
        QVERIFY(!preferences.noteChange(QStringLiteral("saveinfo/Bold1")) && !isNew());
        test.preferences.setValue(QStringLiteral("info/display"), QStringLiteral("FrameRate:true"));
        preferences.noteChange(QStringLiteral("info/display"));
        QVERIFY(isNew() && !isNew());
        document.setPlayPosition(1); // no text shows it any more
        document.customItems().add({QStringLiteral("Mass"), QStringLiteral("9"), QString(), true});
        QVERIFY(!isNew());
        QCOMPARE(rowTexts(overlay.layout()), QStringList(QStringLiteral("Frame rate: 1000 fps")));
    }

    void aChangedLogoShows() {
        HostTest test;
        test.preferences.setValue(QStringLiteral("info/display"),
                                  QStringLiteral("Resolution:true,<hr>,Logo:true"));
        FileDocument& document = *test.list.addRecording(framesOf(1));
        test.list.setMode(HOST_MODE_FILE);
        OverlayPreferences preferences(test.preferences);
        InfoOverlay overlay;
        const auto heightOfLogo = [&] {
            overlay.update(document, preferences, {QSize(400, 400), 8, 1});
            const OverlayLayout::Row row = overlay.layout().rows().last();
            return row.kind == InfoLine::Kind::Logo ? row.box.height() : 0;
        };
        QVERIFY(filled(20, 10, Qt::blue).save(path("logo.png")));
        test.preferences.setValue(QStringLiteral("info/LogoPath"), path("logo.png"));
        QCOMPARE(heightOfLogo(), 0); // it is the live image's
        document.setLogoPath(path("logo.png"));
        QTRY_COMPARE(heightOfLogo(), 10);
        QVERIFY(filled(20, 17, Qt::blue).save(path("logo.png")));
        QTRY_COMPARE(heightOfLogo(), 17);
        QVERIFY(QFile::remove(path("logo.png")));
        QTRY_COMPARE(heightOfLogo(), 0);
        QCOMPARE(overlay.layout().rows().last().text, QStringLiteral("The logo can't be shown: logo.png"));
        QVERIFY(filled(20, 12, Qt::blue).save(path("logo.png")));
        QTRY_COMPARE(heightOfLogo(), 12);
        document.setLogoPath(QString());
        QCOMPARE(heightOfLogo(), 0);
        QCOMPARE(overlay.layout().rows().size(), 1); // the rest stands, without the separator
    }
};

QTEST_MAIN(tst_OverlayLayout)
#include "tst_overlay_layout.moc"

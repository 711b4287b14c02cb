#include "tests/unit/viewer_export/MadeFrames.h"
#include "viewer/export/LayoutSource.h"
#include "viewer/export/report/Report.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

/// One gray a recording.
FrameSourcePtr plain(int gray, int frames, quint32 rate, int trigger, const QSize& size = QSize(20, 10)) {
    QImage image(size, QImage::Format_Grayscale8);
    image.fill(gray);
    RecordingInfo info = MadeFrames::info();
    info.rate = rate;
    info.triggerIndex = trigger;
    return std::make_shared<FrameList>(info, QVector<QImage>(frames, image));
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestLayoutReport : public QObject {
    Q_OBJECT

private slots:
    void tilesStandWhereTheyAre();
    void tilesShowTheSameMoment();
    void whatARecordingTellsIsText();
    void picturesAreInTheFile();
    void picturesAreNotBlownUp();
};

// In its shape, in the middle of its place, and cut at the edge of the whole.
void TestLayoutReport::tilesStandWhereTheyAre() {
    const LayoutSource layout({{plain(100, 3, 1000, 0), QRect(0, 0, 40, 40), {}},
                               {plain(200, 3, 1000, 0), QRect(40, 20, 60, 30), {}},
                               {plain(50, 3, 1000, 0), QRect(90, 0, 40, 20), {}}},
                              QSize(100, 50));
    const QImage image = layout.frame(1).image;
    QCOMPARE(image.size(), QSize(100, 50));
    const auto gray = [&image](int x, int y) { return qGray(image.pixel(x, y)); };
    QCOMPARE(gray(20, 20), 100);
    QCOMPARE(gray(0, 12), 100);
    QCOMPARE(gray(39, 12), 100);
    QCOMPARE(gray(20, 3), 0); // above its own shape
    QCOMPARE(gray(41, 21), 200);
    QCOMPARE(gray(99, 49), 200);
    QCOMPARE(gray(99, 5), 50);
    QCOMPARE(gray(85, 5), 0);
}

void TestLayoutReport::tilesShowTheSameMoment() {
    const LayoutSource::Tile first{plain(1, 100, 1000, 50), QRect(0, 0, 10, 10), {}};
    const LayoutSource::Tile half{plain(1, 30, 500, 10), QRect(0, 0, 10, 10), {}};
    const LayoutSource layout({first, half}, QSize(10, 10));
    QCOMPARE(layout.count(), 100);
    QCOMPARE(layout.info().rate, 1000U);
    QCOMPARE(layout.indexOf(half, 50), 10);
    QCOMPARE(layout.indexOf(half, 60), 15);
    QCOMPARE(layout.indexOf(half, 0), 0);   // it began later
    QCOMPARE(layout.indexOf(half, 99), 29); // and ended sooner
    QCOMPARE(layout.indexOf(first, 77), 77);
}

void TestLayoutReport::whatARecordingTellsIsText() {
    Report report;
    report.title = QStringLiteral("<script>a</script> & %1");
    report.sections.append({QStringLiteral("%2 \"x\""),
                            {{QStringLiteral("<b>Rate</b>"), QStringLiteral("1 < 2")}},
                            QStringLiteral("one\n<img src=x>"),
                            {}});
    const QString html = report.html();
    QVERIFY(!html.contains(QStringLiteral("<script")) && !html.contains(QStringLiteral("<img")) &&
            !html.contains(QStringLiteral("<b>")));
    QVERIFY(html.contains(QStringLiteral("&lt;script&gt;a&lt;/script&gt; &amp; %1")));
    QVERIFY(html.contains(QStringLiteral("%2 &quot;x&quot;")));
    QVERIFY(html.contains(QStringLiteral("one<br>&lt;img")));
}

void TestLayoutReport::picturesAreInTheFile() {
    const QTemporaryDir folder;
    Report report;
    report.title = QStringLiteral("Test");
    Report::Section section;
    section.title = QStringLiteral("Camera");
    report.sections.append(section);
    const QString html = folder.filePath(QStringLiteral("a.html"));
    const QString pdf = folder.filePath(QStringLiteral("a.pdf"));
    report.savePdf(pdf);
    const int bare = contents(pdf).size();
    QVERIFY(contents(pdf).startsWith("%PDF"));
    const QImage image = MadeFrames::picture(QSize(300, 200), 8, true, 1);
    report.sections.first().pictures.append({QStringLiteral("Frame 1"), image});
    report.saveHtml(html);
    const QByteArray text = contents(html);
    const int start = text.indexOf("base64,") + 7;
    QCOMPARE(QImage::fromData(QByteArray::fromBase64(text.mid(start, text.indexOf('"', start) - start)))
                 .convertToFormat(QImage::Format_RGB888),
             image);
    QVERIFY_EXCEPTION_THROWN(report.savePdf(pdf), RecordingError);
    QCOMPARE(contents(pdf).size(), bare);
    report.savePdf(pdf, true);
    QVERIFY(contents(pdf).size() > bare + 10000);
}

// A wide one is made to fit the page.
void TestLayoutReport::picturesAreNotBlownUp() {
    const QMap<int, QString> widths{{300, QStringLiteral("300")}, {1280, QStringLiteral("640")}};
    for (auto it = widths.begin(); it != widths.end(); ++it) {
        Report report;
        report.sections.append(
            {QString(), {}, QString(), {{QString(), MadeFrames::picture(QSize(it.key(), 2), 8, true, 0)}}});
        QVERIFY(report.html().contains(QStringLiteral("<img width=\"%1\"").arg(it.value())));
    }
}

QTEST_MAIN(TestLayoutReport)
#include "tst_layout_report.moc"

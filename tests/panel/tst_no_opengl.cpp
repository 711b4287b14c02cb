// A screen without OpenGL: words stand where the images would be, and the panel works.

#include "tests/support/PanelTest.h"

#include "simulator/device/SimulatedHead.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/views/DocumentText.h"
#include "viewer/views/TitleStrip.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QSet>
#include <QWebView>
#include <QtTest>

class tst_NoOpenGL : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;

    /// The labels within a widget that the user reads, and that tell of OpenGL.
    static int notesIn(const QWidget& widget) {
        const QList<QLabel*> labels = widget.findChildren<QLabel*>();
        return int(std::count_if(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->isVisible() && label->text().contains(QStringLiteral("OpenGL"));
        }));
    }
    /// How many colors the user sees of a widget, on the screen itself.
    static int colorsOnScreen(const QWidget& widget) {
        const QImage image = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
        const QRect part = QRect(widget.mapToGlobal(QPoint()), widget.size()).intersected(image.rect());
        QSet<QRgb> colors;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                colors.insert(image.pixel(x, y));
            }
        }
        return colors.size();
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>();
        QVERIFY(!QTest::currentTestFailed());
    }
    void cleanup() { m_test.reset(); }

    void wordsStandWhereTheImagesWouldBe() {
        QTRY_COMPARE(notesIn(m_test->viewer().mainWindow()), 1);
        m_test->call("windows.choose", {{QStringLiteral("action"), QStringLiteral("language")}});
        QTRY_COMPARE(notesIn(m_test->viewer().mainWindow()), 1); // it names OpenGL in any language
        m_test->call("windows.choose", {{QStringLiteral("action"), QStringLiteral("language")}});
        QTRY_VERIFY(colorsOnScreen(*m_test->viewer().panel()) > 20);
        QTRY_VERIFY(colorsOnScreen(m_test->viewer().mainWindow()) > 20);
    }

    // In a small window, too.
    void theWordsAreReadToTheirEnd() {
        MainWindow& window = m_test->viewer().mainWindow();
        window.resize(1100, 700);
        const QList<QLabel*> labels = window.findChildren<QLabel*>(QStringLiteral("emptyArea"));
        const auto shown = std::find_if(labels.begin(), labels.end(),
                                        [](const QLabel* label) { return label->isVisible(); });
        QVERIFY(shown != labels.end());
        const QLabel& note = **shown;
        QTRY_COMPARE(window.width(), 1100);
        const QRect words = note.fontMetrics().boundingRect(
            note.contentsRect(), int(note.alignment()) | (note.wordWrap() ? Qt::TextWordWrap : 0),
            note.text());
        QVERIFY(note.contentsRect().contains(words));
        QVERIFY(window.rect().contains(QRect(note.mapTo(&window, QPoint()), note.size())));
    }

    // The title's number would be that of an image that isn't drawn.
    void theTitleTellsNoFrameNumber() {
        MainWindow& window = m_test->viewer().mainWindow();
        auto* const title = window.findChild<TitleStrip*>();
        QVERIFY(title);
        Document* const camera = m_test->viewer().documents().current();
        TitleStrip same(title->parentWidget());
        same.resize(title->size());
        same.setCurrent(false);
        same.setContent(camera->title(), DocumentText::facts(*camera), QString(),
                        DocumentText::state(*camera), QColor(0x30a46c));
        QTRY_VERIFY(title->grab().toImage() == same.grab().toImage());
    }

    void thePanelWorks() {
        m_test->choose(QStringLiteral("#livecontrol_shutterspeed"), QStringLiteral("1/2000 sec"));
        QCOMPARE(m_test->head(QStringLiteral("Marlin")).settings().shutter, 2000U);
        QCOMPARE(m_test->caption(QStringLiteral("#livecontrol_shutterspeed")), QStringLiteral("1/2000 sec"));
        m_test->eval(
            QStringLiteral("livecontrol_obj.startHWImageTrigger(), livecontrol_obj.changePage(4), 1"));
        m_test->click(QStringLiteral("#livecontrol_hwimage_trigger_on"));
        m_test->click(QStringLiteral("#livecontrol_hwimage_trigger_histogram_on"));
        QTRY_COMPARE(notesIn(*m_test->viewer().panel()), 1);
        QTRY_VERIFY(colorsOnScreen(*m_test->viewer().panel()) > 20);
        m_test->click(QStringLiteral("#livecontrol_hwimage_trigger_ok"));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QCOMPARE(notesIn(*m_test->viewer().panel()), 0);
    }
};

int main(int argc, char** argv) {
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication app(argc, argv);
    tst_NoOpenGL test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_no_opengl.moc"

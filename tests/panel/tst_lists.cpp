// The native lists over the panel: variable channels and partitions, with the mouse and the keyboard.

#include "livecontrol/web/GUI_SelectBox.h"
#include "simulator/device/SimulatedBody.h"
#include "simulator/device/SimulatedHead.h"
#include "tests/support/ModalWatchdog.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QMessageBox>
#include <QScreen>
#include <QWebView>
#include <QtTest>

namespace {
const QString kSelect = QStringLiteral("#livecontrol_variable_select_btn");
}

class tst_Lists : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;

    SimulatedHead& head() { return m_test->head(QStringLiteral("Marlin")); }
    bool isShown() { return m_test->eval(QStringLiteral("livecontrol.isShownDropBox()")).toBool(); }

    /// The row that a key would pick.
    QString active() {
        return m_test->inList(QStringLiteral("jQuery('#select_list li.active').attr('data-value')"))
            .toString();
    }
    GUI_SelectBox* list() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (auto* const box = dynamic_cast<GUI_SelectBox*>(window)) {
                return box;
            }
        }
        return nullptr;
    }
    void key(const char* name) {
        m_test->call("page.key", {{QStringLiteral("selector"), QString()},
                                  {QStringLiteral("key"), QLatin1String(name)},
                                  {QStringLiteral("dialog"), true}});
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/one-camera.json"));
        m_test->selectOnly(QStringLiteral("Marlin"));
    }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    // Of the fixture itself: a window that nobody closes must not hold a test until its time limit.
    void aWindowThatNobodyClosesIsNamedAndClosed() {
        QByteArrayList failures;
        const ModalWatchdog watchdog(500, [&failures](const QByteArray& text) { failures.append(text); });
        QMessageBox box(m_test->viewer().window());
        box.setText(QStringLiteral("The camera refused."));
        box.exec();
        QCOMPARE(failures.size(), 1);
        QVERIFY2(failures.first().contains("The camera refused."), failures.first().constData());
    }

    void choosesAChannelOrNone() {
        head().storeVariableChannel(2, {10000, {256, 256}, {128, 64}}).result();
        head().storeVariableChannel(5, {5000, {640, 480}, {0, 0}}).result();
        m_test->click(kSelect);
        QVERIFY(m_test->waitForList());
        QCOMPARE(m_test
                     ->inList(QStringLiteral(
                         "jQuery('#select_list li').map(function () { return jQuery(this).attr("
                         "'data-value'); }).get().join(' ')"))
                     .toString(),
                 QStringLiteral("0 2 5 go-variable"));
        // By keyboard: past the row of none to the first channel.
        QCOMPARE(active(), QStringLiteral("0"));
        key("Down");
        key("Return");
        m_test->settle();
        QCOMPARE(head().settings().channel, 2);
        QVERIFY(!isShown());
        // It begins at what is in force: Return alone changes nothing.
        for (const auto& [name, channel] : {std::pair("", 2), std::pair("Down", 5), std::pair("", 5)}) {
            m_test->click(kSelect);
            QVERIFY(m_test->waitForList());
            if (*name) {
                key(name);
            }
            key("Return");
            m_test->settle();
            QCOMPARE(head().settings().channel, channel);
        }
        m_test->click(kSelect);
        m_test->pickInList(QStringLiteral("0"));
        QCOMPARE(head().settings().channel, 0);

        // Any update closes the list, and so does a press beside it.
        m_test->click(kSelect);
        QVERIFY(isShown());
        m_test->click(QStringLiteral("#livecontrol_page_list h2"));
        QVERIFY(!isShown());
    }

    // The box is made for the first opening, and its page loads before it shows.
    void takesTheKeysAtTheFirstOpening() {
        head().storeVariableChannel(2, {10000, {256, 256}, {128, 64}}).result();
        m_test->click(kSelect);
        QVERIFY(m_test->waitForList());
        // As a user types: to the widget that has the focus, which is the panel's while it keeps the keys.
        const auto type = [](Qt::Key key) {
            QVERIFY(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), key);
        };
        QTRY_VERIFY(QApplication::activeWindow() != m_test->viewer().window());
        type(Qt::Key_Down);
        type(Qt::Key_Return);
        m_test->settle();
        QCOMPARE(head().settings().channel, 2);
        QVERIFY(!isShown());
    }

    void choosesAPartition() {
        m_test->eval(QStringLiteral("main.showVariableRegist(20, 20, 200, 24, 3), 1"));
        QVERIFY(m_test->waitForList());
        QCOMPARE(active(), QStringLiteral("3"));
        m_test->viewer().mainWindow().action(QStringLiteral("partition"))->trigger();
        QVERIFY(m_test->waitForList());
        m_test->pickInList(QStringLiteral("3"));
        QCOMPARE(head().body()->partition(), 3);
        m_test->eval(QStringLiteral("livecontrol.showDropDownBox('partition', 20, 20, 200, 24), 1"));
        QVERIFY(m_test->waitForList());
        QCOMPARE(m_test->inList(QStringLiteral("items.getCurrentPartition()")).toInt(), 3);
        QCOMPARE(active(), QStringLiteral("3"));
        // The list fills its window, whatever it held before.
        QCOMPARE(m_test->inList(QStringLiteral("jQuery('#select_list')[0].scrollHeight + 2")).toInt(),
                 m_test->inList(QStringLiteral("window.innerHeight")).toInt());
        // It closes where the pointer is not over it, and only as what it is.
        const auto hide = [this](const char* arguments) {
            m_test->eval(QStringLiteral("livecontrol.hideDropDownBox(%1), 1").arg(QLatin1String(arguments)));
            return !list()->isVisible();
        };
        QVERIFY(!hide("'variable'") && !hide("'partition', 60, 60") && hide("'partition', 600, 60"));
        m_test->eval(QStringLiteral("livecontrol.showDropDownBox('partition', 20, 20, 200, 24), 1"));
        QVERIFY(m_test->waitForList());
        // One more than there are leads to the settings of the record.
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->pickInList(QStringLiteral("5"));
        QVERIFY(m_test->calls().contains(QStringLiteral("HostCameraControl.prepareSettingsDialog")));
        QCOMPARE(head().body()->partition(), 3);
    }

    // Wherever the button stands, its list is whole on the screen and leaves the button free.
    void opensBesideItsButton_data() {
        QTest::addColumn<QPoint>("corner"); // of the button, in parts of the screen that it doesn't fill
        QTest::newRow("top left") << QPoint(0, 0);
        QTest::newRow("bottom left") << QPoint(0, 1);
        QTest::newRow("top right") << QPoint(1, 0);
        QTest::newRow("bottom right") << QPoint(1, 1);
    }
    void opensBesideItsButton() {
        QFETCH(QPoint, corner);
        const QWidget& page = *m_test->viewer().panel();
        const QRect screen = page.screen()->availableGeometry();
        const QSize size(120, 24);
        const QRect button(QPoint(screen.left() + corner.x() * (screen.width() - size.width()),
                                  screen.top() + corner.y() * (screen.height() - size.height())),
                           size);
        const QPoint at = page.mapFromGlobal(button.topLeft());
        m_test->eval(QStringLiteral("main.showVariableRegist(%1, %2, %3, %4, 3), 1")
                         .arg(at.x())
                         .arg(at.y())
                         .arg(size.width())
                         .arg(size.height()));
        QVERIFY(m_test->waitForList());
        QVERIFY(list() && list()->isVisible());
        const QRect place = list()->geometry();
        QVERIFY(place.height() > 5 * size.height());
        QVERIFY2(screen.contains(place) && !place.intersects(button),
                 qPrintable(QStringLiteral("list at %1, %2").arg(place.x()).arg(place.y())));
        QVERIFY(corner.y() == 0 ? place.top() - button.bottom() <= 2 : button.top() - place.bottom() <= 2);
    }
};

QTEST_MAIN(tst_Lists)
#include "tst_lists.moc"

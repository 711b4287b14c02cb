// The whole road of a host that has the interfaces and the module alone, and what it may do wrong.
#include "livecontrol/interface/JS_Mediator.h"
#include "tests/smallhost/SmallHost.h"

#include <QApplication>
#include <QDialog>
#include <QWebFrame>
#include <QtTest>

Q_DECLARE_METATYPE(std::function<void(SmallHost&)>)

namespace {

QVariant evaluate(const QWebView& view, const QString& script) {
    return view.page()->mainFrame()->evaluateJavaScript(script);
}

/// A real click in the middle of an element; false if none shows there.
bool click(QWebView& view, const QString& selector) {
    const QVariantList place =
        evaluate(view,
                 QStringLiteral("(function () { var e = jQuery('%1')[0]; if (!e) { return []; }"
                                "e.scrollIntoViewIfNeeded(); var b = e.getBoundingClientRect();"
                                "var x = b.left + b.width / 2, y = b.top + b.height / 2,"
                                "    top = document.elementFromPoint(x, y);"
                                "return top && (top === e || jQuery.contains(e, top)) ? [x, y] : []; })()")
                     .arg(selector))
            .toList();
    if (place.size() != 2) {
        return false;
    }
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(place[0].toInt(), place[1].toInt()));
    return true;
}

/// The page of the dialog that is open, once it answers.
QWebView* pageOfDialog(const char* object) {
    const QWidget* const dialog = QApplication::activeModalWidget();
    auto* const view = dialog ? dialog->findChild<QWebView*>() : nullptr;
    return view && evaluate(*view, QStringLiteral("window.jQuery && jQuery.isReady && !!window.%1")
                                       .arg(QLatin1String(object)))
                       .toBool()
               ? view
               : nullptr;
}

} // namespace

class tst_SmallHost : public QObject {
    Q_OBJECT

    std::unique_ptr<SmallHost> m_host;

    SmallPanel& panel() { return m_host->panel; }
    QStringList texts(const char* selector) {
        return evaluate(panel(),
                        QStringLiteral(
                            "jQuery('%1').map(function () { return jQuery(this).text().trim(); }).get()")
                            .arg(QLatin1String(selector)))
            .toStringList();
    }
    void open() {
        m_host = std::make_unique<SmallHost>(QStringLiteral(PLUGIN_FILE));
        panel().resize(360, 900);
        panel().show();
        QSignalSpy opened(&panel(), &SmallPanel::opened);
        m_host->open();
        QTRY_COMPARE(opened.count(), 1);
    }
    /// Does that with the page of the dialog that a click on the button opens.
    void inDialog(const char* button, const char* object, const std::function<bool(QWebView&)>& act) {
        bool isDone = false;
        int left = 500; // a dialog that never answers must not hold the test
        QTimer probe;
        connect(&probe, &QTimer::timeout, &probe, [&] {
            if (QWidget* const modal = --left < 0 ? QApplication::activeModalWidget() : nullptr) {
                modal->close();
            } else if (QWebView* const view = pageOfDialog(object)) {
                isDone = act(*view) || isDone;
            }
        });
        probe.start(20);
        QVERIFY(click(panel(), QLatin1String(button)));
        QTRY_VERIFY(isDone && !QApplication::activeModalWidget());
    }

private slots:
    void cleanup() { m_host.reset(); }

    void setsACameraByRealClicks() {
        open();
        QTRY_COMPARE(texts("#livecontrol_page_list .device-name:visible").size(), 2);
        QVERIFY(click(panel(), QStringLiteral("#livecontrol_page_list .device-name:visible:eq(1)")));
        QTRY_COMPARE(m_host->current().name, QStringLiteral("Right"));
        evaluate(panel(),
                 QStringLiteral("jQuery('#livecontrol_shutterspeed')[0].sumo.select.attr('id', 'box')"));
        QVERIFY(click(panel(), QStringLiteral("#box .CaptionCont")));
        QVERIFY(QTest::qWaitFor(
            [&] { return click(panel(), QStringLiteral("#box li.opt:contains(1/10000 s)")); }));
        QTRY_COMPARE(m_host->find(2)->shutter, 10000UL);
        QCOMPARE(m_host->find(1)->shutter, 1000UL);
        QTRY_COMPARE(
            evaluate(panel(), QStringLiteral("jQuery('#box .CaptionCont').text().trim()")).toString(),
            QStringLiteral("1/10000 s"));
        QVERIFY2(m_host->failures.isEmpty(), qPrintable(m_host->failures.join(QLatin1Char('\n'))));
    }

    void itsDialogsWork() {
        open();
        QTRY_VERIFY(!texts("#livecontrol_page_list .device-name:visible").isEmpty());
        QVERIFY(click(panel(), QStringLiteral("#livecontrol_open_devicesetting")));
        bool isFilled = false;
        inDialog("#livecontrol_save_button", "cameraSettings", [&](QWebView& page) {
            isFilled =
                isFilled || evaluate(page, QStringLiteral("jQuery('#camerasettings_filename').val()")) ==
                                QStringLiteral("Left");
            return isFilled && click(page, QStringLiteral("#camerasettings_cancel"));
        });
        const QString name = QStringLiteral("Third");
        inDialog("#livecontrol_adddevice", "adddevice", [&](QWebView& page) {
            if (evaluate(page, QStringLiteral("jQuery('#deviceName').val()")) == name) {
                return click(page, QStringLiteral("#ok_btn"));
            }
            if (click(page, QStringLiteral("#deviceName"))) { // a page that still opens chooses its own field
                QTest::keyClick(&page, Qt::Key_A, Qt::ControlModifier);
                QTest::keyClicks(&page, name);
            }
            return false;
        });
        QCOMPARE(m_host->added, QStringList(QStringLiteral("Third 192.168.0.10")));
        QVERIFY2(m_host->failures.isEmpty(), qPrintable(m_host->failures.join(QLatin1Char('\n'))));
    }

    // What a host may do wrong once its panel is open: a line in the log or a failure told, and never the
    // end.
    void standsWhatAHostDoesWrong_data() {
        QTest::addColumn<std::function<void(SmallHost&)>>("wrong");
        const auto row = [](const char* name, const std::function<void(SmallHost&)>& wrong) {
            QTest::newRow(name) << wrong;
        };
        row("init again", [](SmallHost& host) { host.plugin().init(&host); });
        row("init without a host", [](SmallHost& host) { host.plugin().init(nullptr); });
        row("open twice",
            [](SmallHost& host) { QMetaObject::invokeMethod(host.plugin().getMediator(), "open"); });
        row("no such page, no such mode", [](SmallHost& host) {
            host.plugin().callPage(99);
            host.plugin().onModeChanged(77);
        });
        row("paint and area without a document", [](SmallHost& host) {
            host.plugin().onPaintOverlay(nullptr, true, nullptr);
            host.plugin().isAreaShown(nullptr);
        });
        row("mouse and keys of no document", [](SmallHost& host) {
            host.plugin().mousePress({1, 1}, 77);
            host.plugin().mouseRelease({1, 1}, 77);
            host.plugin().keyPress(nullptr);
        });
        row("every camera goes", [](SmallHost& host) {
            host.onCurrentDocument = [] { return nullptr; };
            host.onDocByKey = [](DOCKEY, bool) { return nullptr; };
            host.onGetAllKeys = [](bool) { return QList<DOCKEY>(); };
            host.plugin().update();
        });
        row("a getter fails", [](SmallHost& host) {
            host.onGetRecordRateList = [](QList<unsigned long>&) { throw std::runtime_error("no rates"); };
            host.plugin().update();
        });
        row("closed twice", [](SmallHost& host) {
            host.panel.close();
            host.panel.close();
        });
        row("the plug-in goes with its page open", [](SmallHost& host) { host.unload(); });
    }
    void standsWhatAHostDoesWrong() {
        using Wrong = std::function<void(SmallHost&)>;
        QFETCH(Wrong, wrong);
        open();
        wrong(*m_host);
        QCoreApplication::processEvents();
        m_host->close();
        m_host->unload();
        QVERIFY(panel().page()->mainFrame()->toPlainText().size() > 0); // the page itself is the host's
    }

    // Texts that it was given stay valid, though the module was asked to go.
    void theModuleMayBeLoadedAgain() {
        QVariant text;
        open();
        m_host->onSetPref = [&](const QString& key, const QVariant& /*value*/) { text = key; };
        m_host->onSetPrefBool = m_host->onSetPref;
        QVERIFY(click(panel(), QStringLiteral("#livecontrol_show_connected_camera")));
        QTRY_VERIFY(text.isValid());
        m_host->close();
        m_host.reset();
        QVERIFY(text.toString().startsWith(QLatin1String("devicemanager/")));
        open();
        QTRY_COMPARE(texts("#livecontrol_page_list .device-name:visible").size(), 2);
    }
};

QTEST_MAIN(tst_SmallHost)
#include "tst_smallhost.moc"

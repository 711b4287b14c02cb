#include "tests/support/PanelTest.h"

#include "simulator/device/SimulatedHead.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/cameras/CameraSource.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/views/DocumentArea.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QWebView>
#include <QtTest>

namespace {

/// Between two looks at a state that is waited for; events run meanwhile.
constexpr int kPollMs = 5;

QString quoted(const QString& text) {
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return list.mid(1, list.size() - 2);
}
} // namespace

PanelTest::PanelTest(const QString& rig) : PanelTest(rig, nullptr) {}

PanelTest::PanelTest(std::unique_ptr<CameraSource> cameras) : PanelTest(QString(), std::move(cameras)) {}

PanelTest::PanelTest(const QString& rig, std::unique_ptr<CameraSource> cameras) {
    Options options;
    options.rig = rig;
    options.settings = m_settings.path();
    options.language = QStringLiteral("en");
    options.plugin = QStringLiteral(PLUGIN_FILE);
    m_viewer = std::make_unique<Viewer>(options, std::move(cameras));
    m_console = std::make_unique<Console>(*m_viewer);
    // Drawing in software takes half of a core at the usual pace, and few tests look at an image.
    constexpr int kBeatMs = 200;
    m_viewer->window()->findChild<DocumentArea*>()->pacer().setPeriod(kBeatMs);
    QObject::connect(&m_answer, &QTimer::timeout, [this] { answerIfModal(); });
    m_viewer->start();
    if (!waitFor(QStringLiteral("window.livecontrol_obj && $('#panels section:visible').length === 1"),
                 60000)) { // with sanitizers on a busy machine it takes its time
        qFatal("the panel did not open");
    }
    settle();
    clearLogs();
}

PanelTest::~PanelTest() {
    m_console.reset();
    m_viewer.reset();
}

bool PanelTest::waitFor(const QString& script, int timeoutMs) {
    QElapsedTimer timer;
    timer.start();
    do {
        QTest::qWait(kPollMs);
        try {
            if (eval(QStringLiteral("Boolean(%1)").arg(script)).toBool()) {
                return true;
            }
        } catch (const ConsoleError&) { // the page is on its way
        }
    } while (timer.elapsed() < timeoutMs);
    return false;
}

void PanelTest::settle() {
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents();
        QTest::qWait(5);
    }
}

void PanelTest::click(const QString& selector, const QStringList& modifiers) {
    call("page.click", {{QStringLiteral("selector"), selector},
                        {QStringLiteral("modifiers"), QJsonArray::fromStringList(modifiers)}});
    settle();
}

void PanelTest::key(const QString& selector, const QString& name) {
    call("page.key", {{QStringLiteral("selector"), selector}, {QStringLiteral("key"), name}});
    settle();
}

void PanelTest::type(const QString& selector, const QString& text) {
    call("page.type", {{QStringLiteral("selector"), selector}, {QStringLiteral("text"), text}});
    settle();
}

void PanelTest::drag(const QString& selector, int dx, int steps) {
    call("page.drag", {{QStringLiteral("selector"), selector},
                       {QStringLiteral("dx"), dx},
                       {QStringLiteral("steps"), steps}});
    settle();
}

void PanelTest::holdMouse(const QString& selector) {
    m_mouse = PageDriver(m_viewer->panel()).middleOf(selector);
    postMouseAt(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    postMouseAt(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    settle();
}

void PanelTest::moveMouse(int dx) {
    m_mouse.rx() += qRound(dx * m_viewer->panel()->zoomFactor());
    postMouseAt(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    settle();
}

void PanelTest::releaseMouse() {
    postMouseAt(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    settle();
}

void PanelTest::postMouseAt(int type, Qt::MouseButton button, Qt::MouseButtons buttons) {
    postMouse(m_viewer->panel(), type, m_mouse, button, buttons, Qt::NoModifier);
}

void PanelTest::choose(const QString& select, const QString& item) {
    const QString box = QStringLiteral("$('%1')[0].sumo.select").arg(select);
    eval(QStringLiteral("%1.attr('id', 'test_box')").arg(box) + QStringLiteral(", 1"));
    click(QStringLiteral("#test_box .CaptionCont"));
    eval(QStringLiteral("$('#test_box li.opt').removeAttr('data-test').filter(function () {"
                        " return $(this).text() === %1; }).attr('data-test', 1), 1")
             .arg(quoted(item)));
    click(QStringLiteral("#test_box li.opt[data-test]"));
    eval(QStringLiteral("$('#test_box').removeAttr('id'), 1"));
}

bool PanelTest::waitForList() {
    return QTest::qWaitFor([this] {
        try {
            return inList(QStringLiteral("jQuery('#select_list li').length > 0")).toBool();
        } catch (const ConsoleError&) {
            return false;
        }
    });
}

void PanelTest::pickInList(const QString& row) {
    QVERIFY(waitForList());
    call("page.click", {{QStringLiteral("selector"), QStringLiteral("li[data-value=\"%1\"]").arg(row)},
                        {QStringLiteral("dialog"), true}});
    settle();
}

QStringList PanelTest::rows(const QString& select) {
    QStringList texts;
    const QJsonArray found = eval(QStringLiteral("$('%1 option').filter(function () {"
                                                 " return this.value !== '' && Number(this.value) >= 0; })"
                                                 ".map(function () { return $(this).text(); }).get()")
                                      .arg(select))
                                 .toArray();
    for (const QJsonValue row : found) {
        texts.append(row.toString());
    }
    return texts;
}

QString PanelTest::caption(const QString& select) {
    return text(QStringLiteral("$('%1')[0].sumo.select.find('.CaptionCont > span').text()").arg(select))
        .trimmed();
}

CameraDocument& PanelTest::camera(const QString& name) {
    for (CameraDocument* const document : m_viewer->documents().cameras()) {
        if (document->title() == name) {
            return *document;
        }
    }
    throw ConsoleError(QStringLiteral("the rig has no camera %1").arg(name));
}

DOCKEY PanelTest::keyOf(const QString& name) { return camera(name).key(); }

SimulatedHead& PanelTest::head(const QString& name) {
    const CameraHead& head = *camera(name).head();
    return static_cast<SimulatedHead&>(*head.body()->head(head.index())); // the rig has no others
}

void PanelTest::reopen() {
    PanelView& panel = m_viewer->panelView();
    PLG_Interface* const plugin = panel.plugin();
    panel.showPlugin(nullptr);
    panel.showPlugin(plugin);
    QTRY_VERIFY(panel.isPageOpen());
}

void PanelTest::openDevices() {
    click(QStringLiteral("#livecontrol_open_devicesetting"));
    if (!waitFor(QStringLiteral("$('#livecontrol_page_devicesetting:visible').length"))) {
        throw ConsoleError(QStringLiteral("the page of the devices did not open"));
    }
}

QString PanelTest::deviceRow(const QString& name) {
    return QStringLiteral("#livecontrol_device_item_list [data-key=%1]").arg(keyOf(name));
}

QStringList PanelTest::deviceRows() {
    return eval(QStringLiteral("$('#livecontrol_device_item_list .device-name').map(function () {"
                               " return $(this).text(); }).get()"))
        .toVariant()
        .toStringList();
}

void PanelTest::selectOnly(const QString& name) {
    eval(QStringLiteral("livecontrol.setSelectDoc('%1'), 1").arg(keyOf(name)));
    settle();
    clearLogs();
}

QStringList PanelTest::calls(bool clear) {
    QStringList names;
    for (const QJsonValue call : call("host.calls", {{QStringLiteral("clear"), clear}}).toArray()) {
        names.append(call.toObject()[QStringLiteral("name")].toString());
    }
    return names;
}

QStringList PanelTest::logged(const QString& part) {
    QStringList found;
    for (const QJsonValue line : call("log.lines").toArray()) {
        const QString text = line.toObject()[QStringLiteral("text")].toString();
        if (text.contains(part)) {
            found.append(text);
        }
    }
    return found;
}

void PanelTest::clearLogs() {
    call("host.calls", {{QStringLiteral("clear"), true}});
    call("log.lines", {{QStringLiteral("clear"), true}});
    call("page.errors");
}

void PanelTest::answerNextBox(const QString& button) {
    m_button = button;
    m_answered.clear();
    m_tries = 0;
    m_answer.start(10);
}

// The window system answers in its own time, which a console waits for and a test spends here.
QJsonValue PanelTest::call(const char* method, const QJsonObject& params) {
    if (!m_console->bringToFront(QLatin1String(method), params)) {
        QGuiApplication::sync();
    }
    return m_console->call(QLatin1String(method), params);
}

// Nobody presses a button of a window before it has come up: only then has the page lost the focus to it.
void PanelTest::answerIfModal() {
    constexpr int kPatience = 100; // tries, for a window that is never made the active one
    const QWidget* const modal = QApplication::activeModalWidget();
    if (modal && !modal->isActiveWindow() && ++m_tries < kPatience) {
        return;
    }
    for (const QJsonValue window : call("windows.list").toArray()) {
        if (window.toObject()[QStringLiteral("modal")].toBool()) {
            m_answer.stop();
            m_answered = window.toObject()[QStringLiteral("text")].toString();
            call("windows.press", {{QStringLiteral("button"), m_button}});
            return;
        }
    }
}

QString PanelTest::waitForBox(int timeoutMs) {
    QElapsedTimer timer;
    timer.start();
    do {
        QTest::qWait(kPollMs);
        for (const QJsonValue window : call("windows.list").toArray()) {
            if (window.toObject()[QStringLiteral("modal")].toBool()) {
                return window.toObject()[QStringLiteral("text")].toString();
            }
        }
    } while (timer.elapsed() < timeoutMs);
    return {};
}

void PanelTest::press(const QString& button) {
    call("windows.press", {{QStringLiteral("button"), button}});
    settle();
}

#pragma once

#include "livecontrol/interface/types.h"
#include "tests/support/ModalWatchdog.h"
#include "viewer/console/Console.h"

#include <QJsonObject>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>

class CameraDocument;
class CameraSource;
class SimulatedHead;
class Viewer;

/// A whole viewer in the process of a test, with the real plug-in in its panel, driven through the console's
/// methods. Preferences lie in a folder of their own.
class PanelTest {
public:
    /// `rig` is a file, or one that is built in. Fails the test if the panel does not open.
    explicit PanelTest(const QString& rig = QStringLiteral(":/rigs/default.json"));
    /// Over other cameras than simulated ones.
    explicit PanelTest(std::unique_ptr<CameraSource> cameras);
    ~PanelTest();

    Viewer& viewer() { return *m_viewer; }

    QJsonValue call(const char* method, const QJsonObject& params = {});
    QJsonValue eval(const QString& script) { return call("page.eval", {{QStringLiteral("script"), script}}); }
    QString text(const QString& script) { return eval(script).toString(); }

    /// Lets events run until the script is true; false at the time limit.
    bool waitFor(const QString& script, int timeoutMs = 5000);
    /// Lets events run until nothing is posted any more, timers of the page included.
    void settle();

    /// Real input, and the events that follow from it.
    void click(const QString& selector, const QStringList& modifiers = {});
    void key(const QString& selector, const QString& name);
    void type(const QString& selector, const QString& text);
    void drag(const QString& selector, int dx, int steps = 5);
    /// A drag in pieces, for what happens meanwhile: the button goes down on an element, the mouse moves by
    /// page pixels, the button comes up.
    void holdMouse(const QString& selector);
    void moveMouse(int dx);
    void releaseMouse();

    /// Opens a select box of the panel and chooses the item with this text, both with the mouse.
    void choose(const QString& select, const QString& item);
    /// Of the list that opens over the page: a script in it, whether it opens, a row of it chosen with the
    /// mouse.
    QJsonValue inList(const QString& script) {
        return call("page.eval", {{QStringLiteral("script"), script}, {QStringLiteral("dialog"), true}});
    }
    bool waitForList();
    void pickInList(const QString& row);
    /// The texts of the rows of a select box that stand for a position in the host's list.
    QStringList rows(const QString& select);
    /// What the closed box shows.
    QString caption(const QString& select);

    /// Keys of the cameras by name.
    DOCKEY keyOf(const QString& name);
    CameraDocument& camera(const QString& name);
    SimulatedHead& head(const QString& name);
    /// Closes the panel and opens it again, as a host does.
    void reopen();
    /// Opens the page of the devices.
    void openDevices();
    /// A row of the list there, as a selector.
    QString deviceRow(const QString& name);
    /// The names of all rows there.
    QStringList deviceRows();
    /// Makes the camera the only selected one.
    void selectOnly(const QString& name);

    QStringList calls(bool clear = true);
    QStringList logged(const QString& part);
    void clearLogs();

    /// Waits for a message box and gives its text; empty if none comes.
    QString waitForBox(int timeoutMs = 3000);
    void press(const QString& button);
    /// Presses a button of the next modal window as soon as it is there, while a nested event loop runs.
    void answerNextBox(const QString& button);
    /// The text of the window that was answered last; empty if none came.
    QString answeredBox() const { return m_answered; }

private:
    PanelTest(const QString& rig, std::unique_ptr<CameraSource> cameras);
    void answerIfModal();

    void postMouseAt(int type, Qt::MouseButton button, Qt::MouseButtons buttons);

    ModalWatchdog m_watchdog;
    QTemporaryDir m_settings;
    std::unique_ptr<Viewer> m_viewer;
    std::unique_ptr<Console> m_console;
    QTimer m_answer;
    QPoint m_mouse; // while a button is held
    int m_tries = 0;
    QString m_button;
    QString m_answered;
};

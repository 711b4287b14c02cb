// The actions of the main window: what they do, where they stand, and when they can be used.

#include "viewer/app/Dialogs.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/look/MenuKeys.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr int kMaxBinning = 3; // exponent of 2

QString named(const char* name) { return QString::fromLatin1(name); }

} // namespace

void MainWindow::createActions() {
    createRecordingActions();
    createViewActions();
    createImageActions();
    createProgramActions();
}

void MainWindow::createRecordingActions() {
    RecordingControl& recording = m_services.recording;
    auto* const modes = new QActionGroup(this);
    const auto mode = [&](const char* name, const char* text, int key, HostMode value) {
        QAction* const action = m_actions.add(named(name), text, QKeySequence(Qt::CTRL + key), true, modes);
        connect(action, &QAction::triggered, &recording, [&recording, value] { recording.setMode(value); });
    };
    mode("live", "Live", Qt::Key_1, HOST_MODE_LIVE);
    mode("memory", "Memory", Qt::Key_2, HOST_MODE_MEMORY);
    mode("file", "File", Qt::Key_3, HOST_MODE_FILE);
    const auto command = [&](const char* name, const char* text, const QKeySequence& key,
                             void (RecordingControl::*act)()) {
        connect(m_actions.add(named(name), text, key), &QAction::triggered, &recording, act);
    };
    command("ready", "Record ready", QKeySequence(Qt::Key_F5), &RecordingControl::ready);
    command("record", "Record", QKeySequence(Qt::Key_F6), &RecordingControl::record);
    command("stop", "Stop", QKeySequence(Qt::Key_F7), &RecordingControl::stop);
    command("keep", "Keep recording", QKeySequence(Qt::CTRL + Qt::Key_K), &RecordingControl::keep);
    connect(m_actions.add(named("play"), "Replay", QKeySequence(Qt::Key_F8), true), &QAction::triggered, this,
            &MainWindow::togglePlay);
}

void MainWindow::createViewActions() {
    auto* const arrangements = new QActionGroup(this);
    connect(
        m_actions.add(named("tile"), "Tile windows", QKeySequence(Qt::CTRL + Qt::Key_T), true, arrangements),
        &QAction::triggered, this, [this] { m_area->setArrangement(DocumentArea::Arrangement::Tile); });
    connect(m_actions.add(named("single"), "Single window", QKeySequence(Qt::CTRL + Qt::Key_G), true,
                          arrangements),
            &QAction::triggered, this, [this] { m_area->setArrangement(DocumentArea::Arrangement::Single); });
    connect(m_actions.add(named("cycle"), "Show windows in turn", QKeySequence(), true), &QAction::triggered,
            this, [this](bool on) {
                m_area->setCycling(
                    on ? m_services.preferences.value(QStringLiteral("view/cycleSeconds")).toInt() : 0);
            });
    connect(m_actions.add(named("full"), "Full screen", QKeySequence(Qt::Key_F11), true), &QAction::triggered,
            this, &MainWindow::showFull);
    connect(m_actions.add(named("panel"), "Live panel", QKeySequence(Qt::CTRL + Qt::Key_P), true),
            &QAction::triggered, this, &MainWindow::panelAsked);
    connect(m_actions.add(named("toPanel"), "Keyboard to the panel", QKeySequence(Qt::Key_F4)),
            &QAction::triggered, this, [this] {
                if (m_panel && m_panel->isVisible()) {
                    activateWindow();
                    m_panel->setFocus(Qt::ShortcutFocusReason); // the page is its proxy
                }
            });
    connect(m_actions.add(named("toImage"), "Keyboard to the image", QKeySequence(Qt::SHIFT + Qt::Key_F4)),
            &QAction::triggered, this, [this] {
                if (ImageView* const view = currentView()) {
                    view->setFocus(Qt::ShortcutFocusReason);
                }
            });
    connect(m_actions.add(named("info"), "Show information", QKeySequence(Qt::CTRL + Qt::Key_I), true),
            &QAction::triggered, this, [this](bool on) {
                setInfoShown(on);
                emit stateChanged();
            });
}

void MainWindow::createImageActions() {
    const auto add = [this](const char* name, const char* text, const QKeySequence& key, bool checkable,
                            auto act) {
        connect(m_actions.add(named(name), text, key, checkable), &QAction::triggered, this, act);
    };
    add("rotateLeft", "Turn left", QKeySequence(Qt::CTRL + Qt::Key_L), false,
        [this] { changeView([](ViewState& view) { view.quarterTurns = (view.quarterTurns + 3) % 4; }); });
    add("rotateRight", "Turn right", QKeySequence(Qt::CTRL + Qt::Key_R), false,
        [this] { changeView([](ViewState& view) { view.quarterTurns = (view.quarterTurns + 1) % 4; }); });
    add("flipA", "Mirror left to right", QKeySequence(), true,
        [this] { changeView([](ViewState& view) { view.flipA = !view.flipA; }); });
    add("flipB", "Mirror top to bottom", QKeySequence(), true,
        [this] { changeView([](ViewState& view) { view.flipB = !view.flipB; }); });
    add("zoomIn", "Zoom in", QKeySequence::ZoomIn, false, [this] {
        if (ImageView* const view = currentView()) {
            view->stepZoom(1);
        }
    });
    add("zoomOut", "Zoom out", QKeySequence::ZoomOut, false, [this] {
        if (ImageView* const view = currentView()) {
            view->stepZoom(-1);
        }
    });
    add("zoomFit", "Fit into the window", QKeySequence(Qt::CTRL + Qt::Key_0), false, [this] {
        if (ImageView* const view = currentView()) {
            view->setZoom(0);
        }
    });
    add("zoomOne", "Original size", QKeySequence(Qt::CTRL + Qt::Key_9), false, [this] {
        if (ImageView* const view = currentView()) {
            view->setOriginalSize();
        }
    });
    for (int i = 0; i < int(Tones::kLuts.size()); ++i) {
        add(QByteArray("lut" + QByteArray::number(i)), Tones::kLuts.at(size_t(i)), QKeySequence(), true,
            [this, i] { changeView([i](ViewState& view) { view.tones.lut = i; }); });
    }
    for (int i = 0; i < int(Tones::kSaturations.size()); ++i) {
        add(QByteArray("saturation" + QByteArray::number(i)), Tones::kSaturations.at(size_t(i)),
            QKeySequence(), true, [this, i] {
                changeView([i](ViewState& view) { view.tones.saturation = i * Tones::kSaturationStep; });
            });
    }
    // One button that goes through the steps, and back to none after the last.
    add("bin", "Binning", QKeySequence(Qt::CTRL + Qt::Key_B), false, [this] {
        changeView([](ViewState& view) { view.binning = (view.binning + 1) % (kMaxBinning + 1); });
    });
}

void MainWindow::createProgramActions() {
    const auto add = [this](const char* name, const char* text, const QKeySequence& key,
                            void (MainWindow::*signal)()) {
        connect(m_actions.add(named(name), text, key), &QAction::triggered, this, signal);
    };
    add("open", "Open recording...", QKeySequence::Open, &MainWindow::openAsked);
    add("save", "Save recording...", QKeySequence::Save, &MainWindow::saveAsked);
    add("jobs", "Jobs...", QKeySequence(Qt::CTRL + Qt::Key_J), &MainWindow::jobsAsked);
    add("savedView", "Saved view...", QKeySequence(), &MainWindow::savedViewAsked);
    add("editInfo", "Edit information...", QKeySequence(), &MainWindow::infoAsked);
    const auto addSaving = [this](const char* name, const char* text, const QKeySequence& key) {
        connect(m_actions.add(QStringLiteral("dialog:") + named(name), text, key), &QAction::triggered, this,
                [this, name] { emit savingAsked(named(name)); });
    };
    addSaving("open", "Open from folder or card...", QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_O));
    addSaving("save", "Save as...", QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S));
    addSaving("snapshot", "Snapshot...", QKeySequence());
    addSaving("convert", "Convert...", QKeySequence());
    addSaving("report", "Report...", QKeySequence());
    addSaving("layout", "Save layout...", QKeySequence());
    addSaving("storage", "Camera storage...", QKeySequence());
    add("partition", "Memory partition...", QKeySequence(), &MainWindow::partitionAsked);
    add("undo", "Undo", QKeySequence::Undo, &MainWindow::undoAsked);
    add("redo", "Redo", QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z), &MainWindow::redoAsked);
    add("settings", "Preferences...", QKeySequence(Qt::CTRL + Qt::Key_Comma), &MainWindow::preferencesAsked);
    add("searchSettings", "Camera search settings...", QKeySequence(), &MainWindow::searchSettingsAsked);
    add("support", "Export support file...", QKeySequence(), &MainWindow::supportAsked);
    connect(m_actions.add(named("shortcuts"), "Keys...", QKeySequence(Qt::Key_F1)), &QAction::triggered, this,
            [this] { showShortcuts(this, m_actions.all()); });
    add("about", "About ZEL viewer", QKeySequence(), &MainWindow::aboutAsked);
    connect(m_actions.add(named("quit"), "Quit", QKeySequence::Quit), &QAction::triggered, this,
            &QWidget::close);
    Preferences& preferences = m_services.preferences;
    connect(m_actions.add(named("style"), "Dark or light", QKeySequence()), &QAction::triggered, this,
            [&preferences] {
                const QString key = QStringLiteral("env/style");
                const bool dark = preferences.value(key).toString() != QLatin1String("light");
                preferences.setValue(key, dark ? QStringLiteral("light") : QStringLiteral("dark"));
            });
    connect(m_actions.add(named("language"), "English or Japanese", QKeySequence()), &QAction::triggered,
            this, [&preferences] {
                const QString key = QStringLiteral("env/language");
                const bool english = preferences.value(key).toString() != QLatin1String("ja");
                preferences.setValue(key, english ? QStringLiteral("ja") : QStringLiteral("en"));
            });
}

void MainWindow::createMenus() {
    const auto menu = [this](const char* title, const QList<const char*>& names) {
        QMenu* const made = menuBar()->addMenu(QString());
        giveMenuKeys(*made);
        m_menus.append({made, title});
        for (const char* const name : names) {
            if (*name == '-') {
                made->addSeparator();
            } else {
                made->addAction(action(named(name)));
            }
        }
        return made;
    };
    menu("&File", {"open", "dialog:open", "dialog:storage", "-", "save", "dialog:save", "dialog:snapshot",
                   "dialog:layout", "dialog:report", "dialog:convert", "savedView", "jobs", "-", "settings",
                   "searchSettings", "-", "quit"});
    menu("&Edit", {"undo", "redo"});
    menu("&Recording",
         {"live", "memory", "file", "-", "ready", "record", "stop", "-", "play", "keep", "partition"});
    m_menus.first().first->setToolTipsVisible(true); // an action that can't be used says why
    QMenu* const image = menu("&Image", {"rotateLeft", "rotateRight", "flipA", "flipB", "bin", "-", "zoomIn",
                                         "zoomOut", "zoomFit", "zoomOne"});
    addToneMenus(*image);
    QMenu* const view = menu("&View", {"tile", "single", "cycle", "full", "-", "panel", "info", "editInfo",
                                       "-", "toPanel", "toImage", "-", "style", "language", "-"});
    for (const char* const dock : {"panelDock", "rigDock", "logDock"}) {
        if (QDockWidget* const there = m_docks.value(named(dock))) {
            view->addAction(there->toggleViewAction());
        }
    }
    menu("&Help", {"shortcuts", "-", "support", "-", "about"});
}

void MainWindow::addToneMenus(QMenu& image) {
    image.addSeparator();
    const auto addMenu = [&](const char* title, const QString& name, int count) {
        QMenu* const menu = image.addMenu(QString());
        giveMenuKeys(*menu);
        m_menus.append({menu, title});
        for (int i = 0; i < count; ++i) {
            menu->addAction(action(name + QString::number(i)));
        }
    };
    addMenu("Lookup table", QStringLiteral("lut"), int(Tones::kLuts.size()));
    addMenu("Saturation", QStringLiteral("saturation"), int(Tones::kSaturations.size()));
}

void MainWindow::createToolBar() {
    m_toolBar = addToolBar(QString());
    m_toolBar->setObjectName(QStringLiteral("toolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setIconSize(QSize(20, 20));
    m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const char* const name :
         {"live",        "memory", "file",  "-",      "ready", "record",   "stop",    "play",
          "keep",        "-",      "tile",  "single", "cycle", "full",     "-",       "rotateLeft",
          "rotateRight", "flipA",  "flipB", "bin",    "-",     "zoomIn",   "zoomOut", "zoomFit",
          "-",           "undo",   "redo",  "-",      "style", "language", "settings"}) {
        if (*name == '-') {
            m_toolBar->addSeparator();
        } else {
            m_toolBar->addAction(action(named(name)));
        }
    }
    // The first six are what a camera is operated by: with their names.
    for (const char* const name : {"live", "memory", "file", "ready", "record", "stop"}) {
        auto* const button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(action(named(name))));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
}

void MainWindow::retranslate() {
    m_actions.retranslate();
    for (const auto& [menu, title] : m_menus) {
        menu->setTitle(translated(title));
    }
    m_toolBar->setWindowTitle(translated("Tools"));
    m_docks.value(QStringLiteral("panelDock"))->setWindowTitle(translated("Side panel"));
    if (QDockWidget* const rig = m_docks.value(QStringLiteral("rigDock"))) {
        rig->setWindowTitle(translated("Simulated cameras"));
    }
    m_docks.value(QStringLiteral("logDock"))->setWindowTitle(translated("Log"));
    for (const QDockWidget* const dock : qAsConst(m_docks)) {
        if (auto* const close = dock->findChild<QAbstractButton*>(named("qt_dockwidget_closebutton"))) {
            close->setAccessibleName(translated("Close")); // it keeps the language in which it was made
        }
    }
    refreshActions();
}

void MainWindow::refreshActions() {
    refreshModeActions();
    refreshImageActions();
    action(named("undo"))->setEnabled(m_canUndo);
    action(named("redo"))->setEnabled(m_canRedo);
    action(named("info"))->setChecked(m_infoShown);
    action(named("full"))->setChecked(isFullScreen());
    action(named("cycle"))->setChecked(m_area->isCycling());
    action(named("panel"))->setEnabled(m_services.documents.mode() == HOST_MODE_LIVE);
    action(named("panel"))->setChecked(openPlugin() != nullptr);
    const bool tiled = m_area->arrangement() == DocumentArea::Arrangement::Tile;
    action(named(tiled ? "tile" : "single"))->setChecked(true);
    refreshStatus();
}

void MainWindow::refreshModeActions() {
    const DocumentList& documents = m_services.documents;
    const RecordingControl& recording = m_services.recording;
    const bool live = documents.mode() == HOST_MODE_LIVE && recording.mode() == HOST_MODE_LIVE;
    const bool sending = recording.isSending();
    const bool busy = sending || recording.isAny(CameraState::Recording) ||
                      recording.isAny(CameraState::Ready) || recording.isAny(CameraState::WaitingReady);
    const char* const names[] = {"live", "memory", "file"};
    for (int i = 0; i < 3; ++i) {
        QAction* const action = m_actions.get(named(names[i]));
        action->setChecked(recording.mode() == i);
        action->setEnabled(!busy);
    }
    action(named("ready"))->setEnabled(live && !sending && recording.isAny(CameraState::Live));
    action(named("record"))->setEnabled(live && !sending && recording.acceptsTrigger());
    action(named("stop"))->setEnabled(busy);
    action(named("keep"))->setEnabled(recording.canKeep());
    const Document* const current = documents.current();
    const bool isCamera = current && current->kind() == Document::Kind::Camera;
    action(named("partition"))->setEnabled(!busy && isCamera);
    action(named("play"))->setEnabled(!live && current && current->recordedFrames() > 0);
    action(named("play"))->setChecked(current && current->isPlaying());
    action(named("savedView"))->setEnabled(current);
    QAction& storage = *action(named("dialog:storage"));
    storage.setEnabled(documents.mode() != HOST_MODE_FILE); // its list is of cameras
    storage.setToolTip(storage.isEnabled() ? storage.text()
                                           : translated("Cameras are reached in live and memory mode."));
    action(named("save"))->setEnabled(current && current->kind() == Document::Kind::File);
}

void MainWindow::refreshImageActions() {
    const Document* const document = m_services.documents.current();
    const ToolState& tools = m_services.documents.tools();
    const auto allowed = [&tools](const char* name) { return tools.isAllowed(named(name)); };
    for (const char* const name : {"rotateLeft", "rotateRight"}) {
        action(named(name))->setEnabled(document && allowed("rotation"));
    }
    for (const char* const name : {"flipA", "flipB"}) {
        action(named(name))->setEnabled(document && allowed("flip"));
    }
    for (const char* const name : {"zoomIn", "zoomOut", "zoomFit", "zoomOne"}) {
        action(named(name))->setEnabled(document);
    }
    action(named("bin"))->setEnabled(document && allowed("binning"));
    action(named("flipA"))->setChecked(document && document->view().flipA);
    action(named("flipB"))->setChecked(document && document->view().flipB);
    const Tones tones = document ? document->view().tones : Tones();
    for (int i = 0; i < int(Tones::kLuts.size()); ++i) {
        QAction* const one = action(QStringLiteral("lut%1").arg(i));
        one->setEnabled(document);
        one->setChecked(tones.lut == i);
    }
    for (int i = 0; i < int(Tones::kSaturations.size()); ++i) {
        QAction* const one = action(QStringLiteral("saturation%1").arg(i));
        one->setEnabled(document);
        one->setChecked(tones.saturation == i * Tones::kSaturationStep);
    }
    QAction* const bin = action(named("bin"));
    const int factor = document ? 1 << document->view().binning : 1;
    bin->setToolTip(factor > 1 ? translated("Binning: %1 by %1").arg(factor)
                               : QStringLiteral("%1 (%2)").arg(bin->text(), bin->shortcut().toString()));
}

void MainWindow::changeView(const std::function<void(ViewState&)>& edit) {
    if (Document* const document = m_services.documents.current()) {
        ViewState state = document->view();
        edit(state);
        emit viewAsked(document, state);
    }
}

void MainWindow::togglePlay() {
    if (Document* const document = m_services.documents.current()) {
        document->setPlaying(!document->isPlaying());
        refreshActions();
        emit stateChanged();
    }
}

void MainWindow::showFull(bool full) {
    if (full) {
        showFullScreen();
    } else {
        showNormal();
    }
}

#include "viewer/app/MainWindow.h"

#include "livecontrol/foundation/UTL_Format.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/look/Icons.h"
#include "viewer/app/look/ScreenFit.h"
#include "viewer/app/panes/ChangeNote.h"
#include "viewer/app/panes/LogPane.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/app/panes/RecordingList.h"
#include "viewer/app/panes/RigDock.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/documents/commands/CommandWait.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/DocumentText.h"
#include "viewer/views/ImageView.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QStackedLayout>
#include <QStatusBar>

MainWindow::MainWindow(const Services& services)
    : m_services(services), m_overlay(services.preferences),
      m_area(new DocumentArea(services.documents, *this, &Icons::get)) {
    setObjectName(QStringLiteral("mainWindow"));
    setCentralWidget(m_area);
    setDockOptions(QMainWindow::AnimatedDocks | QMainWindow::AllowNestedDocks);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    createActions();
    createDocks();
    createMenus();
    createToolBar();
    createStatusBar();
    connect(&m_services.recording, &RecordingControl::changed, this, &MainWindow::refreshActions);
    connect(&m_services.recording, &RecordingControl::sent, this, &MainWindow::refreshActions);
    connect(&m_services.documents, &DocumentList::currentChanged, this, &MainWindow::refreshActions);
    connect(&m_services.documents, &DocumentList::connectionChanged, this, &MainWindow::refreshActions);
    connect(&m_services.documents.tools(), &ToolState::changed, this, &MainWindow::refreshActions);
    connect(m_area, &DocumentArea::arrangementChanged, this, [this] {
        refreshActions();
        emit stateChanged();
    });
    resize(QSize(1360, 860).boundedTo(freeSize(*this)));
    retranslate();
    restorePlaces();
}

MainWindow::~MainWindow() {
    delete m_area; // its views ask this window for the open plug-in to their end
}

PLG_Interface* MainWindow::openPlugin() {
    return m_panel && m_panel->isPageOpen() ? m_panel->plugin() : nullptr;
}

QDockWidget* MainWindow::addDock(const QString& name, QWidget* content, Qt::DockWidgetArea area) {
    auto* const dock = new QDockWidget(this);
    dock->setObjectName(name);
    dock->setWidget(content);
    dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    addDockWidget(area, dock);
    m_docks.insert(name, dock);
    return dock;
}

void MainWindow::createDocks() {
    m_panelHolder = new QWidget;
    m_panelNote = new QLabel;
    m_panelNote->setObjectName(QStringLiteral("emptyArea"));
    m_panelNote->setAlignment(Qt::AlignCenter);
    m_panelNote->setWordWrap(true);
    m_panelNote->setMargin(20);
    auto* const layout = new QStackedLayout(m_panelHolder);
    layout->addWidget(m_panelNote);
    createRecordingList();
    m_panelHolder->setMinimumWidth(300);

    QDockWidget* const panel = addDock(QStringLiteral("panelDock"), m_panelHolder, Qt::LeftDockWidgetArea);
    QDockWidget* const log =
        addDock(QStringLiteral("logDock"), new LogPane(m_services.log), Qt::BottomDockWidgetArea);
    if (m_services.rig) {
        m_rigDock = new RigDock(*m_services.rig);
        connect(&m_services.documents, &DocumentList::currentChanged, m_rigDock,
                [this](const Document* current) {
                    if (current && current->body()) {
                        m_rigDock->select(current->body());
                    }
                });
        connect(m_rigDock, &RigDock::triggerPulse, &m_services.recording, &RecordingControl::externalTrigger);
        QDockWidget* const rig = addDock(QStringLiteral("rigDock"), m_rigDock, Qt::RightDockWidgetArea);
        resizeDocks({panel, rig}, {350, 290}, Qt::Horizontal);
    }
    resizeDocks({log}, {130}, Qt::Vertical);
}

PanelView& MainWindow::createPanel(HostObject* host, PageMediators& mediators) {
    m_panel = new PanelView(host, mediators);
    m_panelHolder->layout()->addWidget(m_panel);
    setPanelNote(QString());
    return *m_panel;
}

void MainWindow::setPanelNote(const QString& text) {
    m_panelNote->setText(text);
    m_recordings->setNote(text);
    showSidePage();
}

// The panel stays for as long as a plug-in has its page in it.
void MainWindow::showSidePage() {
    auto* const stack = static_cast<QStackedLayout*>(m_panelHolder->layout());
    if (m_panelNote->text().isEmpty() && m_panel) {
        stack->setCurrentWidget(m_panel);
    } else if (m_services.documents.mode() != HOST_MODE_LIVE) {
        stack->setCurrentWidget(m_recordings);
    } else {
        stack->setCurrentWidget(m_panelNote);
    }
}

void MainWindow::createRecordingList() {
    RecordingShelf& shelf = m_services.recording.shelf();
    m_recordings = new RecordingList(m_services.documents, shelf, m_services.preferences);
    m_panelHolder->layout()->addWidget(m_recordings);
    connect(&m_services.documents, &DocumentList::modeChanged, this, &MainWindow::showSidePage);
    connect(m_recordings, &RecordingList::saveAsked, this, &MainWindow::saveRecordingAsked);
    connect(m_recordings, &RecordingList::saveAllAsked, this, &MainWindow::saveAllAsked);
    connect(m_recordings, &RecordingList::closeAsked, &shelf,
            [&shelf](FileDocument* document) { shelf.close(*document); });
    connect(m_recordings, &RecordingList::showAsked, this, [this](FileDocument* document) {
        if (m_services.documents.mode() != HOST_MODE_FILE) {
            m_services.recording.setMode(HOST_MODE_FILE);
        }
        m_services.documents.setCurrent(document);
    });
}

void MainWindow::notePanelClosed() {
    setPanelNote(m_services.documents.mode() == HOST_MODE_LIVE
                     ? translated("The live panel is closed. Open it with Ctrl+P.")
                     : translated("The live panel serves live mode. Go back to live mode with Ctrl+1."));
}

void MainWindow::createStatusBar() {
    m_busy = new QLabel;
    m_busy->setObjectName(QStringLiteral("busyText"));
    m_counts = new QLabel;
    m_zoom = new QLabel;
    m_lost = new QLabel;
    m_lost->setObjectName(QStringLiteral("lostLinks"));
    for (QLabel* const label : {m_busy, m_counts, m_zoom, m_lost}) {
        label->setTextFormat(Qt::PlainText);
    }
    m_busy->hide();
    m_changeNote = new ChangeNote;
    statusBar()->addWidget(m_busy);
    statusBar()->addWidget(m_changeNote, 1);
    statusBar()->addPermanentWidget(m_lost);
    statusBar()->addPermanentWidget(m_zoom);
    statusBar()->addPermanentWidget(m_counts);
    connect(m_area, &DocumentArea::busyTextChanged, this, &MainWindow::showBusy);
    constexpr int kMomentMs = 150;
    m_slowSoon.setSingleShot(true);
    m_slowSoon.setInterval(kMomentMs);
    connect(&m_slowSoon, &QTimer::timeout, this, &MainWindow::showBusy);
    connect(&m_services.recording, &RecordingControl::sent, this, [this] {
        if (m_busy->isHidden()) {
            m_slowSoon.start();
        }
    });
    connect(&m_services.recording, &RecordingControl::changed, this, &MainWindow::showBusy);
    connect(statusBar(), &QStatusBar::messageChanged, this, &MainWindow::showBusy);
    RecordingShelf& shelf = m_services.recording.shelf();
    connect(&shelf, &RecordingShelf::progressed, this, &MainWindow::showBusy);
    const auto tell = [this](const QString& text) {
        constexpr int kShownMs = 10000;
        statusBar()->showMessage(text, kShownMs);
    };
    connect(&shelf, &RecordingShelf::told, this, tell);
    connect(&m_services.documents, &DocumentList::told, this, tell);
    connect(&m_area->pacer(), &FrameTimer::beat, this, [this] {
        const ImageView* const view = currentView();
        m_zoom->setText(view && !view->transform().isEmpty()
                            ? QStringLiteral("%1 %").arg(qRound(view->originalZoom() * 100))
                            : QString());
    });
}

void MainWindow::setWaiting(bool waiting) {
    m_isWaiting = waiting;
    showBusy();
}

QString MainWindow::waitText() const {
    constexpr int kNamed = 3;
    const QStringList names = m_isWaiting             ? CommandWait::get().whom()
                              : m_slowSoon.isActive() ? QStringList()
                                                      : m_services.recording.slowCameras();
    if (names.size() > kNamed) {
        return translated("Waiting for %1 cameras").arg(names.size());
    }
    return names.isEmpty() ? QString() : translated("Waiting for %1").arg(names.join(QStringLiteral(", ")));
}

// What goes on in front comes before what goes on beside.
void MainWindow::showBusy() {
    const QString wait = waitText();
    const QString front = wait.isEmpty() ? m_area->busyText() : wait;
    const QString text = front.isEmpty() ? m_services.recording.shelf().progress().text : front;
    m_busy->setText(text);
    m_busy->setVisible(!text.isEmpty() && statusBar()->currentMessage().isEmpty()); // a message has the place
}

void MainWindow::refreshStatus() {
    const DocumentList& documents = m_services.documents;
    const QList<CameraDocument*> cameras = documents.cameras();
    // All that are marked in the lists, connected or not.
    const auto marked = std::count_if(cameras.cbegin(), cameras.cend(),
                                      [](const CameraDocument* camera) { return camera->isSelected(); });
    m_counts->setText(cameras.size() == 1
                          ? translated("1 camera, %1 selected").arg(marked)
                          : translated("%1 cameras, %2 selected").arg(cameras.size()).arg(marked));
    showLostLinks();
    setWindowTitle(
        (documents.current() ? documents.current()->title() + QStringLiteral(" \u2013 ") : QString()) +
        QStringLiteral("ZEL viewer"));
}

void MainWindow::showLostLinks() {
    constexpr int kNames = 3;
    QStringList names;
    for (const CameraDocument* const camera : m_services.documents.cameras()) {
        if (!camera->isConnected() && !camera->body()->isDummy()) {
            names.append(camera->title());
        }
    }
    m_lost->setToolTip(asMarkup(names.join(QLatin1Char('\n'))));
    m_lost->setVisible(!names.isEmpty());
    const QString rest =
        names.size() > kNames ? QStringLiteral(" (+%1)").arg(names.size() - kNames) : QString();
    m_lost->setText(
        translated("Not connected: %1").arg(names.mid(0, kNames).join(QStringLiteral(", ")) + rest));
}

ImageView* MainWindow::currentView() const { return m_area->currentView(); }

void MainWindow::setInfoShown(bool shown) {
    m_infoShown = shown;
    m_area->refreshAll();
    refreshActions();
}

void MainWindow::notePreference(const QString& key) {
    if (m_overlay.noteChange(key)) {
        m_area->refreshAll();
    }
    m_recordings->refreshReplay();
}

void MainWindow::setUndoable(bool undo, bool redo) {
    m_canUndo = undo;
    m_canRedo = redo;
    refreshActions();
}

void MainWindow::restorePlaces() {
    const auto bytes = [this](const char* key) {
        return QByteArray::fromBase64(
            m_services.preferences.value(QString::fromLatin1(key)).toString().toLatin1());
    };
    restoreGeometry(bytes("window/geometry"));
    restoreState(bytes("window/state"));
    m_infoShown = m_services.preferences.value(QStringLiteral("view/info")).toBool();
    m_area->setArrangement(m_services.preferences.value(QStringLiteral("view/arrangement")).toString() ==
                                   QLatin1String("single")
                               ? DocumentArea::Arrangement::Single
                               : DocumentArea::Arrangement::Tile);
}

void MainWindow::storePlaces() {
    Preferences& preferences = m_services.preferences;
    preferences.setValue(QStringLiteral("window/geometry"), QString::fromLatin1(saveGeometry().toBase64()));
    preferences.setValue(QStringLiteral("window/state"), QString::fromLatin1(saveState().toBase64()));
    preferences.setValue(QStringLiteral("view/info"), m_infoShown);
    preferences.setValue(QStringLiteral("view/arrangement"),
                         m_area->arrangement() == DocumentArea::Arrangement::Single ? QStringLiteral("single")
                                                                                    : QStringLiteral("tile"));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!m_services.recording.shelf().mayQuit()) {
        event->ignore();
        return;
    }
    storePlaces();
    QMainWindow::closeEvent(event);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (!m_counts) {
        return; // not built yet
    }
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange) {
        m_overlay.invalidate();
        retranslate();
    } else if (event->type() == QEvent::WindowStateChange) {
        refreshActions();
        emit stateChanged();
    }
}

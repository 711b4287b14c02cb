#pragma once

#include "viewer/app/ActionTable.h"
#include "viewer/overlay/OverlaySettings.h"
#include "viewer/views/ViewClient.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>

class ChangeNote;
class Document;
class DocumentArea;
class DocumentList;
class HostObject;
class ImageView;
class LogStore;
class PageMediators;
class PanelView;
class Preferences;
class QLabel;
class QMenu;
class FileDocument;
class RecordingControl;
class RecordingList;
class Rig;
class RigDock;
struct ViewState;

/// The program's window: document windows in the middle, the live panel at the left, the rig at the right,
/// the log below.
class MainWindow : public QMainWindow, public ViewClient {
    Q_OBJECT

public:
    /// What the window works on; all of it outlives the window.
    struct Services {
        DocumentList& documents;
        Preferences& preferences;
        RecordingControl& recording;
        Rig* rig; // null: the cameras are no simulated ones, and there is no dock for them
        LogStore& log;
    };

    explicit MainWindow(const Services& services);
    ~MainWindow() override;

    /// Makes the side panel; the host object exists only after the window.
    PanelView& createPanel(HostObject* host, PageMediators& mediators);

    DocumentArea& area() const { return *m_area; }
    RigDock& rigDock() const { return *m_rigDock; }
    /// Null before createPanel().
    PanelView* panel() const { return m_panel; }
    QAction* action(const QString& name) const { return m_actions.get(name); }

    /// Enables and checks all actions as things stand.
    void refreshActions();
    bool isInfoShown() const { return m_infoShown; }
    OverlayPreferences* shownInfo() override { return m_infoShown ? &m_overlay : nullptr; }
    void setInfoShown(bool shown);
    /// A preference has another value now; what stands over the images follows at once.
    void notePreference(const QString& key);
    PLG_Interface* openPlugin() override;
    bool isFrameRead(const Document& document) override { return m_frameReader && m_frameReader(document); }
    void setFrameReader(std::function<bool(const Document&)> reader) { m_frameReader = std::move(reader); }
    void areaEdited(Document& document, const QRect& before, bool joins) override {
        emit areaStepMade(&document, before, joins);
    }
    /// What the panel says while it shows no page.
    void setPanelNote(const QString& text);
    /// The same, when the live panel is closed: how to get it back.
    void notePanelClosed();
    void setUndoable(bool undo, bool redo);
    /// In the status bar, what a change took along.
    ChangeNote& changeNote() const { return *m_changeNote; }

    /// Where windows and panes stand, for the next start.
    void storePlaces();
    /// The program waits for a camera and takes no input: says for which.
    void setWaiting(bool waiting);

signals:
    /// The user has changed something that pages show.
    void stateChanged();
    /// The image of a document is to be shown like that.
    void viewAsked(Document* document, const ViewState& state);
    /// The user has changed the open plug-in's area on a document's image from that one.
    void areaStepMade(Document* document, const QRect& before, bool joins);
    void undoAsked();
    void redoAsked();
    void partitionAsked();
    void preferencesAsked();
    void searchSettingsAsked();
    void supportAsked();
    void aboutAsked();
    void openAsked();
    void saveAsked();
    void jobsAsked();
    void savedViewAsked();
    void infoAsked();
    /// "save", "snapshot", "convert", "report", "layout", "open" or "storage": a dialog of SavingDialogs.
    void savingAsked(const QString& what);
    void saveRecordingAsked(FileDocument* document);
    void saveAllAsked();
    /// The live panel is to be opened or closed.
    void panelAsked(bool open);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createActions();
    void createRecordingActions();
    void createViewActions();
    void createImageActions();
    void createProgramActions();
    void createMenus();
    void addToneMenus(QMenu& image);
    void createToolBar();
    void createDocks();
    void createRecordingList();
    void createStatusBar();
    void showSidePage();
    void showBusy();
    QString waitText() const;
    QDockWidget* addDock(const QString& name, QWidget* content, Qt::DockWidgetArea area);
    void retranslate();
    void refreshModeActions();
    void refreshImageActions();
    void refreshStatus();
    void showLostLinks();
    void changeView(const std::function<void(ViewState&)>& edit);
    void togglePlay();
    void showFull(bool full);
    ImageView* currentView() const;
    void restorePlaces();

    Services m_services;
    OverlayPreferences m_overlay;
    ActionTable m_actions;
    DocumentArea* m_area;
    PanelView* m_panel = nullptr;
    RigDock* m_rigDock = nullptr;
    QWidget* m_panelHolder = nullptr;
    QLabel* m_panelNote = nullptr;
    RecordingList* m_recordings = nullptr;
    QHash<QString, QDockWidget*> m_docks;
    QList<QPair<QMenu*, const char*>> m_menus;
    QToolBar* m_toolBar = nullptr;
    QLabel* m_busy = nullptr;
    QLabel* m_counts = nullptr;
    QLabel* m_zoom = nullptr;
    QLabel* m_lost = nullptr;
    ChangeNote* m_changeNote = nullptr;
    std::function<bool(const Document&)> m_frameReader;
    QTimer m_slowSoon; // a command takes longer than a moment
    bool m_isWaiting = false;
    bool m_infoShown = true;
    bool m_canUndo = false;
    bool m_canRedo = false;
};

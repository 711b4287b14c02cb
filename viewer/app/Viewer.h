#pragma once

#include "viewer/app/Options.h"
#include "viewer/app/jobs/SaveService.h"
#include "viewer/app/look/Language.h"
#include "viewer/app/panes/SessionLog.h"
#include "viewer/calls/CallRecorder.h"
#include "viewer/console/ConsoleTarget.h"

#include <QObject>
#include <QPointer>

#include <memory>

class AutoSaver;
class ExportJobs;
class JobsDialog;
class Console;
class DocumentList;
class Document;
class FileDocument;
class FilePreferences;
class KeptItems;
class LoadedPlugin;
class MainWindow;
class MessageBoxes;
class PanelView;
class RecordingControl;
class SavedViewPictures;
class RecordingShelf;
class CameraSource;
class Rig;
class SavingDialogs;
class SelectBoxes;
class SelectedValues;
class ViewerHost;
class WaitGuard;
class MainHostWindow;

/// The program: makes its parts, connects them and holds them until it ends. Needs a QApplication.
class Viewer : public QObject, public ConsoleTarget {
    Q_OBJECT

public:
    /// Reads preferences and makes the window, which does not show yet. Simulates the cameras of the options'
    /// rig; throws RigFileError if that is wrong.
    explicit Viewer(const Options& options);
    /// The same over other cameras.
    Viewer(const Options& options, std::unique_ptr<CameraSource> cameras);
    ~Viewer() override;

    /// Shows the window, takes the rig's cameras into the list and opens the live panel. Throws ConsoleError
    /// if the console can't listen; a plug-in that can't be loaded is reported to the user and the program
    /// goes on.
    void start();

    MainWindow& mainWindow() { return *m_window; }
    ViewerHost& host() { return *m_host; }
    Rig& rig() { return *m_rig; } // of simulated cameras only
    RecordingControl& recording() { return *m_recording; }
    PanelView& panelView();
    LogStore& log() { return m_log; }
    /// Null if it could not be loaded.
    LoadedPlugin* plugin() { return m_plugin.get(); }

    // What the console drives.
    QWidget* window() override;
    QWebView* panel() override;
    QWidget* imageView(DOCKEY key) override;
    DocumentList& documents() override { return *m_documents; }
    RecordingShelf& recordings() override { return *m_shelf; }
    CallRecorder& calls() override { return m_calls; }
    Preferences& preferences() override;
    ExportJobs& jobs() override;
    QString rigName() override;
    QStringList takeScriptErrors() override;
    QList<LogLine> logLines(bool clear) override;
    void quit() override;
    /// The program ends whatever is open: nobody can be asked. What is not saved stays in the spool.
    void end();

private:
    void makeParts();
    void connectParts();
    void connectHistory();
    void connectNotes();
    void connectSaving();
    void noteAreaStep(Document* document, const QRect& before, bool joins);
    void loadPlugin();
    void onPreferenceChanged(const QString& key);
    void onModeChanged(HostMode mode);
    void openRecording();
    /// Where the user wants a recording of that name; empty if he does not.
    QString askRecordingPath(const QString& name);
    void saveRecording(FileDocument* document);
    /// The jobs in a window of their own, which the user may leave open.
    void showJobs(bool isAsked);
    QList<SaveService::Window> arrangedWindows();
    void editSavedView();
    void saveAllRecordings();
    void offerLeftovers();
    void showFailure(const ExportJobs::Entry& job);
    /// Where the program keeps what is neither a preference nor asked to be elsewhere.
    static QString dataFolder(const Options& options);
    QString recordingFolder() const;
    /// Where the user opened or saved a recording last.
    QString lastFolder() const;
    void rememberFolder(const QString& folder);
    void showLivePanel(bool show);
    void applyLanguage();
    void applyStyle();
    void applyPlaybackRate();

    // In the order in which they need each other; destroyed the other way round.
    Options m_options;
    LogStore m_log;
    SessionLog m_sessionLog;
    CallRecorder m_calls;
    Language m_language;
    std::unique_ptr<FilePreferences> m_preferences;
    Rig* m_rig = nullptr; // the same as m_cameras, if it simulates
    std::unique_ptr<CameraSource> m_cameras;
    std::unique_ptr<DocumentList> m_documents;
    std::unique_ptr<SavedViewPictures> m_savedPictures;
    std::unique_ptr<KeptItems> m_keptItems;
    std::unique_ptr<MessageBoxes> m_messages;
    std::unique_ptr<RecordingShelf> m_shelf;
    std::unique_ptr<RecordingControl> m_recording;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<MainHostWindow> m_shell;
    std::unique_ptr<ViewerHost> m_host;
    std::unique_ptr<SelectBoxes> m_selectBoxes;
    std::unique_ptr<SelectedValues> m_selectedValues;
    QPointer<JobsDialog> m_jobsDialog; // a child of the window
    std::unique_ptr<SaveService> m_saveService;
    std::unique_ptr<AutoSaver> m_autoSaver;
    std::unique_ptr<SavingDialogs> m_saving;
    std::unique_ptr<LoadedPlugin> m_plugin;
    std::unique_ptr<Console> m_console;
    std::unique_ptr<WaitGuard> m_waitGuard;
};

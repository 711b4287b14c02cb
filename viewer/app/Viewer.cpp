#include "viewer/app/Viewer.h"

#include "livecontrol/foundation/DeviceOperations.h"
#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"
#include "simulator/device/Rig.h"
#include "viewer/app/AreaCommand.h"
#include "viewer/app/LoadedPlugin.h"
#include "viewer/app/MainHostWindow.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/PreferencesDialog.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/ViewCommand.h"
#include "viewer/app/WaitGuard.h"
#include "viewer/app/jobs/AutoSaver.h"
#include "viewer/app/jobs/JobsDialog.h"
#include "viewer/app/look/AppStyle.h"
#include "viewer/app/look/ScreenFit.h"
#include "viewer/app/look/SelectBoxes.h"
#include "viewer/app/panes/ChangeNote.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/app/panes/RigDock.h"
#include "viewer/app/panes/SelectedValues.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/console/Console.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/KeptItems.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/documents/commands/CommandWait.h"
#include "viewer/export/readers/OpenFile.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/host/parts/DeviceDialogs.h"
#include "viewer/messages/FileFailure.h"
#include "viewer/messages/MessageBoxes.h"
#include "viewer/messages/Translated.h"
#include "viewer/overlay/SavedViewPictures.h"
#include "viewer/prefs/FilePreferences.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/saving/SavingDialogs.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QApplication>
#include <QStandardPaths>

namespace {

const QString kStyle = QStringLiteral("env/style");
const QString kLanguage = QStringLiteral("env/language");
const QString kPluginLanguage = QStringLiteral("display/language"); // where plug-ins look for it
const QString kPlaybackRate = QStringLiteral("recording/playbackRate");
const QString kLivePlugin = QStringLiteral("livecontrol");

// What the camera library's table has no words for, but a user of the panel meets.
QString wordsOfOurOwn(const QString& function) {
    static const QHash<QString, const char*> s_words{
        {CommandKey::DriveLens, "Drive the lens"},
        {CommandKey::FormatStorage, "Format a card or drive"},
        {CommandKey::LoadPreset, "Load a preset"},
        {CommandKey::NameRecord, "Name a recording"},
        {CommandKey::ReadStorage, "Read a card or drive"},
        {CommandKey::RestoreSettings, "Restore the settings"},
        {CommandKey::SetImageTrigger, "Set the image trigger"},
        {CommandKey::StopRecording, "Stop the recording"},
        {CommandKey::SwitchLamp, "Switch LED or laser"},
        {CommandKey::SwitchPower, "Switch the power"},
        {SettingTable::command("randomTimes"), "Set the number of random recordings"}};
    const char* const words = s_words.value(function);
    return words ? translated(words) : QString();
}

QString operationWords(const QString& function) {
    const QString own = wordsOfOurOwn(function);
    if (!own.isEmpty()) {
        return own;
    }
    const QString words = deviceOperations().value(function);
    return words == QLatin1String("?") ? QString() : translated(words.toUtf8().constData());
}

} // namespace

QString Viewer::dataFolder(const Options& options) {
    return options.settings.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                                      : options.settings;
}

Viewer::Viewer(const Options& options) : Viewer(options, nullptr) {}

Viewer::Viewer(const Options& options, std::unique_ptr<CameraSource> cameras)
    : m_options(options), m_sessionLog(m_log, dataFolder(options) + QStringLiteral("/log")),
      m_cameras(std::move(cameras)) {
    const QString folder = options.settings;
    m_preferences = std::make_unique<FilePreferences>(
        folder.isEmpty() ? FilePreferences::defaultPath() : folder + QStringLiteral("/settings.ini"));
    // Asked for on the command line, it is what the user wants from now on.
    if (!options.style.isEmpty()) {
        m_preferences->setValue(kStyle, options.style);
    }
    if (!options.language.isEmpty()) {
        m_preferences->setValue(kLanguage, options.language);
    }
    applyLanguage();
    applyStyle();
    if (!m_cameras) {
        std::unique_ptr<Rig> rig = Rig::load(options.rig);
        m_rig = rig.get();
        m_cameras = std::move(rig);
    }
    makeParts();
    connectParts();
    applyPlaybackRate();
}

Viewer::~Viewer() {
    m_host->setClosing(true);
    m_waitGuard.reset();
    // The page goes first, while its plug-in can still answer.
    m_console.reset();
    if (m_window->panel()) {
        m_window->panel()->drop();
    }
    m_shell->setSelectBoxes(nullptr);
}

void Viewer::applyLanguage() {
    const QString language = m_preferences->value(kLanguage).toString();
    m_language.set(language);
    if (m_preferences->value(kPluginLanguage) != language) {
        m_preferences->setValue(kPluginLanguage, language);
    }
}

void Viewer::makeParts() {
    m_documents = std::make_unique<DocumentList>(*m_cameras, m_calls);
    m_savedPictures = std::make_unique<SavedViewPictures>(*m_documents, *m_preferences);
    m_documents->setSavedPictures(m_savedPictures.get());
    m_keptItems = std::make_unique<KeptItems>(*m_documents, *m_preferences);
    m_messages = std::make_unique<MessageBoxes>(MessageBoxes::Surroundings{
        [this] { return m_shell ? m_shell->dialogParent() : nullptr; }, &AppStyle::isDark, &operationWords});
    m_shelf = std::make_unique<RecordingShelf>(*m_documents, *m_preferences, *m_messages, recordingFolder());
    m_recording = std::make_unique<RecordingControl>(*m_documents, *m_preferences, *m_messages, *m_shelf);
    RecordingFile::addReader(OpenFile::pictureSuffixes(), &OpenFile::fromPictures);
    m_window = std::make_unique<MainWindow>(
        MainWindow::Services{*m_documents, *m_preferences, *m_recording, m_rig, m_log});
    m_shell = std::make_unique<MainHostWindow>(*m_window, *m_preferences, m_log, m_sessionLog, rigName());
    m_host = std::make_unique<ViewerHost>(*m_documents, *m_preferences, *m_messages, *m_shell, m_calls);
    m_window->createPanel(m_host.get(), m_shell->mediators());
    m_window->setFrameReader([this](const Document& document) {
        PLG_Interface* const plugin = m_host->plugins().current();
        return plugin && plugin->getOverlayEnabled() && m_host->modes().showsBrightnessOf(document);
    });
    m_window->panel()->setStyle(m_preferences->value(kStyle).toString());
    GUI_WebView& page = m_window->panel()->view();
    m_selectBoxes = std::make_unique<SelectBoxes>(*m_host, *m_documents, page);
    m_shell->setSelectBoxes(m_selectBoxes.get());
    m_shell->mediators().add(&page, QStringLiteral("main"), m_selectBoxes.get());
    m_selectedValues = std::make_unique<SelectedValues>(*m_documents);
    m_shell->mediators().add(&page, QStringLiteral("selected_cameras"), m_selectedValues.get());
}

void Viewer::connectParts() {
    qApp->installEventFilter(new ScreenFit(m_window.get()));
    m_waitGuard = std::make_unique<WaitGuard>(CommandWait::get(), *m_window->action(QStringLiteral("stop")));
    connect(m_waitGuard.get(), &WaitGuard::signChanged, m_window.get(),
            [this, guard = m_waitGuard.get()] { m_window->setWaiting(guard->isSignShown()); }); // to its end
    connect(m_preferences.get(), &FilePreferences::changed, this, &Viewer::onPreferenceChanged);
    connect(m_preferences.get(), &FilePreferences::writeFailed, this,
            [this](const QString& text) { m_messages->warn(text, nullptr); });
    connect(m_documents.get(), &DocumentList::modeChanged, this, &Viewer::onModeChanged);
    const auto updateAll = [this] { m_host->updates().request(-1); };
    connect(m_window.get(), &MainWindow::stateChanged, this, updateAll);
    connect(m_recording.get(), &RecordingControl::changed, this, [this] {
        const PanelView& panel = *m_window->panel();
        if (!panel.plugin() || panel.isPageOpen()) { // a page that loads asks for all when it is open
            m_host->updates().requestSoon(-1);       // many cameras change at the same time
        }
    });
    connect(&m_shell->preferencesDialog(), &PreferencesDialog::applied, this, updateAll);
    connect(m_window->panel(), &PanelView::pageOpened, this, updateAll);
    connectHistory();
    connectNotes();
    connectSaving();
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { m_host->setClosing(true); });
    connect(m_window.get(), &MainWindow::preferencesAsked, this,
            [this] { m_shell->preferencesDialog().exec(); });
    connect(m_window.get(), &MainWindow::partitionAsked, this, [this] {
        constexpr QRect kTop(8, 8, 0, 0); // of the panel, where its other lists open too
        m_selectBoxes->show(SelectBoxes::Partition, kTop);
    });
    connect(m_window.get(), &MainWindow::searchSettingsAsked, this, [this] {
        reportingFailures(m_host.get(), [this] { DeviceDialogs::searchSettings(*m_host, m_window.get()); });
    });
    connect(m_window.get(), &MainWindow::supportAsked, this, [this] {
        if (PLG_Interface* const plugin = m_host->plugins().find(kLivePlugin)) {
            QMetaObject::invokeMethod(plugin->getMediator(), "openExportSupportFileDialog");
        }
    });
    connect(m_window.get(), &MainWindow::aboutAsked, this, [this] { m_shell->openAbout(); });
    connect(m_window.get(), &MainWindow::panelAsked, this, &Viewer::showLivePanel);
    connect(m_window.get(), &MainWindow::openAsked, this, &Viewer::openRecording);
    connect(m_window.get(), &MainWindow::saveRecordingAsked, this, &Viewer::saveRecording);
    connect(m_window.get(), &MainWindow::saveAllAsked, this, &Viewer::saveAllRecordings);
    connect(m_window.get(), &MainWindow::saveAsked, this,
            [this] { saveRecording(dynamic_cast<FileDocument*>(m_documents->current())); });
    connect(m_window.get(), &MainWindow::jobsAsked, this, [this] { showJobs(true); });
    connect(m_window.get(), &MainWindow::savedViewAsked, this, &Viewer::editSavedView);
    // The panel with its button is there in live mode alone.
    connect(m_window.get(), &MainWindow::infoAsked, this,
            [this] { reportingFailures(m_host.get(), [this] { GUI_EditInfoDialog(m_host.get()).exec(); }); });
}

ExportJobs& Viewer::jobs() { return m_shelf->exports(); }

void Viewer::connectHistory() {
    History& history = m_host->history();
    connect(m_window.get(), &MainWindow::viewAsked, this, [this](Document* document, const ViewState& state) {
        m_host->history().push(std::make_unique<ViewCommand>(*document, state));
    });
    connect(m_window.get(), &MainWindow::areaStepMade, this, &Viewer::noteAreaStep);
    // Not in the middle of a drag.
    connect(m_window.get(), &MainWindow::undoAsked, this, [&history] {
        if (history.stack().canUndo()) {
            history.undo();
        }
    });
    connect(m_window.get(), &MainWindow::redoAsked, this, [&history] {
        if (history.stack().canRedo()) {
            history.redo();
        }
    });
    connect(&history, &History::changed, this, [this, &history] {
        m_window->setUndoable(history.stack().canUndo(), history.stack().canRedo());
    });
}

void Viewer::connectNotes() {
    ChangeNotes& notes = m_host->changeNotes();
    ChangeNote& note = m_window->changeNote();
    connect(&notes, &ChangeNotes::told, &note, &ChangeNote::setLine);
    connect(&note, &ChangeNote::undoAsked, this, [this, &notes] {
        notes.undo();
        m_host->updates().request(-1);
    });
}

void Viewer::noteAreaStep(Document* document, const QRect& before, bool joins) {
    PLG_Interface* const plugin = m_window->openPlugin();
    if (plugin) {
        History& history = m_host->history();
        history.pushAreaStep(std::make_unique<AreaCommand>(*plugin, *document, before, plugin->getArea(),
                                                           joins, [&history] { history.noteAreaMoved(); }));
    }
}

void Viewer::start() {
    m_documents->addAllCameras();
    m_window->show();
    loadPlugin();
    if (!m_options.console.isEmpty()) {
        m_console = std::make_unique<Console>(*this);
        m_console->listen(m_options.console);
    }
    if (!m_preferences->problem().isEmpty()) {
        m_messages->warn(m_preferences->problem(), nullptr);
    }
    // From the event loop: the question waits for an answer.
    QMetaObject::invokeMethod(this, &Viewer::offerLeftovers, Qt::QueuedConnection);
}

void Viewer::applyStyle() {
    const QString style = m_preferences->value(kStyle).toString();
    AppStyle::apply(*qApp, style);
    if (m_window && m_window->panel()) {
        m_window->panel()->setStyle(style);
    }
}

void Viewer::onPreferenceChanged(const QString& key) {
    m_window->notePreference(key);
    if (key == kStyle) {
        applyStyle();
    } else if (key == kLanguage) {
        applyLanguage();
        m_window->panel()->reload();
    } else if (key == kPlaybackRate) {
        applyPlaybackRate();
    }
}

void Viewer::applyPlaybackRate() {
    m_window->area().pacer().setPlaybackRate(m_preferences->value(kPlaybackRate).toInt());
}

void Viewer::editSavedView() {
    reportingFailures(m_host.get(), [this] {
        if (Document* const document = m_documents->current()) {
            constexpr int kImage = 1; // kind of output
            GUI_EditInfoDialog(m_host.get(), kImage, true, document->face(), 0, {},
                               QDateTime::currentDateTime())
                .exec();
        }
    });
}

PanelView& Viewer::panelView() { return *m_window->panel(); }

Preferences& Viewer::preferences() { return *m_preferences; }

QWidget* Viewer::window() { return m_window.get(); }

QWebView* Viewer::panel() { return &m_window->panel()->view(); }

QWidget* Viewer::imageView(DOCKEY key) { return m_window->area().view(key); }

QString Viewer::rigName() { return m_rig ? m_rig->title() : QString(); }

QStringList Viewer::takeScriptErrors() { return m_window->panel()->takeScriptErrors(); }

QList<LogLine> Viewer::logLines(bool clear) {
    QList<LogLine> result;
    for (const LogStore::Line& line : m_log.lines()) {
        result.append({line.level(), line.text});
    }
    if (clear) {
        m_log.clear();
    }
    return result;
}

void Viewer::end() {
    m_window->storePlaces();
    QCoreApplication::quit();
}

void Viewer::quit() {
    QMetaObject::invokeMethod(
        m_window.get(),
        [this] {
            CommandWait::get().afterwards(this, [this] {
                if (m_window->close()) { // the user may have declined
                    QCoreApplication::quit();
                }
            });
        },
        Qt::QueuedConnection);
}

// Recordings as the user opens and saves them.

#include "livecontrol/foundation/FileToWrite.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/jobs/AutoSaver.h"
#include "viewer/app/jobs/JobsDialog.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/messages/MessageBoxes.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/FilePreferences.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/saving/SavingDialogs.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {
const QString kLastFolder = QStringLiteral("recording/lastFolder");
} // namespace

void Viewer::connectSaving() {
    m_saveService = std::make_unique<SaveService>(
        SaveService::Parts{*m_documents, *m_shelf, *m_savedPictures, [this] { return arrangedWindows(); }});
    connect(m_saveService.get(), &SaveService::ended, this, &Viewer::showFailure);
    connect(m_saveService.get(), &SaveService::begun, this, [this] { showJobs(false); });
    const auto update = [this] { m_host->updates().requestSoon(-1); }; // pages show that something is saved
    connect(m_saveService.get(), &SaveService::begun, this, update);
    connect(m_saveService.get(), &SaveService::reported, m_shelf.get(),
            [this](const QString& path) { emit m_shelf->told(translated("Saved as %1").arg(path)); });
    connect(m_saveService.get(), &SaveService::ended, this, update);
    m_autoSaver = std::make_unique<AutoSaver>(
        AutoSaver::Parts{*m_host, *m_documents, *m_shelf, *m_saveService, *m_preferences});
    m_host->setBackgroundSaving(m_saveService.get());
    m_saving = std::make_unique<SavingDialogs>(
        *m_host, *m_preferences, [this](const SaveRequest& wish) { m_saveService->save(wish); });
    m_saving->setLayoutPicture([this](const QList<DOCKEY>& keys, bool withInfo, const QSize& size) {
        return m_saveService->layoutPicture(keys, withInfo, size);
    });
    connect(m_window.get(), &MainWindow::savingAsked, m_saving.get(), [this](const QString& what) {
        const HostMode before = m_documents->mode();
        if (what != QLatin1String("open")) {
            QMetaObject::invokeMethod(m_saving.get(), what.toLatin1());
        } else if (m_recording->setMode(HOST_MODE_FILE); !m_saving->open()) {
            m_recording->setMode(before);
        }
    });
}

QList<SaveService::Window> Viewer::arrangedWindows() {
    QList<SaveService::Window> windows;
    for (const DOCKEY key : m_window->area().windowKeys(true)) {
        const ImageView* const view = m_window->area().view(key);
        Document* const document = m_documents->find(key);
        if (view && document) {
            windows.append({document, QRect(view->mapTo(&m_window->area(), QPoint()), view->size())});
        }
    }
    return windows;
}

// What shows by itself leaves the keyboard where the user works.
void Viewer::showJobs(bool isAsked) {
    if (!m_jobsDialog) {
        m_jobsDialog = new JobsDialog(m_shelf->exports(), m_shelf.get(), m_window.get());
    }
    m_jobsDialog->setAttribute(Qt::WA_ShowWithoutActivating, !isAsked);
    m_jobsDialog->show();
    if (isAsked) {
        m_jobsDialog->raise();
        m_jobsDialog->activateWindow();
    }
}

void Viewer::openRecording() {
    QStringList patterns;
    for (const QString& suffix : RecordingFile::readableSuffixes()) {
        patterns.append(QStringLiteral("*.") + suffix);
    }
    const QStringList paths =
        QFileDialog::getOpenFileNames(m_window.get(), translated("Open recording..."), lastFolder(),
                                      translated("Recordings (%1)").arg(patterns.join(QLatin1Char(' '))));
    QList<FileDocument*> opened;
    QStringList cut;
    for (const QString& path : paths) {
        rememberFolder(QFileInfo(path).absolutePath());
        try {
            opened.append(m_shelf->open(path));
            if (opened.last()->isCut()) {
                cut.append(QDir::toNativeSeparators(path));
            }
        } catch (const std::exception& error) {
            m_host->showFailure(error); // names the file and the reason
        }
    }
    if (!opened.isEmpty()) {
        m_documents->selectRecordings(opened);
        m_recording->setMode(HOST_MODE_FILE);
    }
    if (!cut.isEmpty()) {
        m_messages->warnList(translated("These files were cut off. What is left of them can be seen:"), cut,
                             nullptr);
    }
}

QString Viewer::lastFolder() const {
    const QString folder = m_preferences->value(kLastFolder).toString();
    return QFileInfo(folder).isDir() ? folder
                                     : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void Viewer::rememberFolder(const QString& folder) { m_preferences->setValue(kLastFolder, folder); }

// The dialog adds the ending to a name without a point and asks before it replaces that file. A name with
// another ending gets ours after it here, with a question of its own.
QString Viewer::askRecordingPath(const QString& name) {
    const QString suffix = RecordingFile::suffixes().first();
    QFileDialog dialog(m_window.get(), translated("Save recording..."), lastFolder(),
                       translated("Recordings (%1)").arg(QStringLiteral("*.rchx *.rch")));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(withSuffix(name, suffix));
    if (dialog.exec() != QDialog::Accepted) {
        return QString();
    }
    const QString path = dialog.selectedFiles().value(0);
    rememberFolder(QFileInfo(path).absolutePath());
    const QString typed = QFileInfo(path).suffix().toLower();
    return fileToWrite(*m_host, m_window.get(), path, typed == QLatin1String("rch") ? typed : suffix);
}

void Viewer::saveRecording(FileDocument* document) {
    const QPointer<FileDocument> file(document);
    try {
        const QString path = file ? askRecordingPath(file->title()) : QString();
        if (path.isEmpty() || !file) {
            return;
        }
        ExportRequest request = m_shelf->requestTo(path);
        request.existing = UnfinishedFile::Existing::Replace; // the dialog has asked
        m_shelf->save(*file, request, [this](const ExportJobs::Entry& job) { showFailure(job); });
    } catch (const std::exception& error) {
        m_host->showFailure(error); // names the file and the reason
    }
}

// Each under a name that says what it was; a number keeps them apart, and from what is there.
void Viewer::saveAllRecordings() {
    const QString folder =
        QFileDialog::getExistingDirectory(m_window.get(), translated("Select folder"), lastFolder());
    if (folder.isEmpty()) {
        return;
    }
    rememberFolder(folder);
    static const QRegularExpression kUnfit(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]"));
    const ExportJobs& jobs = m_shelf->exports();
    for (FileDocument* const document : m_documents->recordings()) {
        if (document->isSaved()) {
            continue;
        }
        const RecordingInfo& info = document->source()->info();
        const QString name = QStringLiteral("%1 %2").arg(
            info.camera, info.triggered.toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")));
        const QString start = folder + QLatin1Char('/') + QString(name).replace(kUnfit, QStringLiteral("_"));
        const QString suffix = QLatin1Char('.') + RecordingFile::suffixes().first();
        QString path = start;
        for (int number = 2; jobs.isReserved(path) || QFileInfo::exists(path + suffix); ++number) {
            path = QStringLiteral("%1 (%2)").arg(start).arg(number);
        }
        try {
            m_shelf->save(*document, m_shelf->requestTo(path + suffix),
                          [this](const ExportJobs::Entry& job) { showFailure(job); });
        } catch (const std::exception& error) {
            m_host->showFailure(error);
        }
    }
}

void Viewer::showFailure(const ExportJobs::Entry& job) {
    if (job.state == ExportJob::State::Failed) {
        QStringList lines{QDir::toNativeSeparators(job.failedPath), translated(job.failure),
                          JobsDialog::leftText(job)};
        lines.removeAll(QString());
        m_messages->error(lines.join(QLatin1Char('\n')));
    }
}

QString Viewer::recordingFolder() const { return dataFolder(m_options) + QStringLiteral("/recordings"); }

void Viewer::offerLeftovers() {
    if (m_shelf->offerLeftovers()) {
        m_recording->setMode(HOST_MODE_FILE);
    }
}

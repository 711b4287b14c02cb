// Recordings as the user opens and saves them.

#include "livecontrol/foundation/FileToWrite.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/jobs/JobsDialog.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/messages/MessageBoxes.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/FilePreferences.h"
#include "viewer/recordings/RecordingFile.h"

#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {
const QString kLastFolder = QStringLiteral("recording/lastFolder");
} // namespace

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
        rememberFolder(path);
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

void Viewer::rememberFolder(const QString& path) {
    m_preferences->setValue(kLastFolder, QFileInfo(path).absolutePath());
}

// The dialog adds the ending to a name without a point and asks before it replaces that file. A name with
// another ending gets ours after it here, with a question of its own.
QString Viewer::askRecordingPath(const QString& name) {
    const QString suffix = RecordingFile::suffixes().first();
    QFileDialog dialog(m_window.get(), translated("Save recording..."), lastFolder(),
                       translated("Recordings (%1)").arg(QStringLiteral("*.") + suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(withSuffix(name, suffix));
    if (dialog.exec() != QDialog::Accepted) {
        return QString();
    }
    rememberFolder(dialog.selectedFiles().value(0));
    return fileToWrite(*m_host, m_window.get(), dialog.selectedFiles().value(0), suffix);
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
    rememberFolder(folder + QStringLiteral("/."));
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

QString Viewer::recordingFolder() const {
    const QString base = m_options.settings.isEmpty()
                             ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                             : m_options.settings;
    return base + QStringLiteral("/recordings");
}

void Viewer::offerLeftovers() {
    if (m_shelf->offerLeftovers()) {
        m_recording->setMode(HOST_MODE_FILE);
    }
}

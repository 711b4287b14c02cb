// Recordings as the user opens and saves them.

#include "livecontrol/foundation/FileToWrite.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/messages/MessageBoxes.h"
#include "viewer/messages/Translated.h"
#include "viewer/recordings/RecordingFile.h"

#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QRegularExpression>
#include <QStandardPaths>

void Viewer::openRecording() {
    QStringList patterns;
    for (const QString& suffix : RecordingFile::readableSuffixes()) {
        patterns.append(QStringLiteral("*.") + suffix);
    }
    const QStringList paths =
        QFileDialog::getOpenFileNames(m_window.get(), translated("Open recording..."), QString(),
                                      translated("Recordings (%1)").arg(patterns.join(QLatin1Char(' '))));
    QList<FileDocument*> opened;
    for (const QString& path : paths) {
        try {
            opened.append(m_shelf->open(path));
        } catch (const std::exception& error) {
            m_host->showFailure(error); // names the file and the reason
        }
    }
    if (!opened.isEmpty()) {
        m_documents->selectRecordings(opened);
        m_recording->setMode(HOST_MODE_FILE);
    }
}

// The dialog adds the ending to a name without a point and asks before it replaces that file. A name with
// another ending gets ours after it here, with a question of its own.
QString Viewer::askRecordingPath(const QString& name) {
    const QString suffix = RecordingFile::suffixes().first();
    QFileDialog dialog(m_window.get(), translated("Save recording..."), QString(),
                       translated("Recordings (%1)").arg(QStringLiteral("*.") + suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(withSuffix(name, suffix));
    if (dialog.exec() != QDialog::Accepted) {
        return QString();
    }
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
    const QString folder = QFileDialog::getExistingDirectory(m_window.get(), translated("Select folder"));
    if (folder.isEmpty()) {
        return;
    }
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
        m_messages->error(
            QStringLiteral("%1\n%2").arg(QDir::toNativeSeparators(job.failedPath), translated(job.failure)));
    }
}

QString Viewer::recordingFolder() const { return dataFolder(m_options) + QStringLiteral("/recordings"); }

void Viewer::offerLeftovers() {
    if (m_shelf->offerLeftovers()) {
        m_recording->setMode(HOST_MODE_FILE);
    }
}

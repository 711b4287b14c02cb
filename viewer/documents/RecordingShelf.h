#pragma once

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/LossGuard.h"
#include "viewer/export/ExportJobs.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingInfo.h"
#include "viewer/recordings/Spool.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>
#include <vector>

class BackgroundJob;
class CameraDocument;
class DocumentList;
class FileDocument;
class Document;
class Messages;
class Preferences;

/// In the user's language: which file, and why.
QString recordingFailure(const RecordingError& error);

/// Takes recordings out of the cameras' memories, once each, into the spool, and from there into files; opens
/// them as documents, and knows which recording is where. All of that goes on beside the program: reading,
/// writing and copying run on other threads, frame by frame.
class RecordingShelf : public QObject, public LossGuard {
    Q_OBJECT

public:
    /// Something that goes on, and how far it is.
    struct Progress {
        QString text; // for the user; empty if nothing goes on
        int done = 0; // frames
        int total = 0;
    };

    /// All outlive it. `folder`: of the spool, unless the preferences name one.
    RecordingShelf(DocumentList& documents, Preferences& preferences, Messages& messages,
                   const QString& folder);
    ~RecordingShelf() override;

    /// Begins to take over what the camera's current partition holds, as many frames as the preferences ask
    /// for, unless that has been done or goes on. False if there is nothing to do.
    bool keep(CameraDocument& camera);
    /// All that is known of what the camera's memory holds.
    RecordingInfo infoOf(CameraDocument& camera, int partition) const;
    /// Whether keep() would do something.
    bool canKeep(const CameraDocument& camera) const;
    /// Recordings of these cameras that are nowhere on a disk, each as a line with the camera and the frames.
    QStringList unsafe(const QList<CameraBody*>& bodies, Memory memory) const;
    bool mayLose(const QList<CameraBody*>& bodies, Memory memory) override;
    bool mayClose(FileDocument& document) override;
    /// The same before the program ends, which ends what is being saved, too.
    bool mayQuit();

    /// As the user wants his files, all frames. `format`: of the list of formats; by the path's ending if it
    /// is empty. Throws RecordingError for one that there is not.
    ExportRequest requestTo(const QString& path, const QString& format = QString()) const;
    /// Begins to save frames of the document, whose source and notes are put into the request. The document
    /// is saved when all of it is in a file as it is. Gives the job's number among exports(). Throws
    /// RecordingError at once if the request makes no sense.
    int save(FileDocument& document, const ExportRequest& request, const ExportJobs::Then& then = {});
    /// All that is written into files at the user's wish.
    ExportJobs& exports() { return m_exports; }
    /// Takes the document away, if it may be. False if the user declined.
    bool close(FileDocument& document);
    /// Opens a file. Throws RecordingError.
    FileDocument* open(const QString& path);
    /// Offers what programs before this one have left in the spool; true if it was opened.
    bool offerLeftovers();

    /// What is read out of cameras, the oldest first. Numbers are those of cancelKeeping().
    QList<ExportJobs::Entry> keepings() const;
    /// False if it has ended.
    bool cancelKeeping(int id);
    /// What is being kept and saved, all together.
    Progress progress() const;
    void cancelJobs();
    bool isKeeping() const { return !m_keeping.isEmpty(); }

signals:
    void progressed();
    /// Something was kept, saved or closed.
    void changed();
    /// A camera's recording has been taken over; the last of those that were asked for at once has.
    void kept(FileDocument* document);
    void allKept();
    /// For the status line: what was done.
    void told(const QString& text);

private:
    struct Taken; // what a job has taken over

    /// Names what a partition of a head holds, as long as it does.
    static QString idOf(const CameraHead& head, int partition, const Recording& recording);
    int wantedFrames(const Recording& recording) const;
    Spool& spool();
    int held(const QString& id) const;
    void startKeeping(CameraDocument& camera, const std::shared_ptr<Taken>& taken);
    QList<Progress> goingOn() const;
    BackgroundJob& addJob(const QString& title, int total);
    void endJob(BackgroundJob* job);
    void takeOver(const BackgroundJob& job, const std::shared_ptr<Taken>& taken);
    void addKept(const Taken& taken);
    void handMarks(Document* camera);
    void tellTaken(const BackgroundJob& job, const Taken& taken);

    DocumentList& m_documents;
    Preferences& m_preferences;
    Messages& m_messages;
    QString m_defaultFolder;
    std::vector<std::unique_ptr<Spool>>
        m_spools; // the last one is in use; the preferences named others before
    std::shared_ptr<std::atomic<qint64>> m_room; // bytes that the spool may still grow by
    QThreadPool m_pool;
    QTimer m_beat;
    QList<BackgroundJob*> m_jobs; // that keep
    int m_nextJob = 1;
    QSet<QString> m_keeping;                       // ids of recordings
    QHash<QString, QPointer<FileDocument>> m_kept; // by the recording's id
    QHash<QString, int> m_wanted;                  // frames that were to be kept of it, at most
    QSet<QString> m_given;                         // the user has them in a file, or has given them up
    QList<FileDocument*> m_batch;                  // kept together
    ExportJobs m_exports;
};

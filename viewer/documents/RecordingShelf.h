#pragma once

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/LossGuard.h"
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
#include <exception>
#include <functional>
#include <memory>
#include <vector>

class BackgroundJob;
class CameraDocument;
class DocumentList;
class FileDocument;
class Document;
class FrameSource;
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
    /// How a recording is to be saved: as in the list of formats, in any case.
    struct SaveRequest {
        QString path;
        QString format; // empty: by the path's ending
        QString codec;
        int first = 0;         // of the frames
        int last = -1;         // to the end
        bool replaces = false; // a file that is there
    };
    /// Writes frames in a format that is none of the container's. On another thread; asks `goesOn` before
    /// each frame, throws for a failure, and is false when it was ended.
    using Exporter = std::function<bool(const FrameSource& frames, const SaveRequest& request,
                                        const std::function<bool(int done)>& goesOn)>;

    /// All outlive it. `folder`: of the spool, unless the preferences name one.
    RecordingShelf(DocumentList& documents, Preferences& preferences, Messages& messages,
                   const QString& folder);
    ~RecordingShelf() override;

    /// Begins to take over what the camera's current partition holds, as many frames as the preferences ask
    /// for, unless that has been done or goes on. False if there is nothing to do.
    bool keep(CameraDocument& camera);
    /// All that is known of what the camera's memory holds.
    RecordingInfo infoOf(CameraDocument& camera) const;
    /// Whether keep() would do something.
    bool canKeep(const CameraDocument& camera) const;
    /// Recordings of these cameras that are nowhere on a disk, each as a line with the camera and the frames.
    QStringList unsafe(const QList<CameraBody*>& bodies, Memory memory) const;
    bool mayLose(const QList<CameraBody*>& bodies, Memory memory) override;
    bool mayClose(FileDocument& document) override;
    /// The same before the program ends, which ends what is being saved, too.
    bool mayQuit();

    /// Begins to save. `then` is called in the end, with the failure or null; a job that was cancelled leaves
    /// no file. Throws RecordingError at once if the request makes no sense.
    BackgroundJob& save(FileDocument& document, const SaveRequest& request,
                        const std::function<void(std::exception_ptr)>& then = {});
    void setExporter(Exporter exporter) { m_exporter = std::move(exporter); }
    /// Takes the document away, if it may be. False if the user declined.
    bool close(FileDocument& document);
    /// Opens a file. Throws RecordingError.
    FileDocument* open(const QString& path);
    /// Offers what programs before this one have left in the spool; true if it was opened.
    bool offerLeftovers();

    /// What goes on, and how far it is.
    QList<BackgroundJob*> jobs() const { return m_jobs; }
    void cancelJobs();
    /// For the status line; empty if nothing goes on.
    QString progressText() const;
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
    bool holds(const QString& id, int frames) const;
    void startKeeping(CameraDocument& camera, const std::shared_ptr<Taken>& taken);
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
    QList<BackgroundJob*> m_jobs;
    QSet<QString> m_keeping;                       // ids of recordings
    QHash<QString, QPointer<FileDocument>> m_kept; // by the recording's id
    QSet<QString> m_given;                         // the user has them in a file, or has given them up
    QList<FileDocument*> m_batch;                  // kept together
    Exporter m_exporter;
};

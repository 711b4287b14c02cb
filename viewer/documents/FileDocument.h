#pragma once

#include "viewer/documents/Document.h"
#include "viewer/recordings/FrameSource.h"

/// The document of a recording outside of a camera: in a file, or kept in the spool until it has one.
class FileDocument : public Document {
    Q_OBJECT

public:
    /// The path is empty as long as it has not been saved under a name.
    FileDocument(DocumentList& list, DOCKEY key, FrameSourcePtr source, const QString& path);
    ~FileDocument() override;

    FrameSourcePtr source() const { return m_source; }
    /// Of the recording, as it is to stand in a file: with what the user has noted since.
    RecordingInfo info() const;
    /// The file of the spool that holds it; empty if none does. It goes with the document, unless nothing
    /// else holds the recording.
    const QString& spoolPath() const { return m_spoolPath; }
    void setSpoolPath(const QString& path) { m_spoolPath = path; }
    /// The document is about to go: so does the file in the spool, or it gets what the user has noted.
    void settleSpool();

    const QString& path() const { return m_path; }
    /// How often something has been noted. Of use only beside another such number.
    int notes() const { return m_notes; }
    /// It stands in a file of that path now, with what had been noted by then. What came later goes there
    /// when the document does.
    void setSaved(const QString& path, int notes);
    /// Whether all of its frames stand in a file under a name.
    bool isSaved() const;
    /// The file that it was opened from was cut off: nobody knows what else it held.
    bool isCut() const;
    /// Writes all of it to a file, in place of one that is there, and waits for that. Throws RecordingError.
    void save(const QString& path);
    /// Gives the file another name in its folder; the ending stays. Throws RecordingError for a name that is
    /// none, or taken.
    void rename(const QString& name);
    /// Removes the file; the document stays. Throws DOC_FileException.
    void deleteFile();

    QVector<int> marks() const override { return m_marks; }
    void toggleMark(int frame) override;
    void setMarks(const QVector<int>& marks);

    QString title() const override;
    QSize imageSize() const override { return m_source->info().size; }
    int bitDepth() const override { return m_source->info().bitDepth; }
    Frame frame(const QSize& maxSize = QSize()) override { return recordedFrame(playPosition(), maxSize); }
    Frame recordedFrame(int index, const QSize& maxSize = QSize()) override;
    int recordedFrames() const override { return m_source->count(); }
    int triggerIndex() const override;
    quint32 recordedRate() const override { return m_source->info().rate; }

signals:
    /// Saved, marked, or noted something.
    void keepingChanged(FileDocument* document);

private:
    void keepNotes();
    void noteChange();
    bool hasNewNotes() const { return m_notes != m_keptNotes; }

    FrameSourcePtr m_source;
    QString m_path;
    QString m_spoolPath;
    QVector<int> m_marks;
    int m_notes = 0;
    int m_keptNotes = 0; // those that its file has
    Frame m_frame;       // the one that was shown last
    int m_frameIndex = -1;
};

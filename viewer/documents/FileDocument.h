#pragma once

#include "viewer/documents/Clip.h"
#include "viewer/documents/Document.h"

/// The document of a recording that lies in the computer's memory or in a file.
class FileDocument : public Document {
    Q_OBJECT

public:
    /// The path is empty as long as it has not been saved.
    FileDocument(DocumentList& list, DOCKEY key, const Clip& clip, const QString& path);
    ~FileDocument() override;

    const Clip& clip() const { return m_clip; }
    const QString& path() const { return m_path; }
    /// Throws DOC_FileException.
    void save(const QString& path);
    /// Removes the file; the document stays. Throws DOC_FileException.
    void deleteFile();

    QString title() const override;
    QSize imageSize() const override;
    int bitDepth() const override { return m_clip.bitDepth; }
    Frame frame(const QSize& maxSize = QSize()) override { return recordedFrame(playPosition(), maxSize); }
    Frame recordedFrame(int index, const QSize& maxSize = QSize()) override;
    int recordedFrames() const override { return m_clip.frames.size(); }
    int triggerIndex() const override { return m_clip.triggerIndex; }
    quint32 recordedRate() const override { return m_clip.rate; }

private:
    Clip m_clip;
    QString m_path;
};

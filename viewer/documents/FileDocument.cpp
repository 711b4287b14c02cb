#include "viewer/documents/FileDocument.h"

#include "livecontrol/foundation/APP_Exception.h"
#include "viewer/documents/adapters/DocumentAdapter.h"

#include <QFile>
#include <QFileInfo>

FileDocument::FileDocument(DocumentList& list, DOCKEY key, const Clip& clip, const QString& path)
    : Document(list, Kind::File, key), m_clip(clip), m_path(path) {
    customItems() = clip.items;
    setComment(clip.comment);
    setLogoPath(clip.logoPath);
    setFace(std::make_unique<FileFace>(*this));
}

FileDocument::~FileDocument() = default;

void FileDocument::save(const QString& path) {
    m_clip.items = customItems();
    m_clip.comment = comment();
    m_clip.logoPath = logoPath();
    m_clip.save(path);
    m_path = path;
}

void FileDocument::deleteFile() {
    if (!m_path.isEmpty() && !QFile::remove(m_path)) {
        throw DOC_FileException(QStringLiteral("File delete failed."), m_path, 0);
    }
    m_path.clear();
}

QString FileDocument::title() const {
    return m_path.isEmpty() ? m_clip.cameraName : QFileInfo(m_path).completeBaseName();
}

QSize FileDocument::imageSize() const {
    return m_clip.frames.isEmpty() ? QSize() : m_clip.frames.first().size();
}

Frame FileDocument::recordedFrame(int index, const QSize& maxSize) {
    if (m_clip.frames.isEmpty()) {
        return Frame();
    }
    Frame frame;
    frame.image = m_clip.frames.at(index);
    frame.bitDepth = m_clip.bitDepth;
    frame.number = quint32(index);
    frame.area = QRect(QPoint(0, 0), frame.image.size());
    if (maxSize.isValid() &&
        (frame.image.width() > maxSize.width() || frame.image.height() > maxSize.height())) {
        frame.image = frame.image.scaled(maxSize, Qt::KeepAspectRatio);
    }
    return frame;
}

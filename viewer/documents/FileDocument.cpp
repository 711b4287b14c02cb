#include "viewer/documents/FileDocument.h"

#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/APP_Exception.h"
#include "viewer/documents/adapters/DocumentAdapter.h"
#include "viewer/recordings/RecordingCopy.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/recordings/RecordingReader.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

FileDocument::FileDocument(DocumentList& list, DOCKEY key, FrameSourcePtr source, const QString& path)
    : Document(list, Kind::File, key), m_source(std::move(source)), m_path(path),
      m_marks(m_source->info().marks) {
    customItems() = m_source->info().items;
    setComment(m_source->info().comment);
    setLogoPath(m_source->info().logoPath);
    setFace(std::make_unique<FileFace>(*this));
    customItems().onChanged([this] { noteChange(); });
    connect(this, &Document::commentChanged, this, &FileDocument::noteChange);
    connect(this, &Document::logoPathChanged, this, &FileDocument::noteChange);
}

FileDocument::~FileDocument() {
    keepNotes();
    settleSpool();
}

// What was noted after the recording had got its file goes into that, if it is one that has room for notes. A
// part of the recording has marks of its own.
void FileDocument::keepNotes() {
    const bool hasRoom = RecordingFile::suffixes().contains(QFileInfo(m_path).suffix().toLower());
    if (!hasNewNotes() || !hasRoom || !isSaved()) {
        return;
    }
    try {
        RecordingInfo noted = RecordingReader(m_path).info();
        noted.items = customItems();
        noted.comment = comment();
        noted.logoPath = logoPath();
        if (noted.frames == m_source->info().frames) {
            noted.marks = m_marks;
        }
        RecordingReader::replaceInfo(m_path, noted);
        m_keptNotes = m_notes;
    } catch (const RecordingError& error) {
        qWarning("%s", error.what());
    }
}

// What the spool holds stays there while no other file has it: the next start offers it.
void FileDocument::settleSpool() {
    if (m_spoolPath.isEmpty()) {
        return;
    }
    if (isSaved()) {
        QFile::remove(m_spoolPath);
    } else if (hasNewNotes()) {
        try {
            RecordingReader::replaceInfo(m_spoolPath, info());
        } catch (const RecordingError& error) {
            qWarning("%s", error.what());
        }
    }
    m_spoolPath.clear();
}

RecordingInfo FileDocument::info() const {
    RecordingInfo info = m_source->info();
    info.items = customItems();
    info.comment = comment();
    info.logoPath = logoPath();
    info.marks = m_marks;
    return info;
}

void FileDocument::noteChange() {
    ++m_notes;
    emit keepingChanged(this);
}

void FileDocument::toggleMark(int frame) {
    QVector<int> marks = m_marks;
    toggle(marks, frame);
    setMarks(marks);
}

void FileDocument::setMarks(const QVector<int>& marks) {
    if (marks != m_marks) {
        m_marks = marks;
        noteChange();
        emit marksChanged(this);
        emit imageChanged(this);
    }
}

void FileDocument::setSaved(const QString& path, int notes) {
    m_path = path;
    m_keptNotes = notes;
    emit keepingChanged(this);
}

bool FileDocument::isSaved() const { return !m_path.isEmpty() && QFileInfo(m_path).isFile(); }

bool FileDocument::isCut() const {
    const auto* const reader = dynamic_cast<const RecordingReader*>(m_source.get());
    return reader && !reader->isWhole();
}

void FileDocument::save(const QString& path) {
    RecordingCopy copy;
    copy.storage = RecordingCopy::storageOf(*m_source);
    copy.existing = UnfinishedFile::Existing::Replace;
    copy.run(*m_source, info(), path);
    setSaved(path, m_notes);
}

void FileDocument::rename(const QString& name) {
    const QFileInfo file(m_path);
    const QString path = QStringLiteral("%1/%2.%3").arg(file.path(), name, file.suffix());
    if (m_path.isEmpty() || name.isEmpty() || !isValidFileName(name)) {
        throw RecordingError(RecordingError::While::Writing, path, reason("A file can't have this name."));
    }
    if (path == m_path) {
        return;
    }
    UnfinishedFile::checkPlace(path, UnfinishedFile::Existing::Refuse);
    QFile renamed(m_path);
    if (!renamed.rename(path)) {
        throw RecordingError(RecordingError::While::Writing, path, Reason(renamed.errorString()));
    }
    m_path = path;
    emit keepingChanged(this);
}

void FileDocument::deleteFile() {
    if (!m_path.isEmpty() && !QFile::remove(m_path)) {
        throw DOC_FileException(QStringLiteral("File delete failed."), m_path, 0);
    }
    m_path.clear();
    emit keepingChanged(this);
}

int FileDocument::triggerIndex() const {
    const RecordingInfo& info = m_source->info();
    const RecordedShot* const shot = RecordedShot::of(info.shots, playPosition());
    return shot ? shot->triggerIndex : info.triggerIndex;
}

QString FileDocument::title() const {
    return m_path.isEmpty() ? m_source->info().camera : QFileInfo(m_path).completeBaseName();
}

// A view asks for the same frame several times in a row.
Frame FileDocument::recordedFrame(int index, const QSize& maxSize) {
    if (m_frameIndex != index) {
        m_frameIndex = index;
        try {
            m_frame = m_source->count() > 0 ? m_source->frame(m_frameIndex) : Frame();
            m_frame.area = QRect(QPoint(0, 0), m_frame.image.size()); // all that there is
        } catch (const RecordingError& error) {
            qWarning("%s", error.what());
            m_frame = Frame();
        }
    }
    Frame frame = m_frame;
    if (maxSize.isValid() &&
        (frame.image.width() > maxSize.width() || frame.image.height() > maxSize.height())) {
        frame.image = FrameStamp::scaled(frame.image, maxSize);
    }
    return frame;
}

#pragma once

#include <QString>

/// A file that is being written: it lies beside the place where it shall stand, under a name of its own, and
/// moves there when it is whole. Unless it was moved or left, it goes with this object. One thread at a time.
class UnfinishedFile {
public:
    enum class Existing { Refuse, Replace };

    /// What such files are called until then, as a pattern.
    static const QString kPattern;

    /// Throws RecordingError if no file could come to stand there, as far as that can be told beforehand.
    static void checkPlace(const QString& path, Existing existing);
    /// Makes it. Throws RecordingError, also if something stands at the path already that is not to be
    /// replaced.
    explicit UnfinishedFile(const QString& path, Existing existing = Existing::Refuse);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    const QString& path() const { return m_path; }           // where it shall stand
    const QString& currentPath() const { return m_current; } // where it lies now
    int handle() const { return m_handle; }
    /// All of the bytes, behind the others. Throws RecordingError.
    void write(const char* bytes, qint64 size);
    /// Somebody else writes through the handle, up to that byte so far: what is new goes on its way to the
    /// disk as with write().
    void noteWritten(qint64 end);
    /// Cuts it there, and goes on there.
    void cut(qint64 size);
    /// To the disk, and to its place. Throws RecordingError; the file is gone then, and what stood at the
    /// path is as it was.
    void finish();

private:
    void moveIntoPlace();
    void discard();

    QString m_path;
    QString m_current;
    Existing m_existing;
    int m_handle = -1;
    qint64 m_begun = 0; // bytes that are on their way to the disk
    qint64 m_written = 0;
};

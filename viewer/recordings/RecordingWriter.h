#pragma once

#include "viewer/recordings/Container.h"
#include "viewer/recordings/RecordingInfo.h"
#include "viewer/recordings/UnfinishedFile.h"

#include <cstdlib>
#include <memory>
#include <vector>

/// A frame as it stands in a container.
struct StoredFrame {
    QByteArray payload;
    quint32 number = 0;
    qint64 time = 0; // ns
};

/// Writes a recording as a container, frame by frame: what it holds meanwhile is one buffer and eight bytes a
/// frame. The file stands at its path once finish() has returned, and without that it goes. One thread at a
/// time; all but the counts throws RecordingError.
class RecordingWriter {
public:
    RecordingWriter(const QString& path, const RecordingInfo& info, Container::Storage storage,
                    UnfinishedFile::Existing existing = UnfinishedFile::Existing::Refuse);
    ~RecordingWriter();

    const QString& path() const { return m_file.path(); }
    /// Where it lies before it is finished.
    const QString& currentPath() const { return m_file.currentPath(); }
    int frames() const { return int(m_offsets.size()); }
    qint64 bytes() const { return m_flushed + m_used; }

    /// All frames have the size and the format of the first.
    void add(const Frame& frame);
    /// One that another file holds in the same layout.
    void addStored(const StoredFrame& frame, const Container::Layout& layout);
    /// What has become known of the recording while it was written. The count of frames is the writer's.
    void setInfo(const RecordingInfo& info) { m_info = info; }
    /// Writes what comes behind the frames, brings all of it to the disk and moves it to its place.
    void finish();
    /// The same after a failure to write, as of a full disk: the frames that have reached it stand at the
    /// path, without what comes behind them, which is found again when the file is opened.
    void finishWithoutEnd();

private:
    void begin(const Container::Layout& layout);
    void addChunk(Container::Chunk chunk, const char* payload);
    void append(const char* bytes, qint64 size);
    void flush();

    struct Free {
        void operator()(char* bytes) const { std::free(bytes); }
    };

    UnfinishedFile m_file;
    RecordingInfo m_info;
    Container::Storage m_storage;
    Container::Layout m_layout; // of the frames, once there is one
    std::vector<quint64> m_offsets;
    std::unique_ptr<char, Free> m_buffer;
    qint64 m_used = 0;    // of the buffer
    qint64 m_flushed = 0; // bytes before it
    qint64 m_end = 0;     // of the last frame
};

#pragma once

#include "viewer/cameras/Reason.h"
#include "viewer/recordings/Container.h"
#include "viewer/recordings/FrameSource.h"

#include <QMutex>

#include <atomic>
#include <memory>
#include <vector>

struct StoredFrame;

/// Reads a container. A file that was cut off anywhere opens up to its last whole frame. What the file says
/// of sizes, counts and places is believed only as far as the file itself bears it out.
class RecordingReader : public FrameSource {
public:
    /// Opens it; the time that takes doesn't depend on the number of frames if the file is whole. Throws
    /// RecordingError.
    explicit RecordingReader(const QString& path);
    ~RecordingReader() override;

    const QString& path() const { return m_path; }
    const Container::Layout& layout() const { return m_layout; }
    /// The file was whole: closed by its writer.
    bool isWhole() const { return m_isWhole; }

    /// One access to the file.
    Frame frame(int index) const override;
    /// The same frame as it stands in the file.
    StoredFrame stored(int index) const;

    /// Writes what is known of a recording anew, behind its frames, into the file at that path; one that had
    /// been cut off is whole then. Throws RecordingError.
    static void replaceInfo(const QString& path, const RecordingInfo& info);

private:
    struct Piece {
        quint64 offset = 0;
        quint64 end = 0;
    };

    [[noreturn]] void fail(const Reason& why) const;
    QByteArray bytesAt(quint64 offset, quint64 size) const;
    std::optional<Container::Chunk> chunkAt(quint64 offset, quint32 type) const;
    bool fits(quint64 offset, const Container::Chunk& chunk) const;
    void readHeader();
    bool readEnd();
    bool readInfo(quint64 offset);
    void scan();
    bool isFrameWhole(quint64 offset) const;
    bool loadIndex() const;
    Piece pieceOf(int index) const;
    QByteArray readPiece(int index, Container::Chunk& chunk) const;

    QString m_path;
    int m_handle = -1;
    quint64 m_size = 0; // of the file
    Container::Layout m_layout;
    bool m_isWhole = false;
    quint64 m_indexAt = 0;   // of a whole file
    quint64 m_framesEnd = 0; // where the last frame ends
    mutable QMutex m_mutex;  // over the first look at the index
    mutable std::atomic<bool> m_isIndexed{false};
    mutable std::vector<quint64> m_offsets;
};

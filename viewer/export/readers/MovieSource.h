#pragma once

#include "viewer/recordings/FrameSource.h"

#include <QMutex>
#include <QVector>

#include <memory>

/// The pictures of a movie, in the order in which they show. Forward it reads on; for any other frame it goes
/// back to the nearest picture that stands for itself.
class MovieSource : public FrameSource {
public:
    /// Reads through the file once, for where each picture stands. Throws RecordingError.
    explicit MovieSource(const QString& path);
    ~MovieSource() override;

    Frame frame(int index) const override;

private:
    struct Reader;

    QString m_path;
    mutable QMutex m_mutex; // of the reader
    std::unique_ptr<Reader> m_reader;
};

#pragma once

#include "viewer/recordings/FrameSource.h"

#include <QMutex>
#include <QVector>

#include <memory>

/// The pages of a TIFF. All have the size and the samples of the first.
class TiffSource : public FrameSource {
public:
    /// Throws RecordingError.
    explicit TiffSource(const QString& path);
    ~TiffSource() override;

    Frame frame(int index) const override;
    /// What the first page tells of the whole recording, of which it may be a part.
    const RecordingInfo& told() const { return m_told; }

private:
    struct Reader;

    QString m_path;
    RecordingInfo m_told;
    mutable QMutex m_mutex; // of the reader
    std::unique_ptr<Reader> m_reader;
    QVector<quint64> m_pages; // where each stands
};

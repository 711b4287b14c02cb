#pragma once

#include "viewer/recordings/FrameSource.h"

#include <QStringList>

/// Pictures in files of their own, read one by one.
class SequenceSource : public FrameSource {
public:
    /// All pictures that belong to the one at the path, or that one alone. Throws RecordingError.
    explicit SequenceSource(const QString& path);

    Frame frame(int index) const override;

    /// The files that are numbered as this one is, in the order of their numbers; of a file without a number,
    /// itself.
    static QStringList filesOf(const QString& path);

private:
    void takeFirst(const QString& path);
    Frame read(const QString& path) const;
    Frame readTiff(const QString& path) const;

    QStringList m_files;
};

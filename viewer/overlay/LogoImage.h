#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QFuture>
#include <QImage>

/// The image that stands among the information. It is read in the background, looked for again when its file
/// has changed, and absent while it can't be read.
class LogoImage {
public:
    static constexpr int LargestSide = 1024; // pixels; a larger image is made smaller while it is read
    static constexpr int CheckMs = 500;      // between two looks at the file

    /// Reads an image file; null if it is none, or one that can't be read in a reasonable room.
    static QImage read(const QString& path);

    /// Follows that file; empty for none. True if another image shows than before.
    bool follow(const QString& path);
    /// Null while there is none.
    const QImage& image() const { return m_image; }
    /// The file that is followed can't be shown.
    bool isBroken() const { return m_isBroken; }

private:
    bool hasChanged();
    void start();
    QFuture<QImage> reading() const;

    QString m_path;
    QDateTime m_time;
    qint64 m_size = -1;
    bool m_isReadable = false;
    bool m_isBroken = false;
    QElapsedTimer m_looked;
    QFuture<QImage> m_reading;
    bool m_isReading = false;
    QImage m_image;
};

#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

#include <memory>

class QIODevice;
struct tiff;

/// Pages of a TIFF, one after the other. Throws std::runtime_error with what the library says.
class TiffWriter {
public:
    struct Page {
        QSize size;
        int samples = 1;       // 3: color
        int bitsPerSample = 8; // 8 or 16
        QString description;
    };

    /// `isBig`: with offsets of 64 bits, for files that may get larger than 4 GB. The device is open, and
    /// outlives the writer.
    TiffWriter(QIODevice& device, bool isBig);
    ~TiffWriter();

    /// The rows without gaps, in the machine's order of bytes.
    void add(const Page& page, const QByteArray& rows);
    void close();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

// Files of recordings: whatever the bytes are, opening them ends, takes no more memory than a frame may have,
// and what is read of one that opens is what it says of itself.

#include "fuzz/Expect.h"
#include "viewer/recordings/Container.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingFile.h"

#include <QString>
#include <QtEndian>

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr int kMostFrames = 50; // that are looked at

void readAll(const QString& path) {
    const FrameSourcePtr source = RecordingFile::open(path);
    expect(source->count() > 0, "a recording that opens has frames");
    for (int i = 0; i < source->count() && i < kMostFrames; ++i) {
        try {
            const Frame frame = source->frame(i);
            expect(frame.image.size() == source->info().size, "a frame has the recording's size");
        } catch (const RecordingError& error) {
            expect(error.isReading(), "a reader reads");
        }
    }
    const RecordingInfo again = RecordingInfo::fromJson(source->info().toJson());
    expect(again.toJson() == source->info().toJson(), "what is known comes back");
}

void putChecksum(QByteArray& bytes, qint64 at, qint64 from, qint64 count) {
    qToLittleEndian(Container::checksum(bytes.constData() + from, count), bytes.data() + at);
}

// Of header and chunks as far as they go, so that what stands behind the checksums is reached as well.
void mendChecksums(QByteArray& bytes) {
    if (bytes.size() < Container::kHeaderBytes) {
        return;
    }
    putChecksum(bytes, 28, 0, 28);
    const qint64 size = bytes.size();
    for (qint64 at = Container::kHeaderBytes; at + Container::kChunkBytes <= size;) {
        const auto payload = qFromLittleEndian<quint64>(bytes.constData() + at + 8);
        const bool fits = payload <= quint64(size - at - Container::kChunkBytes);
        if (fits) {
            putChecksum(bytes, at + 4, at + Container::kChunkBytes, qint64(payload));
        }
        putChecksum(bytes, at + 32, at, 32);
        if (!fits) {
            return;
        }
        at += (Container::kChunkBytes + qint64(payload) + 7) / 8 * 8;
    }
    if (size >= Container::kHeaderBytes + Container::kChunkBytes) {
        const qint64 end = size - Container::kChunkBytes;
        putChecksum(bytes, end + 32, end, 32);
    }
}

} // namespace

// Qt's reader of JSON loses the first of two lists that have the same name in an object.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:libQt5Core"; }

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) {
        return 0;
    }
    QByteArray bytes(reinterpret_cast<const char*>(data) + 1, int(size) - 1);
    if (data[0] % 2 == 0) {
        mendChecksums(bytes);
    }
    const int file = memfd_create("recording", MFD_CLOEXEC);
    if (file < 0 || write(file, bytes.constData(), size_t(bytes.size())) != bytes.size()) {
        close(file);
        return 0;
    }
    try {
        readAll(QStringLiteral("/proc/self/fd/%1").arg(file));
    } catch (const RecordingError& error) {
        expect(error.isReading() && !error.why().isEmpty(), "a refusal has a reason");
    }
    close(file);
    return 0;
}

#include "viewer/recordings/RecordingCopy.h"

#include "viewer/recordings/RecordingReader.h"

#include <algorithm>

Container::Storage RecordingCopy::storageOf(const FrameSource& from) {
    const auto* const reader = dynamic_cast<const RecordingReader*>(&from);
    return reader ? reader->layout().storage : Container::Storage::Raw;
}

bool RecordingCopy::run(const FrameSource& from, const RecordingInfo& info, const QString& path) const {
    const int start = std::clamp(first, 0, from.count());
    const int most = from.count() - start;
    const int wanted = count < 0 ? most : std::min(count, most);
    RecordingWriter writer(path, info.part(start, wanted), storage, existing);
    const auto* const reader = dynamic_cast<const RecordingReader*>(&from);
    const bool isSame = reader && reader->layout().storage == storage;
    for (int i = 0; i < wanted; ++i) {
        if (goesOn && !goesOn(i)) {
            return false;
        }
        if (isSame) {
            writer.addStored(reader->stored(start + i), reader->layout());
        } else {
            writer.add(from.frame(start + i));
        }
    }
    writer.finish();
    return true;
}

// Rig files: whatever bytes they hold, reading ends with a reason or with cameras that can be made, and what
// is in their slots can be listed.

#include "fuzz/Expect.h"
#include "simulator/device/Rig.h"
#include "simulator/files/RigFile.h"
#include "viewer/cameras/CheckedJson.h"

// The JSON parser of Qt 5.15 loses a container where a text breaks off.
extern "C" const char* __lsan_default_suppressions() { return "leak:libQt5Core.so"; }

namespace {

void listCards(CameraStorage& storage) {
    for (const StorageKind kind : {StorageKind::SDCard, StorageKind::DockStore, StorageKind::CFast}) {
        for (int slot = 0; slot < storage.slotCount(kind); ++slot) {
            const CardSlot card = storage.slot(kind, slot);
            expect(card.used <= card.capacity, "no more on a card than it holds");
            for (int i = 0; card.inserted && i < card.records; ++i) {
                expect(storage.record(kind, slot, i).frames > 0, "a record has frames");
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    constexpr int Most = 3; // cameras that are made: a file may count hundreds
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString name = QStringLiteral("fuzzed.json");
    RigFile file;
    try {
        file = RigFile::parse(text, name);
    } catch (const RigFileError& error) {
        expect(QString::fromUtf8(error.what()).startsWith(name), "the file in the reason");
        return 0;
    }
    Rig rig(Clock::Mode::Stepped);
    for (const BodyDescription& camera : file.cameras.mid(0, Most)) {
        const SimulatedBody* const body = rig.addBody(camera);
        if (body->storage()) {
            listCards(*body->storage());
        }
    }
    return 0;
}

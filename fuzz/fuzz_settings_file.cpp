// Camera settings files: whatever bytes they hold, reading ends with a reason or with records, and what was
// read is written and read again as the same.

#include "fuzz/Expect.h"
#include "simulator/files/RigFile.h"
#include "viewer/cameras/CheckedJson.h"
#include "viewer/cameras/settings/SettingsRecord.h"

// The JSON parser of Qt 5.15 loses a container where a text breaks off.
extern "C" const char* __lsan_default_suppressions() { return "leak:libQt5Core.so"; }

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString name = QStringLiteral("fuzzed.zcsx");
    QList<BodyRecord> records;
    try {
        records = SettingsFile::read(text, name);
    } catch (const RigFileError& error) {
        expect(QString::fromUtf8(error.what()).startsWith(name), "the file in the reason");
        return 0;
    }
    for (const BodyRecord& record : records) {
        expect(!record.name.trimmed().isEmpty() && !record.heads.isEmpty(), "cameras with a name and a head");
        for (const HeadRecord& head : record.heads) {
            expect(head.settings.rate > 0 && head.settings.shutter > 0, "rates and shutters");
        }
    }
    const QByteArray written = SettingsFile::write(records);
    expect(SettingsFile::write(SettingsFile::read(written, name)) == written, "the same from the same");
    return 0;
}

// A settings file: whatever bytes it holds, what could be read of it is written and read again as the same.

#include "fuzz/Expect.h"
#include "viewer/prefs/PreferencesText.h"

// The JSON parser of Qt 5.15 loses a container where a text breaks off.
extern "C" const char* __lsan_default_suppressions() { return "leak:libQt5Core.so"; }

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const PreferencesText::Parsed parsed = PreferencesText::parse(text);
    const QByteArray written = PreferencesText::compose(parsed.values);
    const PreferencesText::Parsed again = PreferencesText::parse(written);
    expect(again.badLines.isEmpty(), "lines that make sense");
    expect(again.values.keys() == parsed.values.keys(), "the same keys");
    expect(PreferencesText::compose(again.values) == written, "the same from the same");
    return 0;
}

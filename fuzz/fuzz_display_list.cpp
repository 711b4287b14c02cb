// Lists of what stands over an image, and what a user notes there: whatever text it is, reading ends, a list
// that was read can be stored and read again, and notes stay within their room.

#include "fuzz/Expect.h"
#include "viewer/overlay/DisplayEntries.h"
#include "viewer/overlay/NoteLines.h"

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QVector<DisplayEntry> entries = DisplayEntries::read(text);
    for (const DisplayEntry& entry : entries) {
        expect(!entry.key.isEmpty() && !entry.key.contains(QLatin1Char(',')), "a key that can be stored");
        expect(!entry.isSeparator() || !entry.shown, "a separator has no state");
    }
    expect(DisplayEntries::read(DisplayEntries::text(entries)) == entries, "the list that was stored");

    const NoteLines notes = NoteLines::of(text);
    expect(notes.lines.size() <= NoteLines::Most, "no more lines than there is room for");
    expect(notes.leftOut == 0 || notes.lines.size() == NoteLines::Most,
           "lines are left out for want of room");
    for (const QString& line : notes.lines) {
        expect(line.size() <= NoteLines::Longest + 1, "no line longer than there is room for");
        expect(!line.contains(QLatin1Char('\n')) && !line.contains(QLatin1String("{Separator}")), "one line");
    }
    return 0;
}

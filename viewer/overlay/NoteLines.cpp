#include "viewer/overlay/NoteLines.h"

#include "viewer/recordings/CustomItems.h"

namespace {

const QLatin1String kSeparator("{Separator}");

/// The length of the break that stands there; 0 if there is none.
int breakAt(const QString& text, int at) {
    switch (text.at(at).unicode()) {
    case '\r':
        return at + 1 < text.size() && text.at(at + 1) == QLatin1Char('\n') ? 2 : 1;
    case '\n':
    case '\v':
    case '\f':
    case 0x85:
    case 0x2028:
    case 0x2029:
        return 1;
    case '{':
        return text.midRef(at, kSeparator.size()) == kSeparator ? kSeparator.size() : 0;
    default:
        return 0;
    }
}

QString shortened(const QString& text, int from, int length) {
    QString line = text.mid(from, qMin(length, NoteLines::Longest));
    if (line.size() < length) {
        if (line.at(line.size() - 1).isHighSurrogate()) {
            line.chop(1);
        }
        line += QChar(0x2026);
    }
    return line.replace(QLatin1Char('\t'), QLatin1Char(' '));
}

bool isBlank(const QString& text, int from, int length) {
    return text.midRef(from, length).trimmed().isEmpty();
}

} // namespace

NoteLines NoteLines::of(const QString& text) {
    NoteLines notes;
    int blank = 0; // lines of which it is not known whether another one follows
    const auto take = [&](int from, int length) {
        if (isBlank(text, from, length)) {
            ++blank;
            return;
        }
        for (; blank > 0 && notes.lines.size() < Most; --blank) {
            notes.lines.append(QString());
        }
        if (notes.lines.size() < Most) {
            notes.lines.append(shortened(text, from, length));
        } else {
            notes.leftOut += blank + 1;
        }
        blank = 0;
    };
    int start = 0;
    for (int at = 0; at < text.size();) {
        const int length = breakAt(text, at);
        if (length > 0) {
            take(start, at - start);
            start = at + length;
        }
        at += qMax(1, length);
    }
    take(start, text.size() - start);
    return notes;
}

NoteLines NoteLines::of(const CustomItem& item) {
    return of(QStringLiteral("%1: %2 %3").arg(item.name, item.value, item.unit).trimmed());
}

#include "livecontrol/devices/CameraNameFile.h"

#include "livecontrol/foundation/UTL_Names.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>

const QString kDefaultCategory = QStringLiteral("?default?");

namespace {

constexpr int kMaxNameLength = 1024;

/// Whether each byte is part of a character of Shift-JIS.
bool isShiftJis(const QByteArray& bytes) {
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<uchar>(c) < 0x80; })) {
        return true;
    }
    const QTextCodec* const codec = QTextCodec::codecForName("Shift-JIS");
    if (!codec) {
        return false;
    }
    // Not every codec counts its failures, but each leaves the sign of one, which Shift-JIS itself lacks. The
    // line feed shows half a character at the end.
    const QByteArray ended = bytes + '\n';
    QTextCodec::ConverterState state;
    const QString text = codec->toUnicode(ended.constData(), ended.size(), &state);
    return state.invalidChars == 0 && !text.contains(QChar::ReplacementCharacter);
}

/// The text of the bytes; a mark of the byte order decides before anything else.
QString decoded(const QByteArray& bytes) {
    QTextStream stream(bytes);
    if (!isShiftJis(bytes)) {
        stream.setCodec("UTF-8");
    }
    const QString text = stream.readAll();
    // UTF-16 may hold halves of characters, which no name can keep.
    return text.isValidUtf16() ? text : QString::fromUtf8(text.toUtf8());
}

/// Whether the text has only characters that certainly may stand in a name. Others may too, that is for
/// sanitizeFileName() to say.
bool isPlain(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        const uint code = c.unicode();
        const uint small = code | 0x20U;
        return (small >= 'a' && small <= 'z') || (code >= '0' && code <= '9') || code == ' ' || code >= 0x80;
    });
}

/// The name that a field stands for: the field itself, as nearly all are, or else a text put into `buffer`.
QStringView cameraName(QStringView field, QString& buffer) {
    field = field.trimmed();
    if (field.size() <= kMaxNameLength && isPlain(field)) {
        return field;
    }
    buffer = sanitizeFileName(field.toString(), QString()).trimmed();
    if (buffer.size() > kMaxNameLength) {
        buffer.truncate(kMaxNameLength);
        if (buffer.at(kMaxNameLength - 1).isHighSurrogate()) {
            buffer.chop(1); // never half a character
        }
    }
    return buffer;
}

class Collector {
public:
    void addLine(QStringView line) {
        auto comma = line.indexOf(QLatin1Char(','));
        if (comma < 0) {
            qWarning() << "[only category]" << line;
            return;
        }
        QStringList& names = ofCategory(line.left(comma).trimmed());
        while (comma >= 0) {
            const auto next = line.indexOf(QLatin1Char(','), comma + 1);
            const auto end = next < 0 ? line.size() : next;
            const QStringView name = cameraName(line.mid(comma + 1, end - comma - 1), m_buffer);
            if (!name.isEmpty()) {
                names.append(name.toString());
            }
            comma = next;
        }
    }

    void moveTo(CameraNames& names) {
        for (auto it = m_categories.begin(); it != m_categories.end(); ++it) {
            it->removeDuplicates();
            names[it.key()] = *it;
        }
    }

private:
    QStringList& ofCategory(QStringView category) {
        if (!m_last || category != m_lastCategory) {
            m_lastCategory = category.toString();
            m_last = &m_categories[m_lastCategory.isEmpty() ? kDefaultCategory : m_lastCategory];
        }
        return *m_last;
    }

    CameraNames m_categories;
    QString m_buffer;
    QString m_lastCategory;
    QStringList* m_last = nullptr; // entries of a map stay where they are
};

void collectLines(const QString& text, Collector& collector) {
    for (int start = 0; start < text.size();) {
        int end = text.indexOf(QLatin1Char('\n'), start);
        end = end < 0 ? text.size() : end;
        const bool isWindowsEnd = end > start && text.at(end - 1) == QLatin1Char('\r');
        collector.addLine(QStringView(text).mid(start, end - start - (isWindowsEnd ? 1 : 0)));
        start = end + 1;
    }
}

void logCritical(const char* text, const QString& path) {
    qCritical().noquote().nospace() << text << " [" << path << "]";
}

} // namespace

bool readCameraNameFile(const QString& path, CameraNames& names) {
    QFile file(path);
    if (!file.exists()) {
        return false;
    }
    // A pipe or device would be waited for without end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        logCritical("file open failed.", path);
        return false;
    }
    try {
        Collector collector;
        collectLines(decoded(file.readAll()), collector);
        collector.moveTo(names);
    } catch (const std::exception&) {
        logCritical("file error occurred.", path);
        return false;
    }
    return true;
}

#include "livecontrol/devices/CameraNameFile.h"

#include "livecontrol/foundation/UTL_Names.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>
#include <QTextStream>
#include <QVector>

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
    return stream.readAll();
}

QString cameraName(const QStringRef& field) {
    QString name = sanitizeFileName(field.trimmed().toString(), QString()).trimmed();
    if (name.size() > kMaxNameLength) {
        name.truncate(kMaxNameLength);
        if (name.at(kMaxNameLength - 1).isHighSurrogate()) {
            name.chop(1); // never half a character
        }
    }
    return name;
}

/// Names of one category, each once. Long lists have one category as a rule, so a name is looked up by its
/// hash, in a table that is at most half full.
class UniqueNames {
public:
    void add(const QString& name) {
        if (m_names.size() * 2 >= m_slots.size()) {
            grow();
        }
        const uint hash = qHash(name);
        int& slot = slotOf(hash, [&](int row) { return m_names.at(row) == name; });
        if (slot < 0) {
            slot = m_names.size();
            m_names.append(name);
            m_hashes.append(hash);
        }
    }
    const QStringList& names() const { return m_names; }

private:
    /// The slot of an equal name, or the free one where it belongs.
    template <class IsEqual>
    int& slotOf(uint hash, IsEqual&& isEqual) {
        const uint mask = static_cast<uint>(m_slots.size()) - 1;
        for (uint place = hash & mask;; place = (place + 1) & mask) {
            int& slot = m_slots[static_cast<int>(place)];
            if (slot < 0 || (m_hashes.at(slot) == hash && isEqual(slot))) {
                return slot;
            }
        }
    }
    void grow() {
        m_slots.fill(kFree, qMax(16, m_slots.size() * 4));
        for (int row = 0; row < m_names.size(); ++row) {
            slotOf(m_hashes.at(row), [](int) { return false; }) = row;
        }
    }

    static constexpr int kFree = -1;
    QStringList m_names;
    QVector<uint> m_hashes; // of the names
    QVector<int> m_slots;   // rows of the names; the size is a power of two
};

class Collector {
public:
    void addLine(const QStringRef& line) {
        int comma = line.indexOf(QLatin1Char(','));
        if (comma < 0) {
            QMessageLogger(nullptr, 0, nullptr).warning() << "[only category]" << line;
            return;
        }
        UniqueNames& names = ofCategory(line.left(comma).trimmed());
        while (comma >= 0) {
            const int next = line.indexOf(QLatin1Char(','), comma + 1);
            const QString name = cameraName(line.mid(comma + 1, next < 0 ? -1 : next - comma - 1));
            if (!name.isEmpty()) {
                names.add(name);
            }
            comma = next;
        }
    }

    void moveTo(CameraNames& names) const {
        for (auto it = m_categories.begin(); it != m_categories.end(); ++it) {
            names[it.key()] = it->names();
        }
    }

private:
    UniqueNames& ofCategory(const QStringRef& category) {
        if (!m_last || category != m_lastCategory) {
            m_lastCategory = category.toString();
            m_last = &m_categories[m_lastCategory.isEmpty() ? kDefaultCategory : m_lastCategory];
        }
        return *m_last;
    }

    QMap<QString, UniqueNames> m_categories;
    QString m_lastCategory;
    UniqueNames* m_last = nullptr; // entries of a map stay where they are
};

void collectLines(const QString& text, Collector& collector) {
    for (int start = 0; start < text.size();) {
        int end = text.indexOf(QLatin1Char('\n'), start);
        end = end < 0 ? text.size() : end;
        const bool isWindowsEnd = end > start && text.at(end - 1) == QLatin1Char('\r');
        collector.addLine(text.midRef(start, end - start - (isWindowsEnd ? 1 : 0)));
        start = end + 1;
    }
}

void logCritical(const char* text, const QString& path) {
    QMessageLogger(nullptr, 0, nullptr).critical().noquote().nospace() << text << " [" << path << "]";
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

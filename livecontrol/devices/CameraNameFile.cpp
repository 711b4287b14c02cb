#include "livecontrol/devices/CameraNameFile.h"

#include "livecontrol/foundation/UTL_Names.h"

#include <QDebug>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QTextCodec>
#include <QTextStream>

const QString kDefaultCategory = QStringLiteral("?default?");

namespace {

constexpr int kMaxNameLength = 1024;

/// Whether each byte is part of a character of Shift-JIS.
bool isShiftJis(const QByteArray& bytes) {
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

QString cameraName(const QString& field) {
    QString name = sanitizeFileName(field, QString()).trimmed();
    if (name.size() > kMaxNameLength) {
        name.truncate(kMaxNameLength);
        if (name.at(kMaxNameLength - 1).isHighSurrogate()) {
            name.chop(1); // never half a character
        }
    }
    return name;
}

/// Collects names by category. A list of many lines has one category as a rule, so duplicates are found by
/// hash.
class Collector {
public:
    explicit Collector(CameraNames& names) : m_names(names) {}

    void addLine(const QString& line) {
        const QStringList fields = line.split(QLatin1Char(','));
        if (fields.size() < 2) {
            QMessageLogger(nullptr, 0, nullptr).warning() << "[only category]" << fields.value(0);
            return;
        }
        QString category = fields.first().trimmed();
        if (category.isEmpty()) {
            category = kDefaultCategory;
        }
        QStringList& list = m_names[category];
        QSet<QString>& known = m_known[category];
        for (int i = 1; i < fields.size(); ++i) {
            const QString name = cameraName(fields.at(i));
            if (!name.isEmpty() && !known.contains(name)) {
                known.insert(name);
                list.append(name);
            }
        }
    }

private:
    CameraNames& m_names;
    QHash<QString, QSet<QString>> m_known;
};

void logCritical(const char* text, const QString& path) {
    QMessageLogger(nullptr, 0, nullptr).critical().noquote().nospace() << text << " [" << path << "]";
}

} // namespace

bool readCameraNameFile(const QString& path, CameraNames& names) {
    QFile file(path);
    if (!file.exists()) {
        return false;
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        logCritical("file open failed.", path);
        return false;
    }
    try {
        QTextStream stream(&file);
        if (!isShiftJis(file.readAll())) {
            stream.setCodec("UTF-8");
        }
        stream.seek(0);
        Collector collector(names);
        QString line;
        while (stream.readLineInto(&line)) {
            collector.addLine(line);
        }
    } catch (const std::exception&) {
        logCritical("file error occurred.", path);
        return false;
    }
    return true;
}

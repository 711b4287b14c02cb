#include "livecontrol/foundation/UTL_Names.h"

#include <QStorageInfo>

#include <algorithm>

namespace {

constexpr int kMaxDigits = 255; // no file system has longer names

QString numberPart(QChar letter, int number, int digits) {
    return digits > 0
               ? letter + QStringLiteral("%1").arg(number, std::min(digits, kMaxDigits), 10, QLatin1Char('0'))
               : QString();
}

bool holdsNone(const QString& text, QLatin1String refused) {
    return std::none_of(text.begin(), text.end(), [refused](QChar c) { return refused.contains(c); });
}

bool isReplaced(QChar c) {
    switch (c.unicode()) {
    case '\\':
    case '/':
    case ':':
    case '*':
    case '?':
    case '"':
    case '<':
    case '>':
    case '|':
    case '%':
        return true;
    default:
        return false;
    }
}

} // namespace

bool isValidFileName(const QString& name) { return holdsNone(name, QLatin1String("\\/*?|\t\n\":<>%")); }

bool isValidPath(const QString& path) { return holdsNone(path, QLatin1String("*?|\t\n\"<>%")); }

QString sanitizeFileName(const QString& name, const QString& replacement) {
    QString clean = name;
    if (std::any_of(name.begin(), name.end(), isReplaced)) { // few are, and lists of names are long
        clean.clear();
        for (const QChar c : name) {
            if (isReplaced(c)) {
                clean += replacement;
            } else {
                clean += c;
            }
        }
    }
    if (clean == QLatin1String(".") || clean == QLatin1String("..")) {
        clean.replace(QLatin1Char('.'), replacement);
    }
    return clean;
}

QString withSuffix(const QString& path, const QString& suffix) {
    const QLatin1Char point('.');
    if (path.isEmpty() || path.endsWith(point + suffix, Qt::CaseInsensitive)) {
        return path;
    }
    return path + (path.endsWith(point) ? QString() : QString(point)) + suffix;
}

void appendSlash(QString& path) {
    if (!path.isEmpty() && !path.endsWith(QLatin1Char('/'))) {
        path += QLatin1Char('/');
    }
}

QString composeSequenceNumber(int camera, int head, int session, int cameraDigits, int headDigits,
                              int sessionDigits) {
    return numberPart(QLatin1Char('C'), camera, cameraDigits) +
           numberPart(QLatin1Char('H'), head, headDigits) +
           numberPart(QLatin1Char('S'), session, sessionDigits);
}

QCollator countingOrder() {
    QCollator order;
    order.setNumericMode(true);
    return order;
}

quint64 freeBytes(const QString& path) {
    const int slash = path.indexOf(QLatin1Char('/'));
    const QStorageInfo volume(slash < 0 ? path : path.left(slash + 1));
    return static_cast<quint64>(std::max<qint64>(0, volume.bytesFree()));
}

#include "livecontrol/storage/ExportNaming.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace {

constexpr int kMaxDigits = 255; // no file system has longer names

QString numberPart(QChar letter, int number, int digits) {
    return digits > 0
               ? letter + QStringLiteral("%1").arg(number, std::min(digits, kMaxDigits), 10, QLatin1Char('0'))
               : QString();
}

} // namespace

QString composeSequenceNumber(int camera, int head, int session, int cameraDigits, int headDigits,
                              int sessionDigits) {
    return numberPart(QLatin1Char('C'), camera, cameraDigits) +
           numberPart(QLatin1Char('H'), head, headDigits) +
           numberPart(QLatin1Char('S'), session, sessionDigits);
}

QString formatDateTime(const QDateTime& dateTime, const QString& format) {
    return QLocale::c().toString(dateTime, format);
}

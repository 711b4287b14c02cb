#include "viewer/export/PictureNote.h"

#include <QJsonDocument>

namespace {
constexpr char kLead[] = "recording=";
}

QString PictureNote::text(const QJsonObject& info) {
    return QLatin1String(kLead) + QString::fromUtf8(QJsonDocument(info).toJson(QJsonDocument::Compact));
}

QJsonObject PictureNote::info(const QString& text) {
    const int start = text.indexOf(QLatin1String(kLead));
    if (start < 0) {
        return {};
    }
    const QString line = text.mid(start + int(sizeof(kLead)) - 1).section(QLatin1Char('\n'), 0, 0);
    return QJsonDocument::fromJson(line.toUtf8()).object();
}

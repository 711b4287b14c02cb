// The rows of what can be saved: whatever a document tells of itself, the text that a page gets is one that
// it can read, with a row for each partition that has frames, and with every text as it was told.

#include "fuzz/Expect.h"
#include "livecontrol/bridge/Json.h"
#include "livecontrol/storage/dialogs/FileDialogRow.h"

#include <QStringList>
#include <QVariantList>

namespace {

QJsonArray rowsOf(const QVariantMap& info, const QJsonObject& common) {
    QJsonArray rows;
    int number = 0;
    const QVariantList partitions = info.value(QStringLiteral("partitions")).toList();
    for (const QVariant& entry : partitions) {
        ++number;
        const QVariantMap partition = entry.toMap();
        if (!FileDialogRow::isEmpty(partition)) {
            QJsonObject row = common;
            FileDialogRow::addPartition(row, partition, number);
            FileDialogRow::addCapacity(row, partition);
            rows.append(row);
        }
    }
    return rows;
}

void check(const QVariantMap& info, const QJsonObject& common) {
    const QJsonArray rows = rowsOf(info, common);
    QJsonParseError error{};
    const QJsonArray read = QJsonDocument::fromJson(json::compact(rows).toUtf8(), &error).array();
    expect(error.error == QJsonParseError::NoError, "a text that can be read");
    expect(read == rows, "the rows as they were made");
    int last = 0;
    for (const QJsonValue row : read) {
        const QJsonObject object = row.toObject();
        for (const QJsonValue value : object) {
            expect(value.isString(), "texts alone");
        }
        const int number = object.value(QStringLiteral("partitionno")).toString().toInt();
        expect(number > last, "numbers that rise");
        last = number;
        expect(object.value(QStringLiteral("dockey")).toString() ==
                   info.value(QStringLiteral("dockey")).toString(),
               "the key that was told");
    }
}

QVariantMap told(const QString& text) {
    QVariantMap info;
    QVariantList partitions;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line == QLatin1String("#")) {
            partitions.append(QVariantMap());
            continue;
        }
        QVariantMap part = partitions.isEmpty() ? info : partitions.last().toMap();
        part.insert(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
        if (partitions.isEmpty()) {
            info = part;
        } else {
            partitions.last() = part;
        }
    }
    info.insert(QStringLiteral("partitions"), partitions);
    return info;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    const QVariantMap info = told(QString::fromUtf8(reinterpret_cast<const char*>(data), int(size)));
    check(info, FileDialogRow::ofCamera(info));
    check(info, FileDialogRow::ofFile(info, false));
    check(info, FileDialogRow::ofFile(info, true));
    return 0;
}

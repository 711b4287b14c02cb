#include "livecontrol/storage/dialogs/FileDialogRow.h"

#include "livecontrol/bridge/Json.h"

#include <initializer_list>

namespace {

/// Custom items that have a column.
constexpr const char* kCustomColumns[] = {"TestNo", "Project",  "TestType",  "TestTypeNo",
                                          "Date",   "Engineer", "Technician"};

QString text(const QVariantMap& map, const char* key) { return map.value(QLatin1String(key)).toString(); }

void copyTexts(QJsonObject& row, const QVariantMap& map, std::initializer_list<const char*> keys) {
    for (const char* const key : keys) {
        row[QLatin1String(key)] = text(map, key);
    }
}

void copyCustomItems(QJsonObject& row, const QVariantMap& map) {
    for (const char* const name : kCustomColumns) {
        const QString key = QStringLiteral("Custom_") + QLatin1String(name);
        if (map.contains(key)) {
            row[key] = map.value(key).toString();
        }
    }
}

} // namespace

QJsonObject FileDialogRow::ofCamera(const QVariantMap& info) {
    QJsonObject row{{QStringLiteral("path"), text(info, "filepath")}};
    copyTexts(row, info, {"dockey", "cameraname", "ipaddress", "slotno", "Comments", "recordrate"});
    copyCustomItems(row, info);
    return row;
}

QJsonObject FileDialogRow::ofFile(const QVariantMap& info, bool isOfDrive) {
    QJsonObject row{{QStringLiteral("path"), text(info, "filepath")}};
    copyTexts(row, info,
              {"dockey", "selected", "filename", "filealiasname", "devicename", "date", "time",
               "shutterspeed", "recordrate", "Comments"});
    copyCustomItems(row, info);
    if (isOfDrive) {
        row[QStringLiteral("dataname")] = text(info, "name");
        row[QStringLiteral("filename")] = text(info, "name");
        row[QStringLiteral("path")] = text(info, "drivename");
        copyTexts(row, info, {"serialno", "datano"});
    }
    return row;
}

bool FileDialogRow::isEmpty(const QVariantMap& partition) {
    return text(partition, "totalframesplain").toULongLong() == 0;
}

void FileDialogRow::addPartition(QJsonObject& row, const QVariantMap& partition, int number) {
    row[QStringLiteral("partitionno")] = json::text(number);
    row[QStringLiteral("saveframes")] = text(partition, "exportframes");
    copyTexts(row, partition, {"currentpartition", "totalframes", "resolution"});
}

void FileDialogRow::addCapacity(QJsonObject& row, const QVariantMap& partition) {
    copyTexts(row, partition, {"capacity", "capacitylabel"});
}

#pragma once

#include <QJsonObject>
#include <QVariantMap>

// What a row of a dialog takes over of what a document tells of itself. Texts go as they are; what is missing
// is an empty one.
namespace FileDialogRow {

QJsonObject ofCamera(const QVariantMap& info);
/// `isOfDrive`: not a file of the user's, but a record on a drive.
QJsonObject ofFile(const QVariantMap& info, bool isOfDrive);
/// A partition without frames has no row.
bool isEmpty(const QVariantMap& partition);
void addPartition(QJsonObject& row, const QVariantMap& partition, int number);
void addCapacity(QJsonObject& row, const QVariantMap& partition);

} // namespace FileDialogRow

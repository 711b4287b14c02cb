#pragma once

#include <QString>
#include <QVector>

/// An entry of the list of what stands over an image: an item, shown or not, or a separator.
struct DisplayEntry {
    QString key;
    bool shown = false;

    bool isSeparator() const;
    bool operator==(const DisplayEntry& other) const { return key == other.key && shown == other.shown; }
};

/// The list as preferences hold it: "Key:true,Key:false,<hr>".
namespace DisplayEntries {

/// The entries in their order, unknown ones too. What is no separator and has no state is left out.
QVector<DisplayEntry> read(const QString& text);
QString text(const QVector<DisplayEntry>& entries);

} // namespace DisplayEntries

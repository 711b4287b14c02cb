#pragma once

#include <QString>
#include <QVariantList>

class QIODevice;

/// The XML files that keep a list of custom items. Items are maps as a page sends them: name, value and unit
/// are texts, `selected` is a boolean.
namespace CustomItemFile {

/// Writes the items in their order. `version` is that of the program.
void write(QIODevice& device, const QVariantList& items, const QString& version);

/// Reads a file of ours, or a job file, whose root is called "job" and whose elements are the items. Names
/// that other tools use become ours. What is no XML, has no item, or is larger than a megabyte or
/// nested deeper than any such file, gives an empty list; `reason` then gets a sentence, untranslated, and
/// where the fault lies goes into the log.
QVariantList read(QIODevice& device, QString* reason = nullptr);

} // namespace CustomItemFile

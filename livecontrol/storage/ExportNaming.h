#pragma once

#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/types.h"

#include <QMap>
#include <QString>

class DOC_Interface;
class HostObject;
class QDateTime;

// Folder and name of all that is saved, from the preferences of its kind. `saveType` is the number by which
// the host knows what is saved: 1, 2 export, 4, 5, 18 layout, 6, 11 conversion, 7 snapshot, 16, 17 report,
// 19, 20 what keeps the place and the name of its document; any other is named as an export.
//
// No function keeps a state: each looks at the preferences and at the disk anew. `host` must not be null,
// `document` may be. GUI thread only. What the host throws goes through.

/// In English, whatever the user's language; `format` is one of QDateTime.
QString formatDateTime(const QDateTime& dateTime, const QString& format);

/// The target folder, before group and sub folder; empty if the preferences name none.
QString composeExportDir(HostObject* host, int saveType, DOC_Interface* document);

/// The file name without extension; empty if nothing gives one. With `full` false without number and
/// date-time, otherwise with the first session number that neither a file in the folder nor a pending path
/// bears.
QString composeExportFileName(HostObject* host, int saveType, DOC_Interface* document,
                              PARTITIONNUMBER partition, bool full, const QDateTime& dateTime);

/// Name of the group folder in the target folder; empty for none. `fileName` is what it is called if it
/// follows the file. The group folder of a running job comes before all preferences.
QString composeExportGroupDir(HostObject* host, int saveType, DOC_Interface* document,
                              const QString& fileName, const QDateTime& dateTime);

/// Name of the sub folder in the group folder; empty for none.
QString composeExportSubDir(HostObject* host, int saveType, DOC_Interface* document, const QString& fileName,
                            const QDateTime& dateTime);

/// Where one partition is saved.
struct ExportPath {
    QString groupDir; // its name; empty without one
    QString folder;
    QString fullPath; // without extension
};

/// Of one partition, marked as pending with the host. Otherwise as composeExportPaths.
ExportPath composeExportPath(HostObject* host, int saveType, DOC_Interface* document,
                             PARTITIONNUMBER partition, bool replaceFolder, const QDateTime& dateTime,
                             int bracketMode);

/// Fills the maps for each partition of the document, and marks what it hands out as pending with the host.
/// `groupDirs` gets names, only where there is a group folder; `folders` and `fullPaths` get paths, without
/// extension. With `replaceFolder` the host may put another folder in place of the composed one.
/// `bracketMode` 1 makes square brackets of a report's names round. Throws UTL_Exception for an empty name
/// where none is allowed, and for a path of more than 245 UTF-16 units. Nothing happens without a document.
void composeExportPaths(HostObject* host, int saveType, DOC_Interface* document, bool replaceFolder,
                        QMap<PARTITIONNUMBER, QString>& groupDirs, QMap<PARTITIONNUMBER, QString>& folders,
                        QMap<PARTITIONNUMBER, QString>& fullPaths, const QDateTime& dateTime,
                        int bracketMode);

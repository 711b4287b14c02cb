#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/storage/ExportNaming.h"
#include "livecontrol/storage/NamingPreferences.h"

#include <QDateTime>

namespace {

constexpr int kReport = 16;
constexpr int kMaxPath = 245; // leaves room for extensions and frame numbers in 260

QString joined(const QString& folder, const QString& name) {
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

void makeBracketsRound(QString& name) {
    name.replace(QLatin1Char('['), QLatin1Char('(')).replace(QLatin1Char(']'), QLatin1Char(')'));
}

/// Some names are made up later, by what is saved itself.
bool mayBeBlank(HostObject* host, int saveType) {
    switch (saveType) {
    case 9:
    case 10:
    case 11:
    case 17:
    case 18:
        return true;
    default:
        return host->getPrefBool(QStringLiteral("save/EnableBlankFilename"), QVariant());
    }
}

/// What is added to the path of a thumbnail beside the file; empty if none is written.
QString thumbnailText(HostObject* host, int saveType) {
    if ((saveType != 1 && saveType != 2 && saveType != 6) || writesInfoFile(host, saveType)) {
        return QString();
    }
    const NamingPreferences settings(host, saveFamily(saveType));
    return settings.flag("savethumbnail") ? settings.text("savethumbnailaddtextvalue") : QString();
}

void checkLength(const QString& path) {
    if (path.size() > kMaxPath) {
        throw UTL_Exception(QStringLiteral("The path of the target is too long."), 0);
    }
}

struct Names {
    QString base;
    QString full;
    QString groupDir;
    QString subDir;
};

Names composeNames(HostObject* host, int saveType, DOC_Interface* document, PARTITIONNUMBER partition,
                   const QString& dir, const QDateTime& dateTime, bool hasRoundBrackets) {
    Names names;
    names.base = composeExportFileName(host, saveType, document, partition, false, dateTime);
    names.full = composeExportFileName(host, saveType, document, partition, true, dateTime);
    if (hasRoundBrackets) {
        makeBracketsRound(names.base);
        makeBracketsRound(names.full);
    }
    // Each folder is pending in the target folder, where the next one that is composed looks for it.
    const NamingPreferences groups(host, groupDirFamily(saveType));
    names.groupDir = composeExportGroupDir(
        host, saveType, document, groups.folderFileName(kGroupDir, names.base, names.full), dateTime);
    if (!names.groupDir.isEmpty()) {
        host->addPendingFolder(joined(dir, names.groupDir));
    }
    const NamingPreferences subs(host, saveFamily(saveType));
    names.subDir = composeExportSubDir(host, saveType, document,
                                       subs.folderFileName(kSubDir, names.base, names.full), dateTime);
    if (hasRoundBrackets) {
        makeBracketsRound(names.subDir);
    }
    if (!names.subDir.isEmpty()) {
        host->addPendingFolder(joined(dir, names.subDir));
    }
    return names;
}

} // namespace

ExportPath composeExportPath(HostObject* host, int saveType, DOC_Interface* document,
                             PARTITIONNUMBER partition, bool replaceFolder, const QDateTime& dateTime,
                             int bracketMode) {
    ExportPath path;
    path.folder = composeExportDir(host, saveType, document);
    const Names names = composeNames(host, saveType, document, partition, path.folder, dateTime,
                                     saveType == kReport && bracketMode == 1);
    path.groupDir = names.groupDir;
    for (const QString& folder : {names.groupDir, names.subDir}) {
        if (!folder.isEmpty()) {
            path.folder = joined(path.folder, folder);
        }
    }
    if (names.full.isEmpty() && !mayBeBlank(host, saveType)) {
        throw UTL_Exception(QStringLiteral("Invalid filename."), 0);
    }
    const QString replacement = replaceFolder ? host->getReplacementFolder() : QString();
    if (!replacement.isEmpty()) {
        path.folder = replacement;
    }
    path.fullPath = joined(path.folder, names.full);
    if (saveType != kReport) {
        host->addPendingFolder(path.folder);
        host->addPendingPath(path.fullPath);
        checkLength(path.fullPath);
        checkLength(path.fullPath + thumbnailText(host, saveType));
    }
    return path;
}

void composeExportPaths(HostObject* host, int saveType, DOC_Interface* document, bool replaceFolder,
                        QMap<PARTITIONNUMBER, QString>& groupDirs, QMap<PARTITIONNUMBER, QString>& folders,
                        QMap<PARTITIONNUMBER, QString>& fullPaths, const QDateTime& dateTime,
                        int bracketMode) {
    const int count = document ? docAs<DOC_Settings>(document).getPartitionCount(false, false) : 0;
    for (PARTITIONNUMBER partition = 1; partition <= count; ++partition) {
        const ExportPath path =
            composeExportPath(host, saveType, document, partition, replaceFolder, dateTime, bracketMode);
        if (!path.groupDir.isEmpty()) {
            groupDirs.insert(partition, path.groupDir);
        }
        folders.insert(partition, path.folder);
        fullPaths.insert(partition, path.fullPath);
    }
}

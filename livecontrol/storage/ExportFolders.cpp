// Group and sub folder: two levels of folders that differ in their preferences only.

#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/storage/ExportNaming.h"
#include "livecontrol/storage/NamingPreferences.h"

#include <QDebug>
#include <QFileInfo>

namespace {

struct Numbering {
    int camera = 1;
    int head = 1;
    DigitCounts digits;

    QString at(int session) const {
        return composeSequenceNumber(camera, head, session, digits.camera, digits.head, digits.session);
    }
};

Numbering numbering(HostObject* host, DOC_Interface* document, int target, bool isAuto) {
    Numbering result;
    result.digits = addNumberDigits(host, target);
    if (host->isFileMode()) {
        result.digits.camera = 0;
        result.digits.head = 0;
    } else if (document) {
        auto& settings = docAs<DOC_Settings>(document);
        result.camera = settings.getCameraIndex() + 1;
        result.head = std::max(1, settings.getHeadNumber()); // 0 for a camera with one head
        if (isAuto) {
            result.digits.camera = QString::number(docAs<DOC_Save>(document).getCameraCount()).size();
            const int heads = settings.getHeadCount();
            result.digits.head = heads > 1 ? QString::number(heads).size() : 0;
        }
    }
    return result;
}

/// A file in the folder's place takes the name as well: no folder could be made there.
bool isTaken(HostObject* host, const QString& path) {
    if (!QFileInfo::exists(path) && !host->isPendingFolder(path)) {
        return false;
    }
    qInfo() << "exists" << path;
    return true;
}

QString numberedName(HostObject* host, const Numbering& numbers, const QString& name, const QString& dir) {
    for (int session = 1;; ++session) {
        QString candidate = name;
        appendNamePart(candidate, numbers.at(session));
        if (numbers.digits.session <= 0 || !isTaken(host, dir + QLatin1Char('/') + candidate)) {
            return candidate;
        }
    }
}

/// Without a step that leads up, wherever the name comes from.
QString withoutStepsUp(const QString& name) {
    QStringList parts = name.split(QLatin1Char('/'));
    for (QString& part : parts) {
        if (part.trimmed() == QLatin1String("..")) {
            part = QStringLiteral("__");
        }
    }
    return parts.join(QLatin1Char('/'));
}

QString folderName(HostObject* host, int saveType, DOC_Interface* document, SaveFamily family, NameKind kind,
                   const QString& fileName, const QDateTime& dateTime) {
    const NamingPreferences settings(host, family);
    const QString stem = kind == NameKind::GroupDir ? kGroupDir : kSubDir;
    QString name = settings.flag(stem, "asfilename") ? fileName : settings.text(stem, "name");
    if (settings.flag(stem, "addnumber")) {
        const bool isAuto = settings.text(stem, "addnumberformat") == QLatin1String("auto");
        QString dir = composeExportDir(host, saveType, document);
        if (dir.endsWith(QLatin1Char('/'))) { // paths are compared with the pending ones as texts
            dir.chop(1);
        }
        name = numberedName(host, numbering(host, document, numberTarget(family, kind), isAuto), name, dir);
    }
    if (settings.flag(stem, "addtime")) {
        appendNamePart(name, formatDateTime(dateTime, settings.text(stem, "addtimeformat")));
    }
    return withoutStepsUp(name);
}

} // namespace

QString composeExportGroupDir(HostObject* host, int saveType, DOC_Interface* document,
                              const QString& fileName, const QDateTime& dateTime) {
    const SaveFamily family = groupDirFamily(saveType);
    if (family == SaveFamily::Document || family == SaveFamily::Layout ||
        !NamingPreferences(host, family).flag("groupdir")) {
        return QString();
    }
    const QString running = host->getGroupDir();
    return running.isEmpty()
               ? folderName(host, saveType, document, family, NameKind::GroupDir, fileName, dateTime)
               : running;
}

QString composeExportSubDir(HostObject* host, int saveType, DOC_Interface* document, const QString& fileName,
                            const QDateTime& dateTime) {
    const SaveFamily family = saveFamily(saveType);
    if (family == SaveFamily::Document || !NamingPreferences(host, family).flag("subdir")) {
        return QString();
    }
    return folderName(host, saveType, document, family, NameKind::SubDir, fileName, dateTime);
}

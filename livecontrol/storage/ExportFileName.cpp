#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/storage/ExportNaming.h"
#include "livecontrol/storage/NamingPreferences.h"

#include <QDateTime>
#include <QDirIterator>
#include <QLocale>
#include <QStringList>

namespace {

QString cleaned(const QString& name) { return sanitizeFileName(name, QStringLiteral("_")); }

/// What is named, the same through all steps.
struct Subject {
    HostObject* host;
    int saveType;
    DOC_Interface* document;
    PARTITIONNUMBER partition;
    const QDateTime& dateTime;
};

/// The test number, which names an information file and what belongs to it. False if there is none: the other
/// preferences then name it.
bool infoFileName(const Subject& subject, QString& name) {
    name = cleaned(subject.host->getPrefString(QStringLiteral("export/inf_testno"), QVariant(), 0));
    if (!name.isEmpty() || !subject.document) {
        return true;
    }
    const QVariantList items = docAs<DOC_Settings>(subject.document).getCustomItems();
    for (const QVariant& item : items) {
        const QVariantMap fields = item.toMap();
        if (fields.value(QStringLiteral("name")).toString() == QLatin1String("TestNo")) {
            name = cleaned(fields.value(QStringLiteral("value")).toString());
            return true;
        }
    }
    return false;
}

QString customName(const Subject& subject, const NamingPreferences& settings) {
    DOC_Interface* source = subject.document;
    if (settings.flag("filenameusecustomfromtarget")) {
        const int key = settings.number("filenameusecustomfromtargetkey");
        if (key >= 0) {
            source = subject.host->docByKey(static_cast<DOCKEY>(key), true);
        }
    }
    QStringList values;
    const bool withUnit = settings.flag("filenameusecustomincludeunit");
    const QVariantList items = source ? docAs<DOC_Settings>(source).getCustomItems() : QVariantList();
    for (const QVariant& item : items) {
        const QVariantMap fields = item.toMap();
        if (fields.value(QStringLiteral("usefilename")).toString() == QLatin1String("on")) {
            values += fields.value(QStringLiteral("value")).toString() +
                      (withUnit ? fields.value(QStringLiteral("unit")).toString() : QString());
        }
    }
    return cleaned(values.join(QLatin1Char('_')));
}

QString originalName(const Subject& subject, SaveFamily family, bool full) {
    if (!subject.document) {
        return QString();
    }
    if (family == SaveFamily::Convert && subject.document->isRecordInMemory() &&
        subject.host->isMemoryMode()) {
        // Nothing saved yet: its name is what an export would give it.
        return composeExportFileName(subject.host, 1, subject.document, subject.partition, full,
                                     subject.dateTime);
    }
    return subject.document->getBaseName();
}

QString baseName(const Subject& subject, const NamingPreferences& settings, SaveFamily family, QString name,
                 bool full) {
    if (settings.flag("filenameasoriginal")) {
        name = originalName(subject, family, full);
    }
    if (!subject.host->isFileMode() && settings.flag("filenameaspartitionname")) {
        name = subject.document ? cleaned(subject.document->getPartitionName(subject.partition)) : QString();
    }
    if (settings.flag("filenameusecustom")) {
        name = customName(subject, settings);
    }
    return name;
}

/// The name as a pattern that stands for itself.
QString literalPattern(const QString& name) {
    QString pattern;
    for (const QChar c : name) {
        if (c == QLatin1Char('[') || c == QLatin1Char('*') || c == QLatin1Char('?')) {
            pattern += QLatin1Char('[') + c + QLatin1Char(']');
        } else {
            pattern += c;
        }
    }
    return pattern;
}

/// True if a file in the folder begins so, or the running job has given the path away. The search ends at the
/// first such file; large and small letters are the same to it, as they are to some systems that share files.
bool isTaken(HostObject* host, const QString& folder, const QString& candidate) {
    return QDirIterator(folder, {literalPattern(candidate) + QLatin1Char('*')}, QDir::Files).hasNext() ||
           host->isPendingPath(folder + candidate);
}

/// The folder in which the candidate would land.
QString folderFor(const Subject& subject, const NamingPreferences& settings, const QString& name,
                  const QString& candidate) {
    const auto& [host, saveType, document, partition, dateTime] = subject;
    QString dir = composeExportDir(host, saveType, document);
    addTrailingSlash(dir);
    const NamingPreferences groups(host, groupDirFamily(saveType));
    dir += composeExportGroupDir(host, saveType, document, groups.folderFileName(kGroupDir, name, candidate),
                                 dateTime);
    addTrailingSlash(dir);
    dir += composeExportSubDir(host, saveType, document, settings.folderFileName(kSubDir, name, candidate),
                               dateTime);
    addTrailingSlash(dir);
    return dir;
}

QString fullName(const Subject& subject, const NamingPreferences& settings, SaveFamily family,
                 const QString& name) {
    const int digits = addNumberDigits(subject.host, numberTarget(family, NameKind::File)).session;
    const QString time = settings.flag("filenameaddtime")
                             ? formatDateTime(subject.dateTime, settings.text("filenameaddtimeformat"))
                             : QString();
    QString previous;
    for (int session = 1;; ++session) {
        QString candidate = name;
        bool isNumbered = false;
        if (subject.document) {
            const QString suffix = docAs<DOC_Save>(subject.document)
                                       .composeSaveSuffix(subject.saveType, subject.partition, session,
                                                          isNumbered, subject.dateTime);
            appendNamePart(candidate, cleaned(suffix));
        }
        appendNamePart(candidate, cleaned(time));
        // A suffix that doesn't change with the number can't lead to a free name.
        if (candidate.isEmpty() || !isNumbered || digits <= 0 || candidate == previous ||
            !isTaken(subject.host, folderFor(subject, settings, name, candidate), candidate)) {
            return candidate;
        }
        previous = candidate;
    }
}

} // namespace

QString formatDateTime(const QDateTime& dateTime, const QString& format) {
    return QLocale::c().toString(dateTime, format);
}

QString composeExportFileName(HostObject* host, int saveType, DOC_Interface* document,
                              PARTITIONNUMBER partition, bool full, const QDateTime& dateTime) {
    const SaveFamily family = saveFamily(saveType);
    if (family == SaveFamily::Document) {
        return document ? document->getMediaName() : QString();
    }
    const Subject subject{host, saveType, document, partition, dateTime};
    const NamingPreferences settings(host, family);
    QString name;
    if (!writesInfoFile(host, saveType)) {
        name = settings.text("filename");
    } else if (infoFileName(subject, name)) {
        return name;
    }
    name = baseName(subject, settings, family, name, full);
    return full ? fullName(subject, settings, family, name) : name;
}

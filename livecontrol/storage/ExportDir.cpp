#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/storage/ExportNaming.h"
#include "livecontrol/storage/NamingPreferences.h"
#include "livecontrol/storage/PathPairs.h"

#include <QFileInfo>

namespace {

/// The folder that the document's camera has for itself, else `common`.
QString cameraDir(HostObject* host, const NamingPreferences& settings, DOC_Interface* document,
                  const QString& common) {
    if (!document || host->isFileMode() || settings.flag("singlepath")) {
        return common;
    }
    const QMap<QString, QString> names = pathPairMap(settings.text("multipathdevicelist"));
    const auto name = names.constFind(docAs<DOC_Settings>(document).getIPAddress(true));
    return name == names.cend() ? common : pathPairMap(settings.text("multipathlist")).value(*name, common);
}

QString documentDir(DOC_Interface* document) {
    const QString path = document ? document->getFilePath() : QString();
    return path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
}

} // namespace

QString composeExportDir(HostObject* host, int saveType, DOC_Interface* document) {
    const SaveFamily family = saveFamily(saveType);
    if (family == SaveFamily::Document) {
        return documentDir(document);
    }
    const NamingPreferences settings(host, family);
    if ((family == SaveFamily::Convert || host->isFileMode()) && settings.flag("dirasoriginal")) {
        return documentDir(document);
    }
    const QString dir = settings.text("dir");
    return saveType == 1 || saveType == 2 ? cameraDir(host, settings, document, dir) : dir;
}

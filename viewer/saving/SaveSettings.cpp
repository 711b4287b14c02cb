#include "viewer/saving/SaveSettings.h"

#include "livecontrol/storage/NamingPreferences.h"

#include <QStandardPaths>

SaveRequest SaveSettings::request(HostObject& host, DialogKind kind) {
    SaveRequest request;
    request.saveType = saveTypeOf(kind);
    const SaveFamily family = saveFamily(request.saveType);
    const NamingPreferences own(&host, family);
    request.format = own.text("format");
    request.codec = own.text("codec");
    // The frame skip of a conversion is that of an export; a snapshot has none.
    const bool hasOwnSkip = kind == DialogKind::Report || kind == DialogKind::Layout;
    const NamingPreferences skip(&host, hasOwnSkip ? family : SaveFamily::Export);
    if (kind != DialogKind::Snapshot) {
        request.skip.frames = skip.number("skipsaveframe");
        request.skip.milliseconds = skip.real("skipsavemsec");
        request.skip.isInMilliseconds = skip.number("skipunit") != 0;
    }
    const NamingPreferences info(&host, kind == DialogKind::Convert ? family : SaveFamily::Export);
    request.withInfo = info.flag("saveinfo");
    return request;
}

void SaveSettings::ensureFolder(HostObject& host, const QString& family) {
    const QString key = family + QStringLiteral("/dir");
    if (host.getPrefString(key, QVariant(), 0).isEmpty()) {
        host.setPrefString(key, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    }
}

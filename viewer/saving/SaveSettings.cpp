#include "viewer/saving/SaveSettings.h"

#include "livecontrol/interface/HostObject.h"

#include <QStandardPaths>

namespace {

/// What the preferences of a kind begin with; the frame skip of a snapshot and of a conversion is that of an
/// export.
QString familyOf(DialogKind kind) {
    switch (kind) {
    case DialogKind::Convert:
        return QStringLiteral("convert/");
    case DialogKind::Report:
        return QStringLiteral("report/");
    case DialogKind::Snapshot:
        return QStringLiteral("snap/");
    case DialogKind::Layout:
        return QStringLiteral("layout/");
    default:
        return QStringLiteral("export/");
    }
}

QString skipFamilyOf(DialogKind kind) {
    return kind == DialogKind::Report || kind == DialogKind::Layout ? familyOf(kind)
                                                                    : QStringLiteral("export/");
}

} // namespace

SaveRequest SaveSettings::request(HostObject& host, DialogKind kind) {
    const auto flag = [&](const char* name) { return host.getPrefBool(QLatin1String(name), QVariant()); };
    SaveRequest request;
    request.saveType = saveTypeOf(kind);
    request.format = host.getPrefString(familyOf(kind) + QStringLiteral("format"), QVariant(), 0);
    request.codec = host.getPrefString(familyOf(kind) + QStringLiteral("codec"), QVariant(), 0);
    const QString skip = skipFamilyOf(kind) + QStringLiteral("skipsaveframe");
    request.every = kind == DialogKind::Snapshot ? 1 : qMax(1, host.getPrefInt(skip, QVariant()));
    const bool isConversion = kind == DialogKind::Convert;
    request.withInfo = flag(isConversion ? "convert/saveinfo" : "export/saveinfo");
    return request;
}

void SaveSettings::ensureFolder(HostObject& host, const QString& family) {
    const QString key = family + QStringLiteral("/dir");
    if (host.getPrefString(key, QVariant(), 0).isEmpty()) {
        host.setPrefString(key, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    }
}

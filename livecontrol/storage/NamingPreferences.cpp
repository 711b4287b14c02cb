#include "livecontrol/storage/NamingPreferences.h"

namespace {

constexpr int kDataName = 13;
constexpr int kLayoutSubDir = 15;
constexpr int kLayoutFile = 16;
constexpr int kKinds = 3; // the targets of a family with all kinds of names follow each other
constexpr int kReportFirst = 9;

QString prefixOf(SaveFamily family) {
    switch (family) {
    case SaveFamily::Layout:
        return QStringLiteral("layout/");
    case SaveFamily::Convert:
        return QStringLiteral("convert/");
    case SaveFamily::Snap:
        return QStringLiteral("snap/");
    case SaveFamily::Report:
        return QStringLiteral("report/");
    case SaveFamily::Export:
    case SaveFamily::Document:
        break;
    }
    return QStringLiteral("export/");
}

/// What the keys of a target's digit counts begin with; empty for no target.
QString digitsStem(int target) {
    static const char* const s_families[] = {"export/", "convert/", "snap/", "report/"};
    static const char* const s_kinds[] = {"groupdir", "subdir", "filename"};
    if (target >= 0 && target < kReportFirst + kKinds) {
        return QLatin1String(s_families[target / kKinds]) + QLatin1String(s_kinds[target % kKinds]);
    }
    switch (target) {
    case kDataName:
        return QStringLiteral("export/fd/dataname");
    case kLayoutSubDir:
        return QStringLiteral("layout/subdir");
    case kLayoutFile:
        return QStringLiteral("layout/filename");
    default:
        return QString();
    }
}

} // namespace

SaveFamily saveFamily(int saveType) {
    switch (saveType) {
    case 4:
    case 5:
    case 18:
        return SaveFamily::Layout;
    case 6:
    case 11:
        return SaveFamily::Convert;
    case 7:
        return SaveFamily::Snap;
    case 16:
    case 17:
        return SaveFamily::Report;
    case 19:
    case 20:
        return SaveFamily::Document;
    default:
        return SaveFamily::Export;
    }
}

SaveFamily groupDirFamily(int saveType) { return saveType == 18 ? SaveFamily::Export : saveFamily(saveType); }

int numberTarget(SaveFamily family, NameKind kind) {
    const int offset = static_cast<int>(kind);
    switch (family) {
    case SaveFamily::Export:
        return offset;
    case SaveFamily::Convert:
        return kKinds + offset;
    case SaveFamily::Snap:
        return 2 * kKinds + offset;
    case SaveFamily::Report:
        return kReportFirst + offset;
    case SaveFamily::Layout:
        return kind == NameKind::SubDir ? kLayoutSubDir : kind == NameKind::File ? kLayoutFile : -1;
    case SaveFamily::Document:
        break;
    }
    return -1;
}

DigitCounts addNumberDigits(HostObject* host, int target) {
    if (!host) {
        return {3, 3, 4};
    }
    const QString stem = digitsStem(target);
    const bool isReport = target >= kReportFirst && target < kReportFirst + kKinds;
    if (stem.isEmpty() || target == kReportFirst) { // no counts for the group folder of reports
        return {};
    }
    const auto digits = [&](const char* key) {
        return host->getPrefInt(stem + QLatin1String(key), QVariant());
    };
    DigitCounts counts;
    if (!isReport) {
        counts.camera = digits("addnumbercameranodigits");
        counts.head = digits("addnumberheadnodigits");
    }
    counts.session = digits("addnumbersessionnodigits");
    return counts;
}

NamingPreferences::NamingPreferences(HostObject* host, SaveFamily family)
    : m_host(host), m_prefix(prefixOf(family)) {}

bool writesInfoFile(HostObject* host, int saveType) {
    const SaveFamily family = saveFamily(saveType);
    return (family == SaveFamily::Export || family == SaveFamily::Convert) &&
           host->getPrefString(QStringLiteral("export/media"), QVariant(), 0) == QLatin1String("file") &&
           host->getPrefBool(QStringLiteral("save/SaveInfFile"), QVariant()) &&
           NamingPreferences(host, family).flag("saveinf");
}

void appendNamePart(QString& name, const QString& part) {
    if (!name.isEmpty() && !part.isEmpty()) {
        name += QLatin1Char('_');
    }
    name += part;
}

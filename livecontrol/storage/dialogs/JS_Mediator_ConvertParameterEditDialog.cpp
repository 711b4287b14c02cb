#include "livecontrol/storage/dialogs/JS_Mediator_ConvertParameterEditDialog.h"

#include "livecontrol/foundation/EndingWith.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/storage/ExportNaming.h"

namespace {
/// The folder is composed as that of an export, which can lie beside the document's file.
constexpr int kExport = 1;
} // namespace

JS_Mediator_ConvertParameterEditDialog::JS_Mediator_ConvertParameterEditDialog(HostObject* host,
                                                                               const QVariantList& dockeyList,
                                                                               DOCKEY docKey,
                                                                               PARTITIONNUMBER partitionNo)
    : JS_Mediator_FileDialog(host, QStringLiteral("convertparametereditdialog")), m_targets(dockeyList) {
    setSelectedRow(docKey, partitionNo);
}

QString JS_Mediator_ConvertParameterEditDialog::list(bool /*temporary*/) {
    guarded([&] {
        const bool isInfoSaved = host()->getPrefBool(QStringLiteral("convert/saveinfo"), QVariant());
        for (const QVariant& target : qAsConst(m_targets)) {
            if (DOC_Interface* const found = document(target.toString().toUInt())) {
                docAs<DOC_Save>(found).setSaveInfo(isInfoSaved);
            }
        }
    });
    return QString();
}

QString JS_Mediator_ConvertParameterEditDialog::getExportPath() {
    return guarded(
        [&] {
            const bool isOriginal = host()->getPrefBool(QStringLiteral("convert/dirasoriginal"), QVariant());
            return isOriginal ? originalPath() : JS_Mediator_FileDialog::getExportPath();
        },
        QString());
}

QString JS_Mediator_ConvertParameterEditDialog::originalPath() {
    DOC_Interface* const row = selectedDocument();
    if (!row) {
        return QString();
    }
    auto& save = docAs<DOC_Save>(row);
    const auto compose = [&] {
        save.setSavePartition(getSelectPartitionNo());
        QMap<PARTITIONNUMBER, QString> groupDirs;
        QMap<PARTITIONNUMBER, QString> folders;
        QMap<PARTITIONNUMBER, QString> fullPaths;
        composeExportPaths(host(), kExport, row, false, groupDirs, folders, fullPaths,
                           QDateTime::currentDateTime(), 0);
        return folders.value(getSelectPartitionNo());
    };
    // Nothing of this composing stays pending.
    return endingWith(compose, [&] {
        save.resetSaveFlags();
        host()->endNaming();
        host()->beginGroupNaming();
        host()->beginFileNaming();
    });
}

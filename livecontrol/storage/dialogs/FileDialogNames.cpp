// The names that a save of the row in hand would use.

#include "livecontrol/interface/HostObject.h"
#include "livecontrol/storage/ExportNaming.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"

#include <QScopeGuard>

QString JS_Mediator_FileDialog::getExportFileName(bool full) {
    host()->beginFileNaming();
    return composeExportFileName(host(), saveType(), selectedDocument(), m_selectPartitionNo, full,
                                 m_dateTime);
}

/// Whether a folder that is called as its file takes the file's whole name; by the kind of the dialog.
bool JS_Mediator_FileDialog::nameOption(const char* name, bool hasLayout) {
    const char* const family = hasLayout && m_kind == DialogKind::Layout ? "layout/"
                               : m_kind == DialogKind::Convert           ? "convert/"
                               : m_kind == DialogKind::Report            ? "report/"
                               : m_kind == DialogKind::Snapshot          ? "snap/"
                                                                         : "export/";
    return host()->getPrefBool(QLatin1String(family) + QLatin1String(name), QVariant());
}

QString JS_Mediator_FileDialog::groupDirOf(DOCKEY docKey, PARTITIONNUMBER partitionNo) {
    m_exportDocKey = docKey;
    m_exportPartitionNo = partitionNo;
    const auto giveBack = qScopeGuard(
        [this, key = m_selectDocKey, partition = m_selectPartitionNo] { setSelectedRow(key, partition); });
    setSelectedRow(docKey, partitionNo);
    const QString name = getExportFileName(nameOption("groupdirasfilenameincludeoption", false));
    return composeExportGroupDir(host(), saveType(), selectedDocument(), name, m_dateTime);
}

QString JS_Mediator_FileDialog::getExportGroupDir(DOCKEY docKey, PARTITIONNUMBER partitionNo) {
    return guarded([&] { return groupDirOf(docKey, partitionNo); }, QString());
}

QString JS_Mediator_FileDialog::getExportGroupDir() {
    return guarded(
        [&] {
            host()->beginGroupNaming();
            const QList<DOCKEY> keys = host()->getSelectedKeys(false);
            return keys.isEmpty() ? QString() : groupDirOf(keys.first(), 1);
        },
        QString());
}

/// The files of a job share the group folder of its first document.
void JS_Mediator_FileDialog::announceGroupDir() {
    const QString dir = groupDirOf(m_exportDocKey, m_exportPartitionNo);
    if (!dir.isEmpty()) {
        host()->setGroupDir(dir);
    }
}

QString JS_Mediator_FileDialog::getExportFile() {
    return guarded(
        [&] {
            if (m_selectDocKey != m_exportDocKey) {
                announceGroupDir();
            }
            const QString name = getExportFileName(true);
            host()->endNaming();
            return name;
        },
        QString());
}

QString JS_Mediator_FileDialog::getExportSubDir() {
    return guarded(
        [&] {
            announceGroupDir();
            host()->beginGroupNaming();
            const QString name = getExportFileName(nameOption("subdirasfilenameincludeoption", true));
            const QString dir = composeExportSubDir(host(), saveType(), selectedDocument(), name, m_dateTime);
            host()->endNaming();
            return dir;
        },
        QString());
}

QString JS_Mediator_FileDialog::getExportPath() {
    return guarded([&] { return composeExportDir(host(), saveType(), selectedDocument()); }, QString());
}

#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"

#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/interface/DOC_Camera.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/overlays/formats/GUI_TimeCodeCustomDialog.h"
#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"
#include "livecontrol/storage/DataName.h"
#include "livecontrol/storage/dialogs/GUI_ConvertParameterEditDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_ConvertParameterEditDialog.h"

#include <QBuffer>
#include <QFileDialog>

namespace {
constexpr int kAgreed = 1;
} // namespace

JS_Mediator_FileDialog::JS_Mediator_FileDialog(HostObject* host, const QString& parentWidgetName)
    : JS_Mediator_Dialog(host, parentWidgetName), m_kind(dialogKind(parentWidgetName)) {
    qRegisterMetaType<PARTITIONNUMBER>(
        "PARTITIONNUMBER"); // a page can't call a slot whose types have no name
    host->endNaming();
}

DOC_Interface* JS_Mediator_FileDialog::document(DOCKEY key) { return host()->docByKey(key, true); }

void JS_Mediator_FileDialog::setSelectedRow(DOCKEY key, PARTITIONNUMBER partitionNo) {
    m_selectDocKey = key;
    m_selectPartitionNo = partitionNo;
}

bool JS_Mediator_FileDialog::isConverting() {
    if (!host()->isBackgroundConverting()) {
        return false;
    }
    host()->alert(translate(QStringLiteral("You can not edit during the conversion process.")), nullptr);
    return true;
}

QString JS_Mediator_FileDialog::chooseFolder(const QString& start) {
    return QFileDialog::getExistingDirectory(host()->getDialogParent(),
                                             translate(QStringLiteral("Select folder")), start,
                                             QFileDialog::ShowDirsOnly);
}

void JS_Mediator_FileDialog::importTarget(const QVariantList& dockeyList) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::importTarget"),
                               traceArgs({{"dockeyList", dockeyList}}));
    guarded([&] {
        QList<DOCKEY> keys;
        for (const QVariant& key : dockeyList) {
            keys.append(key.toString().toUInt());
        }
        host()->importTargets(keys);
    });
}

QString JS_Mediator_FileDialog::select(DOCKEY dockey, PARTITIONNUMBER partitionNo, int width, int height) {
    setSelectedRow(dockey, partitionNo);
    return guarded(
        [&] {
            DOC_Interface* const row = host()->isLiveMode() ? nullptr : selectedDocument();
            if (!row) {
                return QString();
            }
            auto* const camera = dynamic_cast<DOC_Camera*>(row);
            if (DeviceObject* const device = camera ? camera->getDevice() : nullptr) {
                emit selectedDocHeadCount(docAs<DOC_Settings>(device).getHeadCount());
            }
            const QPixmap picture = docAs<DOC_Geometry>(row).renderThumbnail(
                thumbnailKindOf(m_kind), width, height, partitionNo, 0, &m_dateTime);
            QByteArray bytes;
            QBuffer buffer(&bytes);
            picture.save(&buffer, "PNG");
            return QString::fromLatin1(bytes.toBase64());
        },
        QString());
}

bool JS_Mediator_FileDialog::canConvertDataName(DOCKEY docKey) {
    return guarded(
        [&] {
            DOC_Interface* const record = document(docKey);
            return record && docAs<DOC_Settings>(record).canConvertDataName(0);
        },
        false);
}

bool JS_Mediator_FileDialog::canSavedCheck(DOCKEY docKey) {
    return guarded(
        [&] {
            DOC_Interface* const record = document(docKey);
            return record && docAs<DOC_Settings>(record).canSavedCheck();
        },
        false);
}

void JS_Mediator_FileDialog::convertDataName(DOCKEY docKey, const QString& dataName, int sequence, bool fd) {
    const OperationTrace trace(
        QStringLiteral("JS_Mediator_FileDialog::convertDataName"),
        traceArgs({{"docKey", docKey}, {"dataName", dataName}, {"sequence", sequence}, {"fd", fd}}));
    guarded([&] {
        if (DOC_Interface* const record = document(docKey)) {
            docAs<DOC_Settings>(record).setDataName(composeDataName(host(), dataName, sequence));
        }
    });
}

bool JS_Mediator_FileDialog::checkDeleteFile(DOCKEY docKey) {
    return guarded(
        [&] {
            DOC_Interface* const file = document(docKey);
            return file && file->canDeleteFile();
        },
        false);
}

bool JS_Mediator_FileDialog::deleteFile(DOCKEY docKey) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::deleteFile"),
                               traceArgs({{"docKey", docKey}}));
    return guarded(
        [&] {
            DOC_Interface* const file = document(docKey);
            if (!file) {
                return false;
            }
            const LiveSuspendGuard guard(host(), false, false);
            file->deleteFile();
            return true;
        },
        false);
}

QString JS_Mediator_FileDialog::capcityToString(const QVariantList& selects) {
    quint64 sum = 0;
    for (const QVariant& size : selects) {
        sum += size.toULongLong();
    }
    return sum == 0 ? QString() : formatFileSize(sum);
}

bool JS_Mediator_FileDialog::savedCheck(const QVariantList& list) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::savedCheck"),
                               traceArgs({{"list", list}}));
    return guarded(
        [&] {
            const QString key =
                m_kind == DialogKind::Convert ? QStringLiteral("convert/dir") : QStringLiteral("export/dir");
            const QString folder = chooseFolder(host()->getPrefString(key, QVariant(), 0));
            if (folder.isEmpty()) {
                return false;
            }
            QList<Pair> pairs;
            for (const QVariant& entry : list) {
                const QVariantMap record = entry.toMap();
                pairs.append({record.value(QStringLiteral("serialno")).toString(),
                              record.value(QStringLiteral("datano")).toString()});
            }
            m_savedPairs = host()->findSavedData(pairs, folder);
            m_savedCheckDone = true;
            return true;
        },
        false);
}

int JS_Mediator_FileDialog::countSelectedDocs() {
    return guarded([&] { return host()->getSelectedCount(); }, 0);
}

bool JS_Mediator_FileDialog::openCustumTimeCodeDialog() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::openCustumTimeCodeDialog"));
    return guarded(
        [&] {
            return !isConverting() &&
                   GUI_TimeCodeCustomDialog(host(), host()->getDialogParent()).exec() == kAgreed;
        },
        false);
}

bool JS_Mediator_FileDialog::openConvertParameterEditDialog(const QVariantList& dockeyList) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::openConvertParameterEditDialog"),
                               traceArgs({{"dockeyList", dockeyList}}));
    return guarded(
        [&] {
            if (isConverting()) {
                return false;
            }
            // A batch that has no folder to go to needs none of its names edited.
            if (JS_Mediator_ConvertParameterEditDialog(host(), dockeyList, m_selectDocKey,
                                                       m_selectPartitionNo)
                    .getExportPath()
                    .isEmpty()) {
                return false;
            }
            GUI_ConvertParameterEditDialog dialog(host(), host()->getDialogParent(), dockeyList,
                                                  m_selectDocKey, m_selectPartitionNo);
            return dialog.exec() == kAgreed;
        },
        false);
}

bool JS_Mediator_FileDialog::saveInfoView(const QVariantList& targets) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::saveInfoView"),
                               traceArgs({{"targets", targets}}));
    return guarded(
        [&] {
            if (isConverting()) {
                return false;
            }
            QList<DOC_Interface*> documents;
            for (const QVariant& target : targets) {
                if (DOC_Interface* const found = document(target.toString().toUInt())) {
                    documents.append(found);
                }
            }
            GUI_EditInfoDialog dialog(host(), saveType(), true, selectedDocument(), m_selectPartitionNo,
                                      documents, m_dateTime);
            return dialog.exec() == kAgreed;
        },
        false);
}

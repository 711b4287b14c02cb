// The rows of what can be saved.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/DOC_Display.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/storage/dialogs/FileDialogRow.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"

#include <algorithm>

namespace {

constexpr int kConversion = 6; // save types
constexpr int kLayout = 4;
constexpr char kNotSaved[] = "background-color:red;";

bool isFile(DOC_Interface& document) {
    return document.isStandaloneKindA() || document.isStandaloneKindB() || document.isStandaloneKindC();
}

/// The records of a drive by their names, as a user counts: 2 before 10.
void sortRecords(HostObject& host, QList<DOCKEY>& keys) {
    const QCollator order = countingOrder();
    QMap<DOCKEY, QString> names;
    for (const DOCKEY key : keys) {
        DOC_Interface* const record = host.docByKey(key, true);
        names[key] = record ? record->getDisplayName() : QString();
    }
    std::stable_sort(keys.begin(), keys.end(), [&](DOCKEY left, DOCKEY right) {
        return order.compare(names.value(left), names.value(right)) < 0;
    });
}

} // namespace

QString JS_Mediator_FileDialog::list(bool temporary) {
    return guarded(
        [&] {
            const bool isFileMode = host()->getMode() == HOST_MODE_FILE;
            const RowFlags flags = rowFlags();
            QJsonArray rows;
            const QList<DOC_Interface*> documents = rowDocuments(temporary);
            for (DOC_Interface* const document : documents) {
                docAs<DOC_Save>(document).resetSaveFlags();
                if (isFileMode || !docAs<DOC_Settings>(document).isListHidden()) {
                    addRows(rows, document, flags, isFileMode);
                }
            }
            return json::compact(rows);
        },
        QString());
}

JS_Mediator_FileDialog::RowFlags JS_Mediator_FileDialog::rowFlags() {
    const auto flag = [this](const char* key) { return host()->getPrefBool(QLatin1String(key), QVariant()); };
    const bool isConversion = m_kind == DialogKind::Convert;
    RowFlags flags;
    flags.info = flag(isConversion ? "convert/saveinfo" : "export/saveinfo");
    flags.correct = !isConversion && flag("export/savecorrect");
    flags.scale = !isConversion && m_kind != DialogKind::Layout && flag("export/savescale");
    return flags;
}

QList<DOCKEY> JS_Mediator_FileDialog::rowKeys(bool temporary) {
    if (!temporary) {
        return host()->isLiveMode() ? host()->getSelectedKeys(false) : host()->listCameraKeys(true, false);
    }
    QList<DOCKEY> keys = host()->listTemporaryKeys();
    DOC_Interface* const first = keys.isEmpty() ? nullptr : document(keys.first());
    if (first && !isFile(*first)) {
        sortRecords(*host(), keys);
    }
    return keys;
}

QList<DOC_Interface*> JS_Mediator_FileDialog::rowDocuments(bool temporary) {
    QList<DOC_Interface*> documents;
    const QList<DOCKEY> keys = rowKeys(temporary);
    for (const DOCKEY key : keys) {
        DOC_Interface* const found = document(key);
        if (found && !docAs<DOC_Settings>(found).is3D()) {
            documents.append(found);
        }
    }
    return documents;
}

void JS_Mediator_FileDialog::addRows(QJsonArray& rows, DOC_Interface* document, const RowFlags& flags,
                                     bool isFileMode) {
    auto& save = docAs<DOC_Save>(document);
    save.setSaveInfo(flags.info);
    save.setSaveCorrect(flags.correct);
    save.setSaveScale(flags.scale);
    const QVariantMap map = docAs<DOC_Geometry>(document)
                                .getInfoMap(1, 0, saveType() == kConversion, saveType() == kLayout, 1)
                                .toMap();
    const QJsonObject common = isFileMode ? fileRow(document, map) : cameraRow(document, map);
    const PARTITIONNUMBER current = isFileMode ? 0 : docAs<DOC_Settings>(document).getPartitionNumber(false);
    int number = 0;
    const QVariantList partitions = map.value(QStringLiteral("partitions")).toList();
    for (const QVariant& entry : partitions) {
        ++number;
        const QVariantMap partition = entry.toMap();
        if (FileDialogRow::isEmpty(partition) || !(isFileMode || isListed(number, current))) {
            continue;
        }
        QJsonObject row = common;
        row[QStringLiteral("recid")] = rows.size() + 1;
        FileDialogRow::addPartition(row, partition, number);
        if (!isFileMode) {
            row[QStringLiteral("selected")] = selectedText(document, number, current);
            FileDialogRow::addCapacity(row, partition);
        }
        rows.append(row);
    }
}

QJsonObject JS_Mediator_FileDialog::fileRow(DOC_Interface* document, const QVariantMap& map) {
    auto& display = docAs<DOC_Display>(document);
    const bool isOfDrive = !isFile(*document);
    QJsonObject row = FileDialogRow::ofFile(map, isOfDrive);
    row[QStringLiteral("multiskip")] = display.isSkipForAll() || display.isSkipForFile();
    if (isOfDrive && m_savedCheckDone && isMissing(map)) {
        row[QStringLiteral("style")] = QLatin1String(kNotSaved);
    }
    return row;
}

/// True for a record of a drive that the last check didn't find.
bool JS_Mediator_FileDialog::isMissing(const QVariantMap& map) const {
    const Pair pair(map.value(QStringLiteral("serialno")).toString(),
                    map.value(QStringLiteral("datano")).toString());
    return pair.first.isEmpty() || pair.second.isEmpty() || !m_savedPairs.contains(pair);
}

QJsonObject JS_Mediator_FileDialog::cameraRow(DOC_Interface* document, const QVariantMap& map) {
    QJsonObject row = FileDialogRow::ofCamera(map);
    row[QStringLiteral("multiskip")] = docAs<DOC_Display>(document).isSkipForAll();
    return row;
}

QString JS_Mediator_FileDialog::selectedText(DOC_Interface* document, PARTITIONNUMBER partition,
                                             PARTITIONNUMBER current) {
    const bool isAll = host()->isQmonRunning() && host()->isMemoryMode();
    const bool isSelected = isAll || (partition == current && document->isSelected());
    return isSelected ? QStringLiteral("true") : QStringLiteral("false");
}

/// Whether a partition can be saved now: in live mode that depends on how a series of recordings fills them.
bool JS_Mediator_FileDialog::isListed(PARTITIONNUMBER partition, PARTITIONNUMBER current) {
    if (!host()->isLiveMode()) {
        return true;
    }
    const auto flag = [this](const char* key) { return host()->getPrefBool(QLatin1String(key), QVariant()); };
    if (!flag("recording/LoopRecord") || !flag("recording/AutoIncrementPartition")) {
        return partition == current;
    }
    return !flag("recording/StopRecordingAfterLastPartition") || partition >= current;
}

#include "livecontrol/storage/cards/JS_Mediator_SaveDockStore.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/overlays/formats/GUI_AddNumberDialog.h"
#include "livecontrol/storage/DataName.h"
#include "livecontrol/storage/ExportNaming.h"
#include "livecontrol/storage/NamingPreferences.h"

namespace {

constexpr quint64 kMegabyte = 1024 * 1024;
constexpr int kDataNameTarget = 13;
/// The function of cameras that count their records.
constexpr int kCountsRecords = 163;
constexpr uint kMostRecords = 1024;

struct StoreState {
    bool isConnected = false;
    bool isFormatted = false;
};

StoreState stateOf(DOC_Settings& camera, int slot) {
    StoreState state;
    camera.getDockStoreState(slot, state.isConnected, state.isFormatted);
    return state;
}

} // namespace

JS_Mediator_SaveDockStore::JS_Mediator_SaveDockStore(HostObject* host)
    : JS_Mediator_CameraStorage(host, QStringLiteral("savedockstore")) {}

bool JS_Mediator_SaveDockStore::isManaged(DOCKEY dockey) {
    return ask(
        dockey, [](DOC_Settings& camera) { return camera.isDockStoreManaged(); }, false);
}

bool JS_Mediator_SaveDockStore::isEnabaleSlot(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return camera.isDockStoreSlotEnabled(slot); }, false);
}

bool JS_Mediator_SaveDockStore::isConnected(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return stateOf(camera, slot).isConnected; }, false);
}

bool JS_Mediator_SaveDockStore::isFormatted(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return stateOf(camera, slot).isFormatted; }, false);
}

QString JS_Mediator_SaveDockStore::getDataList(DOCKEY dockey, int slot) {
    const auto records = [&](DOC_Settings& camera) {
        const uint count = camera.isFunctionSupported(kCountsRecords, true)
                               ? camera.getDockStoreRecordCount(slot)
                               : kMostRecords;
        QJsonArray rows;
        for (uint number = 0; number < count; ++number) {
            const int index = int(number);
            uint frames = 0;
            camera.getDockStoreRecordFrames(slot, index, frames);
            if (frames == 0) {
                break;
            }
            const QString name = camera.getDockStoreRecordName(slot, index);
            uint date = 0;
            uint time = 0;
            camera.getDockStoreRecordDateTime(slot, index, date, time);
            QJsonObject row = recordRow(index + 1, frames, date, time);
            row[QStringLiteral("name")] = name;
            rows.append(row);
        }
        return json::compact(rows);
    };
    return ask(dockey, records, QString());
}

void JS_Mediator_SaveDockStore::format(DOCKEY dockey, int slot) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_SaveDockStore::format"),
                               traceArgs({{"dockey", dockey}, {"slot", slot}}));
    const auto run = [&](DOC_Settings& camera) {
        host()->closeDockStoreRecords(camera.getCameraIndex());
        camera.formatDockStoreSlot(slot);
        camera.refreshDockStoreSlot(slot);
        return true;
    };
    ask(dockey, run, false);
}

int JS_Mediator_SaveDockStore::getSlotNo(DOCKEY dockey, ulong /*headNo*/) {
    return ask(
        dockey, [](DOC_Settings& camera) { return camera.getDockStoreSlot(); }, 0);
}

QString JS_Mediator_SaveDockStore::getAddCameraName(DOCKEY dockey) {
    return ask(
        dockey, [](DOC_Settings& camera) { return camera.getCameraName(false); }, QString());
}

QString JS_Mediator_SaveDockStore::getAddNumber() {
    return guarded(
        [&] {
            const DigitCounts digits = addNumberDigits(host(), kDataNameTarget);
            return composeSequenceNumber(1, 1, 1, digits.camera, digits.head, digits.session);
        },
        QString());
}

QString JS_Mediator_SaveDockStore::getAddDateTime(const QString& format) {
    return formatDateTime(QDateTime::currentDateTime(), format);
}

void JS_Mediator_SaveDockStore::numberSetting() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_SaveDockStore::numberSetting"));
    guarded([&] {
        GUI_AddNumberDialog(host(), host()->getDialogParent(), kDataNameTarget, m_documents, m_heads).exec();
    });
}

void JS_Mediator_SaveDockStore::convertDataName(DOCKEY dockey, int slot, int dataNo, const QString& dataName,
                                                int sequence) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_SaveDockStore::convertDataName"),
                               traceArgs({{"dockey", dockey},
                                          {"slot", slot},
                                          {"dataNo", dataNo},
                                          {"dataName", dataName},
                                          {"sequence", sequence}}));
    const auto rename = [&](DOC_Settings& camera) {
        const QString name = composeDataName(host(), dataName, sequence);
        // A camera stores bytes: each one goes to it as a character.
        camera.setDockStoreRecordName(slot, dataNo, QString::fromLatin1(name.toUtf8()), false);
        return true;
    };
    ask(dockey, rename, false);
}

QString JS_Mediator_SaveDockStore::getFreeSpace(DOCKEY dockey) {
    const auto space = [](DOC_Settings& camera) {
        if (!camera.isDockStoreManaged()) {
            return QString();
        }
        const int slot = camera.getDockStoreSlot();
        if (!stateOf(camera, slot).isConnected) {
            return QString();
        }
        uint total = 0;
        uint free = 0;
        camera.getDockStoreCapacity(slot, total, free);
        return formatFileSize(free * kMegabyte);
    };
    return ask(dockey, space, QString());
}

bool JS_Mediator_SaveDockStore::canConvertDataName(DOCKEY docKey) {
    return ask(
        docKey, [](DOC_Settings& camera) { return camera.canConvertDataName(0); }, false);
}

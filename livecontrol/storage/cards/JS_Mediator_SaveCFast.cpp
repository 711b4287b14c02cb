#include "livecontrol/storage/cards/JS_Mediator_SaveCFast.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/HostObject.h"

namespace {

struct CardState {
    bool isInserted = false;
    bool isFormatted = false;
};

CardState stateOf(DOC_Settings& camera, int slot) {
    CardState state;
    camera.getCFastState(slot, state.isInserted, state.isFormatted);
    return state;
}

struct Capacity {
    quint64 total = 0;
    quint64 free = 0;
    uint records = 0;
};

Capacity capacityOf(DOC_Settings& camera, int slot) {
    Capacity capacity;
    camera.getCFastCapacity(slot, capacity.total, capacity.free, capacity.records);
    return capacity;
}

} // namespace

JS_Mediator_SaveCFast::JS_Mediator_SaveCFast(HostObject* host)
    : JS_Mediator_CameraStorage(host, QStringLiteral("savecfast")) {}

bool JS_Mediator_SaveCFast::isManaged(DOCKEY dockey) {
    return ask(
        dockey, [](DOC_Settings& camera) { return camera.isCFastManaged(); }, false);
}

bool JS_Mediator_SaveCFast::isEnabaleSlot(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return camera.isCFastSlotEnabled(slot); }, false);
}

bool JS_Mediator_SaveCFast::isInserted(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return stateOf(camera, slot).isInserted; }, false);
}

bool JS_Mediator_SaveCFast::isFormatted(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return stateOf(camera, slot).isFormatted; }, false);
}

QString JS_Mediator_SaveCFast::getDataList(DOCKEY dockey, int slot) {
    const auto records = [&](DOC_Settings& camera) {
        const uint count = capacityOf(camera, slot).records;
        QJsonArray rows;
        for (uint number = 1; number <= count; ++number) {
            const int index = int(number);
            uint frames = 0;
            uint date = 0;
            uint time = 0;
            camera.getCFastRecordFrames(slot, index, frames);
            camera.getCFastRecordDateTime(slot, index, date, time);
            rows.append(recordRow(index, frames, date, time));
        }
        return json::compact(rows);
    };
    return ask(dockey, records, QString());
}

void JS_Mediator_SaveCFast::format(DOCKEY dockey, int slot) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_SaveCFast::format"),
                               traceArgs({{"dockey", dockey}, {"slot", slot}}));
    const auto run = [&](DOC_Settings& camera) {
        host()->closeCFastRecords(camera.getCameraIndex());
        camera.formatCFastSlot(slot);
        camera.refreshCFastSlot(slot);
        return true;
    };
    ask(dockey, run, false);
}

QString JS_Mediator_SaveCFast::getFreeSpace(DOCKEY dockey) {
    const auto space = [](DOC_Settings& camera) {
        const bool isThere = camera.isCFastManaged() && stateOf(camera, 0).isInserted;
        return isThere ? formatFileSize(capacityOf(camera, 0).free) : QString();
    };
    return ask(dockey, space, QString());
}

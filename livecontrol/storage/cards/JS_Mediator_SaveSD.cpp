#include "livecontrol/storage/cards/JS_Mediator_SaveSD.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/HostObject.h"

namespace {

constexpr int kSlots = 2;
constexpr quint64 kMegabyte = 1024 * 1024;

/// As the host counts slots; -1 if there is none.
int slotNumber(DOC_Settings& camera, int slot) {
    if (slot != 0) {
        return slot - 1;
    }
    for (int number = 0; number < kSlots; ++number) {
        if (camera.isSDSlotEnabled(number)) {
            return number;
        }
    }
    return -1;
}

struct SlotState {
    bool isInserted = false;
    bool isProtected = false;
    bool isFormatted = false;
};

SlotState stateOf(DOC_Settings& camera, int slot) {
    SlotState state;
    camera.getSDSlotState(slotNumber(camera, slot), state.isInserted, state.isProtected, state.isFormatted);
    return state;
}

/// The bus speed of a card, by the code that a camera reports.
QString speedName(int code) {
    switch (code) {
    case 0x4000:
        return QStringLiteral("High");
    case 0x8000:
        return QStringLiteral("SDR12");
    case 0x8001:
        return QStringLiteral("SDR25");
    case 0x8002:
        return QStringLiteral("SDR50");
    case 0x8003:
        return QStringLiteral("SDR104");
    case 0x8004:
        return QStringLiteral("DDR50");
    default:
        return QStringLiteral("Default");
    }
}

} // namespace

JS_Mediator_SaveSD::JS_Mediator_SaveSD(HostObject* host)
    : JS_Mediator_CameraStorage(host, QStringLiteral("savesd")) {}

bool JS_Mediator_SaveSD::isManaged(DOCKEY dockey) {
    return ask(
        dockey, [](DOC_Settings& camera) { return camera.isSDManaged(); }, false);
}

bool JS_Mediator_SaveSD::isEnabaleSlot(DOCKEY dockey, int slot) {
    const auto isEnabled = [&](DOC_Settings& camera) {
        return camera.isSDSlotEnabled(slotNumber(camera, slot));
    };
    return ask(dockey, isEnabled, false);
}

bool JS_Mediator_SaveSD::isInserted(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return stateOf(camera, slot).isInserted; }, false);
}

bool JS_Mediator_SaveSD::isProtected(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return stateOf(camera, slot).isProtected; }, false);
}

bool JS_Mediator_SaveSD::isFormatted(DOCKEY dockey, int slot) {
    return ask(
        dockey, [&](DOC_Settings& camera) { return stateOf(camera, slot).isFormatted; }, false);
}

QVariantMap JS_Mediator_SaveSD::getSDInfo(DOCKEY dockey, int slot) {
    const auto info = [&](DOC_Settings& camera) {
        int speed = 0;
        int classNo = 0;
        uint megabytes = 0;
        camera.getSDCardInfo(slotNumber(camera, slot), speed, classNo, megabytes);
        return QVariantMap{{QStringLiteral("class"), QStringLiteral("Class%1").arg(classNo)},
                           {QStringLiteral("speed"), speedName(speed)},
                           {QStringLiteral("size"), formatFileSize(megabytes * kMegabyte)}};
    };
    return ask(dockey, info, QVariantMap());
}

QString JS_Mediator_SaveSD::getDataList(DOCKEY dockey, int slot) {
    const auto records = [&](DOC_Settings& camera) {
        const int number = slotNumber(camera, slot);
        QJsonArray rows;
        for (int index = 0;; ++index) {
            uint frames = 0;
            camera.getSDRecordFrames(number, index, frames);
            if (frames == 0) {
                return json::compact(rows);
            }
            uint date = 0;
            uint time = 0;
            camera.getSDRecordDateTime(number, index, date, time);
            rows.append(recordRow(index + 1, frames, date, time));
        }
    };
    return ask(dockey, records, QString());
}

QString JS_Mediator_SaveSD::getMemoryMode(DOCKEY dockey) {
    const auto mode = [&](DOC_Settings& camera) {
        return translate(camera.getSDMemoryMode() == 0 ? QStringLiteral("Normal") : QStringLiteral("Fit"));
    };
    return ask(dockey, mode, QString());
}

void JS_Mediator_SaveSD::format(DOCKEY dockey, int slot) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_SaveSD::format"),
                               traceArgs({{"dockey", dockey}, {"slot", slot}}));
    const auto run = [&](DOC_Settings& camera) {
        const int number = slotNumber(camera, slot);
        const QString question = host()->translate(
            QStringLiteral("All data connected to Slot %2 of %1 will be deleted.<br>Is this OK?"), nullptr,
            0);
        const QString name = camera.getCameraName(false);
        const bool isAgreed = host()->confirm(question.arg(name, QString::number(number + 1)), nullptr,
                                              {{QStringLiteral("default"), QStringLiteral("no")}});
        if (isAgreed) {
            camera.formatSDSlot(number);
            camera.refreshSDSlot(number);
        }
        return isAgreed;
    };
    ask(dockey, run, false);
}

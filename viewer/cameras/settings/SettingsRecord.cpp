#include "viewer/cameras/settings/SettingsRecord.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/settings/SettingTable.h"

#include <QJsonArray>

namespace {

bool hasLens(const CameraHead& head) { return head.model().lens.type != 0 && head.lens().isKnown(); }

HeadRecord recordOf(const CameraHead& head) {
    HeadRecord record;
    record.settings = head.settings();
    record.settings.lowLight.on = false; // of the live picture alone
    record.settings.lowLight.shutter = 0;
    record.hasLens = hasLens(head);
    for (const LensAxis axis : {LensAxis::Iris, LensAxis::Focus, LensAxis::Zoom}) {
        record.lens[size_t(axis)] = head.lens().axis(axis).value;
    }
    return record;
}

void applyLens(const HeadRecord& record, CameraHead& head, const SettingsRecord::Await& await) {
    if (!record.hasLens || !hasLens(head)) {
        return;
    }
    // The zoom first: the range of the focus goes with it.
    for (const LensAxis axis : {LensAxis::Zoom, LensAxis::Focus, LensAxis::Iris}) {
        if (head.lens().axis(axis).drivable && head.lens().axis(axis).value != record.lens[size_t(axis)]) {
            await(head.moveLens(axis, record.lens[size_t(axis)]));
        }
    }
}

void applyChannels(const BodyRecord& record, CameraBody& body, const SettingsRecord::Await& await) {
    CameraHead& head = *body.head();
    if (!head.model().supports(CameraFunction::VariableChannels)) {
        return;
    }
    for (int number = 1; number <= LastVariableChannel; ++number) {
        const VariableChannel wish = record.channels.value(number);
        const VariableChannel now = body.variableChannel(number);
        if (wish.isStored() && VariableSize::isValid(head.model(), wish.rate, wish.size)) {
            await(head.storeVariableChannel(number, wish));
        } else if (!wish.isStored() && now.isStored()) {
            await(head.eraseVariableChannel(number));
        }
    }
}

} // namespace

BodyRecord SettingsRecord::of(const CameraBody& body) {
    BodyRecord record;
    record.name = body.name();
    record.model = body.model().id;
    record.serial = body.serial();
    record.partition = body.partition();
    record.fanRuns = body.isFanAsked();
    for (int number = 1; number <= LastVariableChannel; ++number) {
        if (body.variableChannel(number).isStored()) {
            record.channels.insert(number, body.variableChannel(number));
        }
    }
    for (const CameraHead* const head : body.heads()) {
        record.heads << recordOf(*head);
    }
    return record;
}

void SettingsRecord::apply(const BodyRecord& record, CameraBody& body, const Await& await) {
    applyChannels(record, body, await);
    const QList<CameraHead*> heads = body.heads();
    for (int i = 0; i < std::min(heads.size(), record.heads.size()); ++i) {
        await(heads.at(i)->adopt(record.heads.at(i).settings));
        applyLens(record.heads.at(i), *heads.at(i), await);
    }
    if (body.model().supports(CameraFunction::FanControl) && body.isFanAsked() != record.fanRuns) {
        await(body.setFan(record.fanRuns));
    }
    if (record.partition <= body.partitionCount() && record.partition != body.partition()) {
        await(body.setPartition(record.partition));
    }
}

QJsonObject SettingsRecord::stateOf(const HeadRecord& record) {
    QJsonObject state = SettingTable::state(record.settings, true);
    if (record.hasLens) {
        state.insert(QStringLiteral("lens"), QJsonArray{record.lens[0], record.lens[1], record.lens[2]});
    }
    return state;
}

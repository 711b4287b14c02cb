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

/// What is to be done and whether it is, both told only when its turn comes.
using Step = std::function<Answer()>;
using Steps = std::vector<Step>;

void addLens(Steps& steps, const HeadRecord& record, CameraHead& head) {
    if (!record.hasLens || !hasLens(head)) {
        return;
    }
    // The zoom first: the range of the focus goes with it.
    for (const LensAxis axis : {LensAxis::Zoom, LensAxis::Focus, LensAxis::Iris}) {
        steps.emplace_back([&head, axis, wish = record.lens[size_t(axis)]] {
            const Lens::Axis now = head.lens().axis(axis);
            return now.drivable && now.value != wish ? head.moveLens(axis, wish) : Answer(CommandResult::Ok);
        });
    }
}

void addChannels(Steps& steps, const BodyRecord& record, CameraBody& body) {
    CameraHead& head = *body.head();
    if (!head.model().supports(CameraFunction::VariableChannels)) {
        return;
    }
    for (int number = 1; number <= LastVariableChannel; ++number) {
        steps.emplace_back([&head, &body, number, wish = record.channels.value(number)] {
            if (wish.isStored() && VariableSize::isValid(head.model(), wish.rate, wish.size)) {
                return head.storeVariableChannel(number, wish);
            }
            return !wish.isStored() && body.variableChannel(number).isStored()
                       ? head.eraseVariableChannel(number)
                       : Answer(CommandResult::Ok);
        });
    }
}

void addBody(Steps& steps, const BodyRecord& record, CameraBody& body) {
    steps.emplace_back([&body, runs = record.fanRuns] {
        return body.model().supports(CameraFunction::FanControl) && body.isFanAsked() != runs
                   ? body.setFan(runs)
                   : Answer(CommandResult::Ok);
    });
    steps.emplace_back([&body, number = record.partition] {
        return number <= body.partitionCount() && number != body.partition() ? body.setPartition(number)
                                                                             : Answer(CommandResult::Ok);
    });
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

Answer SettingsRecord::apply(const BodyRecord& record, CameraBody& body) {
    Steps steps;
    addChannels(steps, record, body);
    const QList<CameraHead*> heads = body.heads();
    for (int i = 0; i < std::min(heads.size(), record.heads.size()); ++i) {
        const HeadSettings& wish = record.heads.at(i).settings;
        steps.emplace_back([head = heads.at(i), wish] { return head->adopt(wish); });
        addLens(steps, record.heads.at(i), *heads.at(i));
    }
    addBody(steps, record, body);
    Answer answer = CommandResult::Ok;
    for (const Step& step : steps) {
        answer = answer.then([step](CommandResult) { return step(); });
    }
    return answer;
}

QJsonObject SettingsRecord::stateOf(const HeadRecord& record) {
    QJsonObject state = SettingTable::state(record.settings, true);
    if (record.hasLens) {
        state.insert(QStringLiteral("lens"), QJsonArray{record.lens[0], record.lens[1], record.lens[2]});
    }
    return state;
}

#include "simulator/settings/SettingBehavior.h"

#include "simulator/device/SimulatedBody.h"
#include "simulator/settings/SettingsRules.h"
#include "viewer/cameras/settings/TriggerRules.h"

#include <algorithm>

namespace {

using Head = const SimulatedHead&;
using Value = const QVariant&;

constexpr const char* kSettings = "settings";

// A member of an area whose brightness is watched; the camera fits the whole of it to its picture.
template <auto Inner>
CommandResult setExposure(Head head, HeadSettings& s, Value value) {
    if (head.model().meter.areaStep.isEmpty()) {
        return CommandResult::Ok; // it watches nothing
    }
    ExposureControl wish = s.exposure;
    wish.*Inner = value.value<std::decay_t<decltype(wish.*Inner)>>();
    return SettingsRules::setExposureControl(head.model(), s, wish);
}
template <auto Inner>
CommandResult setImage(Head head, HeadSettings& s, Value value) {
    if (head.model().meter.areaStep.isEmpty()) {
        return CommandResult::Ok; // it watches nothing
    }
    MeteringArea wish = s.imageTrigger;
    wish.*Inner = value.value<std::decay_t<decltype(wish.*Inner)>>();
    return SettingsRules::setImageTriggerControl(head.model(), s, wish);
}

enum class TriggerPart { After, Random, Count };
template <TriggerPart Part>
CommandResult setFrames(Head head, HeadSettings& s, Value value) {
    const auto wish = [&value](TriggerPart part) { return part == Part ? value.toInt() : 0; };
    return TriggerRules::set(head.model(), s, s.triggerMode, wish(TriggerPart::After),
                             wish(TriggerPart::Random), wish(TriggerPart::Count));
}

CommandResult setChannel(Head head, HeadSettings& s, Value value) {
    const int number = value.toInt();
    return number == 0
               ? SettingsRules::leaveChannel(head.model(), s)
               : SettingsRules::setChannel(head.model(), s, number, head.body()->variableChannel(number));
}

Reason refusedChannel(Head head, const HeadSettings& /*s*/, Value value) {
    const int number = value.toInt();
    return number == 0 || head.body()->variableChannel(number).isStored()
               ? Reason()
               : reason("channel %1 holds nothing", {number});
}

// A lock that is on goes back to a longer exposure than the one in force.
CommandResult setShutterWish(Head /*head*/, HeadSettings& s, Value value) {
    s.shutterWish = s.shutterLock ? value.toUInt() : s.shutter;
    return CommandResult::Ok;
}

Reason refusedDualSlope(Head head, const HeadSettings& s, Value value) {
    return value.toInt() > 0 && !SettingsRules::isDualSlopeAvailable(head.model(), s)
               ? reason("not at this frame rate")
               : Reason();
}

Reason refusedTriggerMode(Head head, const HeadSettings& /*s*/, Value value) {
    const int mode = value.toInt();
    return head.model().triggerModes.contains(mode) ? Reason()
                                                    : reason("this camera has no trigger mode %1", {mode});
}

Reason refusedLowLightType(Head /*head*/, const HeadSettings& /*s*/, Value value) {
    const int type = value.toInt();
    return type == LowLight::WholeSensor || type == LowLight::Resolution
               ? Reason()
               : reason("low light has no type %1", {type});
}

QVariantList onOff(Head /*head*/) { return {true, false}; }

template <typename T>
QVariantList variants(const QList<T>& values) {
    QVariantList list;
    for (const T& value : values) {
        list.append(QVariant::fromValue(value));
    }
    return list;
}

QVariantList dualSlopes(Head head) {
    constexpr int kStep = 10; // percent
    QVariantList values{0};
    for (int value = head.model().dualSlopeMin; value > 0 && value <= head.model().dualSlopeMax;
         value += kStep) {
        values.append(value);
    }
    return values;
}

QList<SettingBehavior> ofExposure() {
    return {
        {kSettings, "shutter",
         [](Head head, HeadSettings& s, Value value) {
             return SettingsRules::setShutter(head.model(), s, value.toUInt());
         },
         nullptr, [](Head head) { return variants(head.shutterList()); }},
        {kSettings, "shutterLock",
         [](Head, HeadSettings& s, Value value) { return SettingsRules::setShutterLock(s, value.toBool()); },
         nullptr, &onOff},
        {"", "shutterWish", &setShutterWish},
        {kSettings, "dualSlope",
         [](Head head, HeadSettings& s, Value value) {
             return SettingsRules::setDualSlope(head.model(), s, value.toInt());
         },
         &refusedDualSlope, &dualSlopes},
        {kSettings, "autoExposure",
         [](Head head, HeadSettings& s, Value value) {
             return SettingsRules::setAutoExposure(head.model(), s, value.toBool());
         },
         [](Head, const HeadSettings& s, Value value) {
             return value.toBool() && s.dualSlope > 0 ? reason("not with a dual slope shutter") : Reason();
         }},
        {kSettings, "lowLight",
         [](Head head, HeadSettings& s, Value value) {
             return SettingsRules::setLowLight(head.model(), s, value.toBool());
         }},
        {kSettings, "lowLightType", nullptr, &refusedLowLightType},
    };
}

QList<SettingBehavior> ofSizeAndRate() {
    return {
        {kSettings, "channel", &setChannel, &refusedChannel},
        {kSettings, "resolution",
         [](Head head, HeadSettings& s, Value value) {
             return SettingsRules::setResolution(head.model(), s, value.toSize());
         },
         nullptr, [](Head head) { return variants(head.resolutionList()); }},
        {kSettings, "resolutionLock", nullptr, nullptr, &onOff},
        {kSettings, "rate",
         [](Head head, HeadSettings& s, Value value) {
             return SettingsRules::setRate(head.model(), s, value.toUInt());
         },
         nullptr, [](Head head) { return variants(head.rateList()); }},
        {kSettings, "triggerMode",
         [](Head head, HeadSettings& s, Value value) {
             return TriggerRules::set(head.model(), s, value.toInt(), 0, 0, 0);
         },
         &refusedTriggerMode},
        {kSettings, "randomFrames", &setFrames<TriggerPart::Random>},
        {kSettings, "randomCount", &setFrames<TriggerPart::Count>},
        {kSettings, "afterFrames", &setFrames<TriggerPart::After>},
    };
}

QList<SettingBehavior> ofWatchedAreas() {
    constexpr const char* kExposure = "exposureControl";
    constexpr const char* kImage = "imageTriggerControl";
    return {
        {kExposure, "range", &setExposure<&ExposureControl::range>},
        {kExposure, "value", &setExposure<&ExposureControl::value>},
        {kExposure, "area", &setExposure<&ExposureControl::area>},
        {kExposure, "maxTime", &setExposure<&ExposureControl::maxTime>},
        {kImage, "range", &setImage<&MeteringArea::range>},
        {kImage, "value", &setImage<&MeteringArea::value>},
        {kImage, "area", &setImage<&MeteringArea::area>},
    };
}

} // namespace

const SettingBehavior& SettingBehaviors::of(const Setting& setting) {
    static const QList<SettingBehavior> all = ofSizeAndRate() + ofExposure() + ofWatchedAreas();
    static const SettingBehavior none;
    const auto is = [&setting](const SettingBehavior& each) {
        return qstrcmp(each.group, setting.group) == 0 && qstrcmp(each.key, setting.key) == 0;
    };
    const auto found = std::find_if(all.begin(), all.end(), is);
    return found == all.end() ? none : *found;
}

CommandResult SettingBehaviors::set(const Setting& setting, const SimulatedHead& head, HeadSettings& settings,
                                    const QVariant& value) {
    const SettingBehavior& behavior = of(setting);
    if (behavior.set) {
        return behavior.set(head, settings, value);
    }
    setting.put(settings, value);
    return CommandResult::Ok;
}

Reason SettingBehaviors::refusal(const Setting& setting, const SimulatedHead& head,
                                 const HeadSettings& settings, const QVariant& value) {
    const SettingBehavior& behavior = of(setting);
    return behavior.refusal ? behavior.refusal(head, settings, value) : Reason();
}

CommandResult SettingBehaviors::adopt(const SimulatedHead& head, HeadSettings& settings,
                                      const HeadSettings& wish) {
    const auto lacks = [&head](const Setting& row) {
        return row.needs && !head.model().supports(*row.needs);
    };
    const QList<Setting>& rows = SettingTable::rows();
    for (const Setting& row : rows) {
        if (row.isKept() && row.bends && !lacks(row)) {
            row.put(settings, QVariant(0));
        }
    }
    CommandResult result = CommandResult::Ok;
    for (const Setting& row : rows) {
        const bool given = row.fromChannel && settings.channel > 0;
        if (!row.isKept() || row.isDerived || given || lacks(row)) {
            continue;
        }
        const QVariant value = row.get(wish);
        if (!refusal(row, head, settings, value).isEmpty() ||
            set(row, head, settings, value) == CommandResult::Clamped) {
            result = CommandResult::Clamped;
        }
    }
    return result;
}

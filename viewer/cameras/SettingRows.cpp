// The rows of the table of settings.
#include "viewer/cameras/SettingTable.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/SettingsRules.h"
#include "viewer/cameras/TriggerRules.h"

namespace {

using Head = const CameraHead&;
using Value = const QVariant&;
using Kind = Setting::Kind;
using Kept = Setting::Kept;
using Told = Setting::Told;

constexpr int kMax = SettingTable::kLargestNumber;
constexpr const char* kSettings = "settings";
constexpr const char* kExposure = "exposureControl";
constexpr const char* kImage = "imageTriggerControl";

// A member as a variant, and back.
template <auto Member>
QVariant get(const HeadSettings& s) {
    return QVariant::fromValue(s.*Member);
}
template <auto Member>
void put(HeadSettings& s, Value value) {
    s.*Member = value.value<std::decay_t<decltype(s.*Member)>>();
}
template <auto Member>
CommandResult take(Head /*head*/, HeadSettings& s, Value value) {
    put<Member>(s, value);
    return CommandResult::Ok;
}
// The same of a member of a member.
template <auto Outer, auto Inner>
QVariant get(const HeadSettings& s) {
    return QVariant::fromValue(s.*Outer.*Inner);
}
template <auto Outer, auto Inner>
void put(HeadSettings& s, Value value) {
    s.*Outer.*Inner = value.value<std::decay_t<decltype(s.*Outer.*Inner)>>();
}

// A member of an area whose brightness is watched; the camera fits the whole of it to its picture.
template <auto Inner>
CommandResult setExposure(Head head, HeadSettings& s, Value value) {
    if (head.model().meter.areaStep.isEmpty()) {
        return CommandResult::Ok; // it watches nothing
    }
    HeadSettings wish = s;
    put<&HeadSettings::exposure, Inner>(wish, value);
    return SettingsRules::setExposureControl(head.model(), s, wish.exposure);
}
template <auto Inner>
CommandResult setImage(Head head, HeadSettings& s, Value value) {
    if (head.model().meter.areaStep.isEmpty()) {
        return CommandResult::Ok; // it watches nothing
    }
    HeadSettings wish = s;
    put<&HeadSettings::imageTrigger, Inner>(wish, value);
    return SettingsRules::setImageTriggerControl(head.model(), s, wish.imageTrigger);
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

// A lock that is on goes back to a longer exposure than the one in force.
CommandResult setShutterWish(Head /*head*/, HeadSettings& s, Value value) {
    s.shutterWish = s.shutterLock ? value.toUInt() : s.shutter;
    return CommandResult::Ok;
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

/// A row that is filled by name, so that its columns can be read.
struct Row : Setting {
    Row(const char* inGroup, const char* itsKey, const char* itsWords, Kind itsKind) : Setting() {
        group = inGroup;
        key = itsKey;
        words = itsWords;
        kind = itsKind;
        max = kMax;
    }
    template <auto Member>
    Row& member() {
        get = &::get<Member>;
        put = &::put<Member>;
        set = &take<Member>;
        return *this;
    }
    template <auto Outer, auto Inner>
    Row& member() {
        get = &::get<Outer, Inner>;
        put = &::put<Outer, Inner>;
        return *this;
    }
    Row& rule(CommandResult (*by)(Head, HeadSettings&, Value)) {
        set = by;
        return *this;
    }
    Row& range(int from, int to = kMax) {
        min = from;
        max = to;
        return *this;
    }
    Row& function(CameraFunction needed) {
        needs = needed;
        return *this;
    }
    Row& back(QVariantList (*values)(Head)) {
        offers = values;
        return *this;
    }
    Row& refuses(Reason (*why)(Head, const HeadSettings&, Value)) {
        refusal = why;
        return *this;
    }
    Row& tell(Told when) {
        told = when;
        return *this;
    }
    Row& notKept() {
        kept = Kept::No;
        told = Told::Never;
        return *this;
    }
    Row& bending() {
        bends = true;
        return *this;
    }
    Row& ofChannel() {
        fromChannel = true;
        return *this;
    }
};

using Model = CameraFunction;

QList<Setting> channelAndSize() {
    return {
        Row(kSettings, "channel", "Variable", Kind::Whole)
            .member<&HeadSettings::channel>()
            .rule(&setChannel)
            .range(0, LastVariableChannel)
            .function(Model::VariableChannels)
            .refuses([](Head head, const HeadSettings&, Value value) {
                const int number = value.toInt();
                return number == 0 || head.body()->variableChannel(number).isStored()
                           ? Reason()
                           : reason("channel %1 holds nothing", {number});
            })
            .bending(),
        Row(kSettings, "resolution", "Resolution", Kind::Size)
            .member<&HeadSettings::resolution>()
            .rule([](Head head, HeadSettings& s, Value value) {
                return SettingsRules::setResolution(head.model(), s, value.toSize());
            })
            .back([](Head head) { return variants(head.resolutionList()); })
            .ofChannel(),
        Row(kSettings, "rate", "Frame rate", Kind::Whole)
            .member<&HeadSettings::rate>()
            .rule([](Head head, HeadSettings& s, Value value) {
                return SettingsRules::setRate(head.model(), s, value.toUInt());
            })
            .range(1)
            .back([](Head head) { return variants(head.rateList()); })
            .ofChannel(),
    };
}

QList<Setting> exposure() {
    return {
        Row(kSettings, "shutter", "Shutter speed", Kind::Whole)
            .member<&HeadSettings::shutter>()
            .rule([](Head head, HeadSettings& s, Value value) {
                return SettingsRules::setShutter(head.model(), s, value.toUInt());
            })
            .range(1)
            .back([](Head head) { return variants(head.shutterList()); }),
        Row(kSettings, "shutterLock", "Locked Shutter Speed", Kind::OnOff)
            .member<&HeadSettings::shutterLock>()
            .rule([](Head, HeadSettings& s, Value value) {
                return SettingsRules::setShutterLock(s, value.toBool());
            })
            .function(Model::ShutterLock)
            .back(&onOff)
            .bending(),
        Row("", "shutterWish", "", Kind::Whole)
            .member<&HeadSettings::shutterWish>()
            .rule(&setShutterWish)
            .range(1)
            .tell(Told::Never),
        Row(kSettings, "resolutionLock", "Locked Resolution", Kind::OnOff)
            .member<&HeadSettings::resolutionLock>()
            .function(Model::ResolutionLock)
            .back(&onOff)
            .bending(),
        Row(kSettings, "dualSlopeMode", "Dual Slope Shutter", Kind::OnOff)
            .member<&HeadSettings::dualSlopeMode>()
            .function(Model::DualSlopeMode)
            .tell(Told::WithAll),
        Row(kSettings, "dualSlope", "Dual Slope Shutter", Kind::Whole)
            .member<&HeadSettings::dualSlope>()
            .rule([](Head head, HeadSettings& s, Value value) {
                return SettingsRules::setDualSlope(head.model(), s, value.toInt());
            })
            .range(0, 100)
            .function(Model::DualSlope)
            .refuses([](Head head, const HeadSettings& s, Value value) {
                return value.toInt() > 0 && !SettingsRules::isDualSlopeAvailable(head.model(), s)
                           ? reason("not at this frame rate")
                           : Reason();
            })
            .back(&dualSlopes)
            .bending(),
    };
}

QList<Setting> watchedAreas() {
    return {
        Row(kExposure, "range", "Range", Kind::Whole)
            .member<&HeadSettings::exposure, &ExposureControl::range>()
            .rule(&setExposure<&ExposureControl::range>),
        Row(kExposure, "value", "Target Value", Kind::Whole)
            .member<&HeadSettings::exposure, &ExposureControl::value>()
            .rule(&setExposure<&ExposureControl::value>),
        Row(kExposure, "area", "Select Area", Kind::Area)
            .member<&HeadSettings::exposure, &ExposureControl::area>()
            .rule(&setExposure<&ExposureControl::area>),
        Row(kExposure, "maxTime", "Maximum exposure time", Kind::Whole)
            .member<&HeadSettings::exposure, &ExposureControl::maxTime>()
            .rule(&setExposure<&ExposureControl::maxTime>),
        Row(kSettings, "autoExposure", "Auto Exposure", Kind::OnOff)
            .member<&HeadSettings::exposure, &ExposureControl::on>()
            .rule([](Head head, HeadSettings& s, Value value) {
                return SettingsRules::setAutoExposure(head.model(), s, value.toBool());
            })
            .function(Model::AutoExposure)
            .refuses([](Head, const HeadSettings& s, Value value) {
                return value.toBool() && s.dualSlope > 0 ? reason("not with a dual slope shutter") : Reason();
            })
            .bending(),
        Row(kImage, "range", "Range", Kind::Whole)
            .member<&HeadSettings::imageTrigger, &AreaJudge::range>()
            .rule(&setImage<&AreaJudge::range>),
        Row(kImage, "value", "Target Value", Kind::Whole)
            .member<&HeadSettings::imageTrigger, &AreaJudge::value>()
            .rule(&setImage<&AreaJudge::value>),
        Row(kImage, "area", "Select Area", Kind::Area)
            .member<&HeadSettings::imageTrigger, &AreaJudge::area>()
            .rule(&setImage<&AreaJudge::area>),
        Row(kSettings, "imageTrigger", "H/W Image Trigger", Kind::OnOff)
            .member<&HeadSettings::imageTrigger, &AreaJudge::on>()
            .rule([](Head, HeadSettings& s, Value value) {
                s.imageTrigger.on = value.toBool();
                return CommandResult::Ok;
            })
            .function(Model::ImageTrigger)
            .bending(),
    };
}

QList<Setting> trigger() {
    return {
        Row(kSettings, "triggerMode", "Trigger mode", Kind::Whole)
            .member<&HeadSettings::triggerMode>()
            .rule([](Head head, HeadSettings& s, Value value) {
                return TriggerRules::set(head.model(), s, value.toInt(), 0, 0, 0);
            })
            .range(0, TriggerRandomLoop)
            .refuses([](Head head, const HeadSettings&, Value value) {
                const int mode = value.toInt();
                return head.model().triggerModes.contains(mode)
                           ? Reason()
                           : reason("this camera has no trigger mode %1", {mode});
            }),
        Row(kSettings, "randomTimes", "Enable times", Kind::OnOff)
            .member<&HeadSettings::randomTimes>()
            .function(Model::RandomTimes)
            .tell(Told::WithAll),
        Row(kSettings, "randomFrames", "Random frames", Kind::Whole)
            .member<&HeadSettings::randomFrames>()
            .rule(&setFrames<TriggerPart::Random>)
            .range(1)
            .tell(Told::WithAll),
        Row(kSettings, "randomCount", "Number of recordings", Kind::Whole)
            .member<&HeadSettings::randomCount>()
            .rule(&setFrames<TriggerPart::Count>)
            .range(1)
            .tell(Told::WithAll),
        Row(kSettings, "afterFrames", "After trigger", Kind::Whole)
            .member<&HeadSettings::afterFrames>()
            .rule(&setFrames<TriggerPart::After>)
            .range(1)
            .tell(Told::WithAll),
    };
}

QList<Setting> options() {
    return {
        Row(kSettings, "aperture", "", Kind::Fraction)
            .member<&HeadSettings::aperture>()
            .range(0, 16)
            .notKept(),
        Row(kSettings, "lowLight", "", Kind::OnOff)
            .member<&HeadSettings::lowLight, &LowLight::on>()
            .rule([](Head head, HeadSettings& s, Value value) {
                return SettingsRules::setLowLight(head.model(), s, value.toBool());
            })
            .function(Model::LowLight)
            .notKept(),
        Row(kSettings, "lowLightType", "Display with a maximum resolution", Kind::Whole)
            .member<&HeadSettings::lowLight, &LowLight::type>()
            .rule([](Head, HeadSettings& s, Value value) {
                s.lowLight.type = value.toInt();
                return CommandResult::Ok;
            })
            .range(LowLight::WholeSensor, LowLight::Resolution)
            .function(Model::LowLight)
            .refuses([](Head, const HeadSettings&, Value value) {
                const int type = value.toInt();
                return type == LowLight::WholeSensor || type == LowLight::Resolution
                           ? Reason()
                           : reason("low light has no type %1", {type});
            })
            .tell(Told::WithAll),
        Row(kSettings, "lowLightShutter", "", Kind::Whole)
            .member<&HeadSettings::lowLight, &LowLight::shutter>()
            .notKept(),
        Row(kSettings, "led", "LED", Kind::OnOff)
            .member<&HeadSettings::led>()
            .function(Model::HeadLight)
            .tell(Told::WithAll),
        Row(kSettings, "laser", "Laser", Kind::OnOff)
            .member<&HeadSettings::laser>()
            .function(Model::HeadLight)
            .tell(Told::WithAll),
    };
}

} // namespace

const QList<Setting>& SettingTable::rows() {
    static const QList<Setting> table =
        channelAndSize() + exposure() + watchedAreas() + trigger() + options();
    return table;
}

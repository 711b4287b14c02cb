// The rows of the table of settings.
#include "viewer/cameras/settings/SettingTable.h"

#include "viewer/cameras/CameraBody.h"

namespace {

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
// The same of a member of a member.
template <auto Outer, auto Inner>
QVariant get(const HeadSettings& s) {
    return QVariant::fromValue(s.*Outer.*Inner);
}
template <auto Outer, auto Inner>
void put(HeadSettings& s, Value value) {
    s.*Outer.*Inner = value.value<std::decay_t<decltype(s.*Outer.*Inner)>>();
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
        return *this;
    }
    template <auto Outer, auto Inner>
    Row& member() {
        get = &::get<Outer, Inner>;
        put = &::put<Outer, Inner>;
        return *this;
    }
    Row& command(const char* itsCommand) {
        Setting::command = itsCommand;
        return *this;
    }
    Row& derived() {
        isDerived = true;
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
            .command("KVC_SetVariableChannel")
            .member<&HeadSettings::channel>()
            .range(0, LastVariableChannel)
            .function(Model::VariableChannels)
            .bending(),
        Row(kSettings, "resolution", "Resolution", Kind::Size)
            .command("KVC_SetResolution")
            .member<&HeadSettings::resolution>()
            .ofChannel(),
        Row(kSettings, "rate", "Frame rate", Kind::Whole)
            .command("KVC_SetRecordRate")
            .member<&HeadSettings::rate>()
            .range(1)
            .ofChannel(),
    };
}

QList<Setting> exposure() {
    return {
        Row(kSettings, "shutter", "Shutter speed", Kind::Whole)
            .command("KVC_SetShutterSpeedFps")
            .member<&HeadSettings::shutter>()
            .range(1),
        Row(kSettings, "shutterLock", "Locked Shutter Speed", Kind::OnOff)
            .command("KVC_SetShutterLockMode")
            .member<&HeadSettings::shutterLock>()
            .function(Model::ShutterLock)
            .bending(),
        Row("", "shutterWish", "", Kind::Whole)
            .member<&HeadSettings::shutterWish>()
            .range(1)
            .tell(Told::Never),
        Row(kSettings, "resolutionLock", "Locked Resolution", Kind::OnOff)
            .command("KVC_SetResolutionLockMode")
            .member<&HeadSettings::resolutionLock>()
            .function(Model::ResolutionLock)
            .bending(),
        Row(kSettings, "dualSlopeMode", "Dual Slope Shutter", Kind::OnOff)
            .member<&HeadSettings::dualSlopeMode>()
            .function(Model::DualSlopeMode)
            .tell(Told::WithAll),
        Row(kSettings, "dualSlope", "Dual Slope Shutter", Kind::Whole)
            .command("KVC_SetDSShutterValue")
            .member<&HeadSettings::dualSlope>()
            .range(0, 100)
            .function(Model::DualSlope)
            .bending(),
    };
}

QList<Setting> watchedAreas() {
    return {
        Row(kExposure, "range", "Range", Kind::Whole)
            .member<&HeadSettings::exposure, &ExposureControl::range>(),
        Row(kExposure, "value", "Target Value", Kind::Whole)
            .member<&HeadSettings::exposure, &ExposureControl::value>(),
        Row(kExposure, "area", "Select Area", Kind::Area)
            .member<&HeadSettings::exposure, &ExposureControl::area>(),
        Row(kExposure, "maxTime", "Maximum exposure time", Kind::Whole)
            .member<&HeadSettings::exposure, &ExposureControl::maxTime>(),
        Row(kSettings, "autoExposure", "Auto Exposure", Kind::OnOff)
            .command("KVC_SetAutoExposure")
            .member<&HeadSettings::exposure, &ExposureControl::on>()
            .function(Model::AutoExposure)
            .bending(),
        Row(kImage, "range", "Range", Kind::Whole)
            .member<&HeadSettings::imageTrigger, &MeteringArea::range>(),
        Row(kImage, "value", "Target Value", Kind::Whole)
            .member<&HeadSettings::imageTrigger, &MeteringArea::value>(),
        Row(kImage, "area", "Select Area", Kind::Area)
            .member<&HeadSettings::imageTrigger, &MeteringArea::area>(),
        Row(kSettings, "imageTrigger", "H/W Image Trigger", Kind::OnOff)
            .command("KVC_SetImageTriggerInfo")
            .member<&HeadSettings::imageTrigger, &MeteringArea::on>()
            .function(Model::ImageTrigger)
            .bending(),
    };
}

QList<Setting> trigger() {
    return {
        Row(kSettings, "triggerMode", "Trigger mode", Kind::Whole)
            .command("KVC_SetTriggerMode")
            .member<&HeadSettings::triggerMode>()
            .range(0, TriggerRandomLoop),
        Row(kSettings, "randomTimes", "Enable times", Kind::OnOff)
            .command("KVC_SetRandomTriggerTimes")
            .member<&HeadSettings::randomTimes>()
            .function(Model::RandomTimes)
            .tell(Told::WithAll),
        Row(kSettings, "randomFrames", "Random frames", Kind::Whole)
            .member<&HeadSettings::randomFrames>()
            .range(1)
            .tell(Told::WithAll),
        Row(kSettings, "randomCount", "Number of recordings", Kind::Whole)
            .member<&HeadSettings::randomCount>()
            .range(1)
            .tell(Told::WithAll),
        Row(kSettings, "afterFrames", "After trigger", Kind::Whole)
            .member<&HeadSettings::afterFrames>()
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
            .command("KVC_SetLowLightMode")
            .member<&HeadSettings::lowLight, &LowLight::on>()
            .function(Model::LowLight)
            .notKept(),
        Row(kSettings, "lowLightType", "Display with a maximum resolution", Kind::Whole)
            .command("KVC_SetLowLightMode")
            .member<&HeadSettings::lowLight, &LowLight::type>()
            .range(LowLight::WholeSensor, LowLight::Resolution)
            .function(Model::LowLight)
            .tell(Told::WithAll),
        Row(kSettings, "lowLightShutter", "", Kind::Whole)
            .member<&HeadSettings::lowLight, &LowLight::shutter>()
            .derived()
            .notKept(),
        Row(kSettings, "led", "LED", Kind::OnOff)
            .command("SwitchLamp")
            .member<&HeadSettings::led>()
            .function(Model::HeadLight)
            .tell(Told::WithAll),
        Row(kSettings, "laser", "Laser", Kind::OnOff)
            .command("SwitchLamp")
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

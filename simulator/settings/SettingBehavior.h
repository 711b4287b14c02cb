#pragma once

#include "simulator/device/SimulatedHead.h"
#include "viewer/cameras/settings/SettingTable.h"

/// How a simulated head takes a setting that isn't simply set.
struct SettingBehavior {
    const char* group = ""; // of the row of the table of settings
    const char* key = "";
    /// By the camera's rules, as SimulatedHead tells. Null: the value is put as it is.
    CommandResult (*set)(const SimulatedHead& head, HeadSettings& settings, const QVariant& value) = nullptr;
    /// Why the camera can't take the value; empty if it can. Null: it always can, or clamps.
    Reason (*refusal)(const SimulatedHead& head, const HeadSettings& settings,
                      const QVariant& value) = nullptr;
    /// The values that the buttons on the camera's back go through. Null: it has none for this.
    QVariantList (*offers)(const SimulatedHead& head) = nullptr;
};

namespace SettingBehaviors {

const SettingBehavior& of(const Setting& setting);
CommandResult set(const Setting& setting, const SimulatedHead& head, HeadSettings& settings,
                  const QVariant& value);
/// Empty if the camera can take the value.
Reason refusal(const Setting& setting, const SimulatedHead& head, const HeadSettings& settings,
               const QVariant& value);
/// Makes `settings` as like `wish` as the camera can: what it lacks or refuses stays as it is.
CommandResult adopt(const SimulatedHead& head, HeadSettings& settings, const HeadSettings& wish);

} // namespace SettingBehaviors

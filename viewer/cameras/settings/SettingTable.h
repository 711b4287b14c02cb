#pragma once

#include "viewer/cameras/CameraModel.h"
#include "viewer/cameras/settings/HeadSettings.h"

#include <QJsonObject>
#include <QVariant>

#include <optional>

class CheckedJson;

/// One setting of a head, described once: comparing, state, files, presets, taking over, changes from
/// outside, and what the user is told of a change walk the table of these. A new setting is a row, and a rule
/// of the cameras if it has one.
struct Setting {
    enum class Kind { OnOff, Whole, Fraction, Size, Area }; // bool, a number, QSize, QRect in the variants
    enum class Kept { No, InFiles };                        // in settings files and in presets
    enum class Told { Never, Always, WithAll };             // WithAll: follows the others, as a rule

    const char* group = ""; // of the state that it stands in; empty: in the state itself
    const char* key = "";
    const char* words = "";   // for the user, to be translated; empty: nobody is told
    const char* command = ""; // key of the command that sets it; empty: none sets it alone
    Kind kind = Kind::OnOff;
    int min = 0; // of a number, from outside and in files
    int max = 0; // of a number in files
    Kept kept = Kept::InFiles;
    Told told = Told::Always;
    std::optional<CameraFunction> needs; // a camera without it lacks the setting
    /// While it is in force others may clamp to it: it is cleared before the settings of a record are taken.
    bool bends = false;
    /// A variable channel gives it while one is in force.
    bool fromChannel = false;
    bool isDerived = false; // it follows from others, nobody sets it

    QVariant (*get)(const HeadSettings& settings) = nullptr;
    /// As it is, without a rule.
    void (*put)(HeadSettings& settings, const QVariant& value) = nullptr;
    bool isKept() const { return kept == Kept::InFiles; }
    /// Whether a user or a rig file may set it at the camera itself.
    bool isSettable() const { return !isDerived && qstrcmp(group, "settings") == 0; }
};

namespace SettingTable {

constexpr int kLargestNumber = 10'000'000;
constexpr int kLargestSide = 1 << 16; // pixels

/// All settings, in the order in which they may clamp each other: what comes first bends what follows.
const QList<Setting>& rows();
/// The row of a key in the group "settings"; null if there is none.
const Setting* find(const QString& key);
/// The key of the command that sets it.
QString command(const char* key);

bool areEqual(const HeadSettings& a, const HeadSettings& b);
/// The groups of a head's state that the settings make; `keptOnly`: only what files and presets keep.
QJsonObject state(const HeadSettings& settings, bool keptOnly = false);
/// What state() wrote. Throws RigFileError with the line of a value that is missing, of the wrong type or out
/// of range; groups and keys that it doesn't know are let be.
HeadSettings read(const CheckedJson& json);
/// A value of the setting from a text or number that a user gave. Throws CameraError of kind BadValue;
/// `function` and `camera` are for its message.
QVariant checked(const Setting& setting, const QVariant& value, const QString& function,
                 const QString& camera);

} // namespace SettingTable

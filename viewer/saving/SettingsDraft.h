#pragma once

#include <QMap>
#include <QVariant>

class Preferences;

/// How the preferences of saving stood when a dialog opened that stores each change at once: Cancel gives
/// them back.
class SettingsDraft {
public:
    explicit SettingsDraft(const Preferences& preferences);
    void giveBack(Preferences& preferences) const;

private:
    QMap<QString, QVariant> m_before;
};

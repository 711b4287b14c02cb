#include "viewer/saving/SettingsDraft.h"

#include "viewer/prefs/Preferences.h"

#include <algorithm>

namespace {

bool isOfSaving(const QString& key) {
    static const QStringList s_families{QStringLiteral("export/"), QStringLiteral("convert/"),
                                        QStringLiteral("snap/"), QStringLiteral("report/"),
                                        QStringLiteral("layout/")};
    return std::any_of(s_families.begin(), s_families.end(),
                       [&key](const QString& family) { return key.startsWith(family); });
}

QMap<QString, QVariant> stored(const Preferences& preferences) {
    QMap<QString, QVariant> values;
    for (const QString& key : preferences.keys()) {
        if (isOfSaving(key)) {
            values.insert(key, preferences.value(key));
        }
    }
    return values;
}

} // namespace

SettingsDraft::SettingsDraft(const Preferences& preferences) : m_before(stored(preferences)) {}

void SettingsDraft::giveBack(Preferences& preferences) const {
    const QMap<QString, QVariant> now = stored(preferences);
    for (auto it = now.begin(); it != now.end(); ++it) {
        if (!m_before.contains(it.key())) {
            preferences.remove(it.key());
        }
    }
    for (auto it = m_before.begin(); it != m_before.end(); ++it) {
        if (now.value(it.key()) != it.value()) {
            preferences.setValue(it.key(), it.value());
        }
    }
}

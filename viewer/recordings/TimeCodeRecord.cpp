#include "viewer/recordings/TimeCodeRecord.h"

#include <cmath>

namespace {

/// Takes the entry of that name into `member` if it is of the member's kind.
class Entries {
public:
    explicit Entries(const QVariantMap& map) : m_map(map) {}

    void take(const char* name, QString& member) const {
        const QVariant value = m_map.value(QLatin1String(name));
        if (value.type() == QVariant::String) {
            member = value.toString();
        }
    }
    void take(const char* name, bool& member) const {
        const QVariant value = m_map.value(QLatin1String(name));
        if (value.type() == QVariant::Bool) {
            member = value.toBool();
        }
    }
    void take(const char* name, int& member) const {
        const QVariant value = number(name);
        member = value.isValid() ? value.toInt() : member;
    }
    void take(const char* name, double& member) const {
        const QVariant value = number(name);
        member = value.isValid() && std::isfinite(value.toDouble()) ? value.toDouble() : member;
    }

private:
    QVariant number(const char* name) const {
        const QVariant value = m_map.value(QLatin1String(name));
        const bool is = value.type() == QVariant::Double || value.type() == QVariant::Int ||
                        value.type() == QVariant::LongLong;
        return is ? value : QVariant();
    }

    const QVariantMap& m_map;
};

/// Each member with its name: all that is kept.
template <class Setting, class Visit>
void each(Setting& setting, const Visit& visit) {
    visit("index", setting.index);
    visit("displayUnit", setting.displayUnit);
    visit("oneFrame", setting.oneFrame);
    visit("startValue", setting.startValue);
    visit("reset", setting.reset);
    visit("resetValue", setting.resetValue);
    visit("scopeDisplayIndex", setting.scopeDisplayIndex);
    visit("decimalPlaceIndex", setting.decimalPlaceIndex);
    visit("decimalDivide", setting.decimalDivide);
    visit("usingRchFileInfo", setting.usingRchFileInfo);
    visit("overwrite", setting.overwrite);
    visit("realTime", setting.realTime);
}

} // namespace

QVariantMap TimeCodeRecord::toMap(const TimeCodeSetting& setting) {
    QVariantMap map;
    each(setting, [&map](const char* name, const auto& member) { map.insert(QLatin1String(name), member); });
    return map;
}

TimeCodeSetting TimeCodeRecord::fromMap(const QVariantMap& map) {
    TimeCodeSetting setting;
    const Entries entries(map);
    each(setting, [&entries](const char* name, auto& member) { entries.take(name, member); });
    return setting;
}

#include "viewer/cameras/settings/SettingTable.h"

#include "viewer/cameras/CameraError.h"
#include "viewer/cameras/CheckedJson.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

using Kind = Setting::Kind;

QJsonValue toJson(Kind kind, const QVariant& value) {
    switch (kind) {
    case Kind::OnOff:
        return value.toBool();
    case Kind::Size:
        return QJsonArray{value.toSize().width(), value.toSize().height()};
    case Kind::Area: {
        const QRect area = value.toRect();
        return QJsonArray{area.x(), area.y(), area.width(), area.height()};
    }
    default:
        return value.toDouble();
    }
}

QVariant areaOf(const CheckedJson& json, const QString& key) {
    const QList<int> numbers = json.integers(key, 0, SettingTable::kLargestSide);
    if (numbers.size() != 4) {
        json.fail(key, reason("[x, y, width, height] is expected"));
    }
    return QRect(numbers[0], numbers[1], numbers[2], numbers[3]);
}

// What a record can't do without.
bool isRequired(const Setting& setting) {
    return qstrcmp(setting.group, "settings") == 0 &&
           (setting.fromChannel || qstrcmp(setting.key, "shutter") == 0);
}

// `fallback` is what stands there if the key is missing.
QVariant fromJson(const CheckedJson& json, const Setting& setting, const QVariant& fallback) {
    const QString key = QLatin1String(setting.key);
    if (!json.has(key) && !isRequired(setting)) {
        return fallback;
    }
    switch (setting.kind) {
    case Kind::OnOff:
        return json.boolean(key, false);
    case Kind::Size:
        return json.size(key);
    case Kind::Area:
        return areaOf(json, key);
    case Kind::Fraction:
        return json.number(key, setting.min, setting.max);
    default:
        return json.integer(key, setting.min, setting.max);
    }
}

// Texts count too: a console hands on what a user typed.
class Given {
public:
    Given(const QVariant& value, const QString& function, const QString& camera)
        : m_value(value), m_function(function), m_camera(camera) {}

    double number(double min, double max, bool whole) const { return numberOf(m_value, min, max, whole); }

    bool boolean() const {
        const QString text = m_value.toString();
        if (text != QLatin1String("true") && text != QLatin1String("false")) {
            fail(reason("true or false is expected"));
        }
        return text == QLatin1String("true");
    }

    QSize size() const {
        static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,5})\\s*x\\s*(\\d{1,5})\\s*$"));
        constexpr int kMax = SettingTable::kLargestNumber;
        if (m_value.type() == QVariant::Size) {
            return m_value.toSize();
        }
        const QVariantList pair = m_value.toList();
        if (pair.size() == 2) {
            return {int(numberOf(pair.at(0), 1, kMax, true)), int(numberOf(pair.at(1), 1, kMax, true))};
        }
        const QRegularExpressionMatch match = form.match(m_value.toString());
        if (!match.hasMatch()) {
            fail(reason("a size such as 1280x1024 is expected"));
        }
        return {match.captured(1).toInt(), match.captured(2).toInt()};
    }

private:
    double numberOf(const QVariant& value, double min, double max, bool whole) const {
        bool ok = value.type() != QVariant::Bool;
        const double result = ok ? value.toDouble(&ok) : 0;
        if (!ok || !(result >= min && result <= max) || (whole && result != std::floor(result))) {
            fail(reason("a %1 from %2 to %3 is expected",
                        {whole ? reason("whole number") : reason("number"), QString::number(min),
                         QString::number(max, 'f', 0)}));
        }
        return result;
    }
    [[noreturn]] void fail(const Reason& why) const {
        throw CameraError(CameraError::Kind::BadValue, m_function, m_camera, why);
    }

    const QVariant& m_value;
    const QString& m_function;
    const QString& m_camera;
};

} // namespace

const Setting* SettingTable::find(const QString& key) {
    const auto is = [&key](const Setting& row) { return row.isSettable() && key == QLatin1String(row.key); };
    const auto found = std::find_if(rows().begin(), rows().end(), is);
    return found == rows().end() ? nullptr : &*found;
}

QString SettingTable::command(const char* key) { return QLatin1String(find(QLatin1String(key))->command); }

bool SettingTable::areEqual(const HeadSettings& a, const HeadSettings& b) {
    return std::all_of(rows().begin(), rows().end(),
                       [&](const Setting& row) { return row.get(a) == row.get(b); });
}

QJsonObject SettingTable::state(const HeadSettings& settings, bool keptOnly) {
    QJsonObject state;
    for (const Setting& row : rows()) {
        if (keptOnly && !row.isKept()) {
            continue;
        }
        const QJsonValue value = toJson(row.kind, row.get(settings));
        const QString key = QLatin1String(row.key);
        if (*row.group == '\0') {
            state.insert(key, value);
            continue;
        }
        QJsonObject group = state.value(QLatin1String(row.group)).toObject();
        group.insert(key, value);
        state.insert(QLatin1String(row.group), group);
    }
    return state;
}

HeadSettings SettingTable::read(const CheckedJson& json) {
    HeadSettings settings;
    for (const Setting& row : rows()) {
        if (!row.isKept()) {
            continue;
        }
        const CheckedJson group = *row.group == '\0' ? json : json.object(QLatin1String(row.group));
        row.put(settings, fromJson(group, row, row.get(settings)));
        if (qstrcmp(row.key, "shutter") == 0) {
            settings.shutterWish = settings.shutter; // unless the record has another one
        }
    }
    return settings;
}

QVariant SettingTable::checked(const Setting& setting, const QVariant& value, const QString& function,
                               const QString& camera) {
    const Given given(value, function, camera);
    switch (setting.kind) {
    case Kind::OnOff:
        return given.boolean();
    case Kind::Size:
        return given.size();
    case Kind::Fraction:
        return given.number(setting.min, setting.max, false);
    default:
        return int(given.number(setting.min, kLargestNumber, true));
    }
}

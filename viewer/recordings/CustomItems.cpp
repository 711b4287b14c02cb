#include "viewer/recordings/CustomItems.h"

bool CustomItem::operator==(const CustomItem& other) const {
    return name == other.name && value == other.value && unit == other.unit && display == other.display &&
           useFileName == other.useFileName;
}

QVariantMap CustomItem::toMap() const {
    const auto flag = [](bool on) { return on ? QStringLiteral("on") : QStringLiteral("off"); };
    return {{QStringLiteral("name"), name},
            {QStringLiteral("value"), value},
            {QStringLiteral("unit"), unit},
            {QStringLiteral("display"), flag(display)},
            {QStringLiteral("usefilename"), flag(useFileName)}};
}

CustomItem CustomItem::fromMap(const QVariantMap& map) {
    const auto isOn = [&map](const char* key) {
        return map.value(QLatin1String(key)).toString() == QLatin1String("on");
    };
    return {map.value(QStringLiteral("name")).toString(), map.value(QStringLiteral("value")).toString(),
            map.value(QStringLiteral("unit")).toString(), isOn("display"), isOn("usefilename")};
}

CustomItems& CustomItems::operator=(const CustomItems& other) {
    m_items = other.m_items;
    changed();
    return *this;
}

QVariantList CustomItems::toList() const {
    QVariantList list;
    for (const CustomItem& item : m_items) {
        list.append(item.toMap());
    }
    return list;
}

void CustomItems::setList(const QVariantList& list) {
    m_items.clear();
    for (const QVariant& entry : list) {
        const CustomItem item = CustomItem::fromMap(entry.toMap());
        if (!item.name.isEmpty() && indexOf(item.name) < 0) {
            m_items.append(item);
        }
    }
    changed();
}

void CustomItems::clear() {
    m_items.clear();
    changed();
}

void CustomItems::add(const CustomItem& item) {
    if (indexOf(item.name) >= 0) {
        replace(item.name, item);
    } else {
        m_items.append(item);
        changed();
    }
}

void CustomItems::replace(const QString& name, const CustomItem& item) {
    const int index = indexOf(name);
    if (index >= 0) {
        m_items[index] = item;
        changed();
    }
}

void CustomItems::remove(const QString& name) {
    const int index = indexOf(name);
    if (index >= 0) {
        m_items.removeAt(index);
        changed();
    }
}

void CustomItems::rename(const QString& oldName, const QString& newName) {
    const int index = indexOf(oldName);
    if (index >= 0 && indexOf(newName) < 0) {
        m_items[index].name = newName;
        changed();
    }
}

int CustomItems::indexOf(const QString& name) const {
    for (int i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i).name == name) {
            return i;
        }
    }
    return -1;
}

void CustomItems::changed() {
    if (m_tell) {
        m_tell();
    }
}

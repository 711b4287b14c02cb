#include "viewer/documents/CustomItems.h"

QVariantMap CustomItem::toMap() const {
    const auto flag = [](bool on) { return on ? QStringLiteral("on") : QStringLiteral("off"); };
    return {{QStringLiteral("name"), name},
            {QStringLiteral("value"), value},
            {QStringLiteral("unit"), unit},
            {QStringLiteral("display"), flag(display)},
            {QStringLiteral("usefilename"), flag(useFileName)}};
}

QVariantList CustomItems::toList() const {
    QVariantList list;
    for (const CustomItem& item : m_items) {
        list.append(item.toMap());
    }
    return list;
}

void CustomItems::add(const CustomItem& item) {
    if (indexOf(item.name) >= 0) {
        replace(item.name, item);
    } else {
        m_items.append(item);
    }
}

void CustomItems::replace(const QString& name, const CustomItem& item) {
    const int index = indexOf(name);
    if (index >= 0) {
        m_items[index] = item;
    }
}

void CustomItems::remove(const QString& name) {
    const int index = indexOf(name);
    if (index >= 0) {
        m_items.removeAt(index);
    }
}

void CustomItems::rename(const QString& oldName, const QString& newName) {
    const int index = indexOf(oldName);
    if (index >= 0 && indexOf(newName) < 0) {
        m_items[index].name = newName;
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

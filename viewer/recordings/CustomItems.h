#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <functional>

/// A line of information that the user made up.
struct CustomItem {
    QString name;
    QString value;
    QString unit;
    bool display = false;
    bool useFileName = false; // part of the names of saved files

    bool operator==(const CustomItem& other) const;
    QVariantMap toMap() const;
    static CustomItem fromMap(const QVariantMap& map);
};

/// The custom items of a document, each name once.
class CustomItems {
public:
    CustomItems() = default;
    /// Takes the items, but not who wants to know of changes.
    CustomItems(const CustomItems& other) : m_items(other.m_items) {}
    CustomItems& operator=(const CustomItems& other);

    /// As maps with name, value, unit, display and usefilename; the flags are "on" or "off".
    QVariantList toList() const;
    /// Takes the items of such a list; an entry without a name is left out.
    void setList(const QVariantList& list);
    bool isEmpty() const { return m_items.isEmpty(); }
    /// Called after each change; one at a time.
    void onChanged(const std::function<void()>& tell) { m_tell = tell; }
    const QList<CustomItem>& items() const { return m_items; }
    void clear();
    /// Behind the others; one of the same name is replaced.
    void add(const CustomItem& item);
    /// Without effect for a name that is not there.
    void replace(const QString& name, const CustomItem& item);
    void remove(const QString& name);
    /// Without effect if the new name is taken.
    void rename(const QString& oldName, const QString& newName);

private:
    int indexOf(const QString& name) const;
    void changed();

    QList<CustomItem> m_items;
    std::function<void()> m_tell;
};

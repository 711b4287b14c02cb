#pragma once

#include <QList>
#include <QString>
#include <QVariant>

/// A line of information that the user made up.
struct CustomItem {
    QString name;
    QString value;
    QString unit;
    bool display = false;
    bool useFileName = false; // part of the names of saved files

    QVariantMap toMap() const;
};

/// The custom items of a document, each name once.
class CustomItems {
public:
    /// As maps with name, value, unit, display and usefilename; the flags are "on" or "off".
    QVariantList toList() const;
    const QList<CustomItem>& items() const { return m_items; }
    void clear() { m_items.clear(); }
    /// Behind the others; one of the same name is replaced.
    void add(const CustomItem& item);
    /// Without effect for a name that is not there.
    void replace(const QString& name, const CustomItem& item);
    void remove(const QString& name);
    /// Without effect if the new name is taken.
    void rename(const QString& oldName, const QString& newName);

private:
    int indexOf(const QString& name) const;

    QList<CustomItem> m_items;
};

#pragma once

#include <QMap>
#include <QStringList>

/// The items of one group of information, in their order: separators "<hr>" and entries "key:state". An entry
/// without a state is kept, too, until the list is stored.
class DisplayList {
public:
    /// What is shown is "true" or "false" by item key; one such map serves all groups of a dialog.
    using States = QMap<QString, QString>;

    /// Takes the text as it is stored: entries separated by ",", empty ones left out.
    void parse(const QString& text);
    /// Takes the order of a page: keys separated by ",", "HR" for a separator.
    void setOrder(const QString& keys);
    /// The text to store. States are those of the map; a key that it doesn't know has an empty one.
    QString text(const States& states) const;

    const QStringList& entries() const { return m_entries; }
    static bool isSeparator(const QString& entry);

private:
    QStringList m_entries;
};

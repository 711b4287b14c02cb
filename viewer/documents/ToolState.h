#pragma once

#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

/// Which tools act on the images. The tools themselves belong to other plug-ins; here stands what one plug-in
/// has to know of another's.
class ToolState : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The quick tool of the image views; empty for none.
    void setQuickTool(const QString& name) { store(m_quick, name); }

    /// A tool runs, and its effect shows on the images.
    bool isActive(const QString& name) const {
        return name == m_quick ? !name.isEmpty() : m_active.contains(name);
    }
    void setActive(const QString& name, bool on) { put(m_active, name, on); }
    bool isApplied(const QString& name) const { return m_applied.contains(name); }
    void setApplied(const QString& name, bool on) { put(m_applied, name, on); }
    void reset(const QString& name) {
        setActive(name, false);
        setApplied(name, false);
    }

    /// Tools and image processings that a mode forbids.
    bool isAllowed(const QString& name) const { return !m_forbidden.contains(name); }
    void setAllowed(const QString& name, bool on) { put(m_forbidden, name, !on); }

    QStringList activeNames() const { return QStringList(m_active.cbegin(), m_active.cend()); }

signals:
    void changed();

private:
    template <class T>
    void store(T& member, const T& value) {
        if (member != value) {
            member = value;
            emit changed();
        }
    }
    void put(QSet<QString>& set, const QString& name, bool in) {
        if (set.contains(name) != in) {
            in ? void(set.insert(name)) : void(set.remove(name));
            emit changed();
        }
    }

    QString m_quick;
    QSet<QString> m_active;
    QSet<QString> m_applied;
    QSet<QString> m_forbidden;
};

#pragma once

#include <QStringList>
#include <QVariant>

/// Named values such as "env/style". The keys are texts with a slash.
class Preferences {
public:
    virtual ~Preferences() = default;

    /// The stored value, else what the program starts with, else the default: whoever reads a value that the
    /// program has a factory value for reads the same one, whatever default he gives.
    virtual QVariant value(const QString& key, const QVariant& defaultValue = QVariant()) const = 0;
    /// Stores a value; written through.
    virtual void setValue(const QString& key, const QVariant& value) = 0;
    virtual void remove(const QString& key) = 0;
    /// Of all stored values.
    virtual QStringList keys() const = 0;
    /// What the program starts with; invalid if it has nothing for that key.
    virtual QVariant factoryDefault(const QString& key) const = 0;
};

#pragma once

#include "viewer/prefs/Preferences.h"

#include <QMap>
#include <QObject>
#include <QSet>

/// Preferences in a file, one "key=value" a line under a "[section]", the value as JSON so that it keeps its
/// type.
///
/// Every change is on disk when its setter returns: the file is written anew beside the old one and put in
/// its place in one step, so a crash leaves the old or the new text and nothing between. Several programs may
/// share a file: each writes its own changes into what the others have stored. GUI thread only.
class FilePreferences : public QObject, public Preferences {
    Q_OBJECT

public:
    /// Reads `path`; a file that isn't there is an empty one. Lines that make no sense are left out; then the
    /// file as it was is kept beside it, and problem() tells.
    explicit FilePreferences(const QString& path, QObject* parent = nullptr);
    ~FilePreferences() override;

    /// Where the user's preferences lie: "settings.ini" in the user's configuration folder of this program.
    static QString defaultPath();

    QVariant value(const QString& key, const QVariant& defaultValue = QVariant()) const override;
    /// Texts, numbers, bools, lists and maps of them. Anything else is stored as its text. What can't be read
    /// back, an empty key or a number that isn't finite, is refused with a line in the log.
    void setValue(const QString& key, const QVariant& value) override;
    void remove(const QString& key) override;
    QVariant factoryDefault(const QString& key) const override;

    QStringList keys() const override { return m_values.keys(); }
    const QString& path() const { return m_path; }
    /// What went wrong when the file was read, for the user; empty if nothing did.
    const QString& problem() const { return m_problem; }

signals:
    /// A value is another one than before; invalid when it was removed.
    void changed(const QString& key, const QVariant& value);
    /// The file could not be written. The value holds until the program ends.
    void writeFailed(const QString& text);

private:
    void read();
    void keepBroken(const QByteArray& text, const QList<int>& lines);
    void write();
    QString mergeAndReplace(); // gives the failure

    QString m_path;
    QString m_problem;
    QMap<QString, QVariant> m_values;
    QMap<QString, QVariant> m_defaults;
    QSet<QString> m_changed; // keys, since the file was written
    bool m_writable = true;
    bool m_isUnread = false; // the file was there, and could not be read
};

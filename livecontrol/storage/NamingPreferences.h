#pragma once

#include "livecontrol/interface/HostObject.h"

/// The groups of preferences by which things that are saved are named.
enum class SaveFamily { Export, Layout, Convert, Snap, Report, Document };

/// `Document` stands for what has no preferences: it is saved beside its document, under the same name.
SaveFamily saveFamily(int saveType);

/// What a name is for.
enum class NameKind { GroupDir = 0, SubDir = 1, File = 2 };

/// The number by which dialogs and preferences know a kind of name; -1 where a family has no such name.
int numberTarget(SaveFamily family, NameKind kind);

/// How many digits each part of a sequence number has; none for 0 and below.
struct DigitCounts {
    int camera = 0;
    int head = 0;
    int session = 0;
};

/// Digit counts of the names of a target; 3, 3 and 4 without a host, 0 for what the preferences don't have.
DigitCounts addNumberDigits(HostObject* host, int target);

// What the preferences of the folders begin with.
inline const QString kGroupDir = QStringLiteral("groupdir");
inline const QString kSubDir = QStringLiteral("subdir");

/// Reads the preferences of one family. None has a default of its own: what is missing is false, 0 or empty.
class NamingPreferences {
public:
    /// `host` must not be null and outlives this object.
    NamingPreferences(HostObject* host, SaveFamily family);

    bool flag(const char* key) const {
        return m_host->getPrefBool(m_prefix + QLatin1String(key), QVariant());
    }
    int number(const char* key) const {
        return m_host->getPrefInt(m_prefix + QLatin1String(key), QVariant());
    }
    double real(const char* key) const {
        return m_host->getPref(m_prefix + QLatin1String(key), QVariant()).toDouble();
    }
    QString text(const char* key) const {
        return m_host->getPrefString(m_prefix + QLatin1String(key), QVariant(), 0);
    }

    /// As above, for a key that `stem` ("groupdir") begins.
    bool flag(const QString& stem, const char* key) const {
        return m_host->getPrefBool(m_prefix + stem + QLatin1String(key), QVariant());
    }
    QString text(const QString& stem, const char* key) const {
        return m_host->getPrefString(m_prefix + stem + QLatin1String(key), QVariant(), 0);
    }

    /// What a folder that is called as its file bears: the file's whole name, or that without number and
    /// time.
    const QString& folderFileName(const QString& stem, const QString& base, const QString& full) const {
        return flag(stem, "asfilenameincludeoption") ? full : base;
    }

private:
    HostObject* m_host;
    QString m_prefix;
};

/// The family whose group folder a save type takes: one layout sits in the group folders of the exports.
SaveFamily groupDirFamily(int saveType);

/// True if an information file is written, which has a name of its own.
bool writesInfoFile(HostObject* host, int saveType);

/// Adds a part after "_", or alone to an empty name. An empty part adds nothing.
void appendNamePart(QString& name, const QString& part);

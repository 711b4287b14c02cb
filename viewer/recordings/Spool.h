#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The folder where recordings lie from when they leave a camera until they are saved under a name. Each
/// running program has a folder of its own in it; what programs that are gone have left is told apart by a
/// lock, which goes with its program however that ends. GUI thread only, but for what is const.
class Spool {
public:
    explicit Spool(const QString& folder);
    ~Spool();
    Spool(const Spool&) = delete;
    Spool& operator=(const Spool&) = delete;

    const QString& folder() const { return m_folder; }
    /// A path for a new recording, which nobody else gets. Throws RecordingError if there can be none.
    QString newPath(const QString& camera);
    /// What all recordings in the spool take up, in bytes.
    qint64 bytes() const;

    /// Recordings that programs which are gone have left. They are this program's from now on: no other one
    /// gets them as long as it runs, or until release(). A file that was being written counts as far as it
    /// got; one without a whole frame is removed.
    QStringList adoptLeftovers();
    void release();

private:
    struct Lock {
        int handle = -1;
        QString folder;
    };
    static Lock lockedFolder(const QString& folder, bool make);
    static void tidy(Lock& lock);

    QString m_folder;
    Lock m_own;
    std::vector<Lock> m_adopted;
    int m_count = 0;
};

#pragma once

#include <QSaveFile>
#include <QString>

class QByteArray;

/// A file that takes the place of what is at its path, as a whole or not at all. Any thread.
class AtomicFile {
public:
    /// Who may read it, where the file system knows of owners.
    enum class Readers { AsUsual, OwnerAlone };

    explicit AtomicFile(const QString& path, Readers readers = Readers::AsUsual);

    /// False once something failed; nothing is written any more then.
    bool write(const QByteArray& bytes);
    /// Puts the file in its place. Gives the reason if it could not be written; empty when it stands.
    QString commit();

private:
    QSaveFile m_file;
    QString m_failure;
};

/// The same at once, with the same result.
QString replaceFile(const QString& path, const QByteArray& bytes,
                    AtomicFile::Readers readers = AtomicFile::Readers::AsUsual);

#pragma once

#include <QStringList>
#include <QTemporaryDir>

class QImage;

/// A folder of its own for what a support desk asks for. Everything in it goes with it.
class SupportFolder {
public:
    /// Throws FileFailure if there is no room for one.
    SupportFolder();

    /// The paths of what was added. Names are those in the archive. Adding throws FileFailure.
    const QStringList& files() const { return m_files; }
    void addText(const QString& name, const QString& text);
    void addImage(const QString& name, const QImage& image);

private:
    QString added(const QString& name);

    QTemporaryDir m_folder;
    QStringList m_files;
};

/// Packs files by their names into a ZIP archive, which takes the place of what is at `path` only when it is
/// whole. Throws FileFailure; what was there is still there then. Any thread.
void packSupportFile(const QString& path, const QStringList& files);

/// Whether a value of that name stays with the user: a password or a key.
bool isSecretName(const QString& name);
/// A line of a log up to the first such value: where that ends can't be told, since it may hold brackets too.
QString withoutSecrets(const QString& line);

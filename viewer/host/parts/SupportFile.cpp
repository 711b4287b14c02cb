#include "viewer/host/parts/SupportFile.h"

#include "viewer/messages/FileFailure.h"
#include "viewer/prefs/AtomicFile.h"

#include <KZip>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>

namespace {

[[noreturn]] void fail(const QString& path, const Reason& why) {
    throw FileFailure(reason("The support file can't be written: %1 (%2)", {path, why}), path);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(path, file.errorString());
    }
    return file.readAll();
}

} // namespace

SupportFolder::SupportFolder() {
    if (!m_folder.isValid()) {
        fail(m_folder.path(), m_folder.errorString());
    }
}

QString SupportFolder::added(const QString& name) {
    m_files.append(m_folder.filePath(name));
    return m_files.last();
}

void SupportFolder::addText(const QString& name, const QString& text) {
    QFile file(added(name));
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        fail(file.fileName(), file.errorString());
    }
}

void SupportFolder::addImage(const QString& name, const QImage& image) {
    const QString path = added(name);
    if (!image.save(path, "PNG")) {
        fail(path, QStringLiteral("PNG"));
    }
}

// Made in memory: the library closes what it writes to, and a file that is closed early is not put in place.
void packSupportFile(const QString& path, const QStringList& files) {
    if (QFileInfo(path).isDir()) {
        fail(path, reason("A folder has this name."));
    }
    QBuffer archive;
    KZip zip(&archive);
    bool packed = zip.open(QIODevice::WriteOnly);
    for (const QString& file : files) {
        packed = packed && zip.writeFile(QFileInfo(file).fileName(), contentOf(file));
    }
    if (!zip.close() || !packed) {
        fail(path, zip.errorString());
    }
    const QString failure = replaceFile(path, archive.data(), AtomicFile::Readers::OwnerAlone);
    if (!failure.isEmpty()) {
        fail(path, failure);
    }
}

bool isSecretName(const QString& name) {
    static const QRegularExpression secret(QStringLiteral("pass(word|phrase)?|secret|psk|wifi.*key"),
                                           QRegularExpression::CaseInsensitiveOption);
    return secret.match(name).hasMatch();
}

QString withoutSecrets(const QString& line) {
    static const QRegularExpression argument(QStringLiteral("\\[([^\\[\\]:]+):"));
    auto each = argument.globalMatch(line);
    while (each.hasNext()) {
        const auto match = each.next();
        if (isSecretName(match.captured(1))) {
            return line.left(match.capturedEnd()) + QStringLiteral("***]");
        }
    }
    return line;
}

#include "viewer/prefs/FilePreferences.h"

#include "viewer/prefs/AtomicFile.h"
#include "viewer/prefs/PreferencesText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QStandardPaths>

static constexpr int kLockMs = 2000;

// Outside any namespace, as the macro asks.
static void initDefaults() { Q_INIT_RESOURCE(viewer_prefs); }

FilePreferences::FilePreferences(const QString& path, QObject* parent) : QObject(parent), m_path(path) {
    initDefaults();
    QFile defaults(QStringLiteral(":/prefs/defaults.json"));
    if (defaults.open(QIODevice::ReadOnly)) {
        m_defaults = QJsonDocument::fromJson(defaults.readAll()).object().toVariantMap();
    }
    read();
}

FilePreferences::~FilePreferences() = default;

QString FilePreferences::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/settings.ini");
}

QVariant FilePreferences::value(const QString& key, const QVariant& defaultValue) const {
    const auto it = m_values.constFind(key);
    if (it != m_values.constEnd()) {
        return *it;
    }
    const QVariant factory = factoryDefault(key);
    return factory.isValid() ? factory : defaultValue;
}

void FilePreferences::setValue(const QString& key, const QVariant& value) {
    if (!PreferencesText::canHold(key, value)) {
        qWarning().noquote() << QStringLiteral("The preference \"%1\" can't be stored.").arg(key);
        return;
    }
    const QVariant stored = PreferencesText::normalized(value);
    const auto it = m_values.constFind(key);
    if (it != m_values.constEnd() && it->type() == stored.type() && *it == stored) {
        return;
    }
    m_values.insert(key, stored);
    m_changed.insert(key);
    write();
    emit changed(key, stored);
}

void FilePreferences::remove(const QString& key) {
    if (m_values.remove(key) > 0) {
        m_changed.insert(key);
        write();
        emit changed(key, QVariant());
    }
}

QVariant FilePreferences::factoryDefault(const QString& key) const {
    const QVariant value = m_defaults.value(key);
    return value.isValid() ? PreferencesText::normalized(value) : value;
}

void FilePreferences::read() {
    QFile file(m_path);
    if (!file.exists()) {
        return;
    }
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QByteArray text = isOpen ? file.readAll() : QByteArray();
    if (!isOpen || file.error() != QFile::NoError) {
        m_isUnread = true;
        m_problem =
            QCoreApplication::translate(
                "zel4",
                "The settings file %1 can't be read (%2). The program starts with its default settings.")
                .arg(m_path, file.errorString());
        return;
    }
    const PreferencesText::Parsed parsed = PreferencesText::parse(text);
    m_values = parsed.values;
    if (!parsed.badLines.isEmpty()) {
        keepBroken(text, parsed.badLines);
    }
}

void FilePreferences::keepBroken(const QByteArray& text, const QList<int>& lines) {
    const QString aside = m_path + QStringLiteral(".broken-") +
                          QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QFile copy(aside);
    const bool kept = copy.open(QIODevice::WriteOnly) && copy.write(text) == text.size();
    m_problem =
        lines.size() == 1
            ? QCoreApplication::translate("zel4",
                                          "Line %1 of the settings file makes no sense and was left out.")
                  .arg(lines.first())
            : QCoreApplication::translate(
                  "zel4", "%1 lines of the settings file, from line %2 on, make no sense and were left out.")
                  .arg(lines.size())
                  .arg(lines.first());
    if (kept) {
        m_problem +=
            QLatin1Char('\n') + QCoreApplication::translate("zel4", "The file as it was is kept as %1.")
                                    .arg(QDir::toNativeSeparators(aside));
    }
}

// What another viewer has stored since stays, but for what was changed here. A file that could not be read is
// not written over with the little that is known of it.
QString FilePreferences::mergeAndReplace() {
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (!lock.tryLock(kLockMs) && lock.error() == QLockFile::LockFailedError) {
        return QCoreApplication::translate("zel4", "Another program writes it.");
    }
    QFile file(m_path);
    if (file.exists()) {
        const bool isOpen = file.open(QIODevice::ReadOnly);
        const QByteArray text = isOpen ? file.readAll() : QByteArray();
        if (!isOpen || file.error() != QFile::NoError) {
            return file.errorString();
        }
        QMap<QString, QVariant> stored = PreferencesText::parse(text).values;
        for (const QString& key : qAsConst(m_changed)) {
            if (m_values.contains(key)) {
                stored.insert(key, m_values.value(key));
            } else {
                stored.remove(key);
            }
        }
        if (m_isUnread) { // what was not known at the start is known now
            m_values = stored;
            m_isUnread = false;
        }
        return replaceFile(m_path, PreferencesText::compose(stored), AtomicFile::Readers::OwnerAlone);
    }
    return replaceFile(m_path, PreferencesText::compose(m_values), AtomicFile::Readers::OwnerAlone);
}

void FilePreferences::write() {
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const QString failure = mergeAndReplace();
    const bool written = failure.isEmpty();
    if (written) {
        m_changed.clear();
    }
    if (!written && m_writable) {
        emit writeFailed(
            QCoreApplication::translate(
                "zel4", "The settings can't be stored in %1 (%2). They hold until the program ends.")
                .arg(QDir::toNativeSeparators(m_path), failure));
    }
    m_writable = written; // reported once, and again after it worked in between
}

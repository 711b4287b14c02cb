#include "viewer/prefs/FilePreferences.h"

#include "viewer/prefs/AtomicFile.h"
#include "viewer/prefs/PreferencesText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

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
    const QVariant stored = PreferencesText::normalized(value);
    const auto it = m_values.constFind(key);
    if (it != m_values.constEnd() && it->type() == stored.type() && *it == stored) {
        return;
    }
    m_values.insert(key, stored);
    write();
    emit changed(key, stored);
}

void FilePreferences::remove(const QString& key) {
    if (m_values.remove(key) > 0) {
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
    if (!file.open(QIODevice::ReadOnly)) {
        m_problem =
            QCoreApplication::translate(
                "zel4",
                "The settings file %1 can't be read (%2). The program starts with its default settings.")
                .arg(m_path, file.errorString());
        return;
    }
    const QByteArray text = file.readAll();
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

void FilePreferences::write() {
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const QString failure = replaceFile(m_path, PreferencesText::compose(m_values));
    const bool written = failure.isEmpty();
    if (!written && m_writable) {
        emit writeFailed(
            QCoreApplication::translate(
                "zel4", "The settings can't be stored in %1 (%2). They hold until the program ends.")
                .arg(QDir::toNativeSeparators(m_path), failure));
    }
    m_writable = written; // reported once, and again after it worked in between
}

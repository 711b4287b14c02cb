#pragma once

#include "livecontrol/storage/ExportNaming.h"
#include "tests/support/TestRig.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

/// For tables that are full of texts.
inline QString operator""_s(const char* text, size_t size) {
    return QString::fromUtf8(text, static_cast<int>(size));
}

/// A host with preferences, pending names and one camera, whose saved files may be numbered: ".._S0001".
struct NamingRig : TestRig {
    QVariantMap prefs;
    QSet<QString> pendingPaths;
    QSet<QString> pendingFolders;
    QString mode = QStringLiteral("live");
    bool isNumbered = false;
    QDateTime time{QDate(2021, 3, 4), QTime(5, 6, 7)};

    NamingRig() {
        host.onGetPrefString = [this](const QString& key, const QVariant&, int) {
            return prefs.value(key).toString();
        };
        host.onGetPrefBool = [this](const QString& key, const QVariant&) {
            return prefs.value(key).toBool();
        };
        host.onGetPrefInt = [this](const QString& key, const QVariant&) { return prefs.value(key).toInt(); };
        host.onIsFileMode = [this] { return mode == QLatin1String("file"); };
        host.onIsMemoryMode = [this] { return mode == QLatin1String("memory"); };
        host.onAddPendingPath = [this](const QString& path) { pendingPaths.insert(path); };
        host.onAddPendingFolder = [this](const QString& path) { pendingFolders.insert(path); };
        host.onIsPendingPath = [this](const QString& path) { return pendingPaths.contains(path); };
        host.onIsPendingFolder = [this](const QString& path) { return pendingFolders.contains(path); };
        camera.onGetPartitionCount = [](bool, bool) { return 1; };
        camera.onGetFilePath = [] { return QStringLiteral("/records/old/run.mdt"); };
        camera.onGetBaseName = [] { return QStringLiteral("own"); };
        camera.onGetMediaName = [] { return QStringLiteral("medium"); };
        camera.onGetPartitionName = [](PARTITIONNUMBER number) {
            return QStringLiteral("part:%1").arg(number);
        };
        camera.onGetIPAddress = [](bool) { return QStringLiteral("192.168.0.10"); };
        camera.onComposeSaveSuffix = [this](int, PARTITIONNUMBER, int session, bool& used, const QDateTime&) {
            used = isNumbered;
            return isNumbered ? composeSequenceNumber(0, 0, session, 0, 0, 4) : QString();
        };
    }

    void set(const char* key, const QVariant& value) { prefs.insert(QLatin1String(key), value); }
    /// Keys and values in turn.
    void set(const QVariantList& pairs) {
        for (int i = 0; i + 1 < pairs.size(); i += 2) {
            prefs.insert(pairs.at(i).toString(), pairs.at(i + 1));
        }
    }
    QString dir(int saveType) { return composeExportDir(&host, saveType, &camera); }
    QString name(int saveType, bool full = true) {
        return composeExportFileName(&host, saveType, &camera, 2, full, time);
    }
    QString groupDir(int saveType, const QString& fileName = QStringLiteral("shot")) {
        return composeExportGroupDir(&host, saveType, &camera, fileName, time);
    }
    QString subDir(int saveType, const QString& fileName = QStringLiteral("shot")) {
        return composeExportSubDir(&host, saveType, &camera, fileName, time);
    }
};

/// An empty file; false if it could not be made.
inline bool touch(const QString& path) { return QFile(path).open(QIODevice::WriteOnly); }

/// A map as custom items of documents are.
inline QVariantMap customItem(const char* name, const char* value, const char* unit, bool inFileName) {
    return {{QStringLiteral("name"), QLatin1String(name)},
            {QStringLiteral("value"), QLatin1String(value)},
            {QStringLiteral("unit"), QLatin1String(unit)},
            {QStringLiteral("usefilename"), QLatin1String(inFileName ? "on" : "off")}};
}

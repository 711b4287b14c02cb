#include "viewer/host/parts/SupportExport.h"

#include "viewer/cameras/CameraSource.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/host/HostWindow.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QSysInfo>
#include <QThread>
#include <qwebkitglobal.h>

namespace {
QString settingsText(const Preferences& preferences) {
    QJsonObject values;
    const QStringList keys = preferences.keys();
    for (const QString& key : keys) {
        if (!isSecretName(key)) {
            values.insert(key, QJsonValue::fromVariant(preferences.value(key)));
        }
    }
    return QString::fromUtf8(QJsonDocument(values).toJson());
}

/// A line of the system's own account of itself; empty where it gives none.
QString systemLine(const QString& path, const char* name) {
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith(name)) {
                return QString::fromUtf8(line.simplified());
            }
        }
    }
    return QString();
}

QString environmentText() {
    QStringList lines{QSysInfo::prettyProductName(),
                      QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion(),
                      QSysInfo::currentCpuArchitecture(),
                      QStringLiteral("%1 threads").arg(QThread::idealThreadCount()),
                      systemLine(QStringLiteral("/proc/meminfo"), "MemTotal"),
                      systemLine(QStringLiteral("/proc/meminfo"), "MemAvailable"),
                      systemLine(QStringLiteral("/proc/self/status"), "VmRSS")};
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* const screen : screens) {
        lines.append(QStringLiteral("screen %1: %2 x %3, scale %4, %5 dpi")
                         .arg(screen->name(), QString::number(screen->size().width()),
                              QString::number(screen->size().height()),
                              QString::number(screen->devicePixelRatio()),
                              QString::number(qRound(screen->logicalDotsPerInch()))));
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString camerasText(const DocumentList& documents) {
    QJsonArray cameras;
    const QList<DeviceDocument*> devices = documents.devices();
    for (const DeviceDocument* const device : devices) {
        const CameraBody& body = *device->body();
        cameras.append(QJsonObject{{QStringLiteral("name"), body.name()},
                                   {QStringLiteral("model"), body.model().title},
                                   {QStringLiteral("serial"), body.serial()},
                                   {QStringLiteral("firmware"), body.firmware()},
                                   {QStringLiteral("address"), body.address()},
                                   {QStringLiteral("mask"), body.mask()},
                                   {QStringLiteral("mac"), body.mac()},
                                   {QStringLiteral("heads"), body.headCount()},
                                   {QStringLiteral("connected"), body.isConnected()},
                                   {QStringLiteral("state"), stateName(body.state())}});
    }
    return QString::fromUtf8(QJsonDocument(cameras).toJson());
}

QString versionText() {
    return QStringLiteral("%1 %2\nQt %3, built with %4\nWebKit %5\n")
        .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
             QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR), qWebKitVersion());
}

QString logText(const QStringList& lines) {
    QString text;
    for (const QString& line : lines) {
        text += withoutSecrets(line) + QLatin1Char('\n');
    }
    return text;
}
} // namespace

QStringList SupportExport::gather() {
    auto folder = std::make_unique<SupportFolder>();
    folder->addText(QStringLiteral("settings.json"), settingsText(m_preferences));
    folder->addText(QStringLiteral("operation.log"), logText(m_shell.logLines()));
    const QList<QStringList> earlier = m_shell.earlierLogs();
    for (int i = 0; i < earlier.size(); ++i) {
        folder->addText(QStringLiteral("operation-%1.log").arg(i + 1), logText(earlier.at(i)));
    }
    folder->addText(QStringLiteral("cameras.json"), camerasText(m_documents));
    folder->addText(QStringLiteral("sdk.log"), logText(m_documents.source().commandLog()));
    folder->addText(QStringLiteral("environment.txt"), environmentText());
    folder->addText(QStringLiteral("version.txt"), versionText());
    folder->addImage(QStringLiteral("screen.png"), m_shell.capture());
    if (Document* const document = m_documents.current()) {
        const Frame frame = document->frame(QSize());
        if (!frame.isNull()) {
            folder->addImage(QStringLiteral("image.png"), frame.displayImage());
        }
    }
    const QStringList files = folder->files();
    const QMutexLocker hold(&m_mutex);
    m_gathered = std::move(folder);
    return files;
}

void SupportExport::pack(const QString& path, const QStringList& files) {
    std::unique_ptr<SupportFolder> gathered;
    {
        const QMutexLocker hold(&m_mutex);
        gathered.swap(m_gathered);
    }
    packSupportFile(path, files);
    emit m_documents.told(translated("The support file is saved: %1").arg(QDir::toNativeSeparators(path)));
}

#include "viewer/host/parts/SupportExport.h"

#include "viewer/cameras/CameraSource.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/host/HostWindow.h"
#include "viewer/prefs/Preferences.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>
#include <QThread>

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

QString environmentText() {
    return QStringLiteral("%1\n%2 %3\n%4\n%5 threads\n")
        .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
             QSysInfo::currentCpuArchitecture(), QString::number(QThread::idealThreadCount()));
}

QString versionText() {
    return QStringLiteral("%1 %2\nQt %3\n")
        .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
             QString::fromLatin1(qVersion()));
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
}

// The console's methods on what is saved in the background.

#include "viewer/console/ConsoleParameters.h"
#include "viewer/console/ConsoleTarget.h"
#include "viewer/export/ExportJobs.h"

#include <QJsonArray>

namespace {

QString stateName(ExportJob::State state) {
    switch (state) {
    case ExportJob::State::Waiting:
        return QStringLiteral("waiting");
    case ExportJob::State::Running:
    case ExportJob::State::Finishing:
        return QStringLiteral("running");
    case ExportJob::State::Done:
        return QStringLiteral("done");
    case ExportJob::State::Canceled:
        return QStringLiteral("canceled");
    case ExportJob::State::Failed:
        break;
    }
    return QStringLiteral("failed");
}

QJsonObject jsonOf(const ExportJobs::Entry& entry) {
    QJsonObject json{{QStringLiteral("id"), entry.id},
                     {QStringLiteral("title"), entry.title},
                     {QStringLiteral("state"), stateName(entry.state)},
                     {QStringLiteral("path"), entry.path},
                     {QStringLiteral("done"), entry.done},
                     {QStringLiteral("total"), entry.total}};
    if (!entry.failure.isEmpty()) {
        json[QStringLiteral("file")] = entry.failedPath;
        json[QStringLiteral("reason")] = entry.failure.english();
    }
    return json;
}

} // namespace

void Console::addJobMethods() {
    m_methods[QStringLiteral("jobs.list")] = [this](const QJsonObject&) {
        QJsonArray jobs;
        for (const ExportJobs::Entry& entry : m_target.jobs().list()) {
            jobs.append(jsonOf(entry));
        }
        return jobs;
    };
    m_methods[QStringLiteral("jobs.cancel")] = [this](const QJsonObject& p) {
        const int id = p.value(QLatin1String("id")).toInt();
        if (!m_target.jobs().cancel(id)) {
            throw ConsoleError(QStringLiteral("no job %1 is running").arg(id));
        }
        return kDone;
    };
}

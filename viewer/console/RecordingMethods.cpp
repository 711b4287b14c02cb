// The console's methods on recordings that were kept or opened.

#include "viewer/console/ConsoleParameters.h"
#include "viewer/console/ConsoleTarget.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QLocalSocket>

namespace {

FileDocument& recordingOf(ConsoleTarget& target, const QJsonObject& params) {
    const DOCKEY key = keyOf(params, "key");
    Document* const document = target.documents().find(key);
    if (!document || document->kind() != Document::Kind::File) {
        throw ConsoleError(QStringLiteral("there is no recording with the key %1").arg(key));
    }
    return static_cast<FileDocument&>(*document);
}

QJsonObject described(const FileDocument& document) {
    const RecordingInfo& info = document.source()->info();
    return {{QStringLiteral("key"), double(document.key())}, {QStringLiteral("camera"), info.camera},
            {QStringLiteral("frames"), info.frames},         {QStringLiteral("width"), info.size.width()},
            {QStringLiteral("height"), info.size.height()},  {QStringLiteral("bits"), info.bitDepth},
            {QStringLiteral("rate"), double(info.rate)},     {QStringLiteral("saved"), document.isSaved()}};
}

ExportRequest requestOf(const RecordingShelf& shelf, const QJsonObject& params) {
    ExportRequest request = shelf.requestTo(text(params, "path"), optionalText(params, "format"));
    const QString codec = optionalText(params, "codec");
    if (!codec.isEmpty()) {
        request.setCodec(codec);
    }
    request.first = params.value(QLatin1String("first")).toInt(0);
    request.last = params.value(QLatin1String("last")).toInt(ExportRequest::kToTheEnd);
    return request;
}

} // namespace

void Console::addRecordingMethods() {
    m_methods[QStringLiteral("recording.list")] = [this](const QJsonObject&) {
        QJsonArray list;
        for (const FileDocument* const document : m_target.documents().recordings()) {
            list.append(described(*document));
        }
        return list;
    };
    m_methods[QStringLiteral("recording.save")] = [this](const QJsonObject& p) {
        saveRecording(p);
        return kDone;
    };
    m_methods[QStringLiteral("recording.open")] = [this](const QJsonObject& p) {
        return QJsonArray{double(m_target.recordings().open(text(p, "path"))->key())};
    };
    m_methods[QStringLiteral("recording.close")] = [this](const QJsonObject& p) {
        if (!m_target.recordings().close(recordingOf(m_target, p))) {
            throw ConsoleError(QStringLiteral("the recording has not been saved"));
        }
        return kDone;
    };
}

// Waits for the file with events going on; the next lines of the connection wait as well.
void Console::saveRecording(const QJsonObject& params) {
    const QPointer<QLocalSocket> asker(m_asker);
    QEventLoop loop;
    ExportJobs::Entry outcome;
    RecordingShelf& shelf = m_target.recordings();
    shelf.save(recordingOf(m_target, params), requestOf(shelf, params), [&](const ExportJobs::Entry& job) {
        outcome = job;
        loop.quit();
    });
    connect(&shelf, &QObject::destroyed, &loop, &QEventLoop::quit); // the program ends
    if (asker) {
        m_waiting[asker] = true;
    }
    loop.exec();
    if (asker) {
        m_waiting.remove(asker);
    }
    if (outcome.state == ExportJob::State::Failed) {
        throw ConsoleError(QStringLiteral("%1: %2").arg(outcome.failedPath, outcome.failure.english()));
    }
    if (outcome.state != ExportJob::State::Done) {
        throw ConsoleError(QStringLiteral("the saving was ended"));
    }
}

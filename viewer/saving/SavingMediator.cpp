#include "viewer/saving/SavingMediator.h"

#include "livecontrol/foundation/DocumentCast.h"
#include "livecontrol/foundation/EndingWith.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/storage/ExportNaming.h"
#include "viewer/export/writers/MovieSink.h"
#include "viewer/messages/FileFailure.h"
#include "viewer/messages/Translated.h"
#include "viewer/saving/SaveSettings.h"

#include <QDateTime>
#include <QFileDialog>

namespace {

constexpr int RoundBrackets = 1; // in the names of reports
const QString FolderKey = QStringLiteral("import/dir");

} // namespace

SavingMediator::SavingMediator(HostObject* host, Preferences& preferences, const QString& parentWidgetName,
                               SaveFunction save)
    : JS_Mediator(host, QStringLiteral("saving")), m_preferences(preferences),
      m_parentWidgetName(parentWidgetName), m_save(std::move(save)) {}

void SavingMediator::rememberSettings() { m_drafts.append(SettingsDraft(m_preferences)); }

void SavingMediator::settleSettings(bool isAgreed) {
    if (m_drafts.isEmpty()) {
        return;
    }
    const SettingsDraft draft = m_drafts.takeLast();
    if (!isAgreed) {
        draft.giveBack(m_preferences);
    }
}

SavingMediator::Paths SavingMediator::compose(int saveType, DOC_Interface* document) {
    Paths composed;
    QMap<PARTITIONNUMBER, QString> groups;
    composeExportPaths(host(), saveType, document, true, groups, composed.folders, composed.paths,
                       QDateTime::currentDateTime(),
                       dialogKind(m_parentWidgetName) == DialogKind::Report ? RoundBrackets : 0);
    if (!groups.isEmpty()) {
        host()->setGroupDir(groups.first()); // the others of the job share it
    }
    return composed;
}

SaveRequest SavingMediator::request(const QVariantList& targets) {
    SaveRequest request = SaveSettings::request(*host(), dialogKind(m_parentWidgetName));
    host()->endNaming();
    host()->beginGroupNaming();
    QMap<DOCKEY, Paths> composed; // once a document: a second time its names would be taken
    for (const QVariant& target : targets) {
        const QVariantMap row = target.toMap();
        const DOCKEY key = row.value(QStringLiteral("dockey")).toString().toUInt();
        const PARTITIONNUMBER partition = row.value(QStringLiteral("partitionno")).toInt();
        DOC_Interface* const document = host()->docByKey(key, true);
        if (!document) { // it just went
            continue;
        }
        docAs<DOC_Save>(document).setSavePartition(partition);
        if (!composed.contains(key)) {
            host()->beginFileNaming();
            composed.insert(key, compose(request.saveType, document));
        }
        const Paths& paths = composed[key];
        request.items.append({key, partition, paths.paths.value(partition)});
    }
    return request;
}

bool SavingMediator::save(const QVariantList& targets) {
    const OperationTrace trace(QStringLiteral("SavingMediator::save"), traceArgs({{"targets", targets}}));
    return guarded(
        [&] {
            const auto begin = [&] {
                const SaveRequest wanted = request(targets);
                if (wanted.items.isEmpty()) {
                    throw FileFailure(reason("There is nothing to save."), QString());
                }
                m_save(wanted);
                return true;
            };
            return endingWith(begin, [this] { host()->endNaming(); }); // the jobs hold the names from here
        },
        false);
}

QString SavingMediator::codecRefusal(const QString& format, const QString& codec) {
    ExportFormat movie{};
    MovieCodec coding{};
    const bool isMovie = ExportFormats::fromName(format, movie) && ExportFormats::isMovie(movie) &&
                         ExportFormats::codecFromName(codec, coding);
    const Reason refusal = isMovie ? MovieSink::refusal(movie, coding) : Reason();
    return refusal.isEmpty() ? QString() : translated(refusal);
}

bool SavingMediator::openFiles() {
    const OperationTrace trace(QStringLiteral("SavingMediator::openFiles"));
    return guarded(
        [&] {
            const QStringList paths =
                QFileDialog::getOpenFileNames(host()->getDialogParent(), translated("Open recording"),
                                              host()->getPrefString(FolderKey, QVariant(), 0));
            if (paths.isEmpty()) {
                return false;
            }
            host()->setPrefString(FolderKey, QFileInfo(paths.first()).absolutePath());
            host()->setDocumentSource(0);
            host()->openFiles(paths, 1, 1, 1, 0, 0);
            return true;
        },
        false);
}

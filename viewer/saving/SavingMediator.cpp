#include "viewer/saving/SavingMediator.h"

#include "livecontrol/foundation/EndingWith.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/storage/ExportNaming.h"
#include "viewer/export/writers/MovieSink.h"
#include "viewer/messages/FileFailure.h"
#include "viewer/messages/Translated.h"
#include "viewer/saving/SaveSettings.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QStorageInfo>

namespace {

constexpr int RoundBrackets = 1; // in the names of reports
constexpr int kPlain = 9;        // a picture alone, whatever stands round it when it is saved
const QString FolderKey = QStringLiteral("import/dir");

DOCKEY keyOf(const QVariantMap& row) { return row.value(QStringLiteral("dockey")).toString().toUInt(); }

PARTITIONNUMBER partitionOf(const QVariantMap& row) {
    return row.value(QStringLiteral("partitionno")).toInt();
}

/// The folder, or what there is of it.
QString existing(const QString& folder) {
    QString path = QDir::cleanPath(folder);
    while (!QFileInfo::exists(path) && QFileInfo(path).path() != path) {
        path = QFileInfo(path).path();
    }
    return path;
}

bool isLossy(ExportFormat format) { return ExportFormats::isMovie(format) || format == ExportFormat::Jpeg; }

} // namespace

SavingMediator::SavingMediator(HostObject* host, Preferences& preferences, const QString& parentWidgetName,
                               const QDateTime& moment, SaveFunction save, LayoutPicture layoutPicture)
    : JS_Mediator(host, QStringLiteral("saving")), m_preferences(preferences),
      m_parentWidgetName(parentWidgetName), m_moment(moment), m_save(std::move(save)),
      m_layoutPicture(std::move(layoutPicture)) {}

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
    composeExportPaths(host(), saveType, document, true, groups, composed.folders, composed.paths, m_moment,
                       dialogKind(m_parentWidgetName) == DialogKind::Report ? RoundBrackets : 0);
    if (!groups.isEmpty()) {
        host()->setGroupDir(groups.first()); // the others of the job share it
    }
    return composed;
}

SaveRequest SavingMediator::request(const QVariantList& targets) {
    SaveRequest request = SaveSettings::request(*host(), dialogKind(m_parentWidgetName));
    request.moment = m_moment;
    host()->endNaming();
    host()->beginGroupNaming();
    QMap<DOCKEY, Paths> composed; // once a document: a second time its names would be taken
    for (const QVariant& target : targets) {
        const QVariantMap row = target.toMap();
        const DOCKEY key = keyOf(row);
        const PARTITIONNUMBER partition = partitionOf(row);
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

QString SavingMediator::preview(const QVariantMap& row, const QVariantList& targets, int width, int height) {
    return guarded(
        [&] {
            const DialogKind kind = dialogKind(m_parentWidgetName);
            const bool withInfo = SaveSettings::request(*host(), kind).withInfo;
            QImage image;
            if (kind == DialogKind::Layout && m_layoutPicture) {
                QList<DOCKEY> keys;
                for (const QVariant& target : targets) {
                    keys.append(keyOf(target.toMap()));
                }
                image = m_layoutPicture(keys, withInfo, QSize(width, height));
            } else if (!withInfo && kind != DialogKind::Report && kind != DialogKind::Open) {
                if (DOC_Interface* const document = host()->docByKey(keyOf(row), true)) {
                    image = docAs<DOC_Geometry>(document)
                                .renderThumbnail(kPlain, width, height, partitionOf(row), 0, nullptr)
                                .toImage();
                }
            }
            QByteArray png;
            QBuffer buffer(&png);
            return !image.isNull() && image.save(&buffer, "PNG") ? QString::fromLatin1(png.toBase64())
                                                                 : QString();
        },
        QString());
}

QStringList SavingMediator::pathsOf(const QVariantList& targets) {
    return guarded(
        [&] {
            QStringList paths;
            const auto compose = [&] {
                for (const SaveRequest::Item& item : request(targets).items) {
                    paths.append(item.path);
                }
                return paths;
            };
            return endingWith(compose, [this] { host()->endNaming(); });
        },
        QStringList());
}

QString SavingMediator::freeSpace(const QString& folder) {
    const QString path = existing(folder);
    return QFileInfo(path).isWritable()
               ? formatFileSize(quint64(qMax<qint64>(0, QStorageInfo(path).bytesAvailable())))
               : translated("The folder is write protected.");
}

double SavingMediator::bytesOf(const QVariantMap& target) {
    DOC_Interface* const document = host()->docByKey(keyOf(target), true);
    if (!document) {
        return 0;
    }
    const QVariantMap info = docAs<DOC_Geometry>(document).getInfoMap(1, 0, false, false, 1).toMap();
    const QVariantList partitions = info.value(QStringLiteral("partitions")).toList();
    const QVariantMap partition = partitions.value(partitionOf(target) - 1).toMap();
    return partition.value(QStringLiteral("capacity")).toDouble();
}

quint32 SavingMediator::rateOf(const QVariantMap& target) {
    DOC_Interface* const document = host()->docByKey(keyOf(target), true);
    if (!document) {
        return 0;
    }
    auto& settings = docAs<DOC_Settings>(document);
    return host()->isMemoryMode() ? settings.getPartitionRecordRate(partitionOf(target))
                                  : settings.getRecordRate(0);
}

double SavingMediator::bytesOfAll(const SaveRequest& wish, const QVariantList& targets) {
    ExportFormat format{};
    if (!ExportFormats::fromName(wish.format, format) || isLossy(format)) {
        return 0;
    }
    double needed = 0;
    for (const QVariant& target : targets) {
        needed += bytesOf(target.toMap()) / wish.skip.step(rateOf(target.toMap()));
    }
    return needed;
}

DOCKEY SavingMediator::currentKey() {
    return guarded([&] { return host()->getCurrentKey(); }, kInvalidDockey);
}

QString SavingMediator::bytesNeeded(const QVariantList& targets) {
    return guarded(
        [&] {
            const SaveRequest wish = SaveSettings::request(*host(), dialogKind(m_parentWidgetName));
            return QString::number(bytesOfAll(wish, targets), 'f', 0);
        },
        QStringLiteral("0"));
}

bool SavingMediator::lacksRoom(const QVariantList& targets) {
    return guarded(
        [&] {
            if (targets.isEmpty()) {
                return false;
            }
            const SaveRequest wish = SaveSettings::request(*host(), dialogKind(m_parentWidgetName));
            DOC_Interface* const first = host()->docByKey(keyOf(targets.first().toMap()), true);
            const QString folder = composeExportDir(host(), wish.saveType, first);
            return bytesOfAll(wish, targets) > double(QStorageInfo(existing(folder)).bytesAvailable());
        },
        false);
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

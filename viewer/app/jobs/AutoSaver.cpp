#include "viewer/app/jobs/AutoSaver.h"

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/storage/ExportNaming.h"
#include "viewer/app/jobs/SaveService.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/saving/SaveSettings.h"

#include <algorithm>
#include <utility>
#include <vector>

AutoSaver::AutoSaver(Parts parts, QObject* parent) : QObject(parent), m_parts(parts) {
    connect(&m_parts.shelf, &RecordingShelf::kept, this, [this](FileDocument* document) {
        if (m_parts.preferences.value(QStringLiteral("recording/AutoSave")).toBool()) {
            m_kept.append(document);
        }
    });
    connect(&m_parts.shelf, &RecordingShelf::allKept, this, &AutoSaver::saveKept);
}

// One that can't be saved must not hold up the others: the user is told when all have been begun.
void AutoSaver::saveKept() {
    QList<QPointer<FileDocument>> kept = std::exchange(m_kept, {});
    kept.removeAll(QPointer<FileDocument>());
    // Names with numbers follow the order of the cameras, whichever was read first.
    std::stable_sort(kept.begin(), kept.end(),
                     [this](const QPointer<FileDocument>& left, const QPointer<FileDocument>& right) {
                         return placeOf(*left) < placeOf(*right);
                     });
    std::vector<std::exception_ptr> failures;
    m_parts.host.endNaming();
    m_parts.host.beginGroupNaming();
    for (const QPointer<FileDocument>& document : kept) {
        try {
            if (document) {
                save(*document);
            }
        } catch (...) {
            failures.push_back(std::current_exception());
        }
    }
    m_parts.host.endNaming(); // the jobs hold the names from here
    for (const std::exception_ptr& failure : failures) {
        try {
            std::rethrow_exception(failure);
        } catch (const std::exception& error) {
            m_parts.host.showFailure(error);
        }
    }
}

void AutoSaver::save(FileDocument& document) {
    ViewerHost& host = m_parts.host;
    SaveSettings::ensureFolder(host, QStringLiteral("export"));
    SaveRequest wish = SaveSettings::request(host, DialogKind::Export);
    wish.isUnasked = true;
    host.beginFileNaming();
    const RecordingInfo info = document.info();
    const PARTITIONNUMBER partition = qMax(1, info.partition);
    try {
        DOC_Interface* const face = namedBy(document).face();
        const ExportPath path = composeExportPath(&host, wish.saveType, face, partition, true, info.ended, 0);
        host.setGroupDir(path.groupDir); // the others that were kept with it share it
        // In file mode a file may be saved beside the one that it came from, which this has none of.
        const bool hasFolder = !composeExportDir(&host, wish.saveType, face).isEmpty();
        const QString base =
            hasFolder ? QString() : host.getPrefString(QStringLiteral("export/dir"), QVariant(), 0);
        wish.items.append({document.key(), partition, base + path.fullPath});
    } catch (const UTL_Exception& error) { // knows the rule, not the recording
        throw RecordingError(RecordingError::While::Writing, document.title(),
                             QString::fromUtf8(error.what()));
    }
    m_parts.service.save(wish);
}

int AutoSaver::placeOf(FileDocument& document) const {
    const Document* const named = &namedBy(document);
    const QList<CameraDocument*> cameras = m_parts.documents.cameras();
    const auto found = std::find(cameras.begin(), cameras.end(), named);
    return int(std::distance(cameras.begin(), found));
}

// The camera, as long as it is there: its number is in the name, its folder may be one of its own.
Document& AutoSaver::namedBy(FileDocument& document) const {
    const RecordingInfo info = document.info();
    for (CameraDocument* const camera : m_parts.documents.cameras()) {
        const CameraHead& head = *camera->head();
        const bool isSame = info.serial.isEmpty()
                                ? head.fullName() == info.camera
                                : head.body()->serial() == info.serial && head.index() + 1 == info.head;
        if (isSame) {
            return *camera;
        }
    }
    return document;
}

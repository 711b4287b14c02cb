#include "viewer/host/doors/ApplicationWindowsDoor.h"

#include "livecontrol/foundation/PoolJob.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/host/parts/SavedRecordings.h"
#include "viewer/messages/Translated.h"

bool ApplicationWindowsDoor::isOtherPluginOpen() {
    OPERATION();
    QStringList names = m_plugins.openNames();
    names.removeAll(QStringLiteral("livecontrol"));
    return !names.isEmpty();
}

bool ApplicationWindowsDoor::isOpenExceptFilecontrol() {
    OPERATION();
    QStringList names = m_plugins.openNames();
    names.removeAll(QStringLiteral("livecontrol"));
    names.removeAll(QStringLiteral("filecontrol"));
    return !names.isEmpty();
}

// A number of a drive may be given again once it was formatted: what counts is the recording that is open
// from there.
QList<QPair<QString, QString>>
ApplicationWindowsDoor::findSavedData(const QList<QPair<QString, QString>>& pairs, const QString& folder) {
    OPERATION(folder);
    QList<QPair<QString, QString>> open;
    QList<RecordingInfo> wanted;
    for (Document* const document : m_documents.allDocuments()) {
        const auto& drive = document->drive();
        const auto* const file = dynamic_cast<const FileDocument*>(document);
        if (drive && file && pairs.contains({drive->serial, drive->dataNo})) {
            open.append({drive->serial, drive->dataNo});
            wanted.append(file->info());
            wanted.last().frames = file->recordedFrames();
        }
    }
    QVector<bool> isFound;
    runOnPool(*this, translated("Looking for saved recordings..."),
              [&] { isFound = SavedRecordings::find(wanted, folder); });
    QList<QPair<QString, QString>> found;
    for (int i = 0; i < open.size(); ++i) {
        if (isFound[i]) {
            found.append(open[i]);
        }
    }
    return found;
}

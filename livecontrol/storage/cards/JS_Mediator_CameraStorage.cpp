#include "livecontrol/storage/cards/JS_Mediator_CameraStorage.h"

#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_DateTime.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

#include <QFileDialog>
#include <QJsonObject>

QString JS_Mediator_CameraStorage::selectFolder(const QString& dir) {
    const OperationTrace trace(QLatin1String(metaObject()->className()) + QLatin1String("::selectFolder"),
                               traceArgs({{"dir", dir}}));
    return guarded(
        [&] {
            QString folder = QFileDialog::getExistingDirectory(host()->getDialogParent(),
                                                               translate(QStringLiteral("Select folder")),
                                                               dir, QFileDialog::ShowDirsOnly);
            if (folder.isEmpty()) {
                return QString();
            }
            addTrailingSlash(folder);
            return folder;
        },
        QString());
}

DOC_Interface* JS_Mediator_CameraStorage::document(DOCKEY key) { return host()->docByKey(key, true); }

DOC_Settings* JS_Mediator_CameraStorage::settingsOf(DOCKEY key) {
    DOC_Interface* const found = document(key);
    return found ? &docAs<DOC_Settings>(found) : nullptr;
}

QJsonObject JS_Mediator_CameraStorage::recordRow(int recid, uint frames, uint date, uint time) {
    return {{QStringLiteral("recid"), recid},
            {QStringLiteral("frame"), double(frames)},
            {QStringLiteral("date"), formatPackedDate(date)},
            {QStringLiteral("time"), formatPackedTime(date, time)}};
}

// The support file: the user is told what it holds and asked where to put it; the host gathers and packs.

#include "livecontrol/foundation/FileToWrite.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/PoolJob.h"
#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/JS_Mediator.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

const QString kSupportDir = QStringLiteral("support/dir");

QString question(HostApplication& host) {
    QStringList lines{QStringLiteral("The information below will be output in ZIP file format. Do you want "
                                     "to proceed?"),
                      QStringLiteral("- ZEL setting values"),
                      QStringLiteral("- ZEL operation log"),
                      QStringLiteral("- SDK operation log"),
                      QStringLiteral("- PC environment"),
                      QStringLiteral("- ZEL version"),
                      QStringLiteral("- ZEL full screen capture")};
    if (host.isQmonWindowShown()) {
        lines.append(QStringLiteral("- QMON window screen capture"));
    }
    lines.append(QStringLiteral("- Currently displayed image data (1 frame)"));
    for (QString& line : lines) {
        line = host.translate(line, nullptr, 0);
    }
    return lines.join(QStringLiteral("<br>"));
}

/// The file to write; empty if the user doesn't want one.
QString askForPath(HostApplication& host) {
    if (!host.confirm(question(host), host.getDialogParent(), {})) {
        return {};
    }
    const QString folder = host.getPrefString(kSupportDir, QVariant(), 0);
    const QString path = QFileDialog::getSaveFileName(
        host.getDialogParent(), host.translate(QStringLiteral("Export support file"), nullptr, 0), folder,
        host.translate(QStringLiteral("zip (*.zip)"), nullptr, 0), nullptr,
        QFileDialog::DontConfirmOverwrite);
    return fileToWrite(host, host.getDialogParent(), path, QStringLiteral("zip"));
}

void saveFile(HostApplication& host, const QString& path) {
    QStringList files;
    host.collectSupportFiles(files);
    runOnPool(host, host.translate(QStringLiteral("Saving..."), nullptr, 0), [&] {
        if (!host.writeSupportFile(path, &files)) {
            throw APP_Exception(QStringLiteral("Failed to save support file."), 0);
        }
    });
    host.info(host.translate(QStringLiteral("Please attach preserved file to a mail."), nullptr, 0),
              host.getDialogParent());
}

} // namespace

void JS_Mediator::openExportSupportFileDialog() {
    const OperationTrace trace(QStringLiteral("JS_Mediator::openExportSupportFileDialog"));
    HostApplication& host = *m_host;
    const QString path = guarded([&] { return askForPath(host); }, QString());
    if (path.isEmpty()) {
        return;
    }
    guarded([&] { saveFile(host, path); });
    guarded([&] { host.setPrefString(kSupportDir, QFileInfo(path).absolutePath()); });
}

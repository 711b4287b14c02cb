#include "livecontrol/foundation/FileToWrite.h"

#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/HostApplication.h"

#include <QDir>
#include <QFileInfo>

QString fileToWrite(HostApplication& host, QWidget* parent, const QString& path, const QString& suffix) {
    const QString file = withSuffix(path, suffix);
    if (file == path || !QFileInfo::exists(file)) {
        return file;
    }
    const QString question =
        host.translate(QStringLiteral("%1 already exists. Do you want to replace it?"), nullptr, 0)
            .arg(QDir::toNativeSeparators(file));
    return host.confirm(question, parent, {}) ? file : QString();
}

#include "viewer/prefs/WholeFile.h"

#include <QByteArray>
#include <QSaveFile>

bool commitWhole(QSaveFile& file) {
    if (!file.flush()) {
        file.cancelWriting();
    }
    return file.commit();
}

QString replaceFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && commitWhole(file);
    return written ? QString() : file.errorString();
}

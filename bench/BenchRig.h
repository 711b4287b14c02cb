#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

/// A rig file in the folder: the default rig's first camera, as many times as asked.
inline QString rigOf(const QTemporaryDir& folder, int count) {
    const QString path = folder.filePath(QStringLiteral("rig%1.json").arg(count));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("can't write %s", qPrintable(path));
    }
    QTextStream stream(&file);
    stream << "{ \"title\": \"Bench\", \"cameras\": [";
    for (int i = 0; i < count; ++i) {
        stream << (i ? "," : "") << "\n{ \"name\": \"Camera " << i + 1
               << "\", \"model\": \"mono12\", \"address\": \"10.0." << i / 200 << '.' << i % 200 + 1
               << "\", \"serial\": \"S" << i << "\" }";
    }
    stream << "\n] }\n";
    return path;
}

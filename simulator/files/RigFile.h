#pragma once

#include "simulator/device/SimulatedBody.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// A rig file as read and checked.
struct RigFile {
    QString title;
    quint32 seed = 1;
    QList<BodyDescription> cameras;

    /// Throws RigFileError.
    static RigFile read(const QString& path);
    static RigFile parse(const QByteArray& text, const QString& fileName);
};

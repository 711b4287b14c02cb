#pragma once

#include "viewer/cameras/CameraBody.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <stdexcept>

/// A rig or model file is wrong: which one, where, and what.
class RigFileError : public std::runtime_error {
public:
    /// line: from 1; 0 when the file could not be read at all.
    RigFileError(const QString& file, int line, const Reason& problem);

    const QString& file() const { return m_file; }
    int line() const { return m_line; }
    const Reason& problem() const { return m_problem; }

private:
    QString m_file;
    int m_line;
    Reason m_problem;
};

/// A rig file as read and checked.
struct RigFile {
    QString title;
    quint32 seed = 1;
    QList<BodyDescription> cameras;

    /// Throws RigFileError.
    static RigFile read(const QString& path);
    static RigFile parse(const QByteArray& text, const QString& fileName);
};

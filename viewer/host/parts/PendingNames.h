#pragma once

#include <QSet>
#include <QString>

/// Names that a composing run has handed out and not yet written.
struct PendingNames {
    QSet<QString> folders;
    QSet<QString> paths;
    QString groupDir;
};

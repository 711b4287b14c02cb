#pragma once

#include "viewer/recordings/RecordingInfo.h"

#include <QImage>
#include <QPair>
#include <QString>
#include <QVector>

/// A report on recordings: settings, comment, custom items and key frames, as HTML or PDF. Whatever the
/// recordings tell is text in it, never markup.
struct Report {
    struct Picture {
        QString caption;
        QImage image;
    };
    struct Section {
        QString title;
        QVector<QPair<QString, QString>> facts; // what and its value, in the user's language
        QString comment;                        // with line feeds
        QVector<Picture> pictures;
    };

    QString title;
    QVector<Section> sections;

    /// One file that needs no other: the pictures are in it.
    QString html() const;
    /// Throws RecordingError, also if something stands at the path and is not to be replaced.
    void saveHtml(const QString& path, bool replaces = false) const;
    /// On A4. Throws RecordingError.
    void savePdf(const QString& path, bool replaces = false) const;
};

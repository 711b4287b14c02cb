#pragma once

#include "viewer/export/ExportJobs.h"
#include "viewer/saving/SaveRequest.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSet>

class Document;
class DocumentList;
class FileDocument;
class Preferences;
class RecordingShelf;
class SavedViewPictures;

/// Makes jobs of what the user wants to have saved.
class SaveService : public QObject {
    Q_OBJECT

public:
    struct Window {
        Document* document;
        QRect place;
    };
    /// All outlive it. `windows`: of the documents as they are arranged, in pixels from the top left one.
    struct Parts {
        DocumentList& documents;
        Preferences& preferences;
        RecordingShelf& shelf;
        SavedViewPictures& pictures;
        ExportJobs& jobs;
        std::function<QList<Window>()> windows;
    };

    SaveService(Parts parts, QObject* parent = nullptr);

    /// Begins; a report is written at once. Nothing is begun if one of the items can't be. Nothing is ever
    /// written over: throws FileFailure for a place that is taken, an unknown format, a folder that can't be
    /// made, and what has no frames.
    void save(const SaveRequest& wish);
    /// A job of that kind runs or waits.
    bool isConverting() const { return !m_converting.isEmpty(); }
    bool isSaving() const { return !m_saving.isEmpty(); }

signals:
    /// The last of the jobs has ended.
    void idle();
    /// A file could not be written: which, and why.
    void failed(const QString& path, const Reason& why);
    void begun();

private:
    struct Planned {
        ExportRequest request;
        QString title;
        FileDocument* whole = nullptr; // all of it is saved, as it is
    };

    Planned plan(const SaveRequest& wish, const SaveRequest::Item& item) const;
    Planned planLayout(const SaveRequest& wish) const;
    ExportRequest requestFor(const SaveRequest& wish, const SaveRequest::Item& item) const;
    void writeReport(const SaveRequest& wish);
    void onEnded(int id);

    Parts m_parts;
    QSet<int> m_converting;                     // jobs
    QHash<int, QPointer<FileDocument>> m_whole; // recordings that a job saves as they are, with all frames
    QSet<int> m_saving;
};

#pragma once

#include "viewer/export/ExportJobs.h"
#include "viewer/host/parts/BackgroundSaving.h"
#include "viewer/saving/SaveRequest.h"

#include <QObject>
#include <QRect>
#include <QSet>

class Document;
class DocumentList;
class FileDocument;
class LayoutSource;
class RecordingShelf;
class SavedViewPictures;

/// Makes jobs of what the user wants to have saved.
class SaveService : public QObject, public BackgroundSaving {
    Q_OBJECT

public:
    struct Window {
        Document* document;
        QRect place;
    };
    /// All outlive it. `windows`: of the documents as they are arranged, in pixels from the top left one.
    struct Parts {
        DocumentList& documents;
        RecordingShelf& shelf;
        SavedViewPictures& pictures;
        std::function<QList<Window>()> windows;
    };

    SaveService(Parts parts, QObject* parent = nullptr);

    /// Begins, and tells that if the user waits for it; a report is written at once. Nothing is begun if one
    /// of the items can't be. Nothing is ever written over: throws RecordingError for a place that is taken,
    /// an unknown format, a folder that can't be made, and what has no frames.
    void save(const SaveRequest& wish);

    /// What a layout of these documents would look like, as far as they have windows; null if none has.
    QImage layoutPicture(const QList<DOCKEY>& keys, bool withInfo, const QSize& size) const;

    bool isExportingUnasked() const override;
    bool isSaving() const override { return isAny(m_memoryJobs); }
    bool isConverting() const override { return isAny(m_conversions); }
    bool isReserved(const QString& path) const override;

signals:
    void begun();
    /// A report has been written.
    void reported(const QString& path);
    void ended(const ExportJobs::Entry& job);

private:
    struct Planned {
        ExportRequest request;
        QString title;
        FileDocument* file = nullptr; // of which the frames are, if it is one
        bool isMemory = false;        // the frames are in a camera's memory
    };

    Planned plan(const SaveRequest& wish, const SaveRequest::Item& item) const;
    std::shared_ptr<LayoutSource> layoutOf(const SaveRequest& wish, const QString& path) const;
    Planned planLayout(const SaveRequest& wish) const;
    ExportRequest requestFor(const SaveRequest& wish, const SaveRequest::Item& item) const;
    void start(const Planned& planned, const SaveRequest& wish);
    /// The path, with a number if something has it or gets it.
    QString freePath(const ExportRequest& request) const;
    void writeReport(const SaveRequest& wish);
    bool isAny(const QSet<int>& kind) const;

    Parts m_parts;
    QSet<int> m_conversions; // jobs
    QSet<int> m_memoryJobs;  // that read cameras; others disturb nobody
    QSet<int> m_unasked;     // jobs
};

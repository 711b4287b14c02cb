#pragma once

#include "viewer/documents/RecordingShelf.h"

#include <QObject>
#include <QPointer>

class Document;
class DocumentList;
class FileDocument;
class Preferences;
class SaveService;
class ViewerHost;

/// Saves what was kept, by the settings of saving, if the user wants that without being asked. The recordings
/// that were kept together share a group folder. What can't be saved stays in the spool, and is told.
class AutoSaver : public QObject {
public:
    /// All outlive it.
    struct Parts {
        ViewerHost& host;
        DocumentList& documents;
        RecordingShelf& shelf;
        SaveService& service;
        Preferences& preferences;
    };

    explicit AutoSaver(Parts parts, QObject* parent = nullptr);

private:
    void saveKept();
    void save(FileDocument& document);
    int placeOf(FileDocument& document) const;
    Document& namedBy(FileDocument& document) const;

    Parts m_parts;
    QList<QPointer<FileDocument>> m_kept; // that wait for the others
};

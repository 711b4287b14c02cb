#pragma once

#include <QObject>
#include <QSet>

class CameraDocument;
class Document;
class DocumentList;
class Preferences;

/// Keeps custom items and comments of cameras in the preferences, by serial number and head, so that they are
/// there again when the camera comes back, or the program. A camera without a serial number is not known
/// again.
class KeptItems : public QObject {
    Q_OBJECT

public:
    /// Both outlive it.
    KeptItems(DocumentList& documents, Preferences& preferences, QObject* parent = nullptr);
    /// Stores what has just been changed.
    ~KeptItems() override;

private:
    void bringBack(Document* document);
    void forget(CameraDocument* camera);
    void store(const QString& key, const QVariant& value, bool isEmpty);
    void noteChange(CameraDocument* camera);
    void storeAll();

    DocumentList& m_documents;
    Preferences& m_preferences;
    QSet<CameraDocument*> m_changed; // all changes of one operation are stored at once
};

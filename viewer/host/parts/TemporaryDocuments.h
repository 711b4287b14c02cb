#pragma once

#include "viewer/documents/DocumentList.h"

/// Recordings that are open for a dialog only: it closes those that its user doesn't take.
class TemporaryDocuments {
public:
    explicit TemporaryDocuments(DocumentList& documents) : m_documents(documents) {}

    void add(const QList<DOCKEY>& keys) { m_keys += keys; }
    /// Those that are still open.
    QList<DOCKEY> keys() const {
        QList<DOCKEY> open;
        for (const DOCKEY key : m_keys) {
            if (m_documents.find(key)) {
                open.append(key);
            }
        }
        return open;
    }
    /// Closes those that are meant.
    template <class Is>
    void close(const Is& is) {
        for (const DOCKEY key : keys()) {
            Document* const document = m_documents.find(key);
            if (is(*document)) {
                m_documents.remove(document);
            }
        }
    }
    /// The user takes these; the others are closed. None: all are.
    void keep(const QList<DOCKEY>& kept) {
        const QList<DOCKEY> open = keys();
        m_keys.clear();
        for (const DOCKEY key : open) {
            if (!kept.contains(key)) {
                m_documents.remove(m_documents.find(key));
            }
        }
    }

private:
    DocumentList& m_documents;
    QList<DOCKEY> m_keys;
};

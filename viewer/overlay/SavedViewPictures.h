#pragma once

#include "viewer/documents/SavedPictures.h"
#include "viewer/overlay/SavedView.h"

#include <QDateTime>

class DocumentList;
class Preferences;

/// Saved pictures as the preferences are at the time of each call.
class SavedViewPictures : public SavedPictures {
public:
    /// Both outlive it.
    SavedViewPictures(const DocumentList& documents, const Preferences& preferences)
        : m_documents(documents), m_preferences(preferences) {}

    QSize size(const Shot& shot) override;
    QImage image(const Shot& shot, const QSize& limit) override;

    /// For a job that saves many frames: what it composes them with, and what is to be told of the shot, in
    /// which the job counts up the position. Both are its own to use on any thread.
    SavedView view(const Shot& shot);
    static InfoFacts factsOf(const Shot& shot);

private:
    QImage logoOf(const QString& path);

    const DocumentList& m_documents;
    const Preferences& m_preferences;
    QString m_logoPath; // that was read last, and its state then
    QDateTime m_logoTime;
    QImage m_logo;
};

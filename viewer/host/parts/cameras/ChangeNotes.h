#pragma once

#include "livecontrol/interface/types.h"
#include "viewer/cameras/settings/HeadSettings.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <functional>

class CameraDocument;
class CameraHead;
class DocumentList;
class Messages;

/// Tells what a change took along at the cameras, such as a resolution that no higher rate can run, in one
/// line that can be taken back.
class ChangeNotes : public QObject {
    Q_OBJECT

public:
    /// None is owned; all outlive it.
    ChangeNotes(DocumentList& documents, Messages& messages);

    /// What more there is to tell of a camera that has changed, from what it had; empty for nothing.
    using More = std::function<QString(const CameraDocument& camera, const HeadSettings& before)>;
    /// Runs a change of these cameras and tells what else it changed. `asked`: keys of the settings that it
    /// is about.
    void during(const QList<CameraDocument*>& cameras, const QStringList& asked,
                const std::function<void()>& change, const More& more = More());
    /// The same when a variable channel is taken or left: leaving one, what the channel has left behind.
    /// `before`: what a camera has that is in none yet.
    void duringChannel(const QList<CameraDocument*>& cameras, const std::function<void()>& change,
                       const std::function<HeadSettings(const CameraDocument&)>& before);
    /// Brings the cameras of the last line back to what they had before it. A failure is told.
    void undo();

signals:
    /// The line; empty when it can't be taken back any more.
    void told(const QString& line);

private:
    struct Change {
        HeadSettings before;
        HeadSettings now;
    };
    using Settings = QHash<DOCKEY, HeadSettings>;

    static Settings settingsOf(const QList<CameraDocument*>& cameras);
    void tell(const Settings& before, const QStringList& asked, const More& more);
    QStringList linesOf(const HeadSettings& before, const HeadSettings& now, const QStringList& asked) const;
    QString text(const QList<QPair<QString, QStringList>>& cameras) const;
    void forgetIfOvertaken(CameraHead* head);
    void forget();

    DocumentList& m_documents;
    Messages& m_messages;
    QHash<DOCKEY, Change> m_changes; // of the line
    Settings m_beforeChannel;
    bool m_isChanging = false;
};

#pragma once

#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QSet>
#include <QStringList>

#include "livecontrol/interface/types.h"

class Document;
class DocumentList;

/// The setting modes of the live panel: while one is on, the user edits an area on the images, and some image
/// processings are forbidden.
///
/// A mode is switched by the panel, but it ends by itself when the current camera loses its link: the panel
/// then shows another page and says nothing. What the mode has left changed at that camera is told when it is
/// back.
class SettingModes : public QObject {
    Q_OBJECT

public:
    enum Mode { Variable = 1, AutoExposure = 2, HwTrigger = 4 };

    explicit SettingModes(DocumentList& documents);

    bool isOn(Mode mode) const { return (m_on & mode) != 0; }
    bool isAny() const { return m_on != 0; }
    /// Whether the page of a mode that is on shows how bright the pixels of that document are.
    bool showsBrightnessOf(const Document& document) const;
    /// A mode that is set while the current document has no link ends with the next event.
    void set(Mode mode, bool on);
    /// Forbids or frees image processings. A binning that is in force rests meanwhile.
    void forbid(const QStringList& names, bool forbidden);
    /// Ends all modes and frees what they forbid.
    void end();
    /// The same if the current document has no link.
    void endIfLost();

signals:
    /// The last mode has ended.
    void left();
    /// A camera is back on which settings stayed changed, each in a line of its own.
    void stayedChanged(const QString& camera, const QStringList& changes);

private:
    bool isLinked() const;
    void endLost();
    void remember();
    void onConnectionChanged(Document* document);
    void onModeChanged();
    void suspendBinning();
    void resumeBinning();

    DocumentList& m_documents;
    int m_on = 0;
    DOCKEY m_camera = 0; // the current one, while a mode is on
    QSet<QString> m_forbidden;
    QHash<DOCKEY, int> m_binnings;       // levels that rest
    QHash<DOCKEY, QJsonObject> m_before; // states of the cameras when the first mode began
    QHash<DOCKEY, QJsonObject> m_lost;   // the same of those that lost their link in it
};

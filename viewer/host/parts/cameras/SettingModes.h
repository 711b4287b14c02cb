#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include "livecontrol/interface/types.h"
#include "viewer/host/parts/cameras/EditWatch.h"

#include <functional>

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
    /// Tells whether the pages count levels of brightness on a camera's own scale. Until then they do not.
    void setCountsRealLevels(std::function<bool()> counts) { m_countsRealLevels = std::move(counts); }

signals:
    /// The last mode has ended.
    void left();
    /// A camera is back on which an edit left settings changed, each in a line of its own and as the page
    /// shows it.
    void stayedChanged(const QString& camera, const QStringList& changes);

private:
    bool isLinked() const;
    void endLost();
    void onConnectionChanged(Document* document);
    void onModeChanged();
    void suspendBinning();
    void resumeBinning();

    DocumentList& m_documents;
    int m_on = 0;
    DOCKEY m_camera = 0; // the current one, while a mode is on
    QSet<QString> m_forbidden;
    QHash<DOCKEY, int> m_binnings; // levels that rest
    EditWatch m_edit;              // from the first mode on to the last
    std::function<bool()> m_countsRealLevels;
};

#pragma once

#include "livecontrol/interface/types.h"
#include "viewer/views/FrameTimer.h"
#include "viewer/views/PlayBar.h"

#include <QTimer>
#include <QWidget>

#include <map>

class Document;
class DocumentList;
class DocumentWindow;
class ImageView;
class QLabel;
class ViewClient;

/// The place of the document windows. Every selected document has one; they stand as tiles, or the current
/// one alone.
class DocumentArea : public QWidget {
    Q_OBJECT

public:
    enum class Arrangement { Tile, Single };

    DocumentArea(DocumentList& documents, ViewClient& client, PlayBar::IconSource icons,
                 QWidget* parent = nullptr);
    ~DocumentArea() override;

    Arrangement arrangement() const { return m_arrangement; }
    void setArrangement(Arrangement arrangement);
    /// Shows the selected documents one after the other, that many seconds each; 0 ends it.
    void setCycling(int seconds);
    bool isCycling() const { return m_cycle.isActive(); }

    /// The keys of the documents that have a window, the current one's first. With visibleOnly those that can
    /// be seen in the present arrangement.
    QList<DOCKEY> windowKeys(bool visibleOnly) const;
    int windowCount(bool visibleOnly) const;
    /// Null if the document has no window.
    ImageView* view(DOCKEY key) const;
    ImageView* currentView() const;

    void setBusyText(DOCKEY key, const QString& text);
    /// The text over a document's view, or the first over all of them.
    QString busyText() const;
    void refreshAll();
    void refresh(DOCKEY key);
    FrameTimer& pacer() { return m_pacer; }

    /// Columns of tiles for that many windows in an area, such that the pictures become large.
    static int columnsFor(int count, const QSize& area);

signals:
    void arrangementChanged();
    void busyTextChanged(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QList<Document*> shown() const;
    void arrange();
    QString busyTextOf(DOCKEY key) const;
    QRect tile(int index, int count) const;
    DocumentWindow* ensureWindow(Document* document);
    void removeWindow(Document* document);
    void showNext();

    DocumentList& m_documents;
    ViewClient& m_client;
    PlayBar::IconSource m_icons;
    FrameTimer m_pacer;
    std::map<DOCKEY, DocumentWindow*> m_windows; // children; only those that were shown once
    std::map<DOCKEY, QString> m_busyTexts;       // the invalid key: over all
    Arrangement m_arrangement = Arrangement::Tile;
    QTimer m_arrangeSoon;
    QTimer m_cycle;
    QLabel* m_empty;
};

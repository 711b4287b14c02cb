#pragma once

#include "viewer/views/PlayBar.h"

#include <QFrame>
#include <memory>

class Document;
class ImageView;
class QLabel;
class QVBoxLayout;
class TitleStrip;
class ViewClient;
class FrameTimer;

/// The window of one document: title strip, image and, where a recording is looked at, the replay bar.
class DocumentWindow : public QFrame {
    Q_OBJECT

public:
    DocumentWindow(Document& document, ViewClient& client, FrameTimer& pacer,
                   const PlayBar::IconSource& icons, QWidget* parent = nullptr);
    ~DocumentWindow() override;

    Document& document() const { return m_document; }
    ImageView& view() const { return *m_view; }
    /// The frame around the current document's window stands out.
    void setCurrent(bool current);
    /// Shows name, settings and state as they are now.
    void refreshTitle();

signals:
    void activated(Document* document);
    void doubleClicked(Document* document);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    /// What neither the image nor the slider has taken.
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void addView(QVBoxLayout& layout);
    void onBeat();

    Document& m_document;
    TitleStrip* m_title;
    ImageView* m_view;
    std::unique_ptr<ImageView> m_viewApart; // the same, if the window must not have it
    QLabel* m_noPicture = nullptr;          // which stands in its place then
    PlayBar* m_playBar;
    int m_beats = 0;
};

#pragma once

#include "viewer/cameras/Frame.h"
#include "viewer/overlay/InfoOverlay.h"
#include "viewer/views/TextTexture.h"
#include "viewer/views/ViewTransform.h"

#include <QOpenGLWidget>

#include <vector>

class Document;
class PLG_Interface;
class ViewClient;
class FrameTimer;

/// The picture of a document: turned, mirrored, zoomed and moved as the user wants, with what the open
/// plug-in paints over it. Draws at the beat of its pacer while it can be seen, and not at all while it
/// can't.
class ImageView : public QOpenGLWidget {
    Q_OBJECT

public:
    /// None is owned; all outlive the view.
    ImageView(Document& document, ViewClient& client, FrameTimer& pacer, QWidget* parent = nullptr);
    ~ImageView() override;

    Document& document() const { return m_document; }
    const ViewTransform& transform() const { return m_transform; }

    /// View pixels a userview pixel; 0 fits the image into the view. Keeps the middle where it is.
    void setZoom(double zoom);
    void stepZoom(int steps);
    /// View pixels a pixel of the original image, whatever the reduction.
    double originalZoom() const;
    /// One view pixel for each pixel of the original image.
    void setOriginalSize();
    /// A text in the middle of the view; empty for none.
    void setBusyText(const QString& text);
    /// Takes a new picture and draws.
    void refresh();
    /// Number of the frame that shows.
    quint32 frameNumber() const { return m_frame.number; }
    /// Whether the frame's number stands over the picture, among the information.
    bool isNumberDrawn() const { return m_numberDrawn; }
    /// What stands over the picture, if anything does.
    const InfoOverlay& info() const { return m_info; }

signals:
    /// The user pressed into the view.
    void pressed();
    void doubleClicked();
    /// Another frame, or none, shows now.
    void frameShown();

protected:
    void initializeGL() override;
    void paintGL() override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum class Drag { None, Image, Plugin };

    void place(const QPointF& center);
    void onBeat();
    QSize wantedSize() const;
    void takeFrame();
    void uploadFrame();
    void drawImage();
    void drawOverlay();
    Frame overlayFrame();
    void drawTexts();
    QString middleText() const;
    void cancelDrag();
    void leavePlugin();
    template <class Edit>
    void editArea(PLG_Interface& plugin, bool joins, Edit&& edit);
    PLG_Interface* editingPlugin() const;

    Document& m_document;
    ViewClient& m_client;
    FrameTimer& m_pacer;
    ViewTransform m_transform;
    double m_zoom = 0; // asked for; 0: fitted
    Frame m_frame;
    std::vector<quint8> m_narrowSamples; // room for the plug-in to reduce a wide frame to 8 bits
    bool m_isResizing = false;
    bool m_frameDue = true;
    bool m_textureDue = false;
    Tones m_drawnTones;
    bool m_numberDrawn = false;
    unsigned m_texture = 0;
    QString m_busyText;
    InfoOverlay m_info;
    TextTexture m_infoText;
    TextTexture m_middleText;
    Drag m_drag = Drag::None;
    Qt::MouseButton m_dragButton = Qt::NoButton; // that began it
    QPoint m_dragPos;
    bool m_overPlugin = false; // the plug-in follows the pointer, and may have set its shape
};

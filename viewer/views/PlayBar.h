#pragma once

#include <QFrame>
#include <QIcon>
#include <functional>

class Document;
class MarkSlider;
class QLabel;
class QToolButton;

/// Replay of a recording: first frame, back, play, forward, and a slider over the frames.
class PlayBar : public QFrame {
    Q_OBJECT

public:
    /// Icons by name come from outside, since the views don't know the program's.
    using IconSource = std::function<QIcon(const QString&)>;

    PlayBar(Document& document, const IconSource& icons, QWidget* parent = nullptr);

    /// Shows the document as it is now.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolButton* addButton(const QString& icon, const std::function<void()>& action);
    void retranslate();
    void showMarks();

    Document& m_document;
    IconSource m_icons;
    QToolButton* m_first;
    QToolButton* m_back;
    QToolButton* m_play;
    QToolButton* m_forward;
    MarkSlider* m_slider;
    QLabel* m_label;
};

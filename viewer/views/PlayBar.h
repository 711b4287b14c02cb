#pragma once

#include <QFrame>
#include <QIcon>
#include <functional>

class Document;
class MarkSlider;
class QKeyEvent;
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
    /// A key of the replay: M marks the frame that shows, N and Shift+N go to marks, arrows, page keys, Home
    /// and End to other frames. False for every other key, and without a recording.
    bool press(const QKeyEvent& key);

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolButton* addButton(const QString& icon, const std::function<void()>& action);
    void retranslate();
    void showMarks();
    void goToMark(bool next);
    bool step(int key);

    Document& m_document;
    IconSource m_icons;
    QToolButton* m_first;
    QToolButton* m_back;
    QToolButton* m_play;
    QToolButton* m_forward;
    MarkSlider* m_slider;
    QLabel* m_label;
};

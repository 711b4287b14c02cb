#pragma once

#include <QSlider>
#include <QVector>

/// A slider over frames that shows which of them the user has marked.
class MarkSlider : public QSlider {
    Q_OBJECT

public:
    explicit MarkSlider(QWidget* parent = nullptr) : QSlider(Qt::Horizontal, parent) {}

    void setMarks(const QVector<int>& marks);
    /// Where a frame stands, in pixels from the left.
    int placeOf(int frame) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVector<int> m_marks;
};

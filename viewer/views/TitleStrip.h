#pragma once

#include <QFrame>
#include <QStringList>

/// The strip over an image: the name at the left, then the facts, the frame number and the state at the
/// right. What doesn't fit is left out, the last fact first; the name is cut with dots before it goes.
class TitleStrip : public QFrame {
    Q_OBJECT

public:
    explicit TitleStrip(QWidget* parent = nullptr);

    /// Plain texts. `lamp` is the color of the state's dot; an invalid one gives none.
    void setContent(const QString& name, const QStringList& facts, const QString& number,
                    const QString& state, const QColor& lamp);
    void setCurrent(bool current);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// What there is room for.
    struct Shown {
        QString state;
        QStringList facts;
    };

    Shown fitting(int width, const QFontMetrics& nameMetrics) const;
    void drawLamp(QPainter& painter, const QPointF& at) const;

    QString m_name;
    QStringList m_facts;
    QString m_number;
    QString m_state;
    QColor m_lamp;
    bool m_current = false;
};

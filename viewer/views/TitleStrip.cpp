#include "viewer/views/TitleStrip.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 14;
constexpr int kLamp = 8;
constexpr int kShortestName = 60; // below this the facts give way

} // namespace

TitleStrip::TitleStrip(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("titleStrip"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TitleStrip::setContent(const QString& name, const QStringList& facts, const QString& number,
                            const QString& state, const QColor& lamp) {
    if (name == m_name && facts == m_facts && number == m_number && state == m_state && lamp == m_lamp) {
        return;
    }
    m_name = name;
    m_facts = facts;
    m_number = number;
    m_state = state;
    m_lamp = lamp;
    setAccessibleName(name + QStringLiteral(", ") + state);
    setToolTip(
        QString((QStringList{name} + facts + QStringList{state}).join(QLatin1Char('\n'))).toHtmlEscaped());
    update();
}

void TitleStrip::setCurrent(bool current) {
    m_current = current;
    update();
}

QSize TitleStrip::sizeHint() const { return {120, fontMetrics().height() + 8}; }

QSize TitleStrip::minimumSizeHint() const { return {40, sizeHint().height()}; }

void TitleStrip::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QPalette::ColorRole role = m_current ? QPalette::HighlightedText : QPalette::WindowText;
    painter.setPen(palette().color(role));
    const QFontMetrics metrics = fontMetrics();
    const int width = rect().width() - 2 * kMargin;

    // From the right: lamp and state, number, facts as far as the name keeps its room.
    int used = metrics.horizontalAdvance(m_state) + (m_lamp.isValid() ? kLamp + 5 : 0);
    QStringList shown;
    QStringList wanted = m_facts;
    if (!m_number.isEmpty()) {
        wanted.append(m_number);
    }
    const int nameWidth = qMin(metrics.horizontalAdvance(m_name), qMax(kShortestName, width / 2));
    for (const QString& fact : wanted) {
        const int factWidth = metrics.horizontalAdvance(fact) + kGap;
        if (used + factWidth + kGap + nameWidth <= width) {
            used += factWidth;
            shown.append(fact);
        }
    }

    const QRect line = rect().adjusted(kMargin, 0, -kMargin, 0);
    int right = line.right() + 1;
    const auto drawRight = [&](const QString& text) {
        right -= metrics.horizontalAdvance(text);
        painter.drawText(QRect(right, line.top(), line.right() + 1 - right, line.height()), Qt::AlignVCenter,
                         text);
    };
    if (width > metrics.horizontalAdvance(m_state) + kLamp) {
        drawRight(m_state);
        if (m_lamp.isValid()) {
            right -= kLamp + 5;
            painter.save();
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(m_lamp);
            painter.drawEllipse(QRectF(right, line.center().y() + 1 - kLamp / 2.0, kLamp, kLamp));
            painter.restore();
        }
    }
    for (auto it = shown.rbegin(); it != shown.rend(); ++it) {
        right -= kGap;
        drawRight(*it);
    }
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const int room = right - kGap - line.left();
    painter.drawText(QRect(line.left(), line.top(), room, line.height()), Qt::AlignVCenter,
                     QFontMetrics(bold).elidedText(m_name, Qt::ElideRight, room));
}

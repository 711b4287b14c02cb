#include "viewer/views/TitleStrip.h"

#include "livecontrol/foundation/UTL_Format.h"
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 14;
constexpr int kLamp = 8;
constexpr int kLampGap = 5;
constexpr int kWide = 160;        // from here on the state always stands
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
    setToolTip(asMarkup((QStringList{name} + facts + QStringList{state}).join(QLatin1Char('\n'))));
    update();
}

void TitleStrip::setCurrent(bool current) {
    m_current = current;
    update();
}

QSize TitleStrip::sizeHint() const { return {120, fontMetrics().height() + 8}; }

QSize TitleStrip::minimumSizeHint() const { return {40, sizeHint().height()}; }

void TitleStrip::drawLamp(QPainter& painter, const QPointF& at) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_lamp);
    painter.drawEllipse(QRectF(at, QSizeF(kLamp, kLamp)));
    painter.restore();
}

// The state, then the number and the facts as far as the name keeps its room. In a small tile the lamp alone
// tells the state.
TitleStrip::Shown TitleStrip::fitting(int width, const QFontMetrics& nameMetrics) const {
    const QFontMetrics metrics = fontMetrics();
    const int fullName = nameMetrics.horizontalAdvance(m_name);
    const int stateWidth = metrics.horizontalAdvance(m_state);
    Shown shown;
    int used = m_lamp.isValid() ? kLamp + kLampGap : 0;
    if (width > kWide || fullName + kGap + used + stateWidth <= width) {
        shown.state = m_state;
        used += stateWidth;
    }
    const int nameWidth = qMin(fullName, qMax(kShortestName, width / 2));
    QStringList wanted = m_facts;
    if (!m_number.isEmpty()) {
        wanted.append(m_number);
    }
    for (const QString& fact : qAsConst(wanted)) {
        const int factWidth = metrics.horizontalAdvance(fact) + kGap;
        if (used + factWidth + kGap + nameWidth <= width) {
            used += factWidth;
            shown.facts.append(fact);
        }
    }
    return shown;
}

void TitleStrip::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(m_current ? QPalette::HighlightedText : QPalette::WindowText));
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics boldMetrics(bold);
    const int margin = width() < kWide ? kMargin / 2 : kMargin;
    const QRect line = rect().adjusted(margin, 0, -margin, 0);
    const Shown shown = fitting(line.width(), boldMetrics);

    // One base line for all: a script from another font would shift a text that is centered by itself.
    const int baseline = line.top() + (line.height() + fontMetrics().ascent() - fontMetrics().descent()) / 2;
    int right = line.right() + 1;
    const auto drawRight = [&](const QString& text) {
        right -= fontMetrics().horizontalAdvance(text);
        painter.drawText(right, baseline, text);
    };
    drawRight(shown.state);
    if (m_lamp.isValid()) {
        right -= shown.state.isEmpty() ? kLamp : kLamp + kLampGap;
        drawLamp(painter, QPointF(right, line.center().y() + 1 - kLamp / 2.0));
    }
    for (auto it = shown.facts.rbegin(); it != shown.facts.rend(); ++it) {
        right -= kGap;
        drawRight(*it);
    }
    const bool lampOnly = shown.state.isEmpty() && shown.facts.isEmpty();
    const int room = right - (lampOnly ? kLampGap : kGap) - line.left();
    painter.setFont(bold);
    painter.drawText(line.left(), baseline, boldMetrics.elidedText(m_name, Qt::ElideRight, room));
}

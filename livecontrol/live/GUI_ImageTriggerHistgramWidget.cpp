#include "livecontrol/live/GUI_ImageTriggerHistgramWidget.h"

#include "livecontrol/live/GraphText.h"

#include <QMutexLocker>

#include <algorithm>
#include <qopengl.h>

namespace {

constexpr int kRightRoom = 12; // pixels beside the graph
constexpr int kTopRoom = 15;   // pixels above the graph
constexpr GLushort kDashes = 0x0F0F;

void setProjection(double right, double top) {
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, right, 0, top, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

void setGray(float level) { glColor4f(level, level, level, 1.0F); }

void drawLine(double x1, double y1, double x2, double y2) {
    glBegin(GL_LINES);
    glVertex2d(x1, y1);
    glVertex2d(x2, y2);
    glEnd();
}

void drawSolid(double x1, double y1, double x2, double y2) {
    glDisable(GL_LINE_STIPPLE);
    glLineWidth(2.0F);
    drawLine(x1, y1, x2, y2);
}

void drawDashed(double x1, double y1, double x2, double y2) {
    glEnable(GL_LINE_STIPPLE);
    glLineStipple(1, kDashes);
    glLineWidth(1.0F);
    drawLine(x1, y1, x2, y2);
    glDisable(GL_LINE_STIPPLE);
}

void drawQuad(double left, double bottom, double right, double top) {
    glBegin(GL_QUADS);
    glVertex2d(left, bottom);
    glVertex2d(right, bottom);
    glVertex2d(right, top);
    glVertex2d(left, top);
    glEnd();
}

/// Writes a scale's label so that it ends at the position.
void drawLabel(double x, double y, int value) {
    constexpr double kAdvance = 5.0;
    const QByteArray digits = QByteArray::number(value);
    for (int i = digits.size() - 1; i >= 0; --i, x -= kAdvance) {
        glRasterPos2d(x, y);
        graphtext::draw(graphtext::Font::Scale, digits.at(i));
    }
}

void drawText(double x, double y, const QByteArray& text) {
    constexpr double kAdvance = 3.5;
    for (const char character : text) {
        glRasterPos2d(x, y);
        graphtext::draw(graphtext::Font::Statistics, character);
        x += kAdvance;
    }
}

} // namespace

void GUI_ImageTriggerHistgramWidget::setHistogramData(const quint32* bins, int bitDepth, int channels,
                                                      int peak) {
    const QMutexLocker locker(&m_mutex);
    m_channels = channels;
    m_bitDepth = bitDepth;
    for (histogram::Row& row : m_bins) {
        std::copy_n(bins, histogram::kBins, row.begin());
        bins += histogram::kBins;
    }
    m_peak = peak;
}

void GUI_ImageTriggerHistgramWidget::initializeGL() {
    const QMutexLocker locker(&m_mutex);
    GUI_EmbeddedWidget::initializeGL();
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_COLOR_MATERIAL);
    glEnable(GL_BLEND);
    glEnable(GL_POLYGON_SMOOTH);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glClearColor(0, 0, 0, 0);
}

void GUI_ImageTriggerHistgramWidget::resizeGL(int w, int h) {
    const QMutexLocker locker(&m_mutex);
    m_graphWidth = w - m_leftMargin - kRightRoom;
    m_graphHeight = h - m_bottomMargin - kTopRoom;
}

void GUI_ImageTriggerHistgramWidget::paintGL() {
    const QMutexLocker locker(&m_mutex);
    glClear(GL_COLOR_BUFFER_BIT);
    if (m_graphWidth < 1 || m_graphHeight < 1) {
        return;
    }
    const histogram::Division division = histogram::verticalDivision(m_peak);
    m_yDivisions = division.count;
    m_yUnit = division.unit;
    glBlendFunc(GL_SRC_ALPHA_SATURATE, GL_ONE);
    drawBackground();
    glBlendFunc(GL_ONE, GL_ZERO);
    drawHorizontalScale();
    drawVerticalScale();
    drawGrid();
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    drawBars();
    drawStatistics();
    glFlush();
    glFinish();
}

/// In pixels of the page, of which a fine screen has several for one.
void GUI_ImageTriggerHistgramWidget::setViewport(int x, int y, int w, int h) {
    const qreal ratio = devicePixelRatioF();
    glViewport(qRound(x * ratio), qRound(y * ratio), qRound(w * ratio), qRound(h * ratio));
}

void GUI_ImageTriggerHistgramWidget::drawBackground() {
    setViewport(0, 0, m_leftMargin + m_graphWidth, m_graphHeight + m_bottomMargin);
    setProjection(1, 1);
    setGray(0);
    drawQuad(0, 0, 1, 1);
}

void GUI_ImageTriggerHistgramWidget::drawHorizontalScale() {
    setViewport(0, 0, m_leftMargin + m_graphWidth, m_bottomMargin);
    setProjection(m_leftMargin + m_graphWidth, m_bottomMargin);
    setGray(0.5F);
    for (int i = 0; i <= m_xDivisions; ++i) {
        const int x = m_graphWidth / m_xDivisions * i + m_leftMargin - (i == m_xDivisions ? 5 : 0);
        drawLabel(x, m_bottomMargin - 10, histogram::horizontalLabel(i, m_xDivisions, m_bitDepth));
    }
}

void GUI_ImageTriggerHistgramWidget::drawVerticalScale() {
    setViewport(0, 0, m_leftMargin, m_graphHeight + m_bottomMargin);
    setProjection(m_leftMargin, std::max(1, m_peak));
    setGray(0.5F);
    for (int i = 1; i <= m_yDivisions; ++i) {
        drawLabel(m_leftMargin - 5, m_yUnit * i, m_yUnit * i);
    }
}

void GUI_ImageTriggerHistgramWidget::drawGrid() {
    setViewport(m_leftMargin, m_bottomMargin, m_graphWidth, m_graphHeight);
    const int right = m_gridRange - 1;
    setProjection(right, std::max(1, m_peak));
    setGray(0.5F);
    drawSolid(0, 0, right, 0);
    for (int i = 1; i <= m_yDivisions; ++i) {
        drawDashed(0, m_yUnit * i, right, m_yUnit * i);
    }
    drawSolid(0, m_peak, right, m_peak);
    drawSolid(-1, 0, -1, m_peak);
    for (int i = 1; i <= m_xDivisions; ++i) {
        const int x = m_gridRange / 4 * i - 1;
        drawDashed(x, 0, x, m_peak);
    }
    drawSolid(right, 0, right, m_peak);
}

void GUI_ImageTriggerHistgramWidget::drawBars() {
    setProjection(257, std::max(1, m_peak));
    const int row = shownRow();
    if (m_channels == 1) {
        setGray(0.7F);
    } else {
        glColor4f(row == 0 ? 1.0F : 0.0F, row == 1 ? 1.0F : 0.0F, row == 2 ? 1.0F : 0.0F, 1.0F);
    }
    for (int bin = 0; bin < histogram::kBins; ++bin) {
        drawQuad(bin, 0, bin + 1, m_bins[row][bin]);
    }
}

void GUI_ImageTriggerHistgramWidget::drawStatistics() {
    setProjection(100, 100);
    glColor4f(0.5F, 0.5F, 0.7F, 1.0F);
    drawQuad(60, 55, 95, 75);
    const histogram::Statistics figures = histogram::statistics(m_bins[shownRow()], m_bitDepth);
    glColor4f(0, 0, 0, 1);
    drawText(63, 69.5, "Min:" + QByteArray::number(figures.min));
    drawText(63, 63.5, "Max:" + QByteArray::number(figures.max));
    drawText(63, 57.5, "Ave:" + QByteArray::number(figures.average));
}

#pragma once

#include "livecontrol/live/HistogramFigures.h"
#include "livecontrol/web/GUI_EmbeddedWidget.h"

#include <QMutex>

/// The graph of the brightness inside the rectangle on the image, which the setting pages of auto exposure
/// and image trigger embed. The host's paint pass hands over the counters, painting shows them.
class GUI_ImageTriggerHistgramWidget : public GUI_EmbeddedWidget {
    Q_OBJECT

public:
    using GUI_EmbeddedWidget::GUI_EmbeddedWidget;

    /// Takes over 3 rows of 256 counters, one for each channel; with one channel only the first row shows.
    /// `bitDepth` is the depth of the scale that the numbers are written on, `peak` the largest count of the
    /// row that shows. The caller asks for the repaint. Any thread may call.
    void setHistogramData(const quint32* bins, int bitDepth, int channels, int peak);

protected:
    void initializeGL() override;
    void resizeGL(int w, int h) override;
    void paintGL() override;

private:
    void setViewport(int x, int y, int w, int h);
    void drawBackground();
    void drawHorizontalScale();
    void drawVerticalScale();
    void drawGrid();
    void drawBars();
    void drawStatistics();
    /// The row of counters that shows: green of a color frame.
    int shownRow() const { return m_channels == 1 ? 0 : 1; }

    // All of it is guarded by m_mutex.
    int m_graphWidth = 0;    ///< Pixels of the drawing area.
    int m_graphHeight = 0;   ///< Pixels of the drawing area.
    int m_leftMargin = 35;   ///< Room for the vertical scale, pixels.
    int m_bottomMargin = 15; ///< Room for the horizontal scale, pixels.
    int m_gridRange = 1024;  ///< Extent of the grid's coordinates from left to right.
    int m_peak = 0;          ///< Extent of the grid's coordinates from bottom to top.
    int m_bitDepth = 8;
    int m_channels = 3;
    int m_xDivisions = 4;
    int m_yDivisions = 0;
    int m_yUnit = 0;
    std::array<histogram::Row, 3> m_bins{};
    QMutex m_mutex;
};

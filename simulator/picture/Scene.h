#pragma once

#include "simulator/picture/FrameRequest.h"

#include <vector>

/// What the cameras look at: a turning wheel and a falling drop before a wall. A function of time and seed
/// alone, so each run and each camera sees the same.
//
/// Light adds up over the exposure: at 1/1000 s and full aperture the brightest part just fills the scale,
/// and a moving part is blurred along its way. The picture is drawn by one table look-up a pixel: a map that
/// depends only on the part of the sensor says what a pixel looks at, and a table made for each frame says
/// how bright that is. Not thread-safe: it keeps the map of the last request.
class Scene {
public:
    Scene(const QSize& sensor, quint32 seed) : m_sensor(sensor), m_seed(seed) {}

    /// Format_RGB888, Format_Grayscale8 or Format_Grayscale16 as the request says.
    QImage render(const FrameRequest& request);

private:
    struct Light { // relative, 1 fills the scale at the exposure told above
        float red;
        float green;
        float blue;
    };
    struct Drop;

    void prepareMap(const FrameRequest& request);
    void mapWheel(const FrameRequest& request);
    std::vector<Light> lights(const FrameRequest& request) const;
    Drop dropOf(const FrameRequest& request) const;
    template <class Write>
    void drawDrop(const FrameRequest& request, const std::vector<Light>& table, Write write) const;
    template <class Sample>
    void drawGrey(QImage& image, const FrameRequest& request, const std::vector<Light>& table) const;
    void drawColour(QImage& image, const FrameRequest& request, const std::vector<Light>& table) const;

    QSize m_sensor;
    quint32 m_seed;
    QRect m_mapArea;
    QSize m_mapSize;
    std::vector<quint16> m_map;
};

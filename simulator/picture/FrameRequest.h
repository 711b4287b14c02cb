#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

#include <functional>

/// What a frame is to be made of; handed to a frame source.
struct FrameRequest {
    quint32 number = 0;
    qint64 time = 0;         // ns
    QRect area;              // on the sensor
    QSize size;              // of the image to make; smaller than the area for a reduced frame
    double exposure = 0.001; // seconds
    double gain = 1.0;       // relative light that the lens lets through
    int dualSlope = 0;       // percent, 0 off
    bool color = false;
    int bitDepth = 8;
};

/// Gives the picture of a frame in a format told above; a test hands in one of its own in place of the scene.
using PictureSource = std::function<QImage(const FrameRequest&)>;

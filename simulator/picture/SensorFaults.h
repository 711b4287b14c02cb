#pragma once

class QImage;
class QRect;
class QSize;

// What a sensor adds to its picture, a part `area` of the sensor in any size. The image has one of the
// formats of a frame.

/// Takes away that part of the light in the sensor's corners, less towards its center; 0 changes nothing.
void darkenCorners(QImage& image, const QRect& area, const QSize& sensor, double part);
/// A spot of full light round the center of the sensor, as a laser throws one; red in color.
void drawLaserSpot(QImage& image, const QRect& area, const QSize& sensor, int bitDepth);

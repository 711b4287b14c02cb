#pragma once

#include "viewer/cameras/CameraModel.h"

#include <QPoint>

/// What one variable channel of a camera holds.
struct VariableChannel {
    quint32 rate = 0; // fps
    QSize size;       // 0 x 0: nothing is stored
    QPoint position;  // of the upper left corner on the sensor

    bool isStored() const { return rate > 0; }
    bool operator==(const VariableChannel& other) const {
        return rate == other.rate && size == other.size && position == other.position;
    }
};

/// Which sizes a sensor can read how fast, beyond the presets. Pure arithmetic over a model.
//
/// Both directions matter: each row costs its overhead and the time of its columns, columns come in blocks of
/// the width step. In a band of rates (see CameraModel::bands) the rows come in larger blocks.
namespace VariableSize {

/// The rates that any size can run, rising.
QList<quint32> rates(const CameraModel& model);
/// Largest height that a width can have at a rate; 0 if it can't reach the rate, or is not on the grid.
int maxHeight(const CameraModel& model, quint32 rate, int width);
/// The same for the width.
int maxWidth(const CameraModel& model, quint32 rate, int height);
/// Whether the camera takes the size at one of its rates.
bool isValid(const CameraModel& model, quint32 rate, const QSize& size);
/// The nearest position that the camera takes: on its grid and on the sensor, centered where an axis is
/// fixed.
QPoint settledPosition(const CameraModel& model, const QSize& size, const QPoint& wish);

} // namespace VariableSize

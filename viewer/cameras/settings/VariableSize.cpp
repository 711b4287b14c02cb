#include "viewer/cameras/settings/VariableSize.h"

#include <algorithm>

namespace {

bool isOnGrid(int value, int min, int max, int step) {
    return value >= min && value <= max && value % step == 0;
}

bool isWidth(const CameraModel& model, int width) {
    return isOnGrid(width, model.sizeMin.width(), model.sensor.width(), model.sizeStep.width());
}

bool isHeight(const CameraModel& model, quint32 rate, int height) {
    return isOnGrid(height, model.sizeMin.height(), model.sensor.height(), model.heightStepAt(rate));
}

int settledOn(bool isFree, int sensor, int size, int step, int wish) {
    if (!isFree) {
        return (sensor - size) / 2;
    }
    const int inside = std::clamp(wish, 0, sensor - size);
    return inside - inside % step;
}

} // namespace

QList<quint32> VariableSize::rates(const CameraModel& model) {
    QList<quint32> list;
    const quint32 fastest = model.maxRate(model.sizeMin);
    std::copy_if(model.rates.begin(), model.rates.end(), std::back_inserter(list),
                 [fastest](quint32 rate) { return rate <= fastest; });
    return list;
}

int VariableSize::maxHeight(const CameraModel& model, quint32 rate, int width) {
    if (!isWidth(model, width)) {
        return 0;
    }
    const int step = model.heightStepAt(rate);
    int height = model.sensor.height() - model.sensor.height() % step;
    while (height >= model.sizeMin.height() && model.maxRate({width, height}) < rate) {
        height -= step;
    }
    return height >= model.sizeMin.height() ? height : 0;
}

int VariableSize::maxWidth(const CameraModel& model, quint32 rate, int height) {
    if (!isHeight(model, rate, height)) {
        return 0;
    }
    const int step = model.sizeStep.width();
    int width = model.sensor.width() - model.sensor.width() % step;
    while (width >= model.sizeMin.width() && model.maxRate({width, height}) < rate) {
        width -= step;
    }
    return width >= model.sizeMin.width() ? width : 0;
}

bool VariableSize::isValid(const CameraModel& model, quint32 rate, const QSize& size) {
    return model.rates.contains(rate) && isWidth(model, size.width()) &&
           isHeight(model, rate, size.height()) && model.maxRate(size) >= rate;
}

QPoint VariableSize::settledPosition(const CameraModel& model, const QSize& size, const QPoint& wish) {
    return {settledOn(model.positionFreeX, model.sensor.width(), size.width(), model.positionStep.width(),
                      wish.x()),
            settledOn(model.positionFreeY, model.sensor.height(), size.height(), model.positionStep.height(),
                      wish.y())};
}

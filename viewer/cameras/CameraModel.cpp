#include "viewer/cameras/CameraModel.h"

#include <QStringList>

#include <algorithm>

QString functionName(CameraFunction function) {
    static const QStringList names = {QStringLiteral("shutterLock"),
                                      QStringLiteral("resolutionLock"),
                                      QStringLiteral("dualSlope"),
                                      QStringLiteral("dualSlopeMode"),
                                      QStringLiteral("autoExposure"),
                                      QStringLiteral("variableChannels"),
                                      QStringLiteral("imageTrigger"),
                                      QStringLiteral("randomTimes"),
                                      QStringLiteral("lowLight"),
                                      QStringLiteral("fanControl"),
                                      QStringLiteral("lensControl"),
                                      QStringLiteral("liveQuality"),
                                      QStringLiteral("shadingCalibration"),
                                      QStringLiteral("headLight"),
                                      QStringLiteral("linkAdjustment"),
                                      QStringLiteral("linkSpeed"),
                                      QStringLiteral("wifi"),
                                      QStringLiteral("powerOff"),
                                      QStringLiteral("restart")};
    return names.at(static_cast<int>(function));
}

quint32 CameraModel::maxRate(const QSize& size) const {
    return size.isEmpty() || rates.isEmpty() ? 0 : rates.last();
}

int CameraModel::heightStepAt(quint32 rate) const {
    for (const RateBand& band : bands) {
        if (rate >= band.from && rate <= band.to) {
            return band.heightStep;
        }
    }
    return sizeStep.height();
}

int CameraModel::memoryFrames(const QSize& size) const {
    if (size.isEmpty()) {
        return 0;
    }
    const double sampleBytes = (bitDepth > 8 ? 2 : 1) * (color ? 3 : 1);
    const double frameBytes = sampleBytes * size.width() * size.height();
    return std::max(1, static_cast<int>(memoryMb * 1024.0 * 1024.0 / frameBytes));
}

#pragma once

#include <QRect>
#include <QSize>
#include <QtGlobal>

/// What a kind of camera offers for its auto exposure and its image trigger; of a camera with neither all is
/// 0.
struct ExposureMeter {
    QSize areaMin;          // pixels
    QSize areaStep;         // of the size, from areaMin on
    QSize posStep;          // of the position, from 0 on
    quint32 valueMax = 0;   // target; valueMax + 1 stands for full scale
    quint32 rangeMax = 0;   // rangeMax + 1 stands for full scale
    quint32 upperLimit = 0; // of target and range together, in the full bit depth; 0: none
};

/// A rectangle of the image whose mean brightness is held against a target.
struct MeteringArea {
    bool on = false;
    QRect area;        // measured, from the corner of the image
    quint32 value = 0; // brightness wanted, on the meter's scale
    quint32 range = 0; // the target is met while the brightness is no farther from it

    /// Of a mean brightness, 1 is full scale.
    bool isMet(const ExposureMeter& meter, double level) const;
    bool operator==(const MeteringArea& other) const;
};

/// What an auto exposure works to: it rests while the target is met.
struct ExposureControl : MeteringArea {
    quint32 maxTime = 0; // n for 1/n s, the longest exposure

    bool operator==(const ExposureControl& other) const;
};

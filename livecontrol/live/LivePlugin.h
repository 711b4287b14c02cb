#pragma once

#include <QRect>

/// What the live control mediator needs of its plug-in: the rectangle on the image and the histogram's state.
/// It keeps the mediator from knowing the plug-in's class.
class LivePlugin {
public:
    virtual ~LivePlugin() = default;

    /// The page shows or drops the histogram widget; bins are computed only while it shows.
    virtual void setHistogramVisible(bool visible) = 0;
    /// Significant bits of the samples whose bins the widget gets.
    virtual void setHistogramBitDepth(int bits) = 0;
    /// True while the variable channel page works with preset sizes: the rectangle shows but can't be edited.
    virtual void setVariableAreaLocked(bool locked) = 0;
    /// The rectangle in sensor-side image coordinates; null when none was set.
    virtual QRect getSelectArea() const = 0;
    virtual void setSelectArea(const QRect& area) = 0;
    virtual bool isSelectAreaNull() const = 0;
};

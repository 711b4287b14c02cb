#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// What the live control mediator needs of its plug-in: the rectangle on the image and the histogram's state.
/// It keeps the mediator from knowing the plug-in's class.
class LivePlugin {
public:
    virtual ~LivePlugin() = default;

    /// Forgets the widget that the page embeds.
    virtual void clearWidget() = 0;
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
    /// Whether the host wants its users to edit custom information.
    virtual bool isCustomInfoWanted() = 0;
    /// Tells the plug-in that records beside the cameras, if there is one. Throws what the host throws.
    virtual void tellTriggerParameterApplied() = 0;
    /// Limits of an edit of the rectangle on the image, in sensor pixels; `maxSize` -1,-1 is no limit. Auto
    /// exposure and image trigger give them as the camera stands, the variable page as the view is turned.
    virtual void setAreaConstraints(const QPoint& posStep, const QSize& sizeStep, const QSize& maxSize,
                                    const QSize& minSize, bool centerX, bool centerY) = 0;
};

#pragma once

#include "livecontrol/interface/types.h"

#include <QStringList>

class DOC_Interface;

/// The image view. GUI thread, and the host's paint pass for the plain getters; any operation may throw an
/// exception derived from `std::exception`.
class HostViews {
public:
    virtual ~HostViews() = default;

    /// Forbids (`disabled`) or allows again the image processings `names`, such as "binning", "warp",
    /// "lenscalib".
    virtual void setProcessingDisabled(bool disabled, const QStringList& names) = 0;
    /// Closes the tools `names` on the views. `index` is the view's index, -1 for all.
    virtual void closeTools(const QStringList& names, int index) = 0;
    /// True while the views show their documents in turn.
    virtual bool isCycleView() = 0;
    /// Rotation of the document's view, a fraction of a full turn.
    virtual float getRotation(DOCKEY key) = 0;
    /// True if the document's view is flipped (A).
    virtual bool getFlipA(DOCKEY key) = 0;
    /// True if the document's view is flipped (B).
    virtual bool getFlipB(DOCKEY key) = 0;
    /// Zoom factor of the view of `document`, null meaning the current view; 0 or below: fitted to the
    /// window.
    virtual float getZoom(DOC_Interface* document) = 0;
    /// True if the angle of the 3D view is locked.
    virtual bool isAngleLocked3D() = 0;
    /// True if the 3D view shows its texture.
    virtual bool isTexture3D() = 0;
    /// True if the 3D view shows the wire frame.
    virtual bool isWireframe3D() = 0;
    /// True if the 3D view shows the bounding box.
    virtual bool isBoundingBox3D() = 0;
    /// True if the 3D view shows the compass.
    virtual bool isCompass3D() = 0;
};

#pragma once

#include <QString>

/// The view of a document. GUI thread only; any operation may throw an exception derived from
/// `std::exception`.
class DOC_Display {
public:
    virtual ~DOC_Display() = default;

    /// True if the tool `name` acts on the image; `flag` as the tool's button has it.
    virtual bool isToolApplied(const QString& name, bool flag) = 0;
    /// True if the tool `name` is active in the document.
    virtual bool isToolActive(const QString& name) = 0;
    /// True if the recording is cut in several places.
    virtual bool isMultiTrimming() = 0;
    /// Shows the next cut.
    virtual void showNextTrimming() = 0;
    /// Shows the previous cut.
    virtual void showPreviousTrimming() = 0;
    /// Text that tells which cut shows.
    virtual QString getMultiTrimmingLabel() = 0;
    /// True if a save of all documents skips frames here.
    virtual bool isSkipForAll() = 0;
    /// As `isSkipForAll`, in file mode.
    virtual bool isSkipForFile() = 0;
    /// Rotation of the image as a fraction of a turn.
    virtual float getRotation() = 0;
    /// True if the image is mirrored left to right.
    virtual bool isFlipA() = 0;
    /// True if the image is mirrored top to bottom.
    virtual bool isFlipB() = 0;
    /// Pixels of the window a pixel of the image; `flag` true counts the reduction of the image in.
    virtual float getZoomFactor(bool flag) = 0;
    /// True if a lookup curve acts on the image.
    virtual bool isLutCurve() = 0;
    /// Binning of the image, as the exponent of 2.
    virtual int getBinningLevel() = 0;
};

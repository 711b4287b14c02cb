#pragma once

#include <QRect>

class DOC_Interface;
class HostObject;

/// Far more pixels than any sensor has in a row: numbers from a page or a camera are cut to what can be
/// calculated with.
constexpr int kMaxPixels = 1 << 24;

// A rectangle on the image between two of its coordinate spaces: original (pixels of the sensor's image) and
// userview (what the page shows: after rotation, mirroring and reduction). Position and size count in whole
// pixels. Both throw DOC_Exception for a null document.

/// From original to userview. Of a reduced image the size comes from the input's, at least 1.
QRect mapRectToUserview(HostObject* host, DOC_Interface* document, const QRect& rect);
/// From userview to original. Of a reduced image the size is the input's, enlarged by the reduction.
QRect mapRectToOriginal(HostObject* host, DOC_Interface* document, const QRect& rect);

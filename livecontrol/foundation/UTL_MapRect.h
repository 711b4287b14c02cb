#pragma once

#include <QRect>

class DOC_Interface;
class HostObject;

// A rectangle on the image between two of its coordinate spaces: original (pixels of the sensor's image) and
// userview (what the page shows: after rotation, mirroring and reduction). Position and size count in whole
// pixels. Both throw DOC_Exception for a null document.

/// From original to userview. Of a reduced image the size comes from the input's, at least 1.
QRect mapRectToUserview(HostObject* host, DOC_Interface* document, const QRect& rect);
/// From userview to original; the size as above.
QRect mapRectToOriginal(HostObject* host, DOC_Interface* document, const QRect& rect);

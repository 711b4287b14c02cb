#pragma once

#include "livecontrol/interface/DOC_Interface.h"

class DeviceObject;

/// The document of a camera. A dynamic cast to it tells a camera from a file.
class DOC_Camera : public DOC_Interface {
public:
    /// The camera body behind the document, the same for all its heads. Opaque: to be compared only.
    virtual DeviceObject* getDevice() = 0;
};

#pragma once

#include "viewer/cameras/Frame.h"

/// Reads the frames of one recording out of a camera's memory. Made on the GUI thread and used by one thread
/// at a time, whichever; it outlives the camera without harm.
class MemoryReader {
public:
    virtual ~MemoryReader() = default;

    /// From 0. Null once the camera can't give it any more: the link is lost, or the memory holds something
    /// else.
    virtual Frame frame(int index) = 0;
};

#pragma once

#include "livecontrol/interface/types.h"

class DOC_Interface;

/// Devices and their heads. GUI thread only; any operation may throw an exception derived from
/// `std::exception`.
class DOC_Members {
public:
    virtual ~DOC_Members() = default;

    /// True for the document of a device with several heads.
    virtual bool isDeviceDocument() = 0;
    /// True for the document of one head of such a device.
    virtual bool isHeadDocument() = 0;
    /// Key of the device document; -1 if there is none.
    virtual DOCKEY getDeviceKey() = 0;
    /// Chooses the head that stands for its device; null for none.
    virtual void setActiveHead(DOC_Interface* head) = 0;
    /// The device was taken out of the selection.
    virtual void onDeviceUnselected() = 0;
    /// The device was taken into the selection.
    virtual void onDeviceSelected() = 0;
    /// The selection of the heads changed.
    virtual void onHeadsChanged() = 0;
};

#pragma once

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DeviceObject.h"

/// Another interface of a document. A document is one object with several interfaces, so this never fails
/// with a host that keeps its word; throws DOC_Exception otherwise. `document` must not be null.
template <class Interface>
Interface& docAs(DOC_Interface* document) {
    if (auto* const wanted = dynamic_cast<Interface*>(document)) {
        return *wanted;
    }
    throw DOC_Exception(QStringLiteral("The document lacks an interface."), 0);
}

/// The same for a camera body.
template <class Interface>
Interface& docAs(DeviceObject* device) {
    if (auto* const wanted = dynamic_cast<Interface*>(device)) {
        return *wanted;
    }
    throw DOC_Exception(QStringLiteral("The device lacks an interface."), 0);
}

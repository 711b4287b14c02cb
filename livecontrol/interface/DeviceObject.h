#pragma once

/// A camera body, the same object for all documents of its heads; the host owns it. To a plug-in it is
/// opaque: an object to compare, whose operations are those of a document. It answers `DOC_Interface` and
/// `DOC_Settings`, reached by a cross cast as with a document; its `getHeads` gives the documents of all its
/// heads, of a camera with one head the camera's only document.
class DeviceObject {
public:
    virtual ~DeviceObject() = default;
};

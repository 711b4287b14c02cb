#pragma once

#include "viewer/documents/DocumentList.h"

class CameraDocument;
class DeviceDocument;
class FileDocument;

/// What the parts of a document's face share.
class AdapterBase {
protected:
    explicit AdapterBase(Document& document) : m_document(document) {}

    CallRecorder& recorder() const { return m_document.list().calls(); }
    Document& document() const { return m_document; }
    DocumentList& list() const { return m_document.list(); }
    CameraHead* head() const { return m_document.head(); }
    CameraBody* body() const { return m_document.body(); }
    /// Null if it is no document of that kind.
    FileDocument* file() const;
    /// The device itself, or that of a camera; null for a file.
    DeviceDocument* device() const;

private:
    Document& m_document;
};

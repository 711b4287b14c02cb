#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostViews";
}

void ViewerHost::setProcessingDisabled(bool disabled, const QStringList& names) {
    OPERATION(disabled, names);
    m_modes.forbid(names, disabled);
}

void ViewerHost::closeTools(const QStringList& names, int index) {
    OPERATION(names, index);
    for (const QString& name : names) {
        m_documents.tools().reset(name);
    }
}

float ViewerHost::getRotation(DOCKEY key) {
    OPERATION(key);
    const Document* const document = m_documents.find(key);
    return document ? float(document->view().quarterTurns) / 4 : 0;
}

bool ViewerHost::getFlipA(DOCKEY key) {
    OPERATION(key);
    const Document* const document = m_documents.find(key);
    return document && document->view().flipA;
}

bool ViewerHost::getFlipB(DOCKEY key) {
    OPERATION(key);
    const Document* const document = m_documents.find(key);
    return document && document->view().flipB;
}

float ViewerHost::getZoom(DOC_Interface* document) {
    OPERATION(document);
    const Document* const asked = document ? m_documents.find(document) : current();
    return asked ? float(asked->view().zoom) : 0;
}

bool ViewerHost::isAngleLocked3D() {
    OPERATION();
    return false;
}

bool ViewerHost::isTexture3D() {
    OPERATION();
    return false;
}

bool ViewerHost::isWireframe3D() {
    OPERATION();
    return false;
}

bool ViewerHost::isBoundingBox3D() {
    OPERATION();
    return false;
}

bool ViewerHost::isCompass3D() {
    OPERATION();
    return false;
}

#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentFace.h"

namespace {
constexpr char kInterface[] = "DOC_Members";
}

bool MembersFace::isDeviceDocument() {
    OPERATION();
    return document().kind() == Document::Kind::Device && device()->hasSeveralHeads();
}

bool MembersFace::isHeadDocument() {
    OPERATION();
    return document().kind() == Document::Kind::Camera && device()->hasSeveralHeads();
}

DOCKEY MembersFace::getDeviceKey() {
    OPERATION();
    return device() && device()->hasSeveralHeads() ? device()->key() : kInvalidDockey;
}

void MembersFace::setActiveHead(DOC_Interface* head) {
    OPERATION(head);
    if (DeviceDocument* const parent = device()) {
        parent->setActiveHead(dynamic_cast<CameraDocument*>(list().find(head)));
    }
}

void MembersFace::onDeviceUnselected() {
    OPERATION();
    if (DeviceDocument* const parent = device()) {
        parent->deviceUnselected();
    }
}

void MembersFace::onDeviceSelected() {
    OPERATION();
    if (DeviceDocument* const parent = device()) {
        parent->deviceSelected();
    }
}

void MembersFace::onHeadsChanged() {
    OPERATION();
    if (DeviceDocument* const parent = device()) {
        parent->headsChanged();
    }
}

#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/adapters/DocumentAdapter.h"

namespace {
constexpr char kInterface[] = "DOC_Members";
}

bool MembersAdapter::isDeviceDocument() {
    OPERATION();
    return document().kind() == Document::Kind::Device && device()->hasSeveralHeads();
}

bool MembersAdapter::isHeadDocument() {
    OPERATION();
    return document().kind() == Document::Kind::Camera && device()->hasSeveralHeads();
}

DOCKEY MembersAdapter::getDeviceKey() {
    OPERATION();
    return device() && device()->hasSeveralHeads() ? device()->key() : kInvalidDockey;
}

void MembersAdapter::setActiveHead(DOC_Interface* head) {
    OPERATION(head);
    if (DeviceDocument* const parent = device()) {
        parent->setActiveHead(dynamic_cast<CameraDocument*>(list().find(head)));
    }
}

void MembersAdapter::onDeviceUnselected() {
    OPERATION();
    if (DeviceDocument* const parent = device()) {
        parent->deviceUnselected();
    }
}

void MembersAdapter::onDeviceSelected() {
    OPERATION();
    if (DeviceDocument* const parent = device()) {
        parent->deviceSelected();
    }
}

void MembersAdapter::onHeadsChanged() {
    OPERATION();
    if (DeviceDocument* const parent = device()) {
        parent->headsChanged();
    }
}

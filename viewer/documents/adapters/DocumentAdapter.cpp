#include "viewer/documents/adapters/DocumentAdapter.h"

#include "livecontrol/interface/APP_Exception.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/commands/CameraCommands.h"

#include <QFileInfo>

namespace {
constexpr char kInterface[] = "DOC_Interface";

FileDocument* asFile(Document& document) {
    return document.kind() == Document::Kind::File ? static_cast<FileDocument*>(&document) : nullptr;
}
} // namespace

template <class Base>
QList<DOC_Interface*> DocumentAdapter<Base>::getHeads(bool flag) {
    OPERATION(flag);
    QList<DOC_Interface*> list;
    if (m_document.kind() == Document::Kind::Device) {
        for (CameraDocument* const head : static_cast<DeviceDocument&>(m_document).heads()) {
            list.append(head->face());
        }
    }
    return list;
}

template <class Base>
void DocumentAdapter<Base>::setConnected(bool connected) {
    OPERATION(connected);
    CameraBody* const body = m_document.body();
    if (body == nullptr || body->isConnected() == connected) {
        return;
    }
    if (connected) {
        connectBody(*body);
    } else {
        body->disconnectLink();
    }
}

template <class Base>
bool DocumentAdapter<Base>::isConnected() {
    OPERATION();
    return m_document.isConnected();
}

template <class Base>
void DocumentAdapter<Base>::setSelected(bool selected) {
    OPERATION(selected);
    m_document.setSelected(selected);
}

template <class Base>
bool DocumentAdapter<Base>::isSelected() {
    OPERATION();
    return m_document.isSelected();
}

template <class Base>
bool DocumentAdapter<Base>::isSelectedMulti() {
    OPERATION();
    return m_document.isSelected() && m_document.list().selected().size() > 1;
}

template <class Base>
bool DocumentAdapter<Base>::isRecordInMemory() {
    OPERATION();
    return m_document.kind() != Document::Kind::File && m_document.recordedFrames() > 0;
}

template <class Base>
bool DocumentAdapter<Base>::isStandaloneKindA() {
    OPERATION();
    return m_document.kind() == Document::Kind::File && !m_document.drive();
}

template <class Base>
bool DocumentAdapter<Base>::isStandaloneKindB() {
    OPERATION();
    return false;
}

template <class Base>
bool DocumentAdapter<Base>::isStandaloneKindC() {
    OPERATION();
    return false;
}

template <class Base>
QString DocumentAdapter<Base>::getFilePath() {
    OPERATION();
    const FileDocument* const file = asFile(m_document);
    return file ? file->path() : QString();
}

template <class Base>
QString DocumentAdapter<Base>::getDisplayName() {
    OPERATION();
    return m_document.title();
}

template <class Base>
QString DocumentAdapter<Base>::getBaseName() {
    OPERATION();
    const FileDocument* const file = asFile(m_document);
    return file && !file->path().isEmpty() ? QFileInfo(file->path()).completeBaseName() : m_document.title();
}

template <class Base>
bool DocumentAdapter<Base>::canDeleteFile() {
    OPERATION();
    const FileDocument* const file = asFile(m_document);
    return file && QFileInfo(file->path()).isWritable();
}

template <class Base>
void DocumentAdapter<Base>::deleteFile() {
    OPERATION();
    if (FileDocument* const file = asFile(m_document)) {
        file->deleteFile();
    }
}

template <class Base>
bool DocumentAdapter<Base>::isMobile() {
    OPERATION();
    return false;
}

template <class Base>
QString DocumentAdapter<Base>::getPartitionName(PARTITIONNUMBER partition) {
    OPERATION(partition);
    return QString::number(partition);
}

template <class Base>
void DocumentAdapter<Base>::repaint(int kind, bool wait) {
    OPERATION(kind, wait);
    emit m_document.imageChanged(&m_document);
}

template <class Base>
QString DocumentAdapter<Base>::getMediaName() {
    OPERATION();
    const FileDocument* const file = asFile(m_document);
    return file ? QFileInfo(file->path()).completeBaseName() : QString();
}

template <class Base>
bool DocumentAdapter<Base>::hasImageScale(int kind) {
    OPERATION(kind);
    return m_document.view().imageScale > 1;
}

template <class Base>
QString DocumentAdapter<Base>::formatShutterSpeed(unsigned long value, int reserved) {
    OPERATION(value, reserved);
    return m_document.list().shutterFormat().text(value);
}

template class DocumentAdapter<DOC_Interface>;
template class DocumentAdapter<DOC_Camera>;

DeviceObject* CameraFace::getDevice() {
    recorder().enter("DOC_Camera", __func__);
    return static_cast<CameraDocument&>(m_document).device().object();
}

DeviceObject* DeviceFace::getDevice() {
    recorder().enter("DOC_Camera", __func__);
    return this;
}

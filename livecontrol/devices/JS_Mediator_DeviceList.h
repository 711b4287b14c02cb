#pragma once

#include "livecontrol/interface/JS_Mediator.h"

/// The script object `deviceList`: the rows of the camera lists and what their buttons do.
class JS_Mediator_DeviceList : public JS_Mediator {
    Q_OBJECT

public:
    using JS_Mediator::JS_Mediator;

    /// Parent of the dialogs that the list opens; may be null.
    void setParentWidget(QWidget* parent) { m_parentWidget = parent; }

public slots:
    /// Makes a connected document the current one; one that isn't connected is only marked.
    void selectDoc(const QVariant& key);
    void unselectDoc(const QVariant& key);
    /// Lets the user enter a camera by hand; with `connect` it is connected at once.
    void addDoc(bool connect = true);
    /// Removes a document from the list, if the user agrees; other heads of its device may go with it.
    void deleteDoc(DOCKEY dockey);
    /// Removes all documents, or only their selection, without a question.
    void deleteAllDocs(bool unselectOnly = false);
    /// True for a document that is selected and connected.
    bool isSelectedDoc(const QVariant& key);
    bool isSelectedMultiDoc(const QVariant& key);
    /// True for a connected document of a device with several heads.
    bool isMultiHead(const QVariant& key);

private:
    QWidget* m_parentWidget = nullptr; ///< Not owned.
};

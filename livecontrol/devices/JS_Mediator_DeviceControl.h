#pragma once

#include "livecontrol/bridge/JS_Mediator_Plugin.h"

/// A panel that works on selected cameras: what stands over the image, and the selection of documents.
class JS_Mediator_DeviceControl : public JS_Mediator_Plugin {
    Q_OBJECT

public:
    using JS_Mediator_Plugin::JS_Mediator_Plugin;

public slots:
    /// Whether the information over the image shows.
    bool isDisplayInfoShowing();
    void setDisplayInfoShowing(bool show);
    /// Selects a document with the live image suspended; a head is selected through its device. Unknown keys
    /// do nothing.
    void selectDoc(const QVariant& key);
    /// Takes a document out of the selection; the device of an unselected head shows another selected head.
    void unselectDoc(const QVariant& key);
    /// Selects all documents and keeps the current one.
    void viewAll();
    /// Lets the user choose what stands over the image.
    void editInfo();
    /// Lets the user edit the comments of the selected documents.
    void editComment();
    /// Lets the user maintain the custom items of the selected documents.
    virtual void editCustom();

private:
    void setDocSelected(DOCKEY key, bool selected);
    void selectHead(class DOC_Interface* head);
    void unselectHead(class DOC_Interface* head, DOCKEY key);
};

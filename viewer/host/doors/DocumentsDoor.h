#pragma once

#include "viewer/host/Shell.h"
#include "viewer/host/doors/PluginsDoor.h"
#include "viewer/host/parts/LinkWatch.h"

/// Documents by key, the selection, opening and closing, the links of the cameras, settings files.
class DocumentsDoor : public PluginsDoor {
public:
    using PluginsDoor::PluginsDoor;

    void openFiles(const QStringList& paths, int option1, int option2, int option3, int option4,
                   int option5) override;
    DOCKEY keyOfDocument(DOC_Interface* document) override;
    DOC_Interface* docByKey(DOCKEY key, bool includeCameras) override;
    DOC_Interface* findDocument(DOCKEY key) override;
    void setCurrentKey(DOCKEY key, bool notify) override;
    void setCurrentDocument(DOC_Interface* document) override;
    void selectDocument(DOCKEY key) override;
    void selectDocumentKeepCurrent(DOCKEY key, bool notify) override;
    void unselectDocument(DOCKEY key) override;
    DOC_Interface* currentDocument() override;

    DOCKEY getCurrentKey() override {
        OPERATION();
        return m_documents.currentKey();
    }

    bool isCurrentDocument(DOC_Interface* document) override;
    void deleteDocument(DOCKEY key) override;
    void deleteAllDocuments(int reserved, bool unselectOnly) override;
    void closeDocument(DOCKEY key, bool ask) override;
    void disconnectDocument(DOCKEY key) override;

    void selectAll(JS_Mediator* mediator) override {
        OPERATION(mediator);
        m_documents.selectAll();
    }

    void setSelection(const QList<DOCKEY>& keys, bool reserved) override;

    int getDocumentCount() override {
        OPERATION();
        return m_documents.documentCount();
    }

    int getSelectedCount() override {
        OPERATION();
        return m_documents.selectedCount();
    }

    QList<DOCKEY> listSelectedKeys(int reserved) override;
    QList<DOCKEY> getAllKeys(bool includeHidden) override;
    QList<DOCKEY> listTemporaryKeys() override { return OPERATION(); }

    QList<DOCKEY> listNewKeys() override {
        OPERATION();
        return m_newKeys;
    }

    QList<DOCKEY> listCameraKeys(bool connectedOnly, bool selectedOnly) override;
    QList<DOCKEY> getSelectedCameraKeys(int reserved) override;
    QList<DOCKEY> getSelectedKeys(bool reserved) override;

    QList<DOCKEY> listViewKeys(int reserved) override {
        OPERATION(reserved);
        return m_shell.windowKeys(false);
    }

    QMutex* getDocumentMutex() override {
        OPERATION();
        return &m_documents.mutex();
    }

    QList<DeviceObject*> listDevices() override;
    DOC_Interface* getParentDocument(DOC_Interface* document) override;

    void refreshDocuments() override {
        OPERATION();
        m_updates.requestSoon(-1);
    }

    void prepareRefreshDocuments() override { OPERATION(); }

    void refreshViews() override {
        OPERATION();
        m_shell.refreshViews();
    }

    void prepareRefreshViews() override { OPERATION(); }
    void editDocument(DOCKEY key) override;
    void setDocumentSource(int source) override { OPERATION(source); }

    RUN_ObservePhaseAdjustWarningThread* getPhaseAdjustObserver() override {
        OPERATION();
        return &m_links.observer();
    }

    void getPhaseAdjustTargets(QList<DOC_Interface*>& documents) override;

    void execPhaseAdjust() override {
        OPERATION();
        m_links.adjust();
    }

    bool isPhaseAdjusting() override {
        OPERATION();
        return m_links.isAdjusting();
    }

    void saveCameraSettings(const QString& path, int reserved) override;
    void loadCameraSettings(const QString& path, int reserved1, int reserved2) override;
    void disconnectWifi(DOCKEY key) override;

private:
    static constexpr char kInterface[] = "HostDocuments";

    LinkWatch m_links{m_documents};
    QList<DOCKEY> m_newKeys; // of the files that were opened last
};

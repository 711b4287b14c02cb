#pragma once

#include "viewer/host/HostWindow.h"
#include "viewer/host/doors/PluginsDoor.h"
#include "viewer/host/parts/cameras/LinkWatch.h"

/// Documents by key, the selection, opening and closing, the links of the cameras, settings files.
class DocumentsDoor : public PluginsDoor {
public:
    using PluginsDoor::PluginsDoor;

    void openFiles(const QStringList& paths, int option1, int option2, int option3, int option4,
                   int option5) override;
    DOCKEY keyOfDocument(DOC_Interface* document) override;

    DOC_Interface* docByKey(DOCKEY key, bool includeCameras) override {
        OPERATION(key, includeCameras);
        return faceOf(m_documents.find(key));
    }

    DOC_Interface* findDocument(DOCKEY key) override {
        OPERATION(key);
        return faceOf(m_documents.find(key));
    }

    void setCurrentKey(DOCKEY key, bool notify) override {
        OPERATION(key, notify);
        if (Document* const document = m_documents.find(key)) {
            m_documents.setCurrent(document);
        }
    }

    void setCurrentDocument(DOC_Interface* document) override {
        OPERATION(document);
        if (Document* const found = m_documents.find(document)) {
            m_documents.setCurrent(found);
        }
    }

    void selectDocument(DOCKEY key) override {
        OPERATION(key);
        if (Document* const document = m_documents.find(key)) {
            m_documents.select(document);
        }
    }

    void selectDocumentKeepCurrent(DOCKEY key, bool notify) override {
        OPERATION(key, notify);
        if (Document* const document = m_documents.find(key)) {
            m_documents.selectKeepCurrent(document);
        }
    }

    void unselectDocument(DOCKEY key) override {
        OPERATION(key);
        if (Document* const document = m_documents.find(key)) {
            m_documents.unselect(document);
        }
    }

    DOC_Interface* currentDocument() override {
        OPERATION();
        return faceOf(current());
    }

    DOCKEY getCurrentKey() override {
        OPERATION();
        return m_documents.currentKey();
    }

    bool isCurrentDocument(DOC_Interface* document) override {
        OPERATION(document);
        return document && document == faceOf(current());
    }

    void deleteDocument(DOCKEY key) override {
        OPERATION(key);
        removeDocument(key);
    }

    void deleteAllDocuments(int reserved, bool unselectOnly) override;

    void closeDocument(DOCKEY key, bool ask) override {
        OPERATION(key, ask);
        removeDocument(key);
    }

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

    QList<DOCKEY> listSelectedKeys(int reserved) override {
        OPERATION(reserved);
        return keysOf(m_documents.selected());
    }

    QList<DOCKEY> getAllKeys(bool includeHidden) override {
        OPERATION(includeHidden);
        return keysOf(m_documents.documents());
    }

    QList<DOCKEY> listTemporaryKeys() override {
        OPERATION();
        return m_temporary.keys();
    }

    QList<DOCKEY> listNewKeys() override {
        OPERATION();
        return m_newKeys;
    }

    QList<DOCKEY> listCameraKeys(bool connectedOnly, bool selectedOnly) override;

    QList<DOCKEY> getSelectedCameraKeys(int reserved) override {
        OPERATION(reserved);
        return keysOf(m_documents.selectedCameras());
    }

    QList<DOCKEY> getSelectedKeys(bool reserved) override {
        OPERATION(reserved);
        return keysOf(m_documents.selected());
    }

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

    // Not recorded: it may run on another thread.
    void saveCameraSettings(const QString& path, int reserved) override {
        Q_UNUSED(reserved)
        m_settingsFiles.save(path);
    }

    void loadCameraSettings(const QString& path, int reserved1, int reserved2) override {
        OPERATION(path, reserved1, reserved2);
        m_settingsFiles.load(path);
        m_updates.requestSoon(-1);
    }

    void disconnectWifi(DOCKEY key) override;

protected:
    /// Opens recordings for a dialog: all that can be opened. Throws the failure of the first that can't.
    void openRecordings(const QStringList& paths);
    const QList<DOCKEY>& newKeys() const { return m_newKeys; }

private:
    void removeDocument(DOCKEY key);
    static constexpr char kInterface[] = "HostDocuments";

    static DOC_Interface* faceOf(const Document* document) { return document ? document->face() : nullptr; }
    template <class List>
    static QList<DOCKEY> keysOf(const List& documents) {
        QList<DOCKEY> keys;
        for (const Document* const document : documents) {
            keys.append(document->key());
        }
        return keys;
    }

    LinkWatch m_links{m_documents};
    QList<DOCKEY> m_newKeys; // of the files that were opened last
};

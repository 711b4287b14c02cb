#pragma once

#include "viewer/host/doors/ExporterDoor.h"

/// How documents are viewed. None is in space.
class ViewsDoor : public ExporterDoor {
public:
    using ExporterDoor::ExporterDoor;

    void setProcessingDisabled(bool disabled, const QStringList& names) override {
        OPERATION(disabled, names);
        m_modes.forbid(names, disabled);
    }

    void closeTools(const QStringList& names, int index) override {
        OPERATION(names, index);
        for (const QString& name : names) {
            m_documents.tools().reset(name);
        }
    }

    float getRotation(DOCKEY key) override {
        OPERATION(key);
        const Document* const document = m_documents.find(key);
        return document ? float(document->view().quarterTurns) / 4 : 0;
    }

    bool getFlipA(DOCKEY key) override {
        OPERATION(key);
        const Document* const document = m_documents.find(key);
        return document && document->view().flipA;
    }

    bool getFlipB(DOCKEY key) override {
        OPERATION(key);
        const Document* const document = m_documents.find(key);
        return document && document->view().flipB;
    }

    float getZoom(DOC_Interface* document) override {
        OPERATION(document);
        const Document* const asked = document ? m_documents.find(document) : current();
        return asked ? float(asked->view().zoom) : 0;
    }

    bool isAngleLocked3D() override { return OPERATION(); }
    bool isTexture3D() override { return OPERATION(); }
    bool isWireframe3D() override { return OPERATION(); }
    bool isBoundingBox3D() override { return OPERATION(); }
    bool isCompass3D() override { return OPERATION(); }

private:
    static constexpr char kInterface[] = "HostViews";
};

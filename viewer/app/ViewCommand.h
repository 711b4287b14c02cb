#pragma once

#include "viewer/documents/DocumentList.h"

#include <QPointer>
#include <QUndoCommand>

/// One step of turning, mirroring, binning or brightening a document's image. Zoom and place are not its
/// business: they stay as the user has them. Does nothing any more once the document is closed.
class ViewCommand : public QUndoCommand {
public:
    ViewCommand(Document& document, const ViewState& wanted)
        : m_document(&document), m_before(document.view()), m_after(wanted) {}

    void undo() override { apply(m_before); }
    void redo() override { apply(m_after); }

private:
    void apply(const ViewState& wanted) {
        if (m_document) {
            ViewState state = m_document->view();
            state.quarterTurns = wanted.quarterTurns;
            state.flipA = wanted.flipA;
            state.flipB = wanted.flipB;
            state.tones = wanted.tones;
            // Not while something forbids it: what it rested at would be lost.
            if (m_before.binning != m_after.binning &&
                m_document->list().tools().isAllowed(QStringLiteral("binning"))) {
                state.binning = wanted.binning;
            }
            m_document->setView(state);
        }
    }

    QPointer<Document> m_document;
    ViewState m_before;
    ViewState m_after;
};

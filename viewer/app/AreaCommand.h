#pragma once

#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/documents/Document.h"

#include <QPointer>
#include <QRect>
#include <QUndoCommand>

#include <functional>

/// A change of the area that a plug-in's page edits on an image. It has been made when the step is pushed.
/// Does nothing any more once the document is closed or the page no longer edits an area.
class AreaCommand : public QUndoCommand {
public:
    /// `joins`: the change belongs to the one before, as those of a drag or of a held key, and both are one
    /// step. `moved` is called after each undo and redo. The plug-in outlives the step.
    AreaCommand(PLG_Interface& plugin, Document& document, const QRect& before, const QRect& after,
                bool joins, std::function<void()> moved)
        : m_plugin(plugin), m_document(&document), m_before(before), m_after(after), m_joins(joins),
          m_moved(std::move(moved)) {}

    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand* next) override {
        const auto& change = static_cast<const AreaCommand&>(*next);
        if (!change.m_joins) {
            return false;
        }
        m_after = change.m_after;
        return true;
    }
    void undo() override { apply(m_before); }
    void redo() override {
        if (m_made) {
            apply(m_after);
        }
        m_made = true;
    }

private:
    void apply(const QRect& area) {
        if (m_document && m_plugin.isAreaPage()) {
            m_plugin.setArea(m_document->face(), area, true);
            m_moved();
        }
    }

    PLG_Interface& m_plugin;
    QPointer<Document> m_document;
    QRect m_before;
    QRect m_after;
    bool m_joins;
    bool m_made = false;
    std::function<void()> m_moved;
};

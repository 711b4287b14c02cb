#pragma once

#include "livecontrol/interface/types.h"
#include "livecontrol/overlays/notes/RecordChoice.h"
#include "livecontrol/web/GUI_PageDialog.h"

#include <QList>

#include <vector>

class DOC_Interface;

/// Edits the comments of documents. Nothing reaches a document before comment_ok().
///
/// It is the script object `comment_mediator` of its page. A record is a document with the text that is being
/// edited; its number counts from 1.
class GUI_CommentDialog : public GUI_PageDialog {
    Q_OBJECT

public:
    /// For the selected documents, or with a document for all that are open, of which that one is the current
    /// one. Throws what the host throws.
    explicit GUI_CommentDialog(HostObject* host, DOC_Interface* document = nullptr);

public slots:
    void populateJavaScriptWindowObject() override;
    /// The text of the current record, with line feeds; empty without one.
    QString getComment();
    /// Takes the text for every selected record.
    void setComment(const QString& comment);
    void setSelectedItems(const QList<int>& ids);
    QList<int> getSelectedItems() { return m_choice.selected(); }
    /// JSON: the documents, and which of them is the current one.
    QString getDocInfos();
    /// True if the documents are those that the user selected before.
    bool isForSelection() { return m_isForSelection; }
    /// Gives the documents their comments and closes. What a document didn't take keeps the dialog open.
    void comment_ok();     // NOLINT(readability-identifier-naming): the name is given
    void comment_cancel(); // NOLINT(readability-identifier-naming)
    QString getStyle() override;

private:
    struct Record {
        DOCKEY key;
        QString comment;
    };

    void readRecords(DOC_Interface* document);
    QString nameOf(DOCKEY key);
    bool store(const Record& record);

    std::vector<Record> m_records;
    RecordChoice m_choice;
    DOCKEY m_document = 0; ///< The one given; of use only if they are not the selected ones.
    bool m_isForSelection;
};

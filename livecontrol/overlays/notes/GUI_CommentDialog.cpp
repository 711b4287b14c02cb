#include "livecontrol/overlays/notes/GUI_CommentDialog.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

namespace {
const Qt::WindowFlags kFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
const QString kLineBreak = QStringLiteral("{Separator}"); // as a document keeps it
} // namespace

GUI_CommentDialog::GUI_CommentDialog(HostObject* host, DOC_Interface* document)
    : GUI_PageDialog(host, QStringLiteral("Comment"), host->getDialogParent(), kFlags),
      m_isForSelection(!document) {
    readRecords(document);
    setFixedSize(340, 440);
    loadPage(QStringLiteral("qrc:/commentview.html"));
}

void GUI_CommentDialog::readRecords(DOC_Interface* document) {
    if (document) {
        m_document = m_host->keyOfDocument(document);
    }
    const QList<DOCKEY> keys = document ? m_host->listCameraKeys(true, false) : m_host->getSelectedKeys(true);
    for (const DOCKEY key : keys) {
        DOC_Interface* const each = m_host->docByKey(key, true);
        if (!each) { // it just went
            continue;
        }
        QString comment = docAs<DOC_Geometry>(each).getComment();
        comment.replace(kLineBreak, QStringLiteral("\n"));
        m_records.push_back({m_host->keyOfDocument(each), comment});
    }
}

void GUI_CommentDialog::populateJavaScriptWindowObject() {
    addToPage(QStringLiteral("comment_mediator"), this);
}

QString GUI_CommentDialog::getComment() {
    const int record = m_choice.current();
    return record >= 1 && record <= int(m_records.size()) ? m_records[size_t(record) - 1].comment : QString();
}

void GUI_CommentDialog::setComment(const QString& comment) {
    const QList<int> selected = m_choice.selected();
    for (const int record : selected) {
        if (record >= 1 && record <= int(m_records.size())) {
            m_records[size_t(record) - 1].comment = comment;
        }
    }
}

void GUI_CommentDialog::setSelectedItems(const QList<int>& ids) { m_choice.select(ids); }

QString GUI_CommentDialog::nameOf(DOCKEY key) {
    DOC_Interface* const document = m_host->docByKey(key, true);
    return document ? document->getDisplayName() : QString();
}

QString GUI_CommentDialog::getDocInfos() {
    return guarded(
        [this] {
            DOC_Interface* const current = m_isForSelection ? m_host->currentDocument() : nullptr;
            const bool hasCurrent = !m_isForSelection || current;
            const DOCKEY wanted = current ? m_host->keyOfDocument(current) : m_document;
            QJsonArray rows;
            int first = 0;
            for (const Record& record : m_records) {
                const int recid = rows.size() + 1;
                rows.append(QJsonObject{{QStringLiteral("recid"), recid},
                                        {QStringLiteral("name"), nameOf(record.key)}});
                if (hasCurrent && first == 0 && record.key == wanted) {
                    first = recid;
                }
            }
            return json::compact(
                QJsonObject{{QStringLiteral("Records"), rows}, {QStringLiteral("InitSelect"), first}});
        },
        QString());
}

bool GUI_CommentDialog::store(const Record& record) {
    return guarded(
        [&] {
            if (DOC_Interface* const document = m_host->docByKey(record.key, true)) {
                docAs<DOC_Geometry>(document).setComment(record.comment);
            }
            return true;
        },
        false);
}

void GUI_CommentDialog::comment_ok() {
    bool stored = true;
    for (const Record& record : m_records) {
        stored = store(record) && stored;
    }
    if (stored) {
        accept();
    }
}

void GUI_CommentDialog::comment_cancel() { reject(); }

QString GUI_CommentDialog::getStyle() {
    return guarded([this] { return style(); }, QStringLiteral("light"));
}

#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

class Document;
class DocumentList;
class Preferences;
class QCheckBox;
class QLabel;
class QPushButton;
class QSpinBox;

/// How the current recording replays: from where to where, again and again or once, and how fast.
class PlayControls : public QWidget {
    Q_OBJECT

public:
    /// Both outlive it.
    PlayControls(DocumentList& documents, Preferences& preferences, QWidget* parent = nullptr);

    /// Shows what the document and the preferences say now; a field that is typed into is left alone.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* addButton(const QString& name, const std::function<void(Document&)>& act);
    void watch(Document* document);
    void retranslate();

    DocumentList& m_documents;
    Preferences& m_preferences;
    QPointer<Document> m_document;
    QPushButton* m_trigger;
    QPushButton* m_in;
    QPushButton* m_out;
    QPushButton* m_all;
    QLabel* m_range;
    QCheckBox* m_loop;
    QLabel* m_speedLabel;
    QSpinBox* m_speed;
};

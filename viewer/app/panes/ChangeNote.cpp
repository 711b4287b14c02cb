#include "viewer/app/panes/ChangeNote.h"

#include "livecontrol/foundation/UTL_Format.h"
#include "viewer/messages/Translated.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

ChangeNote::ChangeNote(QWidget* parent)
    : QWidget(parent), m_text(new QLabel), m_undo(new QPushButton(translated("Undo"))) {
    setObjectName(QStringLiteral("changeNote"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setMinimumWidth(0);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_undo->setObjectName(QStringLiteral("changeUndo"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_undo);
    connect(m_undo, &QPushButton::clicked, this, &ChangeNote::undoAsked);
    hide();
}

void ChangeNote::setLine(const QString& line) {
    m_line = line;
    setToolTip(asMarkup(line));
    setVisible(!line.isEmpty());
    showLine();
}

void ChangeNote::showLine() {
    m_text->setText(m_text->fontMetrics().elidedText(m_line, Qt::ElideRight, m_text->width()));
}

void ChangeNote::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_undo->setText(translated("Undo"));
    }
}

void ChangeNote::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layout()->activate(); // the text's width follows only then
    showLine();
}

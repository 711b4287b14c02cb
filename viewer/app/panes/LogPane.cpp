#include "viewer/app/panes/LogPane.h"

#include "viewer/app/look/AppStyle.h"
#include "viewer/messages/Translated.h"

#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

enum Choice { Everything, UserAndOperations, WarningsAndErrors };

bool isOperation(const QString& text) {
    return text.startsWith(QLatin1String("[USER]")) || text.startsWith(QLatin1String("[ENTER]")) ||
           text.startsWith(QLatin1String("[LEAVE]"));
}

QColor colorOf(const LogStore::Line& line) {
    const bool dark = AppStyle::isDark();
    if (line.type == QtWarningMsg) {
        return dark ? QColor(0xf5c26b) : QColor(0x8a5300);
    }
    if (line.type != QtDebugMsg && line.type != QtInfoMsg) {
        return dark ? QColor(0xff9a94) : QColor(0xa3201a);
    }
    if (line.text.startsWith(QLatin1String("[USER]"))) {
        return dark ? QColor(0x8cc8ff) : QColor(0x0a58a5);
    }
    return QColor();
}

} // namespace

LogPane::LogPane(LogStore& log, QWidget* parent)
    : QWidget(parent), m_log(log), m_choice(new QComboBox), m_clear(new QToolButton),
      m_text(new QPlainTextEdit) {
    m_text->setObjectName(QStringLiteral("logText"));
    m_text->setReadOnly(true);
    m_text->setUndoRedoEnabled(false);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setMaximumBlockCount(LogStore::Limit);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_choice->addItems({QString(), QString(), QString()});
    m_clear->setAutoRaise(true);

    auto* const bar = new QHBoxLayout;
    bar->setContentsMargins(4, 3, 4, 3);
    bar->addWidget(m_choice);
    bar->addStretch();
    bar->addWidget(m_clear);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(m_text);

    connect(&m_log, &LogStore::lineAdded, this, &LogPane::append);
    connect(&m_log, &LogStore::cleared, this, &LogPane::clear);
    // The range changes without a new line too: a wide line brings the lower scroll bar, which covers the
    // last.
    const QScrollBar* const scroller = m_text->verticalScrollBar();
    connect(scroller, &QScrollBar::rangeChanged, this, &LogPane::follow);
    connect(scroller, &QScrollBar::valueChanged, this,
            [this, scroller](int value) { m_follows = value >= scroller->maximum(); });
    connect(m_clear, &QToolButton::clicked, this, &LogPane::clear);
    connect(m_choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &LogPane::fill);
    retranslate();
    fill();
}

bool LogPane::isShown(const LogStore::Line& line) const {
    switch (m_choice->currentIndex()) {
    case UserAndOperations:
        return isOperation(line.text);
    case WarningsAndErrors:
        return line.type != QtDebugMsg && line.type != QtInfoMsg;
    default:
        return true;
    }
}

void LogPane::append(const LogStore::Line& line) {
    if (line.number <= m_taken) {
        return;
    }
    m_taken = line.number;
    if (!isShown(line)) {
        return;
    }
    const bool follows = m_follows; // the bar moves while the text grows
    QTextCursor cursor(m_text->document());
    cursor.movePosition(QTextCursor::End);
    if (!m_text->document()->isEmpty()) {
        cursor.insertBlock();
    }
    QTextCharFormat format;
    const QColor color = colorOf(line);
    if (color.isValid()) {
        format.setForeground(color);
    }
    cursor.insertText(line.text, format);
    m_follows = follows;
    follow();
}

void LogPane::follow() {
    if (m_follows) {
        QScrollBar* const bar = m_text->verticalScrollBar();
        bar->setValue(bar->maximum());
    }
}

void LogPane::fill() {
    m_follows = true;
    m_text->clear();
    m_taken = m_clearedAt;
    for (const LogStore::Line& line : m_log.lines()) {
        append(line);
    }
}

// The log itself stays: it goes into the support file.
void LogPane::clear() {
    m_clearedAt = m_taken = m_log.count();
    m_text->clear();
}

void LogPane::retranslate() {
    const QSignalBlocker blocker(m_choice);
    m_choice->setItemText(Everything, translated("Everything"));
    m_choice->setItemText(UserAndOperations, translated("Operations"));
    m_choice->setItemText(WarningsAndErrors, translated("Warnings and errors"));
    m_choice->setAccessibleName(translated("Lines to show"));
    m_clear->setText(translated("Clear"));
    m_text->setAccessibleName(translated("Log"));
}

void LogPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::PaletteChange) {
        fill();
    }
}

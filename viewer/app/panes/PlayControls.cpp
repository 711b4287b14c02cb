#include "viewer/app/panes/PlayControls.h"

#include "viewer/documents/DocumentList.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

const QString kSpeed = QStringLiteral("recording/playbackRate");

} // namespace

PlayControls::PlayControls(DocumentList& documents, Preferences& preferences, QWidget* parent)
    : QWidget(parent), m_documents(documents), m_preferences(preferences), m_range(new QLabel),
      m_loop(new QCheckBox), m_speedLabel(new QLabel), m_speed(new QSpinBox) {
    setObjectName(QStringLiteral("playControls"));
    m_trigger = addButton(QStringLiteral("toTrigger"),
                          [](Document& document) { document.setPlayPosition(document.triggerIndex()); });
    m_in = addButton(QStringLiteral("rangeIn"), [](Document& document) {
        const int first = document.playPosition();
        document.setPlayed(first, document.lastPlayed() < first ? -1 : document.lastPlayed());
    });
    m_out = addButton(QStringLiteral("rangeOut"), [](Document& document) {
        document.setPlayed(qMin(document.firstPlayed(), document.playPosition()), document.playPosition());
    });
    m_all = addButton(QStringLiteral("rangeAll"), [](Document& document) { document.setPlayed(0, -1); });
    m_loop->setObjectName(QStringLiteral("playLoop"));
    m_speed->setObjectName(QStringLiteral("playSpeed"));
    m_speed->setRange(1, 240);
    m_speedLabel->setBuddy(m_speed);
    m_range->setTextFormat(Qt::PlainText);

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    int column = 0;
    for (QPushButton* const button : {m_trigger, m_in, m_out, m_all}) {
        grid->addWidget(button, 0, column++);
    }
    grid->addWidget(m_range, 1, 0, 1, 2);
    grid->addWidget(m_loop, 1, 2, 1, 2);
    grid->addWidget(m_speedLabel, 2, 0, 1, 2);
    grid->addWidget(m_speed, 2, 2, 1, 2);

    connect(m_loop, &QCheckBox::clicked, this, [this](bool on) {
        if (m_document) {
            m_document->setLooping(on);
        }
    });
    connect(m_speed, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int value) { m_preferences.setValue(kSpeed, value); });
    connect(&m_documents, &DocumentList::currentChanged, this, &PlayControls::watch);
    connect(&m_documents, &DocumentList::modeChanged, this, [this] { watch(m_documents.current()); });
    retranslate();
    watch(m_documents.current());
}

QPushButton* PlayControls::addButton(const QString& name, const std::function<void(Document&)>& act) {
    auto* const button = new QPushButton;
    button->setObjectName(name);
    button->setMinimumWidth(20);
    connect(button, &QPushButton::clicked, this, [this, act] {
        if (m_document) {
            act(*m_document);
        }
    });
    return button;
}

void PlayControls::watch(Document* document) {
    if (m_document) {
        disconnect(m_document, nullptr, this, nullptr);
    }
    m_document = document;
    if (document) {
        connect(document, &Document::playingChanged, this, &PlayControls::refresh);
    }
    refresh();
}

void PlayControls::refresh() {
    const bool isThere = m_document && m_document->recordedFrames() > 0;
    for (QWidget* const widget :
         {static_cast<QWidget*>(m_trigger), static_cast<QWidget*>(m_in), static_cast<QWidget*>(m_out),
          static_cast<QWidget*>(m_all), static_cast<QWidget*>(m_loop)}) {
        widget->setEnabled(isThere);
    }
    m_loop->setChecked(m_document && m_document->isLooping());
    const DisplayFormat format = m_documents.displayFormat();
    m_range->setText(isThere ? QStringLiteral("%1 \u2013 %2")
                                   .arg(format.frames(m_document->firstPlayed() + 1),
                                        format.frames(m_document->lastPlayed() + 1))
                             : QString());
    const int speed = m_preferences.value(kSpeed).toInt();
    if (m_speed->value() != speed) { // or what is half typed there would go
        const QSignalBlocker blocker(m_speed);
        m_speed->setValue(speed);
    }
}

void PlayControls::retranslate() {
    m_trigger->setText(translated("Trigger"));
    m_trigger->setToolTip(translated("Go to the trigger"));
    m_in->setText(translated("From here"));
    m_in->setToolTip(translated("The replay begins at this frame"));
    m_out->setText(translated("To here"));
    m_out->setToolTip(translated("The replay ends at this frame"));
    m_all->setText(translated("All"));
    m_all->setToolTip(translated("Replay all frames"));
    m_loop->setText(translated("Again and again"));
    m_speedLabel->setText(translated("Replay speed"));
    m_speed->setSuffix(QLatin1Char(' ') + translated("fps"));
    m_speed->setAccessibleName(translated("Replay speed"));
    refresh();
}

void PlayControls::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

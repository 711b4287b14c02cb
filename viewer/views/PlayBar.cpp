#include "viewer/views/PlayBar.h"

#include "viewer/documents/Document.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/messages/Translated.h"
#include "viewer/views/DocumentText.h"
#include "viewer/views/MarkSlider.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace {
constexpr int kMarksTold = 12;
}

PlayBar::PlayBar(Document& document, const IconSource& icons, QWidget* parent)
    : QFrame(parent), m_document(document), m_icons(icons), m_slider(new MarkSlider), m_label(new QLabel) {
    setObjectName(QStringLiteral("playBar"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 8, 2);
    layout->setSpacing(2);
    m_first = addButton(QStringLiteral("first"), [this] { m_document.setPlayPosition(0); });
    m_back = addButton(QStringLiteral("previous"),
                       [this] { m_document.setPlayPosition(m_document.playPosition() - 1); });
    m_play = addButton(QStringLiteral("play"), [this] { m_document.setPlaying(!m_document.isPlaying()); });
    m_forward = addButton(QStringLiteral("next"),
                          [this] { m_document.setPlayPosition(m_document.playPosition() + 1); });
    for (QToolButton* const button : {m_back, m_forward}) {
        button->setAutoRepeat(true);
    }
    layout->addWidget(m_slider, 1);
    layout->addSpacing(6);
    layout->addWidget(m_label);
    m_label->setTextFormat(Qt::PlainText);

    connect(m_slider, &QSlider::valueChanged, this, [this](int value) { m_document.setPlayPosition(value); });
    connect(&m_document, &Document::imageChanged, this, &PlayBar::refresh);
    connect(&m_document, &Document::playingChanged, this, &PlayBar::refresh);
    retranslate();
    refresh();
}

QToolButton* PlayBar::addButton(const QString& icon, const std::function<void()>& action) {
    auto* const button = new QToolButton;
    button->setAutoRaise(true);
    button->setIcon(m_icons(icon));
    connect(button, &QToolButton::clicked, this, action);
    layout()->addWidget(button);
    return button;
}

void PlayBar::refresh() {
    const int frames = m_document.recordedFrames();
    const QSignalBlocker blocker(m_slider);
    m_slider->setRange(0, qMax(0, frames - 1));
    m_slider->setValue(m_document.playPosition());
    m_slider->setPageStep(qMax(1, frames / 20));
    showMarks();
    setEnabled(frames > 0);
    m_label->setText(frames > 0 ? DocumentText::position(m_document) : translated("No recording"));
    m_play->setIcon(m_icons(m_document.isPlaying() ? QStringLiteral("pause") : QStringLiteral("play")));
}

bool PlayBar::press(const QKeyEvent& key) {
    const bool isRecording = m_document.list().mode() != HOST_MODE_LIVE && m_document.recordedFrames() > 0;
    if (!isRecording) {
        return false;
    }
    if (key.key() == Qt::Key_M && key.modifiers() == Qt::NoModifier) {
        if (!key.isAutoRepeat()) {
            m_document.toggleMark(m_document.playPosition());
        }
        return true;
    }
    if (key.key() == Qt::Key_N && !(key.modifiers() & ~Qt::ShiftModifier) && !m_document.marks().isEmpty()) {
        goToMark(key.modifiers() == Qt::NoModifier);
        return true;
    }
    return !(key.modifiers() & ~Qt::KeypadModifier) && step(key.key());
}

bool PlayBar::step(int key) {
    static const QHash<int, QAbstractSlider::SliderAction> kActions{
        {Qt::Key_Left, QAbstractSlider::SliderSingleStepSub},
        {Qt::Key_Right, QAbstractSlider::SliderSingleStepAdd},
        {Qt::Key_PageUp, QAbstractSlider::SliderPageStepAdd},
        {Qt::Key_PageDown, QAbstractSlider::SliderPageStepSub},
        {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
        {Qt::Key_End, QAbstractSlider::SliderToMaximum}};
    const auto found = kActions.constFind(key);
    if (found == kActions.constEnd()) {
        return false;
    }
    m_slider->triggerAction(*found);
    return true;
}

// After the last one comes the first.
void PlayBar::goToMark(bool next) {
    const QVector<int> marks = m_document.marks();
    const int here = m_document.playPosition();
    if (next) {
        const auto found = std::upper_bound(marks.begin(), marks.end(), here);
        m_document.setPlayPosition(found == marks.end() ? marks.first() : *found);
    } else {
        const auto found = std::lower_bound(marks.begin(), marks.end(), here);
        m_document.setPlayPosition(found == marks.begin() ? marks.last() : *(found - 1));
    }
}

void PlayBar::showMarks() {
    const QVector<int> marks = m_document.recordedFrames() > 0 ? m_document.marks() : QVector<int>();
    m_slider->setMarks(marks);
    QStringList numbers;
    for (const int mark : marks.mid(0, kMarksTold)) {
        numbers.append(QString::number(mark + 1));
    }
    if (marks.size() > numbers.size()) {
        numbers.append(QStringLiteral("\u2026"));
    }
    m_slider->setToolTip(marks.isEmpty()
                             ? translated("M marks the frame that shows")
                             : translated("Marked: %1. N goes to the next one, Shift+N to the one before.")
                                   .arg(numbers.join(QStringLiteral(", "))));
}

void PlayBar::retranslate() {
    m_first->setToolTip(translated("First frame"));
    m_back->setToolTip(translated("One frame back"));
    m_play->setToolTip(translated("Play or pause"));
    m_forward->setToolTip(translated("One frame forward"));
    m_slider->setAccessibleName(translated("Frame"));
    for (QToolButton* const button : {m_first, m_back, m_play, m_forward}) {
        button->setAccessibleName(button->toolTip());
    }
}

void PlayBar::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        refresh();
    }
}

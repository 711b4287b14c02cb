#include "viewer/app/jobs/JobsDialog.h"

#include "livecontrol/foundation/UTL_Format.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/messages/Translated.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QString timeText(double seconds) {
    const int whole = qMax(1, qRound(seconds));
    return whole < 60 ? translated("%1 s").arg(whole)
                      : translated("%1 min %2 s").arg(whole / 60).arg(whole % 60);
}

QString runningNote(const ExportJobs::Entry& entry) {
    QString note = translated("%1 of %2 frames").arg(entry.done).arg(entry.total);
    if (entry.remaining() >= 0 && entry.done < entry.total) {
        note += QStringLiteral(", ") + translated("%1 frames/s").arg(entry.framesPerSecond(), 0, 'f', 1);
        note += QStringLiteral(", ") + translated("%1 left").arg(timeText(entry.remaining()));
    }
    return note;
}

QString failureNote(const ExportJobs::Entry& entry) {
    const QString left = JobsDialog::leftText(entry);
    return QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(entry.failedPath),
                                        translated(entry.failure)) +
           (left.isEmpty() ? left : QLatin1Char('\n') + left);
}

QString noteOf(const ExportJobs::Entry& entry) {
    switch (entry.state) {
    case ExportJob::State::Waiting:
        return translated("Waiting");
    case ExportJob::State::Done:
        return entry.done == 1 ? translated("Saved, 1 frame")
                               : translated("Saved, %1 frames").arg(entry.done);
    case ExportJob::State::Canceled:
        return translated("Canceled after %1 of %2 frames").arg(entry.done).arg(entry.total);
    case ExportJob::State::Failed:
        return failureNote(entry);
    default:
        return runningNote(entry);
    }
}

} // namespace

// Single pictures stay; a file that is not complete is taken away.
QString JobsDialog::leftText(const ExportJobs::Entry& job) {
    ExportFormat format{};
    const bool isLeft = job.state == ExportJob::State::Failed && job.done > 0 &&
                        ExportFormats::fromSuffix(QFileInfo(job.path).suffix(), format) &&
                        ExportFormats::isSequence(format);
    return isLeft ? translated("%1 of %2 pictures were written and stay.").arg(job.done).arg(job.total)
                  : QString();
}

JobsDialog::JobsDialog(ExportJobs& jobs, RecordingShelf* shelf, QWidget* parent)
    : QDialog(parent), m_jobs(jobs), m_shelf(shelf), m_none(new QLabel), m_clear(new QPushButton) {
    setObjectName(QStringLiteral("jobsDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(520, 320);
    auto* const content = new QWidget;
    m_rows = new QVBoxLayout(content);
    m_rows->addWidget(m_none);
    m_rows->addStretch();
    auto* const scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(content);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(scroll);
    layout->addWidget(m_clear, 0, Qt::AlignRight);
    m_clear->setAutoDefault(false);
    connect(m_clear, &QPushButton::clicked, this, &JobsDialog::clearEnded);
    connect(&m_jobs, &ExportJobs::changed, this, &JobsDialog::refresh);
    if (m_shelf) {
        connect(m_shelf, &RecordingShelf::progressed, this, &JobsDialog::refresh);
        connect(m_shelf, &RecordingShelf::changed, this, &JobsDialog::refresh);
    }
    m_settled.setSingleShot(true);
    connect(&m_settled, &QTimer::timeout, this, &JobsDialog::refresh);
    refresh();
}

// What is read out of cameras has numbers of its own: below zero here.
QList<ExportJobs::Entry> JobsDialog::entries() const {
    QList<ExportJobs::Entry> all = m_jobs.list();
    for (ExportJobs::Entry keeping : m_shelf ? m_shelf->keepings() : QList<ExportJobs::Entry>()) {
        keeping.id = -keeping.id;
        all.append(keeping);
    }
    // What goes on stands on top, then what failed; of what has ended the latest comes first.
    const auto rank = [](const ExportJobs::Entry& entry) {
        return entry.state == ExportJob::State::Failed    ? 2
               : entry.isEnded()                          ? 3
               : entry.state == ExportJob::State::Waiting ? 1
                                                          : 0;
    };
    std::stable_sort(all.begin(), all.end(),
                     [&](const ExportJobs::Entry& left, const ExportJobs::Entry& right) {
                         return rank(left) != rank(right) ? rank(left) < rank(right)
                                                          : left.isEnded() && left.id > right.id;
                     });
    return all;
}

JobsDialog::Row JobsDialog::addRow(int id) {
    Row row;
    row.box = new QWidget;
    row.box->setObjectName(QStringLiteral("job%1").arg(id));
    row.title = new QLabel;
    row.title->setTextFormat(Qt::PlainText);
    row.title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    row.note = new QLabel;
    row.note->setTextFormat(Qt::PlainText);
    row.note->setWordWrap(true);
    row.bar = new QProgressBar;
    row.button = new QPushButton;
    row.button->setAutoDefault(false);
    auto* const grid = new QGridLayout(row.box);
    grid->setContentsMargins(0, 0, 0, 6);
    grid->addWidget(row.title, 0, 0);
    grid->addWidget(row.bar, 1, 0);
    grid->addWidget(row.note, 2, 0);
    grid->addWidget(row.button, 1, 1);
    grid->setColumnStretch(0, 1);
    connect(row.button, &QPushButton::clicked, this, [this, id] { onButton(id); });
    m_rows->insertWidget(m_shown.size(), row.box);
    return row;
}

void JobsDialog::refresh() {
    setWindowTitle(translated("Jobs"));
    m_clear->setText(translated("Clear ended jobs"));
    m_none->setText(translated("There are no jobs."));
    const QList<ExportJobs::Entry> entries = this->entries();
    QHash<int, Row> gone = m_shown;
    bool isAnyEnded = false;
    for (const ExportJobs::Entry& entry : entries) {
        if (!m_shown.contains(entry.id)) {
            m_shown.insert(entry.id, addRow(entry.id));
        }
        gone.remove(entry.id);
        const int place = &entry - &entries.first();
        if (!m_settled.isActive() && m_rows->indexOf(m_shown.value(entry.id).box) != place) {
            m_rows->insertWidget(place, m_shown.value(entry.id).box);
        }
        showEntry(m_shown.value(entry.id), entry);
        isAnyEnded = isAnyEnded || entry.isEnded();
    }
    dropGone(gone);
    m_none->setVisible(entries.isEmpty());
    m_clear->setEnabled(isAnyEnded);
}

void JobsDialog::dropGone(const QHash<int, Row>& gone) {
    for (auto row = gone.cbegin(); row != gone.cend(); ++row) {
        if (m_settled.isActive()) { // what is below would move up
            row->button->setEnabled(false);
            continue;
        }
        m_shown.remove(row.key());
        row->box->deleteLater();
    }
}

void JobsDialog::showEntry(const Row& row, const ExportJobs::Entry& entry) const {
    row.title->setText(
        row.title->fontMetrics().elidedText(entry.title, Qt::ElideMiddle, qMax(200, row.title->width())));
    row.title->setToolTip(asMarkup(QDir::toNativeSeparators(entry.path)));
    row.note->setText(noteOf(entry));
    row.bar->setRange(0, qMax(1, entry.total));
    row.bar->setValue(entry.done);
    row.bar->setVisible(!entry.isEnded());
    row.button->setText(translated(entry.isEnded() ? "Remove" : "Cancel"));
    row.button->setAccessibleName(QStringLiteral("%1: %2").arg(row.button->text(), entry.title));
    row.button->setEnabled(entry.state != ExportJob::State::Finishing &&
                           !(m_settled.isActive() && entry.id == m_pressed));
}

// The second press of a double click must not meet another job, nor another meaning of the button: all stay
// where they are until it can't come any more.
void JobsDialog::onButton(int id) {
    m_pressed = id;
    m_settled.start(QApplication::doubleClickInterval());
    if (id < 0) {
        m_shelf->cancelKeeping(-id);
    } else if (!m_jobs.cancel(id)) {
        m_jobs.forget(id);
    }
}

void JobsDialog::clearEnded() {
    for (const ExportJobs::Entry& entry : m_jobs.list()) {
        if (entry.isEnded()) {
            m_jobs.forget(entry.id);
        }
    }
}

void JobsDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        refresh();
    }
    QDialog::changeEvent(event);
}

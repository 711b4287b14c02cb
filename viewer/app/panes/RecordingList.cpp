#include "viewer/app/panes/RecordingList.h"

#include "livecontrol/foundation/UTL_Format.h"
#include "viewer/app/look/Icons.h"
#include "viewer/app/panes/PlayControls.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/messages/Translated.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeWidget>

namespace {

enum Column { Camera, Frames, Rate, Time, State, Buttons, ColumnCount };
constexpr int kKeyRole = Qt::UserRole;
constexpr int kKeepingRole = Qt::UserRole + 1; // number of a recording that is read

QToolButton* button(const QString& icon, const QString& name) {
    auto* const made = new QToolButton;
    made->setObjectName(name);
    made->setAutoRaise(true);
    made->setIcon(Icons::get(icon));
    return made;
}

} // namespace

RecordingList::RecordingList(DocumentList& documents, RecordingShelf& shelf, Preferences& preferences,
                             QWidget* parent)
    : QWidget(parent), m_documents(documents), m_shelf(shelf), m_list(new QTreeWidget),
      m_saveAll(new QPushButton), m_progress(new QProgressBar),
      m_cancel(button(QStringLiteral("stop"), QStringLiteral("cancelRecordings"))),
      m_controls(new PlayControls(documents, preferences)), m_note(new QLabel) {
    setObjectName(QStringLiteral("recordings"));
    m_list->setObjectName(QStringLiteral("recordingList"));
    m_list->setColumnCount(ColumnCount);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(Camera, QHeaderView::Stretch);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setMinimumSectionSize(20);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->viewport()->installEventFilter(this);
    m_saveAll->setObjectName(QStringLiteral("saveAllRecordings"));
    m_progress->setObjectName(QStringLiteral("recordingProgress"));
    m_note->setObjectName(QStringLiteral("dim"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);

    auto* const work = new QHBoxLayout;
    work->addWidget(m_progress, 1);
    work->addWidget(m_cancel);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(6, 6, 6, 6);
    rows->addWidget(m_list, 1);
    rows->addLayout(work);
    rows->addWidget(m_saveAll);
    rows->addWidget(m_controls);
    rows->addWidget(m_note);

    m_fillSoon.setSingleShot(true);
    const auto soon = [this] { m_fillSoon.start(0); };
    connect(&m_fillSoon, &QTimer::timeout, this, &RecordingList::fill);
    connect(&m_shelf, &RecordingShelf::changed, this, soon);
    connect(&m_shelf, &RecordingShelf::progressed, this, &RecordingList::showProgress);
    connect(&m_documents, &DocumentList::documentAdded, this, soon);
    connect(&m_documents, &DocumentList::documentRemoved, this, soon);
    connect(&m_documents, &DocumentList::currentChanged, this, soon);
    connect(m_cancel, &QToolButton::clicked, &m_shelf, &RecordingShelf::cancelJobs);
    connect(m_saveAll, &QPushButton::clicked, this, &RecordingList::saveAllAsked);
    connect(m_list, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* row) {
        const Document* const document = m_documents.find(row->data(Camera, kKeyRole).toUInt());
        if (document) {
            emit showAsked(static_cast<FileDocument*>(m_documents.find(document->key())));
        }
    });
    connect(m_list, &QTreeWidget::itemClicked, m_list, &QTreeWidget::itemActivated);
    retranslate();
    showProgress();
}

void RecordingList::setNote(const QString& text) { m_note->setText(text); }

void RecordingList::refreshReplay() { m_controls->refresh(); }

void RecordingList::fill() {
    const int scrolled = m_list->verticalScrollBar()->value();
    m_list->clear();
    bool isUnsaved = false;
    for (FileDocument* const document : m_documents.recordings()) {
        auto* const row = new QTreeWidgetItem(m_list);
        fillRow(*row, *document);
        addButtons(*row, *document);
        row->setSelected(document == m_documents.current());
        isUnsaved = isUnsaved || !document->isSaved();
    }
    for (const ExportJobs::Entry& keeping : m_shelf.keepings()) {
        auto* const row = new QTreeWidgetItem(m_list);
        row->setData(Camera, kKeepingRole, keeping.id);
        row->setFlags(Qt::NoItemFlags); // there is nothing to show yet
        addCancel(*row, keeping);
    }
    showKeepings();
    fitColumns();
    m_saveAll->setEnabled(isUnsaved);
    m_list->verticalScrollBar()->setValue(scrolled);
}

/// State and buttons are never out of sight: a narrow list does without time and rate, which the hint tells
/// too.
void RecordingList::fitColumns() {
    constexpr int kLeastName = 110;
    const auto widthOf = [this](int column) {
        const QAbstractItemView& view = *m_list; // a tree's own is hidden
        return qMax(view.sizeHintForColumn(column), m_list->header()->sectionSizeHint(column));
    };
    int wanted = kLeastName;
    for (int column = Camera + 1; column < ColumnCount; ++column) {
        wanted += widthOf(column);
    }
    for (const Column column : {Rate, Time}) {
        const bool isTooMuch = wanted > m_list->viewport()->width();
        wanted -= isTooMuch ? widthOf(column) : 0;
        m_list->setColumnHidden(column, isTooMuch);
    }
    showTitles();
}

/// Recordings of one camera are told apart by their time, with the name where its column has no room.
void RecordingList::showTitles() {
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem& row = *m_list->topLevelItem(i);
        const Document* const document = m_documents.find(row.data(Camera, kKeyRole).toUInt());
        if (document && row.data(Camera, kKeepingRole).isNull()) {
            const QString time = m_list->isColumnHidden(Time) ? row.text(Time) : QString();
            row.setText(Camera, (document->title() + QLatin1Char(' ') + time).trimmed());
        }
    }
}

bool RecordingList::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == m_list->viewport()) {
        fitColumns();
    }
    return QWidget::eventFilter(watched, event);
}

void RecordingList::fillRow(QTreeWidgetItem& row, FileDocument& document) {
    const RecordingInfo& info = document.source()->info();
    const DisplayFormat format = m_documents.displayFormat();
    row.setData(Camera, kKeyRole, document.key());
    row.setText(Camera, document.title());
    const QString name = document.path().isEmpty() ? document.title() : document.path();
    row.setToolTip(Camera,
                   asMarkup(QStringLiteral("%1\n%2 %3, %4")
                                .arg(name, format.rate(info.rate), translated("fps"),
                                     info.triggered.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")))));
    const bool isPart = info.recordedFrames > info.frames;
    row.setText(
        Frames,
        isPart ? translated("%1 of %2").arg(format.frames(info.frames), format.frames(info.recordedFrames))
               : format.frames(info.frames));
    row.setText(Rate, format.rate(info.rate));
    row.setText(Time, info.triggered.toString(QStringLiteral("HH:mm:ss")));
    row.setToolTip(Time, info.triggered.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")));
    row.setText(State, !document.isSaved() ? translated("Not saved")
                       : document.isCut()  ? translated("Cut off")
                                           : translated("Saved"));
    if (document.isCut()) {
        row.setToolTip(State, translated("The file was cut off: its last frames are missing."));
    }
    for (const Column column : {Frames, Rate}) {
        row.setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
}

void RecordingList::addButtons(QTreeWidgetItem& row, FileDocument& document) {
    auto* const holder = new QWidget;
    auto* const layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const auto add = [&](const QString& icon, const char* name, const QString& text,
                         void (RecordingList::*asked)(FileDocument*)) {
        QToolButton* const made = button(icon, QLatin1String(name));
        made->setToolTip(text);
        made->setAccessibleName(QStringLiteral("%1 (%2)").arg(text, document.title()));
        layout->addWidget(made);
        connect(made, &QToolButton::clicked, this, [this, asked, key = document.key()] {
            if (Document* const it = m_documents.find(key)) {
                emit(this->*asked)(static_cast<FileDocument*>(it));
            }
        });
    };
    add(QStringLiteral("keep"), "saveRecording", translated("Save recording..."), &RecordingList::saveAsked);
    add(QStringLiteral("close"), "closeRecording", translated("Close"), &RecordingList::closeAsked);
    m_list->setItemWidget(&row, Buttons, holder);
}

void RecordingList::addCancel(QTreeWidgetItem& row, const ExportJobs::Entry& keeping) {
    QToolButton* const cancel = button(QStringLiteral("stop"), QStringLiteral("cancelKeeping"));
    cancel->setToolTip(translated("Cancel"));
    cancel->setAccessibleName(QStringLiteral("%1 (%2)").arg(translated("Cancel"), keeping.title));
    connect(cancel, &QToolButton::clicked, this, [this, id = keeping.id] { m_shelf.cancelKeeping(id); });
    m_list->setItemWidget(&row, Buttons, cancel);
}

/// How far those are that are read. Rows come and go with fill().
void RecordingList::showKeepings() {
    const DisplayFormat format = m_documents.displayFormat();
    QHash<int, ExportJobs::Entry> keepings;
    for (const ExportJobs::Entry& keeping : m_shelf.keepings()) {
        keepings.insert(keeping.id, keeping);
    }
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem& row = *m_list->topLevelItem(i);
        const auto keeping = keepings.constFind(row.data(Camera, kKeepingRole).toInt());
        if (keeping != keepings.cend()) {
            row.setText(Camera, keeping->title);
            row.setToolTip(Camera, asMarkup(keeping->title));
            row.setText(
                Frames,
                translated("%1 of %2").arg(format.frames(keeping->done), format.frames(keeping->total)));
            row.setTextAlignment(Frames, Qt::AlignRight | Qt::AlignVCenter);
            row.setText(State, translated("Being read"));
        }
    }
}

void RecordingList::showProgress() {
    showKeepings();
    const RecordingShelf::Progress progress = m_shelf.progress();
    m_progress->setRange(0, qMax(1, progress.total));
    m_progress->setValue(progress.done);
    m_progress->setFormat(progress.text);
    m_progress->setVisible(progress.total > 0);
    m_cancel->setVisible(progress.total > 0);
}

void RecordingList::retranslate() {
    m_list->setHeaderLabels({translated("Recording"), translated("Frames"), translated("fps"),
                             translated("Time"), translated("State"), QString()});
    m_list->setAccessibleName(translated("Recordings"));
    m_saveAll->setText(translated("Save all..."));
    m_cancel->setToolTip(translated("Cancel"));
    m_cancel->setAccessibleName(translated("Cancel"));
    fill();
}

void RecordingList::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::PaletteChange) {
        m_cancel->setIcon(Icons::get(QStringLiteral("stop")));
        m_fillSoon.start(0);
    }
}

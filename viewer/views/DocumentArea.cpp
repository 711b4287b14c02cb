#include "viewer/views/DocumentArea.h"

#include "viewer/documents/DocumentList.h"
#include "viewer/messages/Translated.h"
#include "viewer/views/DocumentWindow.h"
#include "viewer/views/ImageView.h"

#include <QEvent>
#include <QLabel>
#include <QtMath>

namespace {

constexpr int kGap = 3;
constexpr int kMadeAtOnce = 2;
// Cameras have pictures of about this shape; a tile is best when it has it, too.
constexpr double kPictureAspect = 4.0 / 3.0;

} // namespace

DocumentArea::DocumentArea(DocumentList& documents, ViewClient& client, PlayBar::IconSource icons,
                           QWidget* parent)
    : QWidget(parent), m_documents(documents), m_client(client), m_icons(std::move(icons)),
      m_pacer(documents), m_empty(new QLabel(this)) {
    setObjectName(QStringLiteral("documentArea"));
    setMinimumSize(240, 180);
    m_empty->setObjectName(QStringLiteral("emptyArea"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    // Several signals of one change lead to one new arrangement.
    m_arrangeSoon.setSingleShot(true);
    connect(&m_arrangeSoon, &QTimer::timeout, this, &DocumentArea::arrange);
    const auto soon = [this] { m_arrangeSoon.start(0); };
    connect(&m_documents, &DocumentList::selectionChanged, this, soon);
    connect(&m_documents, &DocumentList::currentChanged, this, soon);
    connect(&m_documents, &DocumentList::modeChanged, this, soon);
    connect(&m_documents, &DocumentList::connectionChanged, this, soon);
    connect(&m_documents, &DocumentList::documentRemoved, this, &DocumentArea::removeWindow);
    connect(&m_cycle, &QTimer::timeout, this, &DocumentArea::showNext);
    arrange();
}

DocumentArea::~DocumentArea() = default;

void DocumentArea::setArrangement(Arrangement arrangement) {
    if (arrangement != m_arrangement) {
        m_arrangement = arrangement;
        arrange();
        emit arrangementChanged();
    }
}

void DocumentArea::setCycling(int seconds) {
    if (seconds > 0) {
        setArrangement(Arrangement::Single);
        m_cycle.start(seconds * 1000);
    } else {
        m_cycle.stop();
    }
    emit arrangementChanged();
}

void DocumentArea::showNext() {
    const QList<Document*> selected = m_documents.selected();
    if (selected.size() > 1) {
        const int next = (selected.indexOf(m_documents.current()) + 1) % selected.size();
        m_documents.setCurrent(selected.at(next));
    }
}

QList<Document*> DocumentArea::shown() const {
    if (m_arrangement == Arrangement::Tile) {
        return m_documents.selected();
    }
    Document* const current = m_documents.current();
    return current ? QList<Document*>{current} : m_documents.selected().mid(0, 1);
}

QList<DOCKEY> DocumentArea::windowKeys(bool visibleOnly) const {
    QList<DOCKEY> keys;
    for (const Document* const document : visibleOnly ? shown() : m_documents.selected()) {
        if (document == m_documents.current()) {
            keys.prepend(document->key());
        } else {
            keys.append(document->key());
        }
    }
    return keys;
}

int DocumentArea::windowCount(bool visibleOnly) const {
    const int selected = m_documents.selectedCount();
    const bool single = visibleOnly && m_arrangement == Arrangement::Single;
    return single ? int(m_documents.current() != nullptr || selected > 0) : selected;
}

ImageView* DocumentArea::view(DOCKEY key) const {
    const auto it = m_windows.find(key);
    return it == m_windows.end() || it->second->isHidden() ? nullptr : &it->second->view();
}

ImageView* DocumentArea::currentView() const { return view(m_documents.currentKey()); }

void DocumentArea::setBusyText(DOCKEY key, const QString& text) {
    if (text.isEmpty()) {
        m_busyTexts.erase(key);
    } else {
        m_busyTexts[key] = text;
    }
    for (const auto& [windowKey, window] : m_windows) {
        window->view().setBusyText(busyTextOf(windowKey));
    }
    emit busyTextChanged(busyText());
}

QString DocumentArea::busyTextOf(DOCKEY key) const {
    const auto own = m_busyTexts.find(key);
    const auto found = own == m_busyTexts.end() ? m_busyTexts.find(kInvalidDockey) : own;
    return found == m_busyTexts.end() ? QString() : found->second;
}

QString DocumentArea::busyText() const {
    return m_busyTexts.empty() ? QString() : m_busyTexts.rbegin()->second;
}

void DocumentArea::refreshAll() {
    for (const auto& entry : m_windows) {
        entry.second->view().refresh();
        entry.second->refreshTitle();
    }
}

void DocumentArea::refresh(DOCKEY key) {
    if (ImageView* const found = view(key)) {
        found->refresh();
    }
}

DocumentWindow* DocumentArea::ensureWindow(Document* document) {
    DocumentWindow*& window = m_windows[document->key()];
    if (!window) {
        window = new DocumentWindow(*document, m_client, m_pacer, m_icons, this);
        connect(window, &DocumentWindow::activated, this,
                [this](Document* which) { m_documents.setCurrent(which); });
        connect(window, &DocumentWindow::doubleClicked, this, [this](Document* which) {
            m_documents.setCurrent(which);
            setArrangement(m_arrangement == Arrangement::Tile ? Arrangement::Single : Arrangement::Tile);
        });
        window->view().setBusyText(busyTextOf(document->key()));
    }
    return window;
}

void DocumentArea::removeWindow(Document* document) {
    const auto it = m_windows.find(document->key());
    if (it != m_windows.end()) {
        delete it->second;
        m_windows.erase(it);
    }
    if (m_busyTexts.erase(document->key()) > 0) {
        emit busyTextChanged(busyText());
    }
    m_arrangeSoon.start(0);
}

// A new window makes an OpenGL context, which can take a tenth of a second in software; 64 at once would stop
// the program for as long as that takes.
void DocumentArea::arrange() {
    const QList<Document*> documents = shown();
    for (const auto& [key, window] : m_windows) {
        if (!documents.contains(&window->document())) {
            window->hide();
        }
    }
    const bool isOneOfMany = m_documents.selected().size() > 1;
    int made = 0;
    for (int i = 0; i < documents.size(); ++i) {
        if (m_windows.count(documents[i]->key()) == 0 && ++made > kMadeAtOnce) {
            m_arrangeSoon.start(0);
            break;
        }
        DocumentWindow* const window = ensureWindow(documents[i]);
        window->setGeometry(tile(i, documents.size()));
        window->setCurrent(documents[i] == m_documents.current() && isOneOfMany);
        window->show();
        window->refreshTitle();
    }
    m_empty->setText(m_documents.mode() == HOST_MODE_FILE
                         ? translated("No recording is open. Record in live mode, then keep the recording.")
                         : translated("No camera is selected. Select one in the list of the live panel."));
    m_empty->setVisible(documents.isEmpty());
    m_empty->setGeometry(rect());
}

int DocumentArea::columnsFor(int count, const QSize& area) {
    int best = 1;
    double bestSize = 0;
    for (int columns = 1; columns <= count; ++columns) {
        const int rows = (count + columns - 1) / columns;
        const double width =
            qMin(double(area.width()) / columns, double(area.height()) / rows * kPictureAspect);
        if (width > bestSize + 1e-6) {
            bestSize = width;
            best = columns;
        }
    }
    return best;
}

QRect DocumentArea::tile(int index, int count) const {
    const int columns = columnsFor(count, size());
    const int rows = (count + columns - 1) / columns;
    const int column = index % columns;
    const int row = index / columns;
    // Edges by proportion, so that the tiles fill the area to the last pixel.
    const auto edge = [](int length, int number, int of) { return (length + kGap) * number / of; };
    const QPoint from(edge(width(), column, columns), edge(height(), row, rows));
    const QPoint to(edge(width(), column + 1, columns) - kGap, edge(height(), row + 1, rows) - kGap);
    return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

void DocumentArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

void DocumentArea::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        arrange();
    }
}

#include "viewer/app/Dialogs.h"

#include "viewer/messages/Translated.h"

#include <QAction>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QFutureWatcher>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QThread>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QLabel* plainLabel(const QString& text) {
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

BusyDialog::BusyDialog(const QString& title, const QString& text, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), m_label(plainLabel(text)) {
    setWindowTitle(title);
    setModal(true);
    setMinimumWidth(320);
    auto* const bar = new QProgressBar;
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(bar);
    m_label->setVisible(!text.isEmpty());
}

void BusyDialog::setText(const QString& text) {
    m_label->setText(text);
    m_label->setVisible(!text.isEmpty());
}

void BusyDialog::runUntilFinished(QFutureWatcherBase& watcher) {
    connect(&watcher, &QFutureWatcherBase::finished, this, &QDialog::accept);
    // The signal comes through the event loop, so a job that has ended before is still reported after this
    // test.
    if (!watcher.isFinished()) {
        exec();
    }
    // Told to end, the program leaves all its event loops, but a job may still wait for something of this
    // thread.
    constexpr int kBeatMs = 20;
    while (!watcher.isFinished()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kBeatMs);
        QThread::msleep(1);
    }
}

void BusyDialog::closeEvent(QCloseEvent* event) { event->ignore(); }

void BusyDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QDialog::keyPressEvent(event);
    }
}

void showShortcuts(QWidget* parent, const QList<QAction*>& actions) {
    static constexpr std::pair<const char*, const char*> kPageKeys[] = {
        {"Shift+Click, Shift+Up, Shift+Down", "Choose a range of cameras"},
        {"Ctrl+Click, Space", "Add a camera to the choice, or take it out"},
        {"Ctrl+A", "Choose all cameras"},
        {"A to Z", "Go to the camera whose name begins so"},
        {"F2", "Edit the camera"},
        {"Del", "Take the camera out of the list"},
        {"Left, Right", "Go to the buttons of a camera's row"},
        {"Shift+F10", "Menu of the camera"},
        {"Esc", "Give a field back what stood in it"},
        {"M", "Mark the frame that shows, or take its mark away"},
        {"N, Shift+N", "Go to the next mark, or to the one before"},
        {"Left, Right, PgUp, PgDown, Home, End", "Go to another frame of the recording"},
        {"Alt+Up, Alt+Down", "Move an item of the information"},
        {"Ctrl+Return", "Take over a comment"},
    };
    QDialog dialog(parent);
    dialog.setWindowTitle(translated("Keys"));
    auto* const list = new QTreeWidget;
    list->setHeaderLabels({translated("Key"), translated("What it does")});
    list->setRootIsDecorated(false);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    for (const QAction* const action : actions) {
        if (!action->shortcut().isEmpty()) {
            list->addTopLevelItem(new QTreeWidgetItem(
                {action->shortcut().toString(QKeySequence::NativeText), action->iconText()}));
        }
    }
    for (const auto& [key, what] : kPageKeys) {
        list->addTopLevelItem(new QTreeWidgetItem({QLatin1String(key), translated(what)}));
    }
    list->header()->setResizeContentsPrecision(-1); // of all rows, also those that don't show at first
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* const layout = new QVBoxLayout(&dialog);
    layout->addWidget(list);
    layout->addWidget(buttons);
    dialog.resize(680, 560);
    dialog.exec();
}

void showAbout(QWidget* parent, const QString& rigTitle) {
    QDialog dialog(parent);
    dialog.setWindowTitle(translated("About ZEL viewer"));
    auto* const name = plainLabel(QStringLiteral("ZEL viewer ") + QCoreApplication::applicationVersion());
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    name->setFont(font);
    auto* const facts = new QFormLayout;
    facts->addRow(translated("Cameras"), plainLabel(rigTitle));
    facts->addRow(translated("Runs on"), plainLabel(QStringLiteral("Qt ") + QLatin1String(qVersion())));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* const layout = new QVBoxLayout(&dialog);
    layout->setSpacing(12);
    layout->addWidget(name);
    layout->addWidget(plainLabel(translated("A viewer for high-speed cameras, with simulated ones.")));
    layout->addLayout(facts);
    layout->addWidget(buttons);
    dialog.exec();
}

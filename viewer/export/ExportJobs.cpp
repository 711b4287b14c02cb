#include "viewer/export/ExportJobs.h"

#include "viewer/recordings/BackgroundThread.h"

#include <QFileInfo>
#include <QFutureWatcher>
#include <QtConcurrent>

namespace {
constexpr int kTellMs = 200;
}

bool ExportJobs::Entry::isEnded() const {
    return state == ExportJob::State::Done || state == ExportJob::State::Canceled ||
           state == ExportJob::State::Failed;
}

double ExportJobs::Entry::remaining() const {
    return done > 0 && seconds > 0 ? (total - done) * seconds / done : -1;
}

ExportJobs::ExportJobs(QObject* parent) : QObject(parent) {
    m_pool.setMaxThreadCount(1);
    m_timer.setInterval(kTellMs);
    connect(&m_timer, &QTimer::timeout, this, &ExportJobs::changed);
}

ExportJobs::~ExportJobs() {
    for (const Item& item : m_items) {
        item.job->cancel();
    }
    m_pool.waitForDone();
}

int ExportJobs::start(const ExportRequest& request, const QString& title, const Then& then) {
    const int id = m_nextId++;
    const auto job = std::make_shared<ExportJob>(request);
    m_items.push_back({id, title, job, then});
    auto* const watcher = new QFutureWatcher<void>(this);
    connect(watcher, &QFutureWatcher<void>::finished, this, [this, watcher, id] {
        watcher->deleteLater();
        onEnded(id);
    });
    watcher->setFuture(QtConcurrent::run(&m_pool, [job] {
        enterBackground(); // with all threads of the job, those of the codecs too
        job->run();
    }));
    m_timer.start();
    emit changed();
    return id;
}

ExportJobs::Entry ExportJobs::entryOf(const Item& item) const {
    const ExportJob& job = *item.job;
    Entry entry;
    entry.id = item.id;
    entry.title = item.title;
    entry.state = job.state();
    entry.path = job.request().path;
    entry.done = job.done();
    entry.total = job.total();
    entry.seconds = job.seconds();
    entry.failedPath = job.failedPath();
    entry.failure = job.failure();
    return entry;
}

QList<ExportJobs::Entry> ExportJobs::list() const {
    QList<Entry> entries;
    for (const Item& item : m_items) {
        entries.append(entryOf(item));
    }
    return entries;
}

ExportJobs::Entry ExportJobs::entry(int id) const {
    const auto item =
        std::find_if(m_items.begin(), m_items.end(), [id](const Item& one) { return one.id == id; });
    return item == m_items.end() ? Entry() : entryOf(*item);
}

bool ExportJobs::cancel(int id) {
    const Entry before = entry(id);
    if (before.id == 0 || before.isEnded()) {
        return false;
    }
    const auto item =
        std::find_if(m_items.begin(), m_items.end(), [id](const Item& one) { return one.id == id; });
    item->job->cancel();
    onEnded(id);
    return true;
}

void ExportJobs::forget(int id) {
    m_items.erase(
        std::remove_if(m_items.begin(), m_items.end(),
                       [this, id](const Item& item) { return item.id == id && entryOf(item).isEnded(); }),
        m_items.end());
    emit changed();
}

bool ExportJobs::isReserved(const QString& path) const {
    return std::any_of(m_items.begin(), m_items.end(), [this, &path](const Item& item) {
        const Entry job = entryOf(item);
        const int end = job.path.size() - QFileInfo(job.path).suffix().size() - 1;
        return !job.isEnded() && job.path.left(end).compare(path, Qt::CaseInsensitive) == 0;
    });
}

void ExportJobs::cancelAll() {
    for (const Entry& job : list()) {
        cancel(job.id);
    }
}

bool ExportJobs::isBusy() const {
    return std::any_of(m_items.begin(), m_items.end(),
                       [this](const Item& item) { return !entryOf(item).isEnded(); });
}

// A canceled job is over for the user before its last threads are.
void ExportJobs::onEnded(int id) {
    const auto item =
        std::find_if(m_items.begin(), m_items.end(), [id](const Item& one) { return one.id == id; });
    if (item == m_items.end() || item->isTold || !entryOf(*item).isEnded()) {
        return;
    }
    item->isTold = true;
    if (!isBusy()) {
        m_timer.stop();
    }
    const Entry job = entryOf(*item);
    const Then then = std::move(item->then);
    emit changed();
    if (then) {
        then(job);
    }
    emit ended(id);
}

#pragma once

#include "viewer/export/ExportJob.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <memory>
#include <vector>

/// The jobs of the program, which run one after the other in the background: each uses all cores by itself.
/// One that has ended stays in the list until it is forgotten. GUI thread only.
class ExportJobs : public QObject {
    Q_OBJECT

public:
    struct Entry {
        int id = 0;    // from 1
        QString title; // for the user
        ExportJob::State state = ExportJob::State::Waiting;
        QString path;
        int done = 0; // frames
        int total = 0;
        double seconds = 0; // that it has run
        QString failedPath;
        Reason failure;

        bool isEnded() const;
        double framesPerSecond() const { return seconds > 0 ? done / seconds : 0; }
        /// Seconds, by what went before; negative if nothing is known yet.
        double remaining() const;
    };

    explicit ExportJobs(QObject* parent = nullptr);
    /// Cancels what runs, and waits for it.
    ~ExportJobs() override;

    using Then = std::function<void(const Entry& job)>;

    /// Gives the job's number. `then` is called when it has ended, not before this returns.
    int start(const ExportRequest& request, const QString& title, const Then& then = {});
    QList<Entry> list() const; // the oldest first
    /// All zero for a number that there is not.
    Entry entry(int id) const;
    /// False if there is no such job, or it has ended.
    bool cancel(int id);
    /// Takes one that has ended out of the list.
    void forget(int id);
    bool isBusy() const;
    /// A job writes to that path, without suffix, or waits to.
    bool isReserved(const QString& path) const;
    void cancelAll();

signals:
    /// Now and then while a job runs, and at each end.
    void changed();
    void ended(int id);

private:
    struct Item {
        int id;
        QString title;
        std::shared_ptr<ExportJob> job;
        Then then;
        bool isTold = false; // that it has ended
    };

    Entry entryOf(const Item& item) const;
    void onEnded(int id);

    QThreadPool m_pool;
    QTimer m_timer;
    std::vector<Item> m_items;
    int m_nextId = 1;
};

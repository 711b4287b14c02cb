#include "viewer/cameras/Answer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QPointer>
#include <QThread>

#include <optional>
#include <vector>

struct Answer::State {
    bool isThere = false;
    CommandResult result = CommandResult::Ok;
    std::optional<CameraError> error;
    std::vector<std::function<void()>> awaiting;
    Way way;

    void settle() {
        isThere = true;
        way = {}; // it holds what the answer hung on
        const auto actions = std::exchange(awaiting, {});
        for (const std::function<void()>& action : actions) {
            action();
        }
    }
};

Answer::Answer(CommandResult result) : m_state(std::make_shared<State>()) {
    m_state->isThere = true;
    m_state->result = result;
}

Answer::Answer(const CameraError& error) : m_state(std::make_shared<State>()) {
    m_state->isThere = true;
    m_state->error = error;
}

Answer::Answer(const QFuture<CommandResult>& later) {
    AnswerPromise promise;
    m_state = promise.answer().m_state;
    const auto take = [promise, later] { promise.giveAs(Answer::of([&later] { return later.result(); })); };
    if (later.isFinished()) {
        take();
        return;
    }
    auto* const watcher = new QFutureWatcher<CommandResult>;
    QObject::connect(watcher, &QFutureWatcherBase::finished, watcher, [watcher, take] {
        watcher->deleteLater();
        take();
    });
    watcher->setFuture(later);
    promise.setWay({[later, take](double ms) {
                        QElapsedTimer timer;
                        timer.start();
                        while (!later.isFinished() && (ms < 0 || double(timer.elapsed()) < ms)) {
                            QThread::msleep(1);
                        }
                        if (later.isFinished()) {
                            take();
                        }
                    },
                    true});
}

bool Answer::isThere() const { return m_state->isThere; }

bool Answer::comesByItself() const { return m_state->isThere || m_state->way.comesByItself; }

void Answer::spend(double ms) const {
    const std::function<void(double)> spend = m_state->way.spend; // a copy: it goes when the answer comes
    if (m_state->isThere) {
        return;
    }
    if (spend) {
        spend(ms);
    } else if (ms < 0) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    } else {
        QThread::usleep(static_cast<unsigned long>(ms * 1000));
    }
}

CommandResult Answer::result() const {
    while (!m_state->isThere) {
        spend(-1);
    }
    if (m_state->error) {
        throw CameraError(*m_state->error);
    }
    return m_state->result;
}

void Answer::whenThere(QObject* context, const std::function<void()>& action) const {
    if (m_state->isThere) {
        action();
        return;
    }
    m_state->awaiting.emplace_back([alive = QPointer<QObject>(context), action] {
        if (alive) {
            action();
        }
    });
}

Answer Answer::then(const std::function<Answer(CommandResult)>& next) const {
    if (m_state->isThere) {
        return of([&] { return next(result()); });
    }
    AnswerPromise promise;
    const auto second = std::make_shared<std::optional<Answer>>();
    promise.setWay({[first = *this, second](double ms) { (*second ? **second : first).spend(ms); },
                    m_state->way.comesByItself});
    // Not of the first one's state, which would hold itself.
    const std::weak_ptr<State> first = m_state;
    m_state->awaiting.emplace_back([first, second, promise, next] {
        const std::shared_ptr<State> state = first.lock();
        *second = of([&] { return next(Answer(state).result()); });
        const Answer last = **second;
        if (last.isThere()) {
            promise.giveAs(last);
            return;
        }
        const std::weak_ptr<State> lastState = last.m_state;
        last.m_state->awaiting.emplace_back(
            [lastState, promise] { promise.giveAs(Answer(lastState.lock())); });
    });
    return promise.answer();
}

AnswerPromise::AnswerPromise() : m_state(std::make_shared<Answer::State>()) {}

void AnswerPromise::setWay(const Answer::Way& way) { m_state->way = way; }

void AnswerPromise::give(CommandResult result) const {
    if (!m_state->isThere) {
        m_state->result = result;
        m_state->settle();
    }
}

void AnswerPromise::fail(const CameraError& error) const {
    if (!m_state->isThere) {
        m_state->error = error;
        m_state->settle();
    }
}

void AnswerPromise::giveAs(const Answer& other) const {
    if (!m_state->isThere) {
        m_state->result = other.m_state->result;
        m_state->error = other.m_state->error;
        m_state->settle();
    }
}

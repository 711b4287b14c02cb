#include "viewer/documents/commands/CommandWait.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QScopeGuard>
#include <QStringList>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace {

bool areAllThere(const QList<Answer>& answers) {
    return std::all_of(answers.begin(), answers.end(), [](const Answer& answer) { return answer.isThere(); });
}

} // namespace

CommandWait& CommandWait::get() {
    static CommandWait wait;
    return wait;
}

QStringList CommandWait::whom() const {
    QStringList names;
    for (const Open& open : m_open) {
        if (!open.answer.isThere() && !open.name.isEmpty() && !names.contains(open.name)) {
            names.append(open.name);
        }
    }
    return names;
}

bool CommandWait::spendBlink(const QList<Answer>& answers) {
    QElapsedTimer timer;
    timer.start();
    for (const Answer& answer : answers) {
        while (!answer.isThere() && !answer.comesByItself()) {
            answer.spend(-1);
        }
        while (!answer.isThere() && double(timer.nsecsElapsed()) / 1e6 < kBlinkMs) {
            answer.spend(kBlinkMs - double(timer.nsecsElapsed()) / 1e6);
        }
    }
    return areAllThere(answers);
}

void CommandWait::until(const QList<Answer>& answers, const QStringList& whom) {
    if (spendBlink(answers)) {
        return;
    }
    const size_t before = m_open.size();
    for (int i = 0; i < answers.size(); ++i) {
        m_open.push_back({whom.value(i), answers.at(i)});
    }
    ++m_depth;
    const auto end = qScopeGuard([this, before] {
        m_open.erase(m_open.begin() + std::ptrdiff_t(before), m_open.end());
        if (--m_depth == 0) {
            emit ended();
            QMetaObject::invokeMethod(this, &CommandWait::runAfterwards, Qt::QueuedConnection);
        }
    });
    if (m_depth == 1) {
        emit begun();
    }
    loopUntil(answers);
}

void CommandWait::loopUntil(const QList<Answer>& answers) {
    QEventLoop loop;
    for (const Answer& answer : answers) {
        answer.whenThere(&loop, [&loop, &answers] {
            if (areAllThere(answers)) {
                loop.quit();
            }
        });
    }
    if (!areAllThere(answers)) {
        loop.exec();
    }
    // The program ends, and event loops with it.
    for (const Answer& answer : answers) {
        while (!answer.isThere()) {
            answer.spend(-1);
        }
    }
}

void CommandWait::afterwards(QObject* context, const std::function<void()>& action) {
    if (!isWaiting() && m_afterwards.empty()) {
        action();
        return;
    }
    m_afterwards.push_back([alive = QPointer<QObject>(context), action] {
        if (alive) {
            action();
        }
    });
}

// Each from the event loop: one that opens a dialog must not keep the next until that closes.
void CommandWait::runAfterwards() {
    if (isWaiting() || m_afterwards.empty()) {
        return;
    }
    const std::function<void()> action = m_afterwards.front();
    m_afterwards.pop_front();
    if (!m_afterwards.empty()) {
        QMetaObject::invokeMethod(this, &CommandWait::runAfterwards, Qt::QueuedConnection);
    }
    action();
}

#pragma once

#include <QElapsedTimer>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

class PanelTest;

/// What a user does in the modal windows that a test opens, step by step, each as soon as its window is
/// there.
///
/// Modal windows run in event loops of their own, so the steps are done by a timer. A step whose window does
/// not come within five seconds is a failure: all modal windows are closed then, so that the test goes on.
class ModalSteps {
public:
    explicit ModalSteps(PanelTest& test);

    /// Presses a button of the next message box.
    ModalSteps& press(const QString& button);
    /// In the page of the front web dialog, which has this title:
    ModalSteps& click(const QString& title, const QString& selector);
    /// ... replaces what stands in a field.
    ModalSteps& type(const QString& title, const QString& selector, const QString& text);
    /// ... presses a key, such as "Down" or "Ctrl+V"; without a selector where the focus is.
    ModalSteps& key(const QString& title, const QString& selector, const QString& name);
    /// ... waits until a script is true.
    ModalSteps& expect(const QString& title, const QString& script);
    /// Anything; true once it is done.
    ModalSteps& run(const std::function<bool()>& step);

    /// Lets events run until all steps are done; why not, or an empty text.
    QString finish();
    /// The texts of the message boxes so far.
    QStringList boxes() const { return m_boxes; }

private:
    struct Step {
        QString what;
        std::function<bool()> tryIt;
    };

    ModalSteps& add(const QString& what, const std::function<bool()>& tryIt);
    void next();
    bool isOpen(const QString& title);

    PanelTest& m_test;
    std::deque<Step> m_steps;
    QTimer m_timer;
    QElapsedTimer m_waited;
    QStringList m_boxes;
    QString m_failure;
};

/// Fails the test with the reason if the steps could not all be done.
#define FINISH(steps)                                                                                        \
    do {                                                                                                     \
        const QString why = (steps).finish();                                                                \
        QVERIFY2(why.isEmpty(), qPrintable(why));                                                            \
    } while (false)

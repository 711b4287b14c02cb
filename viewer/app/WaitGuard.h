#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QTimer>

#include <memory>
#include <vector>

class CommandWait;
class QAction;
class QWidget;

/// What a user meets while the program waits for a camera. After a moment a busy cursor and a text show it.
/// Input waits too: what came before the sign is done afterwards, in its order, of a mouse that moves only
/// the last place; clicks and keys into the shown sign are dropped, for nobody knows what they were meant
/// for. A window that opened meanwhile and one button get theirs at once.
class WaitGuard : public QObject {
    Q_OBJECT

public:
    static constexpr int kSignMs = 150;

    /// `free`: what can be used at any time, by its button in a bar and by its keys. Both outlive it.
    WaitGuard(CommandWait& wait, QAction& free);
    ~WaitGuard() override;

    bool isSignShown() const { return m_isShown; }

signals:
    /// isSignShown() gives something else now.
    void signChanged();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Kept {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    void onBegun();
    void onEnded();
    void setShown(bool shown);
    bool isFree(QObject* receiver, QEvent* event);
    bool isFreeButton(QObject* receiver, QEvent* event) const;
    /// False for an event that is to be dropped.
    bool isKept(const QEvent& event);
    void keep(QObject* receiver, const QEvent& event);

    CommandWait& m_wait;
    QAction& m_free;
    QTimer m_signSoon;
    QPointer<QWidget> m_modal; // that was open before
    QPointer<QWidget> m_popup;
    std::vector<Kept> m_kept;
    Qt::MouseButtons m_lostButtons; // whose press was dropped
    QSet<int> m_lostKeys;
    bool m_isPressFree = false;
    bool m_isShown = false;
};

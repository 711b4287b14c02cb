#pragma once

#include "simulator/device/Rig.h"
#include "tests/panel/support/Shots.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/commands/CommandWait.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <QWebSettings>

#include <malloc.h>
#include <random>

/// Random work on the cameras of a rig, as a hasty user does it, and what the program shows of it: beats of
/// the GUI thread that come late while no sign says that it waits, and memory.
class Soak {
public:
    static constexpr int kBeatMs = 20;
    static constexpr int kLateMs = 200;

    explicit Soak(PanelTest& panel) : m_panel(panel), m_random(1) {
        m_sign = panel.viewer().window()->findChild<QLabel*>(QStringLiteral("busyText"));
        QObject::connect(&m_beat, &QTimer::timeout, [this] { beat(); });
    }

    void run(int minutes) {
        QElapsedTimer time;
        time.start();
        m_lastBeat.start();
        m_workBefore = workNs();
        m_beat.start(kBeatMs);
        const qint64 end = qint64(minutes) * 60000;
        while (time.elapsed() < end) {
            act();
            ++m_actions;
            QTest::qWait(int(m_random() % 150));
            if (m_settled == 0 && time.elapsed() > end / 5) { // what is made once is there
                m_settled = keptBytes();
            }
        }
        m_beat.stop();
        m_peak = residentBytes();
        m_atEnd = keptBytes();
    }

    int lateBeats() const { return m_late; }
    double growth() const { return double(m_atEnd) / double(std::max<qint64>(m_settled, 1)); }
    QString summary() const {
        return QStringLiteral("%1 actions, %2 beats, %3 late, %4 under a sign, %5 MB kept, %6 MB at the end "
                              "(%7 MB with what is free again)%8")
            .arg(m_actions)
            .arg(m_beats)
            .arg(m_late)
            .arg(m_underSign)
            .arg(m_settled >> 20)
            .arg(m_atEnd >> 20)
            .arg(m_peak >> 20)
            .arg(m_lateBeats.isEmpty() ? QString()
                                       : QStringLiteral(":\n") + m_lateBeats.join(QLatin1Char('\n')));
    }

private:
    /// Without what the pages would throw away when memory gets short, and what was freed in between.
    static qint64 keptBytes() {
        QWebSettings::clearMemoryCaches();
        malloc_trim(0);
        return residentBytes();
    }

    void beat() {
        ++m_beats;
        const qint64 gap = m_lastBeat.restart();
        const qint64 work = workNs() - m_workBefore;
        m_workBefore += work;
        const bool isSignShown = !m_sign->isHidden();
        if (gap > kLateMs + kBeatMs) {
            if (isSignShown || m_wasSignShown) {
                ++m_underSign;
            } else {
                ++m_late;
                m_lateBeats.append(QStringLiteral("%1 ms, %2 ms of them at work, behind %3")
                                       .arg(gap)
                                       .arg(double(work) / 1e6, 0, 'f', 0)
                                       .arg(m_action));
            }
        }
        m_wasSignShown = isSignShown;
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            QAbstractButton* const yes = box->button(QMessageBox::Ok);
            QMetaObject::invokeMethod(yes ? yes : box->buttons().value(0), "click", Qt::QueuedConnection);
        }
    }

    void act() {
        Viewer& viewer = m_panel.viewer();
        RecordingControl& recording = viewer.recording();
        const auto script = [&](const char* text) {
            m_action = QLatin1String(text);
            if (!CommandWait::get().isWaiting() && viewer.panelView().isPageOpen()) {
                viewer.panelView().runScript(
                    QString::fromLatin1(text).arg(m_random() % 6)); // a row, of a list that all have
            }
        };
        switch (m_random() % 10) {
        case 0:
            return script("livecontrol.setFrameRate('%1')");
        case 1:
            return script("livecontrol.setShutterSpeed('%1')");
        case 2:
            return script("livecontrol.setResolution('%1')");
        case 3:
            m_action = QStringLiteral("select");
            return selectSome(viewer.documents());
        case 4:
            m_action = QStringLiteral("ready");
            return recording.ready();
        case 5:
            m_action = QStringLiteral("record");
            return recording.record();
        case 6:
        case 7:
            m_action = QStringLiteral("stop");
            return recording.stop();
        case 8:
            m_action = QStringLiteral("mode");
            return recording.setMode(m_random() % 3 == 0 ? HOST_MODE_MEMORY : HOST_MODE_LIVE);
        default:
            m_action = QStringLiteral("cable");
            return pullOrPlug(*viewer.rig().bodies().at(int(m_random() % 64)));
        }
    }

    void selectSome(DocumentList& documents) {
        QList<Document*> chosen;
        const unsigned every = 1 + m_random() % 8;
        const QList<Document*> all = documents.documents();
        for (int i = 0; i < all.size(); i += int(every)) {
            chosen.append(all.at(i));
        }
        documents.setSelection(chosen);
    }

    static void pullOrPlug(SimulatedBody& body) {
        if (body.isPlugged()) {
            body.unplug();
        } else {
            body.plug();
            (void)body.connectLink();
        }
    }

    PanelTest& m_panel;
    std::mt19937 m_random;
    QLabel* m_sign;
    QTimer m_beat;
    QElapsedTimer m_lastBeat;
    QString m_action;
    QStringList m_lateBeats;
    bool m_wasSignShown = false;
    int m_actions = 0;
    int m_beats = 0;
    int m_late = 0;
    int m_underSign = 0;
    qint64 m_workBefore = 0;
    qint64 m_settled = 0;
    qint64 m_peak = 0;
    qint64 m_atEnd = 0;
};

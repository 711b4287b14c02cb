#pragma once

#include "livecontrol/foundation/UTL_MapRect.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"

#include <QAction>
#include <QJsonArray>
#include <QOpenGLWidget>
#include <QScopeGuard>
#include <QtTest>

inline const QString kPrefix = QStringLiteral("#livecontrol_auto_exposure_");
inline const QString kShutter = QStringLiteral("#livecontrol_shutterspeed");

inline QString id(const char* name) { return kPrefix + QLatin1String(name); }

/// The page of the auto exposure, and the rectangle on the image that it shares with the user.
class ExposurePage {
protected:
    std::unique_ptr<PanelTest> m_test;
    QString m_camera;

    SimulatedHead& head() { return m_test->head(m_camera); }
    CameraDocument& document() { return m_test->camera(m_camera); }
    ViewerHost& host() { return m_test->viewer().host(); }
    PLG_Interface& plugin() { return *host().plugins().current(); }

    void openPage() {
        m_test->choose(kShutter, QStringLiteral("Auto Exposure..."));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_auto_exposure:visible').length")));
        m_test->settle();
    }

    int boxed(const char* name) {
        return m_test->text(QStringLiteral("$('%1').val()").arg(id(name))).toInt();
    }
    int limitOf(const char* box) {
        return m_test->eval(QStringLiteral("$('%1').spinnerRealtimeFire('option', 'max')").arg(id(box)))
            .toInt();
    }
    /// The rectangle that the four boxes show.
    QRect shown() { return {boxed("pos_x"), boxed("pos_y"), boxed("area_w"), boxed("area_h")}; }
    /// The plug-in's rectangle as the user sees it.
    QRect held() { return mapRectToUserview(&host(), document().face(), plugin().getArea()); }

    QPoint inView(const QPointF& onImage) { return document().view().imageToView.map(onImage).toPoint(); }
    void image(const char* method, const QPoint& at) {
        m_test->call(method, {{QStringLiteral("x"), at.x()}, {QStringLiteral("y"), at.y()}});
        QCoreApplication::sendPostedEvents();
    }
    void drag(const QPoint& from, const QPoint& to, int moves) {
        image("image.press", from);
        for (int i = 1; i <= moves; ++i) {
            image("image.move", from + (to - from) * i / moves);
        }
        image("image.release", to);
        m_test->settle();
    }
    /// Types over what a box holds.
    void enter(const char* box, const char* number) {
        m_test->key(id(box), QStringLiteral("Ctrl+A"));
        m_test->type(id(box), QLatin1String(number) + QStringLiteral("\t"));
    }
    void key(const char* name) {
        m_test->call("image.key", {{QStringLiteral("key"), QLatin1String(name)}});
        m_test->settle();
    }
    /// An item of the window's tools.
    QAction* action(const char* name) {
        return dynamic_cast<MainWindow&>(*m_test->viewer().window()).action(QLatin1String(name));
    }
    void trigger(const char* name) {
        action(name)->trigger();
        m_test->settle();
    }
    QJsonObject cameraState() { return head().body()->stateJson(); }

    void followTheScreen(int turns, bool flipA, bool flipB, int scale) {
        const auto place = qScopeGuard([=] {
            if (QTest::currentTestFailed()) {
                qWarning("%d turns, mirrored %d, %d, reduced by %d", turns, flipA, flipB, scale);
            }
        });
        ViewState view = document().view();
        view.quarterTurns = turns;
        view.flipA = flipA;
        view.flipB = flipB;
        view.imageScale = scale;
        document().setView(view);
        m_test->eval(QStringLiteral("livecontrol.resetSelectArea(), livecontrol_obj.update(), 1"));
        m_test->settle();
        QCOMPARE(shown(), held());
        const auto onScreen = [this] {
            return document().view().imageToView.mapRect(QRectF(plugin().getArea()));
        };
        const QRectF before = onScreen();
        // The right line of the screen, whatever line of the image it is.
        drag(QPoint(int(before.right()) - 1, int(before.center().y())),
             QPoint(int(before.right()) - 41, int(before.center().y())), 8);
        QVERIFY2(onScreen().right() < before.right() - 20, "the line was moved");
        QVERIFY(qAbs(onScreen().left() - before.left()) < 2 && qAbs(onScreen().top() - before.top()) < 2);
        QCOMPARE(shown(), held());
        const QRectF narrow = onScreen();
        drag(QPoint(int(narrow.center().x()), int(narrow.bottom()) - 1),
             QPoint(int(narrow.center().x()), int(narrow.bottom()) - 41), 8);
        QVERIFY2(onScreen().bottom() < narrow.bottom() - 20, "the lower line was moved");
        QVERIFY(qAbs(onScreen().top() - narrow.top()) < 2 && qAbs(onScreen().right() - narrow.right()) < 2);
        QCOMPARE(shown(), held());
        // There is room now beside what became smaller.
        if (scale == 1) {
            const QSize image = document().imageSize();
            const QSize user = turns % 2 ? image.transposed() : image;
            QCOMPARE(limitOf("pos_x"), user.width() - boxed("area_w"));
            QCOMPARE(limitOf("area_h"), user.height() - boxed("pos_y"));
        }
        const QRectF moved = onScreen();
        key("Left");
        QVERIFY(onScreen().left() < moved.left() - 1);
        QVERIFY(qAbs(onScreen().top() - moved.top()) < 1);
        key("Up");
        QVERIFY(onScreen().top() < moved.top() - 1);
        const QRectF placed = onScreen();
        key("Shift+Right");
        QVERIFY(onScreen().width() > placed.width() + 1);
        QVERIFY(qAbs(onScreen().left() - placed.left()) < 1);
        QCOMPARE(shown(), held());
        trigger("undo");
        QVERIFY(qAbs(onScreen().width() - placed.width()) < 0.5);
        QCOMPARE(shown(), held());
    }
};

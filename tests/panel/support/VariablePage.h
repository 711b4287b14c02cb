#pragma once

#include "simulator/device/SimulatedBody.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/host/ViewerHost.h"

#include "livecontrol/interface/PLG_Interface.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

inline const QString kRate = QStringLiteral("#livecontrol_variable_framerate");
inline const QString kPreset = QStringLiteral("#livecontrol_variable_resolution");
inline const QString kWidth = QStringLiteral("#livecontrol_variable_resolution_width");
inline const QString kHeight = QStringLiteral("#livecontrol_variable_resolution_height");
inline const QString kPosX = QStringLiteral("#livecontrol_variable_pos_x");
inline const QString kPosY = QStringLiteral("#livecontrol_variable_pos_y");
inline const QString kCentre = QStringLiteral("#livecontrol_variable_center");
inline const QString kOk = QStringLiteral("#livecontrol_variablesetting_okbutton");
inline const QString kCancel = QStringLiteral("#livecontrol_variablesetting_cancelbutton");
inline const QString kSelect = QStringLiteral("#livecontrol_variable_select_btn");
inline const QString kRegist = QStringLiteral("#livecontrol_variable_channel_regist_btn");
inline const QString kVariablePage = QStringLiteral("$('#livecontrol_page_variable:visible').length === 1");
inline const QString kListPage = QStringLiteral("$('#livecontrol_page_list:visible').length === 1");

/// The page of the variable channels in a whole viewer, as a user meets it. A test class derives from it.
class VariablePage {
protected:
    std::unique_ptr<PanelTest> m_test;
    QString m_name = QStringLiteral("Marlin");

    SimulatedHead& head() { return m_test->head(m_name); }
    VariableChannel channel(int number) { return head().body()->variableChannel(number); }
    HostObject& host() { return m_test->viewer().host(); }

    void start(const QString& rig, const QString& name) {
        m_name = name;
        m_test.reset(); // one viewer at a time keeps the log
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/") + rig);
        m_test->selectOnly(name);
    }
    /// Opens the list of a button and picks a row, both with the mouse.
    void pick(const QString& button, const QString& row) {
        m_test->click(button);
        m_test->pickInList(row);
    }
    void openPage() {
        pick(kSelect, QStringLiteral("go-variable"));
        QVERIFY(m_test->waitFor(kVariablePage));
        m_test->clearLogs();
    }
    int number(const QString& box) {
        return m_test->eval(QStringLiteral("$('%1').spinnerRealtimeFire('value')").arg(box)).toInt();
    }
    int limit(const QString& box, const char* name) {
        return m_test
            ->eval(
                QStringLiteral("$('%1').spinnerRealtimeFire('option', '%2')").arg(box, QLatin1String(name)))
            .toInt();
    }
    void enter(const QString& box, int value) {
        m_test->eval(QStringLiteral("$('%1').val(''), 1").arg(box));
        m_test->type(box, QString::number(value));
        m_test->key(QString(), QStringLiteral("Return"));
    }
    QRect area() { return QRect(number(kPosX), number(kPosY), number(kWidth), number(kHeight)); }
    QRect selectArea() {
        const QJsonObject area =
            QJsonDocument::fromJson(m_test->text(QStringLiteral("livecontrol.recvSelectArea()")).toUtf8())
                .object();
        return QRect(area[QStringLiteral("X")].toInt(), area[QStringLiteral("Y")].toInt(),
                     area[QStringLiteral("Width")].toInt(), area[QStringLiteral("Height")].toInt());
    }
    void mouse(const char* method, const QPoint& at) {
        m_test->call(method, {{QStringLiteral("x"), at.x()}, {QStringLiteral("y"), at.y()}});
        m_test->settle();
    }
    bool isCentred() {
        const QSize free = head().model().sensor - area().size();
        return area().topLeft() == QPoint(free.width() / 2, free.height() / 2);
    }
    void byHand() {
        m_test->click(QStringLiteral("#aspect-free"));
        QVERIFY(m_test->eval(QStringLiteral("$('%1').is(':visible')").arg(kWidth)).toBool());
    }
};

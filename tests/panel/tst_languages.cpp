// Every page of the panel and every dialog in Japanese: no English word is left. On the way each dialog is
// dropped by a key on its last button.

#include "livecontrol/devices/GUI_ChangePasswordDialog.h"
#include "simulator/device/SimulatedBody.h"
#include "simulator/device/WifiUnit.h"
#include "tests/panel/support/OwnDialogs.h"
#include "tests/support/ModalSteps.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/messages/Translated.h"

#include <QApplication>
#include <QDialog>
#include <QJsonArray>
#include <QtTest>

namespace {

/// All that a part of a page says, hidden elements included, in tips and to a screen reader too. What a
/// camera or a network calls itself is in no language: names, models, plain cells of tables.
const char kTexts[] = R"js((function (root) {
    var texts = [], walker = document.createTreeWalker(root[0], NodeFilter.SHOW_TEXT, null, false);
    while (walker.nextNode()) {
        var parent = walker.currentNode.parentNode;
        if (!/^(SCRIPT|STYLE|TEMPLATE)$/.test(parent.nodeName) && !/device-(name|model)/.test(parent.className) &&
            (parent.nodeName !== 'TD' || parent.className)) {
            texts.push(walker.currentNode.nodeValue);
        }
    }
    root.find('[title], [aria-label], [placeholder], input[type=button]').each(function () {
        texts.push(this.title, this.getAttribute('aria-label'), this.getAttribute('placeholder'),
                   this.type === 'button' ? this.value : '');
    });
    return texts;
}(jQuery('%1'))))js";

QString textsOf(const char* part) { return QString::fromLatin1(kTexts).arg(QLatin1String(part)); }

} // namespace

class tst_Languages : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QStringList m_faults;
    int m_dialogs = 0;

    void look(const QString& where, const QJsonValue& page) {
        int words = 0;
        for (const QJsonValue value : page.toArray()) {
            const QString text = value.toString().trimmed();
            words += text.isEmpty() ? 0 : 1;
            if (!text.isEmpty() && translated(text.toUtf8().constData()) != text) {
                m_faults.append(where + QStringLiteral(": ") + text);
            }
        }
        if (words == 0) {
            m_faults.append(where + QStringLiteral(" says nothing"));
        }
    }
    void lookAtPanel(const QString& where) {
        m_test->settle();
        look(where, m_test->eval(textsOf("#panels section:visible")));
    }
    void lookAtList(const QString& where) {
        QVERIFY(m_test->waitForList());
        look(where, m_test->inList(textsOf("body")));
    }
    /// Looks at the dialog with this English title as soon as it is there.
    void lookAtDialog(ModalSteps& steps, const char* title) {
        const QString name = translated(title);
        steps.expect(name, QStringLiteral("true")).run([this, name] {
            look(name, m_test->inList(textsOf("body")));
            return true;
        });
    }
    /// Presses a button of it by key, after which it has to be gone, and nothing done.
    void leave(ModalSteps& steps, const char* title, const char* button) {
        const QString name = translated(title);
        steps.expect(name, QStringLiteral("true"))
            .run([this, name] {
                const auto* const dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
                connect(dialog, &QDialog::finished, this, [this, name](int result) {
                    ++m_dialogs;
                    if (result != QDialog::Rejected) {
                        m_faults.append(name + QStringLiteral(" was accepted"));
                    }
                });
                return true;
            })
            .key(name, QLatin1String(button), QStringLiteral("Return"));
    }
    /// A dialog without another one over it.
    void visit(const QString& opener, const char* title, const char* button) {
        ModalSteps steps(*m_test);
        lookAtDialog(steps, title);
        leave(steps, title, button);
        m_test->click(opener);
        FINISH(steps);
    }
    QString device(const char* name, const char* part) {
        return m_test->deviceRow(QLatin1String(name)) + QStringLiteral(" .") + QLatin1String(part);
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        m_test->call("prefs.set", {{QStringLiteral("name"), QStringLiteral("env/language")},
                                   {QStringLiteral("value"), QStringLiteral("ja")}});
        QVERIFY(m_test->waitFor(
            QStringLiteral("window.livecontrol_obj && $('#panels h2:visible').text() === '%1'")
                .arg(translated("p_livecontrol"))));
        m_test->settle();
        m_faults.clear();
        m_dialogs = 0;
    }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void thePanelIsTranslated() {
        m_test->selectOnly(QStringLiteral("Marlin"));
        lookAtPanel(QStringLiteral("list"));
        CameraHead& head = m_test->head(QStringLiteral("Marlin"));
        head.storeVariableChannel(2, {10000, {256, 256}, {128, 64}}).result();
        m_test->click(QStringLiteral("#livecontrol_variable_select_btn"));
        lookAtList(QStringLiteral("channels"));
        m_test->eval(QStringLiteral("main.showVariableRegist(20, 20, 200, 24, 3), 1"));
        lookAtList(QStringLiteral("channels to write"));
        m_test->eval(QStringLiteral("livecontrol.showDropDownBox('partition', 20, 20, 200, 24), 1"));
        lookAtList(QStringLiteral("partitions"));
        m_test->openDevices();
        lookAtPanel(QStringLiteral("devices"));
        m_test->click(QStringLiteral("#livecontrol_devicesetting_closebutton"));
        for (const char* const enter :
             {"livecontrol_obj.callLiveControlPage(2)",
              "$('#livecontrol_variablesetting_cancelbutton').click(), livecontrol_obj.startAutoExposure(), "
              "livecontrol_obj.changePage(3)",
              "$('#livecontrol_auto_exposure_cancel').click(), livecontrol_obj.startHWImageTrigger(), "
              "livecontrol_obj.changePage(4)"}) {
            m_test->eval(QLatin1String(enter) + QStringLiteral(", 1"));
            lookAtPanel(QLatin1String(enter));
        }
        QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join(QLatin1Char('\n'))));
    }

    void theDialogsAreTranslated() {
        m_test->head(QStringLiteral("Gemini Left")).body()->wifi()->setTimes(60, 60);
        m_test->call("camera.unplug",
                     {{QStringLiteral("key"), double(m_test->keyOf(QStringLiteral("Plover")))}});
        m_test->settle();
        visit(QStringLiteral("#livecontrol_editCustomButton"), "Custom info", "#cancel_btn");
        visit(QStringLiteral("#livecontrol_editCommentButton"), "Comment", "#cancel_btn");
        m_test->openDevices();
        visit(QStringLiteral("#livecontrol_save_button"), "Device Save", "#camerasettings_cancel");
        visit(QStringLiteral("#livecontrol_adddevice"), "Add Device", "#cancel_btn");
        visit(device("Marlin", "edit"), "Edit Device", "#cancel_btn");

        ModalSteps search(*m_test);
        search.click(translated("Camera search"), QStringLiteral("#found td:eq(1)"));
        lookAtDialog(search, "Camera search");
        search.click(translated("Camera search"), QStringLiteral("#settings_btn"));
        lookAtDialog(search, "Camera search settings");
        leave(search, "Camera search settings", "#cancel_btn");
        leave(search, "Camera search", "#close_btn");
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(search);

        const QString wifi = translated("Camera WiFi Setting");
        ModalSteps points(*m_test);
        points.click(wifi, QStringLiteral("#scan_btn"))
            .click(wifi, QStringLiteral("#access_points li:eq(0)"));
        lookAtDialog(points, "Camera WiFi Setting");
        points.click(wifi, QStringLiteral("#password_btn"));
        lookAtDialog(points, "Input password");
        leave(points, "Input password", "#cancel_btn");
        leave(points, "Camera WiFi Setting", "#close_btn");
        m_test->click(device("Gemini Left", "wifi"));
        FINISH(points);

        ModalSteps change(*m_test); // which no button of the panel opens
        lookAtDialog(change, "Change Password");
        leave(change, "Change Password", "#cancel_btn");
        GUI_ChangePasswordDialog dialog(&m_test->viewer().host(), QString(), QString(), 8);
        dialog.exec();
        FINISH(change);
        for (const auto& [name, title] :
             {std::pair("time code", "Current Time Setting"),
              std::pair("shutter format", "Shutter speed disp"), std::pair("rate format", "recordrate disp"),
              std::pair("frame format", "frame disp"),
              std::pair("recording time format", "Recording time disp"),
              std::pair("digits", "Adding a number")}) {
            ModalSteps steps(*m_test);
            lookAtDialog(steps, title);
            leave(steps, title, "#cancel_btn");
            QVERIFY(runOwnDialog(m_test->viewer(), QLatin1String(name)));
            FINISH(steps);
        }
        QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join(QLatin1Char('\n'))));
        QCOMPARE(m_dialogs, 16);
    }
};

QTEST_MAIN(tst_Languages)
#include "tst_languages.moc"

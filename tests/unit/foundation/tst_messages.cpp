#include "livecontrol/foundation/UTL_Messages.h"
#include "livecontrol/foundation/WindowHelpers.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ModalAnswer.h"
#include "tests/support/TestRig.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextDocument>
#include <QTranslator>
#include <QWindow>
#include <QtTest>

#include <algorithm>
#include <stdexcept>

namespace {

using Answer = ModalAnswer<QMessageBox>;

void press(QMessageBox& box, QMessageBox::StandardButton button) {
    QTest::mouseClick(box.button(button), Qt::LeftButton);
}

/// Marks the texts that were looked up in the application's own context.
class MarkingTranslator : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char*, int) const override {
        return QByteArray(context) == "zel4" ? QStringLiteral("<%1>").arg(QString::fromUtf8(text))
                                             : QString();
    }
    bool isEmpty() const override { return false; }
};

const QString kText = QStringLiteral("Turn off the camera.");
enum Question { YesNo, OkCancel, YesNoCancel };
/// What a user can do beside pressing a button.
constexpr int kCloseFrame = -1;
constexpr int kEscape = -2;

int ask(Question question, TestRig& rig, const UTL_Messages::Labels& labels = {}, QWidget* parent = nullptr) {
    switch (question) {
    case YesNo:
        return static_cast<int>(UTL_Messages::confirm(kText, &rig.host, parent, labels));
    case OkCancel:
        return static_cast<int>(UTL_Messages::confirmOkCancel(kText, &rig.host, parent, labels));
    case YesNoCancel:
        return UTL_Messages::confirmYesNoCancel(kText, &rig.host, parent, labels);
    }
    return -1;
}

void addRow(const char* name, Question question, int action, int result, const char* logged) {
    QTest::newRow(name) << static_cast<int>(question) << action << result << logged;
}

} // namespace

class tst_Messages : public QObject {
    Q_OBJECT

private slots:
    void givesAndLogsTheAnswer_data() {
        QTest::addColumn<int>("question");
        QTest::addColumn<int>("action");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("logged");
        addRow("yes", YesNo, QMessageBox::Yes, 1, "Yes");
        addRow("no", YesNo, QMessageBox::No, 0, "No");
        addRow("yes/no closed", YesNo, kCloseFrame, 0, "No");
        addRow("ok", OkCancel, QMessageBox::Ok, 1, "Ok");
        addRow("cancel", OkCancel, QMessageBox::Cancel, 0, "Cancel");
        addRow("ok/cancel closed", OkCancel, kCloseFrame, 0, "Cancel");
        addRow("yes of three", YesNoCancel, QMessageBox::Yes, 16384, "Yes");
        addRow("no of three", YesNoCancel, QMessageBox::No, 65536, "No");
        addRow("cancel of three", YesNoCancel, QMessageBox::Cancel, 4194304, "Cancel");
        addRow("three closed", YesNoCancel, kCloseFrame, 4194304, "Cancel");
        addRow("three escaped", YesNoCancel, kEscape, 4194304, "Cancel");
    }
    void givesAndLogsTheAnswer() {
        QFETCH(int, question);
        QFETCH(int, action);
        QFETCH(QString, logged);
        TestRig rig;
        LogCapture log;
        Answer answer([action](QMessageBox& box) {
            if (action == kCloseFrame) {
                box.close();
            } else if (action == kEscape) {
                QTest::keyClick(&box, Qt::Key_Escape);
            } else {
                press(box, static_cast<QMessageBox::StandardButton>(action));
            }
        });
        QTEST(ask(static_cast<Question>(question), rig), "result");
        QVERIFY(answer.seen);
        const QStringList names{QStringLiteral("confirm"), QStringLiteral("confirmOkCancel"),
                                QStringLiteral("confirmYesNoCancel")};
        const QString operation = QStringLiteral("\"UTL_Messages::%1\"").arg(names.at(question));
        QList<LogCapture::Line> lines = log.lines();
        lines.erase(std::remove_if(lines.begin(), lines.end(), // what the platform has to say
                                   [](const LogCapture::Line& line) { return line.type != QtInfoMsg; }),
                    lines.end());
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.at(0).text, QStringLiteral("[ENTER] %1 \"[text:%2]\"").arg(operation, kText));
        QCOMPARE(lines.at(1).text, QStringLiteral("[%1][result:%2]").arg(kText, logged));
        QVERIFY(!lines.at(1).hasPlace);
        QCOMPARE(lines.at(2).text, QStringLiteral("[LEAVE] ") + operation);
    }

    void enterDoesNothingAndWhomItConcernsIsText() {
        TestRig rig;
        for (const Question question : {YesNo, OkCancel, YesNoCancel}) {
            Answer answer([](QMessageBox& box) {
                const auto* const under =
                    box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
                QTextDocument shown;
                shown.setHtml(under->text());
                QCOMPARE(under->textFormat(), Qt::AutoText);
                QCOMPARE(shown.toPlainText(), QStringLiteral("<b>Marlin</b>\nPlover"));
                QCOMPARE(box.focusWidget(), box.defaultButton());
                QTest::keyClick(box.focusWidget(), Qt::Key_Return);
            });
            const QString under = QStringLiteral("<b>Marlin</b>\nPlover");
            const bool goesOn =
                question == YesNo      ? UTL_Messages::confirm(kText, &rig.host, nullptr, {}, under)
                : question == OkCancel ? UTL_Messages::confirmOkCancel(kText, &rig.host, nullptr, {}, under)
                                       : UTL_Messages::confirmYesNoCancel(kText, &rig.host, nullptr, {},
                                                                          under) != QMessageBox::Cancel;
            QVERIFY(answer.seen && !goesOn);
        }
    }

    void callsTheHostInOrder() {
        TestRig rig;
        Answer answer([&rig](QMessageBox& box) {
            QCOMPARE(rig.host.calls.count(QStringLiteral("HostApplication.endModal")), 0);
            press(box, QMessageBox::Cancel);
        });
        rig.host.onCanStartModal = [] { return true; };
        ask(YesNoCancel, rig);
        QStringList expected;
        for (const char* const name : {"getDialogParent", "translate", "getPrefString", "canStartModal",
                                       "beginModal", "getDialogParent", "getPrefInt", "endModal"}) {
            expected.append(QStringLiteral("HostApplication.") + QLatin1String(name));
        }
        QCOMPARE(rig.host.calls.names(), expected);
        QCOMPARE(rig.host.calls.lastArgs(QStringLiteral("HostApplication.getPrefString")).first().toString(),
                 QStringLiteral("env/style"));
    }

    void leavesTheHostAloneWhereNoModalWindowMayBegin() {
        TestRig rig;
        Answer answer([](QMessageBox& box) { press(box, QMessageBox::Yes); });
        QCOMPARE(ask(YesNo, rig), 1);
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostApplication.beginModal")), 0);
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostApplication.endModal")), 0);
    }

    void translatesTextAndLabels() {
        MarkingTranslator translator;
        QCoreApplication::installTranslator(&translator);
        TestRig rig;
        rig.host.onTranslate = [](const QString& text, const char*, int) { return text.toUpper(); };
        Answer answer([](QMessageBox& box) {
            QCOMPARE(box.windowTitle(), QStringLiteral("<Confirmation>"));
            QCOMPARE(box.text(), QStringLiteral("<%1>").arg(kText));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.icon(), QMessageBox::Question);
            QCOMPARE(box.button(QMessageBox::Yes)->text(), QStringLiteral("<Turn off>"));
            QCOMPARE(box.button(QMessageBox::Cancel)->text(), QStringLiteral("CANCEL"));
            press(box, QMessageBox::Yes);
        });
        const UTL_Messages::Labels labels{{QMessageBox::Yes, QStringLiteral("Turn off")},
                                          {QMessageBox::Ok, QStringLiteral("not among the buttons")}};
        QCOMPARE(ask(YesNoCancel, rig, labels), int(QMessageBox::Yes));
        Answer second([](QMessageBox& box) {
            QCOMPARE(box.button(QMessageBox::Cancel)->text(), QStringLiteral("<Stay>"));
            press(box, QMessageBox::Ok);
        });
        QCOMPARE(ask(OkCancel, rig, {{QMessageBox::Cancel, QStringLiteral("Stay")}}), 1);
        QVERIFY(answer.seen && second.seen);
        QCoreApplication::removeTranslator(&translator);
    }

    void looksLikeTheApplication_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<bool>("labelled");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("dark") << "Dark" << false << "native dark";
        QTest::newRow("light") << "light" << false << "native light";
        QTest::newRow("nothing stored") << QString() << false << "native dark";
        QTest::newRow("labels, dark") << "dark" << true << "messageBox dark";
        QTest::newRow("labels, light") << "other" << true << "messageBox light";
    }
    void looksLikeTheApplication() {
        QFETCH(QString, style);
        QFETCH(bool, labelled);
        QFETCH(QString, sheet);
        TestRig rig;
        rig.host.onGetPrefString = [&](const QString&, const QVariant& value, int) {
            return style.isEmpty() ? value.toString() : style;
        };
        Answer answer([&sheet](QMessageBox& box) {
            QCOMPARE(box.toolTip(), sheet);
            press(box, QMessageBox::Yes);
        });
        QCOMPARE(ask(YesNo, rig,
                     labelled ? UTL_Messages::Labels{{QMessageBox::No, kText}} : UTL_Messages::Labels()),
                 1);
    }

    void standsInTheMiddleAndShutsTheWindowsBehindIt() {
        TestRig rig;
        QPushButton behind;
        int clicks = 0;
        connect(&behind, &QPushButton::clicked, [&clicks] { ++clicks; });
        behind.show();
        QVERIFY(QTest::qWaitForWindowExposed(&behind));
        const auto clickBehind = [&behind] {
            QTest::mouseClick(behind.windowHandle(), Qt::LeftButton, {}, behind.rect().center());
        };
        clickBehind();
        QCOMPARE(clicks, 1);
        Answer answer([&](QMessageBox& box) {
            QVERIFY(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
            QCOMPARE(box.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
            const QPoint apart =
                box.geometry().center() - QGuiApplication::primaryScreen()->geometry().center();
            QVERIFY(apart.manhattanLength() < 4);
            clickBehind();
            press(box, QMessageBox::Yes);
        });
        QCOMPARE(ask(YesNo, rig), 1);
        QCOMPARE(clicks, 1);
    }

    void standsOnTheScreenThatTheUserChose() {
        const QList<QScreen*> screens = QGuiApplication::screens();
        if (screens.size() < 2) {
            QSKIP("there is but one screen");
        }
        TestRig rig;
        QWidget window;
        window.resize(200, 100);
        int number = 0;
        rig.host.onGetPrefInt = [&number](const QString& key, const QVariant&) {
            return key == QLatin1String("main/scrno") ? number : 0;
        };
        const auto placed = [&](int screen) {
            number = screen;
            window.move(3, 4);
            centerOnScreen(&rig.host, &window);
            return window.geometry().center();
        };
        const auto middle = [](const QScreen* screen) { return screen->geometry().center(); };
        QVERIFY((middle(screens[0]) - middle(screens[1])).manhattanLength() > 100);
        QVERIFY((placed(0) - middle(screens[0])).manhattanLength() < 4);
        QVERIFY((placed(1) - middle(screens[1])).manhattanLength() < 4);
        for (const int none : {-1, int(screens.size())}) {
            QVERIFY((placed(none) - middle(window.screen())).manhattanLength() < 4);
        }
        QWidget parent;
        rig.host.onGetDialogParent = [&parent] { return &parent; }; // which places its windows itself
        QCOMPARE(placed(1), QRect(QPoint(3, 4), window.size()).center());
        centerOnScreen(&rig.host, nullptr);
    }

    void takesTheHostsParentOnlyWithoutAnother() {
        TestRig rig;
        QWidget hostParent;
        QWidget own;
        rig.host.onGetDialogParent = [&hostParent] { return &hostParent; };
        for (QWidget* const parent : {static_cast<QWidget*>(nullptr), &own}) {
            Answer answer([&](QMessageBox& box) {
                QCOMPARE(box.parentWidget(), parent ? parent : &hostParent);
                press(box, QMessageBox::Yes);
            });
            QCOMPARE(ask(YesNo, rig, {}, parent), 1);
        }
    }

    void cancelsWhenItsParentGoes() {
        TestRig rig;
        rig.host.onCanStartModal = [] { return true; };
        auto parent = std::make_unique<QWidget>();
        Answer answer([&parent](QMessageBox&) { parent.reset(); });
        QCOMPARE(ask(YesNoCancel, rig, {}, parent.get()), int(QMessageBox::Cancel));
        QVERIFY(answer.seen);
        QCOMPARE(rig.host.calls.names().last(), QStringLiteral("HostApplication.endModal"));
    }

    void leavesNothingBehindAFailure() {
        TestRig rig;
        rig.host.onCanStartModal = [] { return true; };
        rig.host.calls.failNext(QStringLiteral("HostApplication.getPrefInt"),
                                throwing(std::runtime_error("x")));
        QVERIFY_EXCEPTION_THROWN(ask(YesNo, rig), std::runtime_error);
        QCOMPARE(rig.host.calls.names().last(), QStringLiteral("HostApplication.endModal"));
        for (const QWidget* const window : QApplication::topLevelWidgets()) {
            QVERIFY(!window->isVisible());
        }
    }

    void tellsTheHostOfAnEndThatFails() {
        TestRig rig;
        rig.host.onCanStartModal = [] { return true; };
        rig.host.calls.failNext(QStringLiteral("HostApplication.endModal"),
                                throwing(std::runtime_error("x")));
        Answer answer([](QMessageBox& box) { press(box, QMessageBox::Yes); });
        QCOMPARE(ask(YesNo, rig), 1);
        QCOMPARE(rig.host.calls.names().last(), QStringLiteral("HostApplication.handleError"));
    }
};

QTEST_MAIN(tst_Messages)
#include "tst_messages.moc"

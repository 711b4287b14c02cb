#include "viewer/messages/MessageBoxes.h"
#include "viewer/messages/Translated.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>
#include <QTranslator>

#include <functional>

namespace {

/// Turns the texts that it knows round.
class Turned : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        const QString known = QString::fromUtf8(text);
        if (known == QLatin1String("\"%1\": %2")) {
            return QStringLiteral("%2 <- %1");
        }
        return known == QLatin1String("%1 is expected") ? QStringLiteral("expected: %1")
               : known == QLatin1String("a text")       ? QStringLiteral("text")
                                                        : QString();
    }
};

/// Answers the next modal box as a user would, after looking at it.
class Answer : public QObject {
public:
    explicit Answer(std::function<void(QMessageBox&)> look) : m_look(std::move(look)) {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box && box->isVisible()) {
                m_timer.stop();
                seen = true;
                m_look(*box);
                if (QTest::currentTestFailed()) {
                    box->reject(); // nobody else closes it then
                }
            }
        });
        m_timer.start(5);
    }

    bool seen = false;

private:
    std::function<void(QMessageBox&)> m_look;
    QTimer m_timer;
};

void press(QMessageBox& box, QMessageBox::StandardButton button) {
    QTest::mouseClick(box.button(button), Qt::LeftButton);
}

} // namespace

class TestMessageBoxes : public QObject {
    Q_OBJECT

private slots:
    // A reason is put together where nobody knows the user's language, one in another.
    void reasonsAreTranslatedInParts() {
        const QString key = QStringLiteral("%2"); // is anybody's
        const Reason why = reason("\"%1\": %2", {key, reason("%1 is expected", {reason("a text")})});
        QCOMPARE(translated(why), QStringLiteral("\"%2\": a text is expected"));
        Turned turned;
        QVERIFY(QCoreApplication::installTranslator(&turned));
        QCOMPARE(translated(why), QStringLiteral("expected: text <- %2"));
        QCOMPARE(why.english(), QStringLiteral("\"%2\": a text is expected"));
        QCOMPARE(translated(reason("took %1 instead", {QStringLiteral("a text")})),
                 QStringLiteral("took a text instead")); // a value is no text of ours
        QCoreApplication::removeTranslator(&turned);
    }

    void textIsNeverMarkup() {
        const QString evil = QStringLiteral("<img src=x> <b>&amp;</b>");
        Answer answer([&](QMessageBox& box) {
            for (QLabel* const label : box.findChildren<QLabel*>()) {
                if (!label->text().isEmpty()) {
                    QCOMPARE(label->textFormat(), Qt::PlainText);
                }
            }
            QVERIFY(box.text().contains(evil));
            press(box, QMessageBox::Ok);
        });
        m_boxes.alertList(evil, {evil}, nullptr);
        QVERIFY(answer.seen);
    }

    // Enter must not lose anything.
    void aLossIsCancelledUnlessTheUserSaysSo() {
        Answer answer([&](QMessageBox& box) {
            QVERIFY(box.defaultButton() == box.button(QMessageBox::Cancel));
            QVERIFY(box.text().contains(QStringLiteral("Marlin: 3 frames")));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QVERIFY(!m_boxes.confirmLoss(QStringLiteral("gone?"), {QStringLiteral("Marlin: 3 frames")}, nullptr));
        QVERIFY(answer.seen);
        Answer second([&](QMessageBox& box) { press(box, QMessageBox::Ok); });
        QVERIFY(m_boxes.confirmLoss(QStringLiteral("gone?"), {}, nullptr));
    }

    void aFailureWithoutWordsIsToldToo() {
        Answer answer([&](QMessageBox& box) {
            QVERIFY(!box.text().isEmpty());
            press(box, QMessageBox::Ok);
        });
        m_boxes.error(QString());
        QVERIFY(answer.seen);
        // A function without words is told by its name.
        QString text;
        Answer named([&text](QMessageBox& box) {
            text = box.text();
            press(box, QMessageBox::Ok);
        });
        MessageBoxes wordless({}, nullptr);
        wordless.deviceError(
            {QStringLiteral("busy_function"), {{QStringLiteral("Mono"), QStringLiteral("hot")}}});
        QVERIFY2(text.contains(QStringLiteral("busy_function")) && text.contains(QStringLiteral("Mono: hot")),
                 qPrintable(text));
    }

    void longListStaysOnScreen() {
        QStringList lines;
        for (int i = 0; i < 64; ++i) {
            lines.append(QStringLiteral("camera <%1>").arg(i));
        }
        Answer answer([&](QMessageBox& box) {
            QVERIFY(box.height() < 600);
            const QStringList shown = box.text().split(QLatin1Char('\n'));
            const int bullets = shown.filter(QChar(0x2022)).size();
            QVERIFY(bullets > 1 && bullets < lines.size());
            QCOMPARE(shown.last().trimmed(), QStringLiteral("... and %1 more").arg(lines.size() - bullets));
            const auto* const details = box.findChild<QTextEdit*>();
            QCOMPARE(details->toPlainText(), lines.join(QLatin1Char('\n')));
            press(box, QMessageBox::Ok);
        });
        m_boxes.warnList(QStringLiteral("64 cameras"), lines, nullptr);
        QVERIFY(answer.seen);
    }

    void questionGivesTheAnswer() {
        const auto ask = [this](QMessageBox::StandardButton button, bool okCancel) {
            Answer answer([button](QMessageBox& box) { press(box, button); });
            return okCancel ? m_boxes.confirmOkCancel(QStringLiteral("Sure?"), nullptr)
                            : m_boxes.confirm(QStringLiteral("Sure?"), nullptr, {});
        };
        QVERIFY(ask(QMessageBox::Yes, false));
        QVERIFY(!ask(QMessageBox::No, false));
        QVERIFY(ask(QMessageBox::Ok, true));
        QVERIFY(!ask(QMessageBox::Cancel, true));
    }

    void escapeDeclines() {
        Answer answer([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QVERIFY(!m_boxes.confirmOkCancel(QStringLiteral("Sure?"), nullptr));
    }

    void questionTakesLabels() {
        Answer answer([](QMessageBox& box) {
            QCOMPARE(box.button(QMessageBox::Yes)->text(), QStringLiteral("Open"));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QVERIFY(m_boxes.confirm(QStringLiteral("Sure?"), nullptr,
                                {{QStringLiteral("yes"), QStringLiteral("Open")},
                                 {QStringLiteral("default"), QStringLiteral("yes")}}));
    }

    void questionNamesWhomItConcernsAndHasAHarmlessEnter() {
        Answer answer([](QMessageBox& box) {
            QTextDocument under;
            under.setHtml(box.informativeText());
            QCOMPARE(under.toPlainText(), QStringLiteral("<i>Marlin\nPlover"));
            QCOMPARE(box.text(), QStringLiteral("Sure?"));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QVERIFY(!m_boxes.confirm(QStringLiteral("Sure?"), nullptr,
                                 {{QStringLiteral("under"), QStringLiteral("<i>Marlin\nPlover")}}));
        QVERIFY(answer.seen);
    }

    void boxesAreCounted() {
        Answer outer([this](QMessageBox& box) {
            QCOMPARE(m_boxes.openCount(), 1);
            Answer inner([this](QMessageBox& second) {
                QCOMPARE(m_boxes.openCount(), 2);
                press(second, QMessageBox::Ok);
            });
            m_boxes.info(QStringLiteral("inner"), &box);
            press(box, QMessageBox::Ok);
        });
        m_boxes.info(QStringLiteral("outer"), nullptr);
        QVERIFY(outer.seen);
        QCOMPARE(m_boxes.openCount(), 0);
    }

    void deviceErrorNamesOperationAndCameras() {
        DeviceFailure failure;
        failure.operation = QStringLiteral("KVC_SetShutterSpeedFps");
        failure.cameras = {{QStringLiteral("Mono"), QStringLiteral("busy")},
                           {QStringLiteral("Colour"), QStringLiteral("hot")}};
        Answer answer([](QMessageBox& box) {
            for (const char* part : {"words of KVC_SetShutterSpeedFps", "Mono: busy", "Colour: hot"}) {
                QVERIFY2(box.text().contains(QLatin1String(part)), part);
            }
            press(box, QMessageBox::Ok);
        });
        m_boxes.deviceError(failure);
        QVERIFY(answer.seen);
    }

    // One box for what fails together, and for what comes while it is open, however often the same fails.
    void failuresGatherInOneBox() {
        Answer answer([&](QMessageBox& box) {
            const QString before = box.text();
            QVERIFY2(before.contains(QStringLiteral("words of KVC_SetShutterSpeedFps: Mono: busy")),
                     qPrintable(before));
            QVERIFY2(before.contains(QStringLiteral("second")), qPrintable(before));
            const QAbstractButton* const button = box.button(QMessageBox::Ok);
            for (int i = 0; i < 3; ++i) {
                m_boxes.error(QStringLiteral("again"));
            }
            QCOMPARE(m_boxes.openCount(), 1);
            QCOMPARE(box.text(), before + QStringLiteral("\n  \u2022 again (3 times)"));
            QCOMPARE(box.button(QMessageBox::Ok), button); // may be pressed at that moment
            press(box, QMessageBox::Ok);
        });
        m_boxes.gatherFailures(true);
        m_boxes.deviceError(
            {QStringLiteral("KVC_SetShutterSpeedFps"), {{QStringLiteral("Mono"), QStringLiteral("busy")}}});
        m_boxes.error(QStringLiteral("second"));
        QCOMPARE(m_boxes.openCount(), 0);
        m_boxes.gatherFailures(false);
        QVERIFY(answer.seen);
        const auto look = [](QMessageBox& box) {
            QCOMPARE(box.text(), QStringLiteral("next")); // a box that was closed is done with
            press(box, QMessageBox::Ok);
        };
        Answer next(look);
        m_boxes.error(QStringLiteral("next"));
        QVERIFY(next.seen);
        Answer kept(look);
        m_boxes.gatherFailures(true);
        m_boxes.error(QStringLiteral("next"));
        QTRY_VERIFY(kept.seen); // events run, so nobody gathers any more
        m_boxes.gatherFailures(false);
        QCOMPARE(m_boxes.openCount(), 0);
    }

    // What fails in a dialog that stands over the box is told over the dialog.
    void aFailureIsToldInFront() {
        QStringList told; // compared when both boxes have closed: a box that stays holds the test
        Answer below([&](QMessageBox& box) {
            QDialog dialog;
            dialog.setModal(true);
            dialog.show();
            Answer above([&](QMessageBox& second) {
                told += second.text();
                press(second, QMessageBox::Ok);
            });
            m_boxes.error(QStringLiteral("above"));
            dialog.close();
            told += box.text();
            press(box, QMessageBox::Ok);
        });
        m_boxes.error(QStringLiteral("below"));
        QCOMPARE(told, QStringList({QStringLiteral("above"), QStringLiteral("below")}));
        QVERIFY(below.seen);
        QCOMPARE(m_boxes.openCount(), 0);
    }

private:
    MessageBoxes m_boxes{
        {nullptr, nullptr, [](const QString& function) { return QStringLiteral("words of ") + function; }}};
};

QTEST_MAIN(TestMessageBoxes)
#include "tst_message_boxes.moc"

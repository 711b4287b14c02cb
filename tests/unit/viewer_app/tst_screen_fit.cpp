// What has to do with less room than it would take: dialogs on small screens, a line in the status bar.

#include "viewer/app/look/ScreenFit.h"
#include "viewer/app/panes/ChangeNote.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QtTest>

class TestScreenFit : public QObject {
    Q_OBJECT

private slots:
    void aDialogIsNoLargerThanTheScreen() {
        ScreenFit fit;
        qApp->installEventFilter(&fit);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        for (const bool isLarge : {true, false}) {
            QDialog dialog;
            const QSize wanted(510, isLarge ? screen.height() + 60 : 530);
            dialog.setFixedSize(wanted);
            if (isLarge) { // where only a part of it would show
                dialog.move(screen.bottomRight() - QPoint(300, 300));
            }
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QCOMPARE(dialog.width(), wanted.width());
            QCOMPARE(dialog.height() == wanted.height(), !isLarge);
            QVERIFY2(screen.contains(dialog.geometry()), qPrintable(QString::number(dialog.height())));
            const int title = dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &dialog);
            QVERIFY(title > 0 && dialog.height() <= screen.height() - title); // which has its room above it
        }
    }

    void aLineIsCutToTheRoomThatItHas() {
        const QString line = QStringLiteral("Also changed: the shutter speed and the resolution");
        ChangeNote note;
        note.resize(240, 30);
        note.setLine(line);
        QVERIFY(QTest::qWaitForWindowExposed(&note));
        const auto* const text = note.findChild<QLabel*>();
        QVERIFY(text->text() != line && text->text().startsWith(QLatin1String("Also")));
        note.resize(900, 30);
        QTRY_COMPARE(text->text(), line);
        note.resize(240, 30);
        QTRY_VERIFY(text->text() != line);
        QVERIFY(note.toolTip().contains(line));
        QSignalSpy asked(&note, &ChangeNote::undoAsked);
        note.findChild<QPushButton*>()->click();
        QCOMPARE(asked.count(), 1);
        note.setLine(QString());
        QVERIFY(note.isHidden() && note.toolTip().isEmpty());
    }
};

QTEST_MAIN(TestScreenFit)
#include "tst_screen_fit.moc"

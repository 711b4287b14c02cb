#pragma once

#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

/// The whole program, with preferences of its own, and what a test does with it.
class RunningViewer {
protected:
    void prepare() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_options = Options();
        m_options.settings = m_folder->path();
        m_options.plugin = QStringLiteral(PLUGIN_FILE);
    }

    void start() {
        m_viewer = std::make_unique<Viewer>(m_options);
        m_viewer->start();
        QTRY_VERIFY_WITH_TIMEOUT(m_viewer->panelView().isPageOpen(), 20000);
        QCoreApplication::processEvents();
    }

    QAction& action(const char* name) const { return *m_viewer->mainWindow().action(QLatin1String(name)); }
    QVariant run(const char* script) { return m_viewer->panelView().evaluate(QString::fromUtf8(script)); }

    /// What `act` brings up goes to `answer`, again and again until it has gone.
    static void answering(const std::function<void()>& act, const std::function<void(QWidget&)>& answer) {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&answer] {
            if (QWidget* const window = QApplication::activeModalWidget()) {
                answer(*window);
            }
        });
        timer.start(20);
        act();
    }

    void trigger(const char* name, const std::function<void(QWidget&)>& answer) {
        answering([&] { action(name).trigger(); }, answer);
    }

    /// The texts of the boxes that come up after a file dialog, which gets the path. All boxes are closed
    /// without a yes; a file dialog that is still there behind one is left.
    static QStringList boxesOf(const std::function<void()>& act, const QString& path) {
        QStringList texts;
        bool isNamed = false;
        answering(act, [&](QWidget& window) {
            if (auto* const box = dynamic_cast<QMessageBox*>(&window)) {
                texts += box->text();
                box->reject();
            } else if (auto* const files = dynamic_cast<QFileDialog*>(&window)) {
                if (!isNamed) {
                    files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
                }
                // Later: a box over it runs events, in which this must be called again.
                QTimer::singleShot(0, files, [files, isNamed] {
                    QMetaObject::invokeMethod(files, isNamed ? "reject" : "accept");
                });
                isNamed = true;
            }
        });
        return texts;
    }

    QStringList boxesOf(const char* name, const QString& path) {
        return boxesOf([&] { action(name).trigger(); }, path);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    Options m_options;
    std::unique_ptr<Viewer> m_viewer;
};

#pragma once

#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"

#include <QAction>
#include <QApplication>
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

    /// Triggers an action; what it brings up goes to `answer`, again and again until it has gone.
    void trigger(const char* name, const std::function<void(QWidget&)>& answer) {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&answer] {
            if (QWidget* const window = QApplication::activeModalWidget()) {
                answer(*window);
            }
        });
        timer.start(20);
        action(name).trigger();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    Options m_options;
    std::unique_ptr<Viewer> m_viewer;
};

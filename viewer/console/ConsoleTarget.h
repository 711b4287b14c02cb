#pragma once

#include "livecontrol/interface/types.h"

#include <QList>
#include <QString>
#include <QStringList>

class CallRecorder;
class DocumentList;
class ExportJobs;
class Preferences;
class RecordingShelf;
class QWebView;
class QWidget;

/// One line of the program's log.
struct LogLine {
    QString level; // "debug", "info", "warning", "critical"
    QString text;
};

/// What the console drives. The program's windows implement it.
class ConsoleTarget {
public:
    virtual ~ConsoleTarget() = default;

    virtual QWidget* window() = 0;
    /// The side panel's page.
    virtual QWebView* panel() = 0;
    /// The image view of a document; null if it has no window.
    virtual QWidget* imageView(DOCKEY key) = 0;
    virtual DocumentList& documents() = 0;
    virtual RecordingShelf& recordings() = 0;
    virtual CallRecorder& calls() = 0;
    virtual Preferences& preferences() = 0;
    virtual ExportJobs& jobs() = 0;
    virtual QString rigName() = 0;
    /// Script errors of all pages since the last call.
    virtual QStringList takeScriptErrors() = 0;
    /// The log, oldest line first; with `clear` it is emptied after the call.
    virtual QList<LogLine> logLines(bool clear) = 0;
    virtual void quit() = 0;
};

#pragma once

#include "viewer/saving/SaveRequest.h"

#include <QObject>

class ViewerHost;
class JS_Mediator_FileDialog;
class JS_Mediator_SaveFile;

/// Runs the dialogs that save and open, each modal. What fails in one is shown to the user.
class SavingDialogs : public QObject {
    Q_OBJECT

public:
    /// The host is not owned and outlives this. `save` writes what the user asked for.
    SavingDialogs(ViewerHost& host, SaveFunction save, QObject* parent = nullptr);

public slots:
    void save();
    void snapshot();
    void convert();
    void report();
    void layout();
    void storage();
    /// Recordings that the user took are open afterwards, and opened() is emitted.
    void open();

signals:
    void opened();

private:
    void run(const QString& widget, const QString& family, const char* title);

    ViewerHost& m_host;
    SaveFunction m_save;
};

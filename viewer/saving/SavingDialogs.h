#pragma once

#include "viewer/saving/SaveRequest.h"

#include <QObject>

#include <memory>

class JS_Mediator;
class JS_Mediator_FileDialog;
class Preferences;
class SavingMediator;
class ViewerHost;

/// Runs the dialogs that save and open, each modal. What fails in one is shown to the user.
class SavingDialogs : public QObject {
    Q_OBJECT

public:
    /// Host and preferences outlive this. `save` writes what the user asked for.
    SavingDialogs(ViewerHost& host, Preferences& preferences, SaveFunction save, QObject* parent = nullptr);

    void setLayoutPicture(const LayoutPicture& picture) { m_layoutPicture = picture; }

public slots:
    void save();
    void snapshot();
    void convert();
    void report();
    void layout();
    void storage();
    /// Recordings that the user took are open afterwards; false if he took none. They are listed in file mode
    /// alone.
    bool open();

private:
    void run(const QString& widget, const QString& family, const char* title);

    std::unique_ptr<JS_Mediator> drives();
    std::unique_ptr<SavingMediator> mediatorFor(const JS_Mediator_FileDialog& page);

    ViewerHost& m_host;
    Preferences& m_preferences;
    SaveFunction m_save;
    LayoutPicture m_layoutPicture;
};

#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"
#include "livecontrol/devices/RUN_WifiControlThread.h"

#include <QPointer>

#include <memory>

class DOC_Settings;
class GUI_WifiSettingDialog;
class QProgressDialog;

/// The script object `wifisetting`: the access points that a camera sees. Rows are numbered from 0 in the
/// camera's order. Slots that take long run behind a modal wait box.
class JS_Mediator_WifiSettingDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// Neither the camera's document nor the dialog, parent of further windows, is owned.
    JS_Mediator_WifiSettingDialog(HostObject* host, DOC_Interface* document, GUI_WifiSettingDialog* dialog);
    ~JS_Mediator_WifiSettingDialog() override;

public slots:
    /// One JSON text a row. Forgets a chosen row that there is no more.
    QVariantList getAccessPointList();
    void setSelectedNo(int key) { m_selectedNo = key; }
    /// -1 for none.
    int getSelectedNo() { return m_selectedNo; }
    /// Row of the connected access point as of the last list; -1 for none.
    int getConnectedNo() { return m_connectedNo; }
    /// Asks for the password of an access point. A known one isn't shown, and stays unless it is changed.
    void inputPassword(int key);
    void scanWifi();
    /// Connects with the chosen access point.
    void connectWifi();
    void disconnectWifi();
    /// The scan or connection has ended.
    void finishedWifiControl();
    /// Closes the dialog; after a connection through it the user may disconnect the camera.
    void onClose();

private:
    DOC_Settings& camera();
    /// Whether the camera was closed while the dialog is open; its document must not be touched then. Tells
    /// the user once and ends the dialog.
    bool isGone();
    QString row(int index);
    /// Runs the worker behind a waiting box; false if it runs already or the camera is gone. Throws if the
    /// worker failed.
    bool runWorker(RUN_WifiControlThread::ControlMode mode, const QString& text);
    void showWaitDialog(const QString& text);
    void tell(const QString& text);

    DOC_Interface* m_document;
    GUI_WifiSettingDialog* m_dialog;
    int m_selectedNo = -1;
    int m_connectedNo = -1;
    bool m_gone = false;
    bool m_connectRequested = false; ///< A connection was made through this dialog.
    std::unique_ptr<RUN_WifiControlThread> m_worker;
    QPointer<QProgressDialog> m_waitBox; ///< The one that shows now.
};

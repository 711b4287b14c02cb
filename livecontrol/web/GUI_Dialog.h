#pragma once

#include <QDialog>
#include <QVariant>

/// Base of all dialogs: the Escape policy, a log line when the user closes it by its frame, and a close
/// button that can be switched off and on.
class GUI_Dialog : public QDialog {
    Q_OBJECT

public:
    /// With `ignoreEscape` the Escape key does nothing.
    GUI_Dialog(QWidget* parent, Qt::WindowFlags flags, bool ignoreEscape);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void setVisible(bool visible) override;

signals:
    void signalEnableCloseButton();
    void signalDisableCloseButton();

public slots:
    /// For dialogs that are their page's script object themselves; the same as the slots of a mediator.
    void userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                 const QString& id, const QString& className, const QVariant& value);
    void userOperationErrorLog(const QString& message);
    void slotEnableCloseButton();
    void slotDisableCloseButton();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setCloseButton(bool on);

    bool m_ignoreEscape;
    bool m_changingFlags = false;
};

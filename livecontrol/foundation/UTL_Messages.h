#pragma once

#include <QMap>
#include <QMessageBox>

class HostApplication;

/// Questions to the user in a native box whose buttons can have a wording of their own. The box has the
/// application's style and stays above other windows.
///
/// Texts and labels are untranslated and shown as plain text, `under` as it is in lines under the text: whom
/// the question concerns. A null parent means the host's dialog parent. Enter is the harmless answer: Cancel,
/// or No where there is none.
/// Closing the box by its frame or Escape is the answer No, or Cancel where there is one. Each answer is
/// logged. Runs an event loop: pages may call in while the box is open. GUI thread only; throws what the host
/// throws.
class UTL_Messages {
public:
    /// Wording of a button in place of its standard one.
    using Labels = QMap<QMessageBox::StandardButton, QString>;

    UTL_Messages() = delete;

    /// Yes and No; true for Yes.
    static bool confirm(const QString& text, HostApplication* host, QWidget* parent,
                        const Labels& labels = {}, const QString& under = {});
    /// Ok and Cancel; true for Ok.
    static bool confirmOkCancel(const QString& text, HostApplication* host, QWidget* parent,
                                const Labels& labels = {}, const QString& under = {});
    /// Yes, No and Cancel; gives the answer.
    static QMessageBox::StandardButton confirmYesNoCancel(const QString& text, HostApplication* host,
                                                          QWidget* parent, const Labels& labels = {},
                                                          const QString& under = {});
};

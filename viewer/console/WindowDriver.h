#pragma once

#include <QJsonArray>
#include <QString>

class QDialog;
class QWebView;
class QWidget;

/// Drives the program's own windows: message boxes, dialogs, file dialogs, unless a modal window stands
/// before them. Throws ConsoleError with the reason.
namespace windows {

/// All visible top windows, the front one first: class, title, text, buttons, page, modal.
QJsonArray list();
/// Presses a button of a visible window by its text (without "&"), the front window first. Posted.
void press(const QString& button);
/// Closes a visible window by its title as its frame would. Posted.
void close(const QString& title);
/// Chooses an entry of a main window's menus by the name of its action. Posted.
void choose(const QWidget& window, const QString& action);
/// Answers the open file dialog with a path, or cancels it.
void answerFileDialog(const QString& path, bool cancel);
/// The page of the front web dialog; null if none is open.
QWebView* topDialogPage();
/// The front dialog; null if none is open.
QDialog* topDialog();

} // namespace windows

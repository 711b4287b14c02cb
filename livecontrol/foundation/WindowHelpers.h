#pragma once

#include <QString>

class HostApplication;
class QPropertyAnimation;
class QWidget;

/// A text file or resource; empty, without a message, if it can't be opened.
QString readTextResource(const QString& path);

/// Style sheet of native dialogs, by the preference "env/style".
void applyNativeStyle(HostApplication* host, QWidget* widget);
/// The same for message boxes with buttons of their own wording.
void applyMessageBoxStyle(HostApplication* host, QWidget* widget);

/// Only for a host without a dialog parent: moves the widget to the middle of the screen "main/scrno".
void centerOnScreen(HostApplication* host, QWidget* widget);

/// An animation of the window's opacity from 0 to 1 within 500 ms. The caller starts it, with
/// DeleteWhenStopped.
QPropertyAnimation* createFadeIn(QWidget* widget);

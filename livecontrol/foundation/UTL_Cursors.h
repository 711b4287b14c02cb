#pragma once

#include <QCursor>
#include <QGuiApplication>

// The application's override cursor while the pointer is over a part of the rectangle on the image. With
// `restore` the one that was set before goes first, so that the stack of cursors doesn't grow with each move.

inline void restoreCursor() { QGuiApplication::restoreOverrideCursor(); }

inline void setOverrideShape(Qt::CursorShape shape, bool restore) {
    if (restore) {
        restoreCursor();
    }
    QGuiApplication::setOverrideCursor(QCursor(shape));
}

inline void setSizeVerCursor(bool restore) { setOverrideShape(Qt::SizeVerCursor, restore); }
inline void setSizeHorCursor(bool restore) { setOverrideShape(Qt::SizeHorCursor, restore); }
inline void setSizeBDiagCursor(bool restore) { setOverrideShape(Qt::SizeBDiagCursor, restore); }
inline void setSizeFDiagCursor(bool restore) { setOverrideShape(Qt::SizeFDiagCursor, restore); }
inline void setSizeAllCursor(bool restore) { setOverrideShape(Qt::SizeAllCursor, restore); }

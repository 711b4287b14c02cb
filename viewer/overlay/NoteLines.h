#pragma once

#include <QStringList>

struct CustomItem;

/// The lines of a text that a user wrote, as he broke them, in whatever way. However long the text is, there
/// are no more than a view has room for.
struct NoteLines {
    static constexpr int Most = 200;
    static constexpr int Longest = 1000; // characters of a line; a sign tells that it goes on

    QStringList lines;
    int leftOut = 0; // lines behind the last one

    /// Blank lines at the end are left out, since they would take room from what follows.
    static NoteLines of(const QString& text);
    /// Of a custom item: "name: value unit".
    static NoteLines of(const CustomItem& item);
};

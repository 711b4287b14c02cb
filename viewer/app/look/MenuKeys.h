#pragma once

class QMenu;

/// Gives each entry of a menu a letter of its own to be chosen by, whenever it opens: the first of its text
/// that no other has, or one behind the text where the language has no letters.
void giveMenuKeys(QMenu& menu);

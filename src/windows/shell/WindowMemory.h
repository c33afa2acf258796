// Keeps between runs what the keeper made of a window: the main window's place, size and whether it fills the screen,
// the sizes of the others, and in all of them the order and widths of the columns. It is kept in section WINDOWS of the
// settings under the names of window and list, and only where the keeper changed something: a window that he left alone
// goes on finding its own size. Forms calls this for each window that it makes.
#pragma once

class QWidget;

/// Gives the window what is remembered of it, and remembers it when it is hidden. Damaged values are ignored, and so is
/// a place that is on no screen. If the settings cannot be written, nothing is said. No window gets larger than the
/// screen has room for.
void RememberWindow(QWidget &window);

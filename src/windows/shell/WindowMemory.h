// Keeps between runs how the keeper arranged the windows: the place, size and maximized state of the main window, the
// sizes of the others, and in all of them the order and widths of list columns. They are stored in section WINDOWS of
// the settings, under the names of window and list, and only if the keeper changed something: a window that was left
// alone still chooses its own size. Forms calls this for each window that it makes.
#pragma once

class QWidget;

/// Gives the window its first size (FitToScreen), restores what is remembered of it, and remembers it again when the
/// window is hidden. Damaged values are ignored, and so is a place outside all screens. If the settings cannot be
/// written, nothing is reported.
void RememberWindow(QWidget &window);

// The first size of a window, and what becomes of a window for which the screen is too small. Sizes in the code are
// pixels for the usual font of 9 points at 96 dpi; whoever uses one multiplies it with FontScale().
#pragma once

class QFont;
class QScreen;
class QSize;
class QWidget;

/// How much wider the letters of this font are than those of the font for which sizes are given.
double FontScale(const QFont &font);

/// The largest size of a window on a screen: what the desktop leaves free, without the window's own frame.
QSize RoomOn(const QScreen &screen);

/// Call it once for each new window. A size that it was given is taken as one for the usual font: it grows with the
/// font, up to the room on the screen. A dialog with larger contents gets scroll bars, when it is shown or when its
/// contents grow, and one that grows stays on the screen.
void FitToScreen(QWidget &window);

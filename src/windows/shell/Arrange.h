// Arrangements of the child windows that the MDI area lacks or does differently. The Window menu of the main window
// uses them.
#pragma once

#include <Qt>

class QMdiArea;
class QMdiSubWindow;

/// Places the children that are not minimised one behind the other, with their titles visible. They keep their sizes,
/// which the MDI area's own cascade changes.
void CascadeWindows(QMdiArea &area);
/// Fills the area with the children that are not minimised: one above the other (horizontal), or side by side
/// (vertical).
void TileWindows(QMdiArea &area, Qt::Orientation bars);
/// Whether a child still has the size that it was given by TileWindows.
bool WasTiled(const QMdiSubWindow &frame);
/// Lines the minimised children up along the bottom of the area.
void ArrangeIcons(QMdiArea &area);

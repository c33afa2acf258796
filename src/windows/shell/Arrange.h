// Arrangements of the children that the MDI area has not, or not as a keeper would have them.
#pragma once

#include <Qt>

class QMdiArea;
class QMdiSubWindow;

/// Lays the children that are not minimised one behind the other, each seen by its title. They keep their sizes, which
/// the MDI area's own cascade does not.
void CascadeWindows(QMdiArea &area);
/// Fills the area with the children that are not minimised: one above the other (horizontal), or side by side
/// (vertical).
void TileWindows(QMdiArea &area, Qt::Orientation bars);
/// Whether a child still has the size that it was given by TileWindows.
bool WasTiled(const QMdiSubWindow &frame);
/// Lines the minimised children up along the bottom of the area.
void ArrangeIcons(QMdiArea &area);

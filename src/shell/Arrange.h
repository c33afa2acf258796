// Arrangements of the children that the MDI area does not know of itself.
#pragma once

#include <Qt>

class QMdiArea;

/// Fills the area with the children that are not minimised: one above the other (horizontal), or side by side
/// (vertical).
void TileWindows(QMdiArea &area, Qt::Orientation bars);
/// Lines the minimised children up along the bottom of the area.
void ArrangeIcons(QMdiArea &area);

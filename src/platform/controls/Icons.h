// The program's own icons, SVG drawings that are sharp at every size. An icon is read when it is painted for the first
// time and then cached, so that a window full of buttons costs nothing before it is shown.
#pragma once

#include <QIcon>

/// The icon in that file: "tank" means tank.svg. The file must be in data/icons.
QIcon Icon(const char *name);

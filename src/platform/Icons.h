// The program's own icons, drawings that are sharp at every size. A picture is read when it is first painted and kept
// as painted, so that a window full of buttons costs nothing before it is seen.
#pragma once

#include <QIcon>

/// By the name of its file, "tank" for tank.svg; the name must be one of data/icons.
QIcon Icon(const char *name);

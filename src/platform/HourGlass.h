// The waiting pointer, for as long as the object lives: put back whatever way its scope is left.
#pragma once

#include <QApplication>

class HourGlass
{
public:
    HourGlass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~HourGlass() { QApplication::restoreOverrideCursor(); }
    HourGlass(const HourGlass &) = delete;
    HourGlass &operator=(const HourGlass &) = delete;
};

// Shows the wait cursor for as long as the object lives.
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

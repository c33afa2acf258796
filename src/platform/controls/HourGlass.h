// Shows the wait cursor for as long as the object lives, or the busy cursor if the windows can be used meanwhile.
#pragma once

#include <QApplication>

class HourGlass
{
public:
    explicit HourGlass(Qt::CursorShape shape = Qt::WaitCursor) { QApplication::setOverrideCursor(shape); }
    ~HourGlass() { QApplication::restoreOverrideCursor(); }
    HourGlass(const HourGlass &) = delete;
    HourGlass &operator=(const HourGlass &) = delete;
};

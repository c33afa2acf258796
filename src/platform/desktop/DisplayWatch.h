// The toolkit aborts with lines of its own where it reaches no display. While a DisplayWatch lives, the program ends
// with one plain line and status 1 instead. main() has one while it makes the application object. Messages of the
// toolkit are kept until then, because they are about the same thing.
#pragma once

#include <QtGlobal>

class DisplayWatch
{
public:
    DisplayWatch();
    ~DisplayWatch(); ///< passes on the messages
    DisplayWatch(const DisplayWatch &) = delete;
    DisplayWatch &operator=(const DisplayWatch &) = delete;
};

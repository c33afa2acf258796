// The printed schedule: one line for each date with its task, in the order of the list.
#pragma once

#include <functional>

#include "platform/core/PrintJob.h"

/// The text of an item (from 1): sub-item 0 is its date, 1 its task.
using ScheduleText = std::function<QString(int item, int subItem)>;

/// Prints `items` lines. The text is asked for while printing.
Report MakeScheduleReport(int items, const ScheduleText &text);

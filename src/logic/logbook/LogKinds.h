// The table of the three logs. Their common code is written once, in the logbook, its commands and the printed reports;
// this table shows their differences side by side.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

/// The logs, numbered like their tabs in the logbook.
enum LogTab { WaterTab, LivestockTab, MaintenanceTab };
inline constexpr std::array logTabs = {WaterTab, LivestockTab, MaintenanceTab};

struct LogColumn
{
    const char *key;
    const char *heading;
    bool right;
    const char *column;  ///< of the table; null for date and time
    const char *picture; ///< format of a number or a date; null for text
    int width;           ///< pixels at 96 dpi
};

/// The list of a log in the logbook.
struct LogList
{
    const char *name;    ///< of the list view
    const char *caption; ///< "Contents of ... for '<tank>'"
    const char *image;
    const char *ascending; ///< what follows ORDER BY
    const char *descending;
    const char *timePicture;
    std::vector<LogColumn> columns;
};

struct ReportColumn
{
    const char *head;
    double left;         ///< fraction of the page's width
    const char *column;  ///< of the table; null for date and time
    const char *picture; ///< format of a number; null for text
};

/// The printed log.
struct LogReport
{
    const char *dialogTitle;
    const char *title;
    const char *empty; ///< the message if there are no rows
    bool landscape;
    const char *momentSeparator; ///< between date and time
    std::vector<ReportColumn> columns;
    std::vector<std::vector<const char *>> moreLines; ///< columns that are printed below an entry, a list for each line
};

struct LogKind
{
    const char *caption;
    const char *table;
    const char *tankColumn; ///< the tank's id
    const char *dateColumn;
    const char *timeColumn;
    const char *nameColumn; ///< the name in the key of a row; null where date and time identify an entry
    bool asksByName;        ///< the question before a deletion also shows the name
    bool findsByTankName;   ///< the deletion searches for the tank's name: it finds a row only if name and id agree
    LogList list;
    LogReport report;
};

const LogKind &KindOf(LogTab log);

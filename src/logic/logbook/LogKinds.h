// The three logs, a row each. What the logs have in common is written once, in the logbook, its commands and the
// printed reports; what differs between them is here, where a reader sees it side by side.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

/// The logs by the tab of the logbook that each is on.
enum LogTab { WaterTab, LivestockTab, MaintenanceTab };
inline constexpr std::array logTabs = {WaterTab, LivestockTab, MaintenanceTab};

struct LogColumn
{
    const char *key;
    const char *heading;
    bool right;
    const char *column;  ///< of the table; null for date and time
    const char *picture; ///< number or date picture; null: as text
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
    const char *picture; ///< of a number; null: as text
};

/// The printed log.
struct LogReport
{
    const char *dialogTitle;
    const char *title;
    const char *empty; ///< what is said where there are no rows
    bool landscape;
    const char *momentSeparator; ///< between date and time
    std::vector<ReportColumn> columns;
    std::vector<std::vector<const char *>> moreLines; ///< columns that are printed below an entry, one list per line
};

struct LogKind
{
    const char *caption;
    const char *table;
    const char *tankColumn; ///< the tank's id
    const char *dateColumn;
    const char *timeColumn;
    const char *nameColumn; ///< the name in the key of a row; null where date and time identify an entry
    bool asksByName;        ///< the question before a deletion tells the name as well
    bool findsByTankName;   ///< the deletion looks for the tank's name, so it finds a row only where name and id agree
    LogList list;
    LogReport report;
};

const LogKind &KindOf(LogTab log);

#include "logic/logbook/LogKinds.h"

#include "logic/common/Measurements.h"

namespace {

std::vector<LogColumn> waterListColumns()
{
    std::vector<LogColumn> columns{{"Date", "Date", false, nullptr, nullptr, 170}};
    for (const Measurement measurement : listOrder) {
        const MeasurementInList &list = RowOf(measurement).list;
        columns.push_back({list.key, list.heading, true, RowOf(list.shown).column, list.picture, list.width});
    }
    columns.push_back({"Comments", "Comments", false, "Comment", nullptr, 260});
    return columns;
}

/// The headings of the user-defined measurements are fixed: the names that the user gave them are not printed.
std::vector<ReportColumn> waterReportColumns()
{
    constexpr int dateSpan = 1;
    int whole = dateSpan;
    for (const MeasurementRow &row : measurements)
        whole += row.report.span;
    std::vector<ReportColumn> columns{{"Date /Time Added", 0, nullptr, nullptr}};
    int left = dateSpan;
    for (const MeasurementRow &row : measurements) {
        columns.push_back({row.report.head, double(left) / whole, row.column, "###0.000"});
        left += row.report.span;
    }
    return columns;
}

LogKind waterLog()
{
    return {
        .caption = "Water Quality Log",
        .table = "waterlog",
        .tankColumn = "tankname",
        .dateColumn = "logdate",
        .timeColumn = "logtime",
        .nameColumn = nullptr,
        .asksByName = false,
        .findsByTankName = true,
        .list = {.name = "lstv_WaterLog",
                 .caption = "Contents of Water Quality Log for '%1'",
                 .image = "waterquality",
                 .ascending = "LogDate, Logtime ",
                 .descending = "LogDate desc, Logtime desc ",
                 .timePicture = "hh:mm:ss am/pm",
                 .columns = waterListColumns()},
        .report = {.dialogTitle = "Print Water Quality Log",
                   .title = "Ostrelmark Water Quality Log",
                   .empty = "No water quality entries were found for this tank. No log was printed.",
                   .landscape = true,
                   .momentSeparator = " -\n", // the column is narrow
                   .columns = waterReportColumns(),
                   .moreLines = {}},
    };
}

// The heading "price_sold" is meant to be in lower case.
LogKind livestockLog()
{
    return {
        .caption = "Livestock Log",
        .table = "livestock",
        .tankColumn = "tankname",
        .dateColumn = "dateadded",
        .timeColumn = "timeadded",
        .nameColumn = "animalname",
        .asksByName = true,
        .findsByTankName = false,
        .list = {.name = "lstv_Livestock",
                 .caption = "Contents of Livestock Log for '%1'",
                 .image = "livestock",
                 .ascending = "DateAdded, TimeAdded ",
                 .descending = "DateAdded Desc, TimeAdded Desc",
                 .timePicture = "hh:mm:ss AM/PM",
                 .columns = {{"Date", "Date", false, nullptr, nullptr, 170},
                             {"animalname", "Animal", false, "animalname", nullptr, 160},
                             {"quantity", "Quantity", false, "quantity", "###0", 75},
                             {"status", "Status", false, "Status", nullptr, 110},
                             {"price_paid", "Price Paid", true, "price_paid", "###0.00", 85},
                             {"price_sold", "price_sold", false, "price_sold", "###0.00", 85},
                             {"datelost", "Date Lost", false, "datelost", "mm/dd/yy", 85},
                             {"where_purch", "Where Purchased", false, "where_purch", nullptr, 150},
                             {"comment", "Comments", false, "Comment", nullptr, 260}}},
        .report = {.dialogTitle = "Print Livestock Log",
                   .title = "Ostrelmark Livestock Log",
                   .empty = "No Livestock entries were found for this tank. No log was printed.",
                   .landscape = false,
                   .momentSeparator = " - ",
                   .columns = {{"Date /Time Added", 0, nullptr, nullptr},
                               {"Animal", 1 / 4., "animalname", nullptr},
                               {"Quantity", 1 - 1 / 4., "quantity", nullptr},
                               {"Status", 1 - 1 / 8., "status", nullptr}},
                   .moreLines = {}},
    };
}

LogKind maintenanceLog()
{
    return {
        .caption = "Maintenance Log",
        .table = "maintlog",
        .tankColumn = "mainttankname",
        .dateColumn = "maintlogdate",
        .timeColumn = "maintlogtime",
        .nameColumn = "maintlogtask",
        .asksByName = false,
        .findsByTankName = true,
        .list = {.name = "lstv_Maintenance",
                 .caption = "Contents of Maintenance Log for '%1'",
                 .image = "maintenance",
                 .ascending = "maintlogdate , maintlogtime ",
                 .descending = "maintlogdate desc, maintlogtime desc",
                 .timePicture = "hh:mm:ss am/pm",
                 .columns = {{"Date", "Date", false, nullptr, nullptr, 170},
                             {"tank", "Task", false, "maintlogtask", nullptr, 180},
                             {"Quantity", "Quantity", false, "maintlogqty", "###0", 75},
                             {"unit", "Unit of Measure", false, "maintlogunit", nullptr, 115},
                             {"description", "Description", false, "maintlogdesc", nullptr, 200},
                             {"comments", "Comments", false, "maintlognote", nullptr, 260}}},
        .report = {.dialogTitle = "Print Maintenance Log",
                   .title = "Ostrelmark Maintenance Log",
                   .empty = "No Maintenance entries were found for this tank. No log was printed.",
                   .landscape = false,
                   .momentSeparator = " - ",
                   .columns = {{"Date /Time Performed", 0, nullptr, nullptr},
                               {"Task Performed", 1 / 4., "maintlogtask", nullptr}},
                   .moreLines = {{"maintlogqty", "maintlogunit", "maintlogdesc"}, {"maintlognote"}}},
    };
}

} // namespace

const LogKind &KindOf(LogTab log)
{
    static const std::array kinds = {waterLog(), livestockLog(), maintenanceLog()};
    return kinds[log];
}

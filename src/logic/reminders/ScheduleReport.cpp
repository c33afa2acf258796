#include "logic/reminders/ScheduleReport.h"

#include "platform/core/Printer.h"

namespace {

const QString title = QStringLiteral("Ostrelmark for Windows - Generated Maintenance Schedule");
const QString makersLine = QStringLiteral("Printed by Ostrelmark, the logbook for aquarium and pond keepers");

/// Items on a page. The first page ends only after 99 items; what does not fit on it continues on a page that the
/// printer begins by itself.
constexpr int itemsOfPage = 50;

void printTitle(Printer &page, const PageFont &font)
{
    page.Font = font;
    page.Print(title);
    page.Print(QStringLiteral(" "));
    page.Font = {QStringLiteral("Arial"), 10, false, false, false};
}

void printPageEnd(Printer &page)
{
    page.Font = {QStringLiteral("Arial"), 9, true, true, false};
    page.Print({});
    page.Print(makersLine);
    page.NewPage();
    printTitle(page, {QStringLiteral("Arial"), 18, true, true, false}); // another font than on the first page
}

void printSchedule(Printer &page, int items, const ScheduleText &text)
{
    bool firstPage = true;
    printTitle(page, {QStringLiteral("Times New Roman"), 15, true, true, false});
    for (int item = 1; item <= items; ++item) {
        if (item % itemsOfPage == 0 && !std::exchange(firstPage, false))
            printPageEnd(page);
        const double third = page.ScaleWidth() / 3;
        page.PrintRow({{0, third, text(item, 0)}, {third, page.ScaleWidth(), text(item, 1)}});
        page.Progress(item, items);
    }
    page.EndDoc();
}

} // namespace

Report MakeScheduleReport(int items, const ScheduleText &text)
{
    return {QStringLiteral("Print Maintenance Schedule"), QStringLiteral("Maintenance Schedule"), false,
            [] { return true; }, [=](Printer &page) { printSchedule(page, items, text); }};
}

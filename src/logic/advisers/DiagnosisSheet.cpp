#include "logic/advisers/DiagnosisSheet.h"

#include "logic/advisers/DiagnosisLog.h"
#include "platform/core/Printer.h"

namespace {

struct SheetStyle
{
    const char *title;
    bool reminder;
    const char *blankLineBefore; ///< lines that start like this get a blank line before them
};

/// In the order of DiagnosisWindow. No line of a log starts with two blanks and "Q:", so the sheet of the separate
/// window has no blank lines.
constexpr SheetStyle styles[] = {
    {"Ostrelmark for Windows - Disease Diagnosis Aid", true, "Q:"},
    {"Ostrelmark for Windows - Marine Disease Diagnosis Aid", false, "  Q:"},
};

void setFont(Printer &page, double size, bool bold = false, bool italic = false)
{
    page.Font = {QStringLiteral("Arial"), size, bold, italic, false};
}

/// Prints a line from the left edge. It continues below if it is too long for the page or contains a carriage return.
void printLine(Printer &page, QString line) { page.PrintRow({{0, page.ScaleWidth(), line.replace(u'\r', u'\n')}}); }

void printLog(Printer &page, const DiagnosisLog &log, const SheetStyle &style)
{
    int last = log.AnswerLogCount;
    while (last > 1 && log.AnswerLog[static_cast<size_t>(last)].isEmpty())
        --last; // empty lines at the end are invisible, but they could start a new page
    for (int slot = 2; slot <= last; ++slot) {
        const QString &line = log.AnswerLog[static_cast<size_t>(slot)];
        if (line.startsWith(QLatin1String(style.blankLineBefore)))
            page.Print({});
        const bool answer = line.startsWith(u"  A:");
        setFont(page, 10, answer, answer);
        printLine(page, line);
    }
}

void printSheet(Printer &page, const DiagnosisLog &log, const SheetStyle &style)
{
    const QString title = QLatin1String(style.title);
    setFont(page, 14, true, true);
    page.CurrentX = page.ScaleWidth() / 2 - page.TextWidth(title) / 2;
    page.Print(title);
    setFont(page, 9, false, true);
    if (style.reminder)
        for (const char *line : reminderLines)
            printLine(page, QLatin1String(line));
    setFont(page, 10);
    printLog(page, log, style);
    // The notice is always at five sixths of the page; on a full sheet it overlaps the lines for comments.
    page.CurrentY = static_cast<int>(page.ScaleHeight() / 60) * 50;
    setFont(page, 9, false, true);
    page.Print(QLatin1String(legalNotice));
    setFont(page, 10);
    page.EndDoc();
}

} // namespace

Report MakeDiagnosisSheet(const DiagnosisLog &log, DiagnosisWindow window)
{
    const SheetStyle &style = styles[static_cast<size_t>(window)];
    return {QStringLiteral("Print Questions and Answers"), QLatin1String(style.title), false, [] { return true; },
            [&log, &style](Printer &page) { printSheet(page, log, style); }};
}

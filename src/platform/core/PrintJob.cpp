#include "platform/core/PrintJob.h"

#include "platform/core/Doors.h"
#include "platform/core/Printer.h"

namespace {

/// Passes on only the pages that the keeper has chosen; whatever a report prints on other pages is dropped.
class ChosenPages : public PageSink
{
public:
    ChosenPages(PageSink &pages, const PrintDialogAnswer &choice) : m_pages(pages), m_choice(choice) {}

    int made() const { return m_page; }
    bool anyPrinted() const { return m_begun; }

    void setLandscape(bool landscape) override
    {
        if (!m_choice.target.keepsOrientation)
            m_pages.setLandscape(landscape);
    }
    double width() const override { return m_pages.width(); }
    double height() const override { return m_pages.height(); }
    double textWidth(const PageFont &font, const QString &text) const override { return m_pages.textWidth(font, text); }
    double lineHeight(const PageFont &font) const override { return m_pages.lineHeight(font); }

    void beginDocument(const QString &title) override
    {
        m_title = title;
        newPage();
    }
    void newPage() override
    {
        ++m_page;
        if (!isChosen())
            return;
        if (m_begun)
            m_pages.newPage();
        else
            m_pages.beginDocument(m_title);
        m_begun = true;
    }
    void endDocument() override
    {
        if (m_begun)
            m_pages.endDocument();
    }
    void text(double x, double y, const PageFont &font, const QString &text) override
    {
        if (isChosen())
            m_pages.text(x, y, font, text);
    }
    void line(double x1, double y1, double x2, double y2) override
    {
        if (isChosen())
            m_pages.line(x1, y1, x2, y2);
    }
    void picture(double x, double y, const QSizeF &size, const PagePicture &paint) override
    {
        if (isChosen())
            m_pages.picture(x, y, size, paint);
    }

private:
    bool isChosen() const
    {
        return m_choice.fromPage == 0 || (m_page >= m_choice.fromPage && m_page <= m_choice.toPage);
    }

    PageSink &m_pages;
    const PrintDialogAnswer &m_choice;
    QString m_title;
    int m_page = 0;
    bool m_begun = false;
};

PrintDialogRequest requestFor(const Report &report)
{
    return {report.dialogTitle, report.landscape, report.documentName, bool(report.saveSpreadsheet)};
}

std::optional<PrintDialogAnswer> askFile(const Report &report)
{
    const auto name = Doors::current().saveDialog(AskForPrintFile(report.dialogTitle, requestFor(report)));
    return name ? std::optional(PrintDialogAnswer{1, 0, 0, {{}, *name}}) : std::nullopt;
}

bool isSpreadsheet(const Report &report, const QString &fileName)
{
    return report.saveSpreadsheet && fileName.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive);
}

PrintOutcome saveSpreadsheet(const Report &report, const QString &fileName)
{
    if (!report.open())
        return PrintOutcome::Empty;
    report.saveSpreadsheet(fileName);
    return PrintOutcome::Printed;
}

PrintOutcome printCopies(const Report &report, const PrintDialogAnswer &choice)
{
    for (int copy = 0; copy < choice.copies; ++copy) {
        if (!report.open())
            return PrintOutcome::Empty;
        const auto pages = Doors::current().openPages(choice.target);
        ChosenPages chosen(*pages, choice);
        Printer page(chosen, report.documentName);
        report.print(page);
        if (chosen.made() > 0 && !chosen.anyPrinted()) {
            MsgBox(QStringLiteral("The pages %1 to %2 were chosen, but the last page is %3. Nothing was printed.")
                       .arg(choice.fromPage)
                       .arg(choice.toPage)
                       .arg(chosen.made()),
                   vbInformation, QStringLiteral("Note!"));
            return PrintOutcome::Cancelled;
        }
    }
    return PrintOutcome::Printed;
}

PrintOutcome carryOut(const Report &report, const PrintDialogAnswer &choice)
{
    const QString &fileName = choice.target.fileName;
    return isSpreadsheet(report, fileName) ? saveSpreadsheet(report, fileName) : printCopies(report, choice);
}

PrintOutcome showOnScreen(const Report &report)
{
    if (!report.open())
        return PrintOutcome::Empty;
    const auto choice = Doors::current().preview({requestFor(report), [&report](PageSink &pages) {
                                                      PrintDialogAnswer all;
                                                      all.target.keepsOrientation = true;
                                                      ChosenPages turned(pages, all);
                                                      Printer page(turned, report.documentName);
                                                      report.print(page);
                                                  }});
    return choice ? carryOut(report, *choice) : PrintOutcome::Printed;
}

} // namespace

PrintOutcome RunReport(const Report &report, PrintTarget target)
{
    if (target == PrintTarget::Window)
        return showOnScreen(report);
    const auto choice =
        target == PrintTarget::File ? askFile(report) : Doors::current().printDialog(requestFor(report));
    return choice ? carryOut(report, *choice) : PrintOutcome::Cancelled;
}

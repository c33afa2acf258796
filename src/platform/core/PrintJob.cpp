#include "platform/core/PrintJob.h"

#include "platform/core/Doors.h"
#include "platform/core/PageSpool.h"
#include "platform/core/Printer.h"
#include "platform/core/ScreenPulse.h"

namespace {

/// The texts of the panel: how far a report is, and where it was sent or written. The last text is "Ready." if nothing
/// was printed.
class PanelWords
{
public:
    PanelWords(const Report &report, const TellPanel &tell) : m_document(report.documentName), m_tell(tell) {}
    ~PanelWords() { m_tell(m_result); }
    PanelWords(const PanelWords &) = delete;
    PanelWords &operator=(const PanelWords &) = delete;

    /// Called when the dialog has closed; the windows under it are painted before the work begins.
    void preparing()
    {
        say(QStringLiteral("preparing..."));
        m_pulse.now();
    }
    void prepared(qint64 done, qint64 of)
    {
        m_pulse.beat([&] { say(QStringLiteral("preparing, %1%...").arg(of > 0 ? 100 * done / of : 0)); });
    }
    void printing(int page, int of)
    {
        m_pulse.beat([&] { say(QStringLiteral("page %1 of %2...").arg(page).arg(of)); });
    }
    void ready() { m_tell(QStringLiteral("Ready.")); }
    void printed(const QString &whereTo, int copies)
    {
        m_result =
            m_document + u": " + (copies == 1 ? QString() : QStringLiteral("%1 copies ").arg(copies)) + whereTo + u'.';
    }

private:
    void say(const QString &what) { m_tell(m_document + u": " + what); }

    QString m_document;
    const TellPanel &m_tell;
    QString m_result = QStringLiteral("Ready.");
    ScreenPulse m_pulse;
};

/// Prints the chosen pages of a document when all of it is made.
class WholeDocument : public PageSpool
{
public:
    WholeDocument(PageSink &paper, const PrintDialogAnswer &choice, PanelWords &words) :
        PageSpool(paper, choice.target.keepsOrientation), m_paper(paper), m_choice(choice), m_words(words)
    {
    }
    bool anyPrinted() const { return m_printed > 0; }

    void endDocument() override
    {
        PageSpool::endDocument();
        const bool all = m_choice.fromPage == 0;
        const int last = all ? pages() : qMin(m_choice.toPage, pages());
        for (int page = all ? 1 : m_choice.fromPage; page <= last; ++page) {
            if (m_printed++ == 0)
                m_paper.beginDocument(title());
            else
                m_paper.newPage();
            draw(page, m_paper);
            m_words.printing(page, last);
        }
        if (anyPrinted())
            m_paper.endDocument();
    }

private:
    PageSink &m_paper;
    const PrintDialogAnswer &m_choice;
    PanelWords &m_words;
    int m_printed = 0;
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

PrintOutcome saveSpreadsheet(const Report &report, const QString &fileName, PanelWords &words)
{
    words.preparing();
    if (!report.open())
        return PrintOutcome::Empty;
    report.saveSpreadsheet(fileName);
    words.printed(u"written to \"" + fileName + u'"', 1);
    return PrintOutcome::Printed;
}

void printOn(PageSink &pages, const Report &report, PanelWords &words)
{
    Printer page(pages, report.documentName);
    page.Progress = [&words](qint64 done, qint64 of) { words.prepared(done, of); };
    report.print(page);
}

PrintOutcome printCopies(const Report &report, const PrintDialogAnswer &choice, PanelWords &words)
{
    for (int copy = 0; copy < choice.copies; ++copy) {
        words.preparing();
        if (!report.open())
            return PrintOutcome::Empty;
        const auto paper = Doors::current().openPages(choice.target);
        WholeDocument document(*paper, choice, words);
        printOn(document, report, words);
        if (document.pages() > 0 && !document.anyPrinted()) {
            MsgBox(QStringLiteral("The pages %1 to %2 were chosen, but the last page is %3. Nothing was printed.")
                       .arg(choice.fromPage)
                       .arg(choice.toPage)
                       .arg(document.pages()),
                   vbInformation, QStringLiteral("Note!"));
            return PrintOutcome::Cancelled;
        }
        words.printed(paper->whereTo(), copy + 1);
    }
    return PrintOutcome::Printed;
}

PrintOutcome carryOut(const Report &report, const PrintDialogAnswer &choice, PanelWords &words)
{
    const QString &fileName = choice.target.fileName;
    return isSpreadsheet(report, fileName) ? saveSpreadsheet(report, fileName, words)
                                           : printCopies(report, choice, words);
}

PrintOutcome showOnScreen(const Report &report, PanelWords &words)
{
    words.preparing();
    if (!report.open())
        return PrintOutcome::Empty;
    const auto choice = Doors::current().preview({requestFor(report), [&report, &words](PageSink &pages) {
                                                      printOn(pages, report, words);
                                                      words.ready();
                                                  }});
    return choice ? carryOut(report, *choice, words) : PrintOutcome::Printed;
}

std::optional<PrintDialogAnswer> choose(const Report &report, PrintTarget target)
{
    switch (target) {
    case PrintTarget::File: return askFile(report);
    case PrintTarget::DefaultPrinter: return PrintDialogAnswer{};
    default: return Doors::current().printDialog(requestFor(report));
    }
}

} // namespace

PrintOutcome RunReport(const Report &report, PrintTarget target, const TellPanel &panel)
{
    PanelWords words(report, panel);
    if (target == PrintTarget::Window)
        return showOnScreen(report, words);
    const auto choice = choose(report, target);
    return choice ? carryOut(report, *choice, words) : PrintOutcome::Cancelled;
}

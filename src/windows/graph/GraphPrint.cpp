// Prints the graph.
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPixmap>

#include <cmath>

#include "platform/chart/Chart.h"
#include "platform/core/Doors.h"
#include "platform/core/Printer.h"
#include "text/Dates.h"
#include "windows/common/PrintReport.h"
#include "windows/graph/frm_WaterGraph.h"

namespace {

const QString maximizeText =
    QStringLiteral("For best print quality, it is recommended that this window be maximized as large as possible. Do "
                   "you want Ostrelmark to maximize this form for you?");
const QString makers = QStringLiteral(" The makers of Ostrelmark, Port Ostrel");

} // namespace

/// Offers to maximise the window. Returns false if the keeper cancels the printing.
bool frm_WaterGraph::mayPrintAsItIs()
{
    QWidget *frame = parentWidget();
    if (!frame || frame->isMaximized())
        return true;
    const auto answer = MsgBox(maximizeText, vbYesNoCancel + vbInformation, QStringLiteral("Maximize Window?"));
    if (answer == MsgBoxAnswer::Yes) {
        window()->showMaximized();
        frame->showMaximized();
    }
    return answer != MsgBoxAnswer::Cancel;
}

void frm_WaterGraph::PrintGraph()
{
    const Forms::Pin whileItPrints(*this);
    if (!mayPrintAsItIs())
        return;
    titleChart(); // the title stays on the chart
    PrintReport(main,
                {QStringLiteral("Print Water Quality Graph"), QStringLiteral("Ostrelmark Water Quality Graph"), true,
                 [] { return true; }, [this](Printer &page) { printPage(page); }},
                PrintTarget::Printer);
}

// The chart fills the page except for the first tenth and the line at the foot.
void frm_WaterGraph::printPage(Printer &page)
{
    Chart1->EditCopy();
    pic_HiddenPicForPrinting->setPixmap(QGuiApplication::clipboard()->pixmap());
    page.setLandscape(true);
    page.Font = {QStringLiteral("Times New Roman"), 10};
    page.PrintOn(QStringLiteral(" ")); // starts the page
    const double foot = std::ceil(page.LineHeight());
    page.PaintPicture(
        0, page.ScaleHeight() / 10, page.ScaleWidth(), page.ScaleHeight() * 9 / 10,
        [this, foot](QPainter &painter, const QSizeF &size) { Chart1->paintOn(painter, size - QSizeF(0, foot)); });
    page.CurrentX = 0;
    page.CurrentY = page.ScaleHeight() - foot;
    page.PrintOn(QStringLiteral("(c) ") + Format(Now().date(), QStringLiteral("YYYY")) + makers);
    page.EndDoc();
}

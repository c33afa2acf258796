// The graph of a tank's water tests: a page of tests as a chart, with the measurements and the style that the Options
// window keeps, which a right click opens. Draws the tank in hand; a tank chosen in its list becomes the tank in hand.
// Prints the chart. Reads the database and writes nothing.
#pragma once

#include <vector>

#include "logic/graph/GraphPaging.h"
#include "windows/shell/ChildForm.h"

class Chart;
class Printer;
class QComboBox;
class QLabel;
class QPushButton;

class frm_WaterGraph : public ChildForm
{
    Q_OBJECT
public:
    explicit frm_WaterGraph(const FormContext &context);

    /// Draws the tank in hand, its page and the options as they are now. Where that makes no graph, a box says why and
    /// the chart stays as it stands.
    void GraphChart();
    /// Offers the tanks that there are now. The one selected stays so; where it is gone, the first one that makes a
    /// graph is drawn in its place. The tank in hand stays as it is.
    void Follow_Tanks();
    /// Prints the chart on a landscape page, once for each copy; each time the clipboard gets its picture too.
    void PrintGraph();

    void Form_Load();
    void Form_Activate() override;
    void Print() override { PrintGraph(); }

    QComboBox *tanklistbox;
    Chart *Chart1;
    QPushButton *cmd_Next;
    QPushButton *cmd_Previous;
    QLabel *pic_HiddenPicForPrinting; ///< holds the picture that was printed

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void arrange();
    void refillList();
    int firstLineWithAGraph();
    int lineInHand();
    void takeInHand(int line);
    std::vector<GraphColumn> columns() const;
    bool drawPage();
    void clearChart();
    void draw(const std::vector<GraphColumn> &columns, const Rows &rows);
    QString drawnName() const;
    void nameChart();
    void titleChart();
    void tellNotEnough();
    void takeFocus();
    bool mayPrintAsItIs();
    void printPage(Printer &page);

    void tanklistbox_Click();
    void cmd_Next_Click();
    void cmd_previous_Click();
    void Chart1_MouseUp(Qt::MouseButton button, const QPoint &position);

    GraphPaging m_paging;
    QString m_drawnTank; ///< id of the tank whose tests the chart shows; empty where nothing was drawn
};

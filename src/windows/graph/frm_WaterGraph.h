// The graph of a tank's water tests: it shows a page of tests as a chart, with the measurements and the style chosen in
// the Options window, which a right click opens. It draws the current tank, and a tank chosen in its list becomes the
// current one. It prints the chart, reads the database and writes nothing.
#pragma once

#include <vector>

#include "logic/graph/GraphPaging.h"
#include "windows/shell/ChildForm.h"

class Chart;
class EmptyText;
class Printer;
class QComboBox;
class QLabel;
class QPushButton;

class frm_WaterGraph : public ChildForm
{
    Q_OBJECT
public:
    explicit frm_WaterGraph(const FormContext &context);

    /// Draws the current page of the current tank with the present options. If that is not possible, a message says why
    /// and the chart does not change.
    void GraphChart();
    /// Updates the list of tanks. The selected tank stays selected; if it is gone, the first tank that has a graph is
    /// drawn instead. The current tank does not change.
    void Follow_Tanks();
    /// Prints the chart on a landscape page, once for each copy, and copies its picture to the clipboard each time.
    void PrintGraph();

    void Form_Load();
    void Form_Activate() override;
    void Print() override { PrintGraph(); }

    QComboBox *tanklistbox;
    Chart *Chart1;
    QPushButton *cmd_Next;
    QPushButton *cmd_Previous;
    QLabel *pic_HiddenPicForPrinting; ///< holds the printed picture

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

    EmptyText *m_noGraph; ///< in the chart
    GraphPaging m_paging;
    QString m_drawnTank; ///< the id of the tank in the chart; empty if nothing was drawn
};

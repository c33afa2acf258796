#include "windows/graph/frm_WaterGraph.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/chart/Chart.h"
#include "platform/controls/EmptyText.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"
#include "windows/shell/MainMenu.h"

namespace {

const QString tanksByName = QStringLiteral("SELECT * FROM TANKLST ORDER BY [tankname] COLLATE CASEBLIND ASC");
const QString firstWithAGraph = QStringLiteral(
    "SELECT tankid FROM TANKLST WHERE (SELECT count(*) FROM WATERLOG WHERE WATERLOG.tankname = TANKLST.tankid) >= 2 "
    "ORDER BY [tankname] COLLATE CASEBLIND ASC LIMIT 1");

const QString allTanks = QStringLiteral("All Tanks");
const QString noTanksTitle = QStringLiteral("No Tanks Set Up Yet");
const QString noTanksText =
    QStringLiteral("You have no tanks set up in Ostrelmark. You must set-up at least one tank and enter at least 2 log "
                   "entries into it before you can graph the results. Set up a tank by choosing \"Tools\", \"Set Up "
                   "Tanks\" on the menu.");
const QString noEntriesText =
    QStringLiteral("You have no log entries set up in Ostrelmark. You must enter at least 2 water quality log entries "
                   "into it before you can graph the results.");
const QString nothingSelectedText = QStringLiteral(
    "Nothing is selected to graph! Select the measurements you'd like to graph by checking the appropriate boxes.");
const QString notEnoughTitle = QStringLiteral("Not Enough Entries To Create A Graph!");
const QString notEnoughText =
    QStringLiteral("Remember, you need to have at least 2 water quality log entries for a tank in order to create a "
                   "graph. Select another tank or add more water quality entries.");

const QString noGraph = QStringLiteral("There is no graph yet. It needs a tank with at least two water quality "
                                       "entries: choose one above, or add entries in the logbook.");

/// An engraved rule across the window, made of four lines.
QWidget *makeRule()
{
    auto *rule = new QWidget;
    auto *lines = new QVBoxLayout(rule);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    for (int number = 1; number <= 4; ++number) {
        auto *line = new QFrame;
        line->setObjectName(QStringLiteral("Line%1").arg(number));
        line->setFrameStyle(int(QFrame::HLine) | int(QFrame::Plain));
        line->setFixedHeight(1);
        line->setForegroundRole(number % 2 ? QPalette::Dark : QPalette::Light);
        lines->addWidget(line);
    }
    return rule;
}

template <class T> T *named(T *control, const char *name)
{
    control->setObjectName(QLatin1String(name));
    return control;
}

} // namespace

frm_WaterGraph::frm_WaterGraph(const FormContext &context) :
    ChildForm(context), tanklistbox(named(new QComboBox, "tanklistbox")), Chart1(named(new Chart, "Chart1")),
    // The captions say 25 although a page has 20 entries; keepers know them that way.
    cmd_Next(named(new QPushButton(QStringLiteral("View Next 25 entries")), "cmd_Next")),
    cmd_Previous(named(new QPushButton(QStringLiteral("View Previous 25 Entries")), "cmd_Previous")),
    pic_HiddenPicForPrinting(named(new QLabel(this), "pic_HiddenPicForPrinting"))
{
    setWindowTitle(QStringLiteral("Water Quality Graphing"));
    setWindowIcon(Icon("graphing"));
    pic_HiddenPicForPrinting->hide();
    arrange();
    connect(tanklistbox, &QComboBox::activated, this, guarded([this] { tanklistbox_Click(); }));
    on(cmd_Next, &QPushButton::clicked, this, &frm_WaterGraph::cmd_Next_Click);
    on(cmd_Previous, &QPushButton::clicked, this, &frm_WaterGraph::cmd_previous_Click);
    connect(Chart1, &Chart::MouseUp, this,
            guarded([this](Qt::MouseButton button, const QPoint &position) { Chart1_MouseUp(button, position); }));
}

void frm_WaterGraph::arrange()
{
    auto *Label1 = named(new QLabel(QStringLiteral("Aquarium :")), "Label1");
    Label1->setBuddy(tanklistbox);
    tanklistbox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    tanklistbox->setMinimumContentsLength(26);
    auto *top = new QHBoxLayout;
    top->setContentsMargins(9, 0, 9, 0);
    top->addWidget(Label1);
    top->addWidget(tanklistbox);
    top->addStretch();
    auto *bottom = new QHBoxLayout;
    bottom->setContentsMargins(9, 0, 9, 0);
    bottom->addWidget(cmd_Previous);
    bottom->addStretch();
    bottom->addWidget(cmd_Next);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 8, 0, 8);
    column->addLayout(top);
    column->addWidget(makeRule());
    column->addWidget(Chart1, 1);
    column->addLayout(bottom);
    setTabOrder(tanklistbox, Chart1);
    setTabOrder(Chart1, cmd_Previous);
    setTabOrder(cmd_Previous, cmd_Next);
    beginWith(tanklistbox);
    Chart1->setAccessibleName(windowTitle());
    m_noGraph = new EmptyText(
        *Chart1, *Chart1, [this] { return Chart1->RowCount() == 0; }, noGraph);
    Chart1->setRowsTitle(QStringLiteral("Date (month/day)"));
    resize(900, 560);
}

void frm_WaterGraph::Form_Load()
{
    refillList();
    Chart1->setChartType(g.options.GraphStyle);
    cmd_Next->setEnabled(false); // until a page is drawn
    cmd_Previous->setEnabled(false);
    m_paging.restart();
}

void frm_WaterGraph::Form_Activate() { main.offerPrint(*this, true); }

/// If the tanks have not changed, the list is not refilled, so that an open list does not lose the keeper's choice.
void frm_WaterGraph::refillList()
{
    std::vector<std::pair<QString, QString>> shown, present; // name and id
    for (int line = 0; line < tanklistbox->count(); ++line)
        shown.emplace_back(tanklistbox->itemText(line), tanklistbox->itemData(line).toString());
    for (Recordset tanks = g.gDatabase->OpenRecordset(tanksByName); !tanks.EOF_(); tanks.MoveNext())
        present.emplace_back(tanks[QStringLiteral("tankname")].text(), tanks[QStringLiteral("tankid")].text());
    if (shown == present)
        return;
    const QVariant selected = tanklistbox->currentData();
    tanklistbox->clear();
    for (const auto &[name, id] : present)
        tanklistbox->addItem(name, id);
    tanklistbox->setCurrentIndex(tanklistbox->findData(selected)); // by id, because the tank may have been renamed
    if (m_drawnTank.isEmpty())
        return;
    if (tanklistbox->findData(m_drawnTank) < 0)
        clearChart();
    else
        nameChart();
}

void frm_WaterGraph::Follow_Tanks()
{
    refillList();
    if (tanklistbox->currentIndex() >= 0)
        return;
    tanklistbox->setCurrentIndex(std::max(0, firstLineWithAGraph()));
    m_paging.restart();
    drawPage(); // the keeper did not ask for a graph, so no message says if there is none
}

/// Returns -1 if no tank has enough tests.
int frm_WaterGraph::firstLineWithAGraph()
{
    Recordset tank = g.gDatabase->OpenRecordset(firstWithAGraph);
    return tank.isEmpty() ? -1 : tanklistbox->findData(tank[QStringLiteral("tankid")].text());
}

/// The line of the current tank. If there is none, or it is "All Tanks", the graph keeps the tank that it shows.
int frm_WaterGraph::lineInHand()
{
    const bool all = g.gTankName == allTanks && g.gTankId == allTanks;
    if (!all && !g.gTankName.isEmpty())
        return tanklistbox->findText(g.gTankName, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (tanklistbox->currentIndex() >= 0)
        return tanklistbox->currentIndex();
    return all ? std::max(0, firstLineWithAGraph()) : 0;
}

void frm_WaterGraph::GraphChart()
{
    const Forms::Pin whileBoxesAreUp(*this);
    refillList();
    if (tanklistbox->count() == 0) {
        MsgBox(noTanksText, vbExclamation, noTanksTitle);
        return;
    }
    const int line = lineInHand();
    if (line < 0) {
        MsgBox(noEntriesText, vbExclamation, noTanksTitle);
        return;
    }
    takeInHand(line);
    if (columns().empty())
        MsgBox(nothingSelectedText, vbInformation, QStringLiteral("Note!"));
    else if (drawPage())
        takeFocus();
    else
        tellNotEnough();
}

/// Makes the tank of that line the current one. If it was not selected, it starts with its first page.
void frm_WaterGraph::takeInHand(int line)
{
    g.gTankName = tanklistbox->itemText(line);
    g.gTankId = tanklistbox->itemData(line).toString();
    if (line == tanklistbox->currentIndex())
        return;
    tanklistbox->setCurrentIndex(line);
    m_paging.restart();
}

std::vector<GraphColumn> frm_WaterGraph::columns() const
{
    return GraphColumns(g.options.GraphChecks, g.userFieldNames());
}

/// Draws the page of the selected tank. Returns false if there is nothing to draw; then the chart does not change.
bool frm_WaterGraph::drawPage()
{
    const QString tank = tanklistbox->currentData().toString();
    const auto drawn = columns();
    const auto rows = drawn.empty() ? nullptr : m_paging.read(*g.gDatabase, tank, g.gGraphPageSize);
    if (!rows)
        return false;
    draw(drawn, *rows);
    m_drawnTank = tank;
    nameChart();
    cmd_Next->setEnabled(m_paging.hasNext());
    cmd_Previous->setEnabled(m_paging.hasPrevious());
    return true;
}

void frm_WaterGraph::clearChart()
{
    Chart1->setRowCount(0);
    Chart1->setColumnCount(0);
    Chart1->setTitleText({});
    Chart1->setAccessibleName(windowTitle());
    Chart1->setAccessibleDescription({});
    m_noGraph->refresh();
    m_drawnTank.clear();
    cmd_Next->setEnabled(false);
    cmd_Previous->setEnabled(false);
}

void frm_WaterGraph::draw(const std::vector<GraphColumn> &columns, const Rows &rows)
{
    const bool skipZeroes = g.options.GraphSkipZeroes != 0;
    const int dates = rows.column(QStringLiteral("logdate"));
    Chart1->setRowCount(0);
    Chart1->setColumnCount(int(columns.size()));
    Chart1->setChartType(g.options.GraphStyle);
    Chart1->setRowCount(int(rows.count()));
    for (int row = 0; row < rows.count(); ++row) {
        Chart1->setRow(row + 1);
        for (int column = 0; column < int(columns.size()); ++column) {
            Chart1->setColumn(column + 1);
            Chart1->setColumnLabel(columns[size_t(column)].label);
            Chart1->setColumnUnit(columns[size_t(column)].unit);
            const int field = rows.column(columns[size_t(column)].field);
            if (!skipZeroes || rows.number(row, field) != 0)
                Chart1->setData(rows.text(row, field)); // an empty text if there is no value, which makes a blank cell
        }
        Chart1->setRowLabel(Format(rows.date(row, dates), QStringLiteral("m/d")));
    }
    m_noGraph->refresh();
    Chart1->setAccessibleDescription(
        QStringLiteral("Page %1, %2 of %3 entries").arg(m_paging.page()).arg(rows.count()).arg(m_paging.total()));
}

/// If the selected tank has no graph, the chart still shows another one.
QString frm_WaterGraph::drawnName() const
{
    const int line = tanklistbox->findData(m_drawnTank);
    return line < 0 ? tanklistbox->currentText() : tanklistbox->itemText(line);
}

void frm_WaterGraph::nameChart()
{
    Chart1->setAccessibleName(QStringLiteral("Water quality graph of ") + drawnName());
    if (!Chart1->TitleText().isEmpty()) // the chart has a title once it has been printed
        titleChart();
}

void frm_WaterGraph::titleChart() { Chart1->setTitleText(QStringLiteral("Ostrelmark Graph for Tank: ") + drawnName()); }

void frm_WaterGraph::tellNotEnough()
{
    MsgBox(notEnoughText, vbExclamation, notEnoughTitle);
    takeFocus();
    cmd_Next->setEnabled(false);
    cmd_Previous->setEnabled(false);
}

// If a button in the window was pressed, it keeps the focus.
void frm_WaterGraph::takeFocus()
{
    if (isVisible() && !isAncestorOf(QApplication::focusWidget()))
        main.ShowChild(*this);
}

void frm_WaterGraph::tanklistbox_Click()
{
    g.gTankName = tanklistbox->currentText();
    m_paging.restart();
    GraphChart();
}

void frm_WaterGraph::cmd_Next_Click()
{
    m_paging.next();
    cmd_Previous->setEnabled(true);
    GraphChart();
}

void frm_WaterGraph::cmd_previous_Click()
{
    m_paging.previous();
    GraphChart();
}

void frm_WaterGraph::Chart1_MouseUp(Qt::MouseButton button, const QPoint &position)
{
    if (button == Qt::RightButton)
        main.menu().mnu_GraphPopup->popup(position);
}

void frm_WaterGraph::mouseReleaseEvent(QMouseEvent *event)
{
    Chart1_MouseUp(event->button(), event->globalPosition().toPoint());
}

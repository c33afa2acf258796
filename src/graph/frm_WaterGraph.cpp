#include "graph/frm_WaterGraph.h"

#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "platform/chart/Chart.h"
#include "platform/Doors.h"
#include "platform/Guarded.h"
#include "platform/Icons.h"
#include "shell/frm_OMKMDIMain.h"
#include "shell/MenuEntry.h"
#include "text/Dates.h"

namespace {

const QString tanksByName = QStringLiteral("SELECT * FROM TANKLST ORDER BY [tankname] COLLATE CASEBLIND ASC");
const QString tankByName = QStringLiteral("SELECT * FROM TANKLST where tankname = ?");

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

/// A rule of four lines across the window, engraved.
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

frm_WaterGraph::frm_WaterGraph(Globals &globals, QWidget *parent) :
    ChildForm(globals, parent), tanklistbox(named(new QComboBox, "tanklistbox")), Chart1(named(new Chart, "Chart1")),
    // The captions say 25 and a page is 20: keepers know them so.
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
    resize(900, 560);
}

void frm_WaterGraph::Form_Load()
{
    const QScopedValueRollback<bool> loading(m_loading, true);
    Form<frm_OMKMDIMain>().mnu_FilePrint->Enabled(true);
    Follow_Tanks();
    Chart1->setChartType(g.options.GraphStyle);
    cmd_Previous->setEnabled(false);
    m_paging.restart();
}

/// As it is wherever the tanks are as they were: a pick in the list that is open is not lost.
void frm_WaterGraph::Follow_Tanks()
{
    QStringList shown, present;
    for (int line = 0; line < tanklistbox->count(); ++line)
        shown << tanklistbox->itemText(line);
    for (Recordset tanks = g.gDatabase->OpenRecordset(tanksByName); !tanks.EOF_(); tanks.MoveNext())
        present << tanks[QStringLiteral("tankname")].text();
    if (shown == present)
        return;
    const QString selected = tanklistbox->currentText();
    tanklistbox->clear();
    tanklistbox->addItems(present);
    tanklistbox->setCurrentIndex(int(present.indexOf(selected)));
}

void frm_WaterGraph::Form_Activate()
{
    auto &main = Form<frm_OMKMDIMain>();
    main.mnu_FilePrint->Enabled(true);
    main.mnu_FilePrint->setText(QStringLiteral("&Print"));
}

void frm_WaterGraph::GraphChart()
{
    if (m_loading)
        return;
    const Forms::Pin whileBoxesAreUp(*this);
    Follow_Tanks();
    if (tanklistbox->count() == 0) {
        MsgBox(noTanksText, vbExclamation, noTanksTitle);
        return;
    }
    if (g.gTankName.isEmpty() || (g.gTankName == allTanks && g.gTankId == allTanks)) {
        selectLine(0); // which draws it
        return;
    }
    if (!tankIsThere()) {
        MsgBox(noEntriesText, vbExclamation, noTanksTitle);
        return;
    }
    m_currentTank = g.gTankName;
    if (m_currentTank != tanklistbox->currentText() && selectTankInHand())
        return; // which has drawn it
    const auto columns = GraphColumns(g.options.GraphChecks, g.gUserFieldName1, g.gUserFieldName2);
    if (columns.empty()) {
        MsgBox(nothingSelectedText, vbInformation, QStringLiteral("Note!"));
        return;
    }
    const auto rows = m_paging.read(*g.gDatabase, g.gTankId, g.gGraphPageSize);
    if (!rows) {
        tellNotEnough();
        return;
    }
    draw(columns, *rows);
    cmd_Next->setEnabled(m_paging.hasNext());
    cmd_Previous->setEnabled(m_paging.hasPrevious());
    takeFocus();
}

bool frm_WaterGraph::tankIsThere()
{
    Recordset tank = g.gDatabase->OpenRecordset(tankByName, {g.gTankName});
    if (tank.isEmpty())
        return false;
    g.gTankName = tank[QStringLiteral("tankname")].text();
    g.gTankId = tank[QStringLiteral("tankid")].text();
    return true;
}

bool frm_WaterGraph::selectTankInHand()
{
    const int line = tanklistbox->findText(m_currentTank, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (line >= 0)
        selectLine(line);
    return line >= 0;
}

void frm_WaterGraph::selectLine(int index)
{
    tanklistbox->setCurrentIndex(index);
    tanklistbox_Click();
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
            const int field = rows.column(columns[size_t(column)].field);
            if (!skipZeroes || rows.number(row, field) != 0)
                Chart1->setData(rows.text(row, field)); // of no value at all, an empty text: a blank cell
        }
        Chart1->setRowLabel(Format(rows.date(row, dates), QStringLiteral("m/d")));
    }
    Chart1->setAccessibleName(QStringLiteral("Water quality graph of ") + m_currentTank);
    Chart1->setAccessibleDescription(
        QStringLiteral("Page %1, %2 of %3 entries").arg(m_paging.page()).arg(rows.count()).arg(m_paging.total()));
}

void frm_WaterGraph::tellNotEnough()
{
    MsgBox(notEnoughText, vbExclamation, notEnoughTitle);
    takeFocus();
    cmd_Next->setEnabled(false);
    cmd_Previous->setEnabled(false);
}

// The button that was pressed keeps it.
void frm_WaterGraph::takeFocus()
{
    if (isVisible() && !isAncestorOf(QApplication::focusWidget()))
        Form<frm_OMKMDIMain>().ShowChild(*this);
}

void frm_WaterGraph::tanklistbox_Click()
{
    g.gTankName = m_currentTank = tanklistbox->currentText();
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
        Form<frm_OMKMDIMain>().mnu_GraphPopup->popup(position);
}

void frm_WaterGraph::mouseReleaseEvent(QMouseEvent *event)
{
    Chart1_MouseUp(event->button(), event->globalPosition().toPoint());
}

#include "windows/advisers/frm_Fantasy.h"

#include <cmath>

#include <QMouseEvent>

#include "logic/advisers/Compatibility.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/ListKeys.h"
#include "platform/controls/WindowSize.h"
#include "platform/core/Doors.h"
#include "text/Numbers.h"
#include "windows/advisers/frm_FantAddAnimal.h"
#include "windows/advisers/SizeColumn.h"

namespace {

constexpr double biggestTank = 250; // gallons
constexpr double smallestTank = 5;
constexpr QSize smallestWindow(486, 343); // 7290 by 5145 twips

const QString areYouSure = QStringLiteral("Are you sure...");

// The missing closing quote is kept as it is.
const QString reminderText = QStringLiteral(
    "REMINDER: This program is only a tool to allow you to experiment with a few POSSIBLE stocking and animal "
    "combinations. No program could ever guarantee complete compatibility. Numerous factors such as an animal's size, "
    "age, condition, and personality will have great effects on compatibility.\r"
    "  For this reason, remember the rule: \"Never take ANY fish advice as gospel, EVEN FROM THIS PROGRAM!\r"
    "  ALWAYS consult with an EXPERIENCED DEALER or veterinarian before putting ANY animals together, compatible or "
    "not!");

/// The selected row, from 0; -1 if none is selected.
int selectedRow(const QListWidget &list)
{
    const auto selected = list.selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.constFirst().row();
}

} // namespace

frm_Fantasy::frm_Fantasy(const FormContext &context) : ChildForm(context), m_checks(this)
{
    setupUi(this);
    setWindowIcon(Icon("fantasy"));
    lst_select->setItemDelegate(new SizeColumn(this));
    txt_tanksize->setMaximumWidth(qRound(60 * FontScale(font())));
    ud_Tanksize->setBoundBox(txt_tanksize);
    lbl_pctfull->setMinimumWidth(lbl_pctfull->fontMetrics().horizontalAdvance(QStringLiteral(" 125%")));
    for (QListWidget *list : {lst_select, lst_Fantank}) {
        list->viewport()->installEventFilter(this);
        MoveByKeys(*list);
    }
    for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Return, Qt::Key_Enter})
        OnListKey(*lst_select, key, *cmd_AddAnimal);
    OnListKey(*lst_Fantank, Qt::Key_Delete, *cmd_RemoveAnimal);
    m_checks.watch(txt_tanksize, [this] { return txt_tanksize_LostFocus(); });
    connect(opt_Salt, &QRadioButton::toggled, this, guarded([this](bool chosen) {
                if (chosen)
                    opt_Salt_Click();
            }));
    connect(opt_Fresh, &QRadioButton::toggled, this, guarded([this](bool chosen) {
                if (chosen)
                    opt_fresh_click();
            }));
    on(chk_WetDryIncluded, &QCheckBox::toggled, this, &frm_Fantasy::chk_WetDryIncluded_Click);
    on(chk_Taller, &QCheckBox::toggled, this, &frm_Fantasy::chk_Taller_Click);
    on(ud_Tanksize, &UpDown::Change, this, &frm_Fantasy::ud_tanksize_Change);
    on(lst_select, &QListWidget::itemSelectionChanged, this, &frm_Fantasy::lst_select_Click);
    on(lst_Fantank, &QListWidget::itemSelectionChanged, this, &frm_Fantasy::lst_Fantank_Click);
    on(cmd_AddAnimal, &QPushButton::clicked, this, &frm_Fantasy::cmd_AddAnimal_Click);
    on(cmd_RemoveAnimal, &QPushButton::clicked, this, &frm_Fantasy::cmd_RemoveAnimal_Click);
    beginWith(lst_select);
}

QSize frm_Fantasy::minimumSizeHint() const { return smallestWindow.expandedTo(ChildForm::minimumSizeHint()); }

void frm_Fantasy::Form_Load()
{
    (g.gDefaultWaterType == u"SALT" ? opt_Salt : opt_Fresh)->setChecked(true);
    main.ShowChild(*this);
    Beep();
    MsgBox(reminderText, vbExclamation, QStringLiteral("Please NOTE!"));
}

/// A double click on the blank part of a list also runs the command, which then says that nothing is selected.
bool frm_Fantasy::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonDblClick || static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton)
        return ChildForm::eventFilter(object, event);
    guarded([this, object] { object == lst_select->viewport() ? lst_select_DblClick() : lst_Fantank_DblClick(); })();
    return true;
}

void frm_Fantasy::RecalcHolding()
{
    m_plan.RecalcHolding(Val(txt_tanksize->text()), water(), chk_WetDryIncluded->isChecked(), chk_Taller->isChecked());
    pb_StockingRatio->setPercent(m_plan.FantasyPercent);
    lbl_holding->setText(
        QStringLiteral("A %1 gallon %2 tank, in ideal conditions, could hold about %3 inches of fish.")
            .arg(PlainText(m_plan.FantasyGallons),
                 water() == WaterKind::Salt ? QStringLiteral("saltwater") : QStringLiteral("freshwater"),
                 PlainText(m_plan.FantasyHolding)));
    const double percent = std::trunc(m_plan.FantasyPercent);
    // A positive number has a blank in the place of the sign.
    lbl_pctfull->setText((percent < 0 ? QString() : QStringLiteral(" ")) + PlainText(percent) + u'%');
}

void frm_Fantasy::ResetFantasyTank()
{
    lst_Fantank->clear();
    lst_select->setCurrentRow(-1);
    cmd_AddAnimal->setEnabled(false);
    cmd_RemoveAnimal->setEnabled(false);
    m_plan.Reset();
    txt_tanksize->setText(PlainText(m_plan.FantasyGallons));
    ud_Tanksize->setValue(static_cast<int>(m_plan.FantasyGallons));
    RecalcHolding();
}

void frm_Fantasy::ConfirmResetFantasyTank()
{
    if (MsgBox(QStringLiteral("Are you sure you want to reset all your data and clear your Fantasy Tank?"),
               vbQuestion + vbOKCancel, areYouSure) == MsgBoxAnswer::OK)
        ResetFantasyTank();
}

void frm_Fantasy::opt_Salt_Click() { changeWater(); }

void frm_Fantasy::opt_fresh_click() { changeWater(); }

void frm_Fantasy::changeWater()
{
    if (lst_Fantank->count() > 0) {
        const QString question = QStringLiteral("Changing tank water type will clear your choices. Are you sure you "
                                                "want to clear your Fantasy Tank?");
        if (MsgBox(question, vbQuestion + vbOKCancel, areYouSure) != MsgBoxAnswer::OK)
            return; // the option stays on the new water, but list and plan stay as they were
    }
    lst_select->clear();
    lst_select->addItems(SelectionLines(water()));
    chk_WetDryIncluded->setEnabled(water() == WaterKind::Salt); // its check mark does not change
    ResetFantasyTank();
}

void frm_Fantasy::chk_WetDryIncluded_Click() { RecalcHolding(); }

void frm_Fantasy::chk_Taller_Click() { RecalcHolding(); }

void frm_Fantasy::ud_tanksize_Change() { RecalcHolding(); }

void frm_Fantasy::lst_select_Click() { cmd_AddAnimal->setEnabled(true); }

void frm_Fantasy::lst_select_DblClick() { cmd_AddAnimal_Click(); }

void frm_Fantasy::lst_Fantank_Click() { cmd_RemoveAnimal->setEnabled(true); }

void frm_Fantasy::lst_Fantank_DblClick() { cmd_RemoveAnimal_Click(); }

void frm_Fantasy::cmd_AddAnimal_Click()
{
    if (!m_checks.passes())
        return;
    const int row = selectedRow(*lst_select);
    if (row < 0) {
        Beep();
        MsgBox(QStringLiteral("You must first select an animal to add."), vbInformation, QStringLiteral("Note!"));
        return;
    }
    const int held = m_plan.FantasyCount();
    m_plan.SelectedAnimal = row + 1;
    Form<frm_FantAddAnimal>().ShowAnimal(m_plan, water(), lst_select->item(row)->text());
    if (m_plan.FantasyCount() > held) {
        lst_Fantank->addItem(FantasyLine(water(), m_plan.FantasyTank.back()));
        lst_Fantank->scrollToBottom(); // shows the new line
    }
    lst_select->setCurrentRow(-1);
    RecalcHolding();
}

void frm_Fantasy::cmd_RemoveAnimal_Click()
{
    if (!m_checks.passes())
        return;
    const int row = selectedRow(*lst_Fantank);
    if (row < 0) {
        Beep();
        MsgBox(QStringLiteral("You must first select an animal to delete."), vbExclamation, QStringLiteral("Oops!"));
        return;
    }
    delete lst_Fantank->takeItem(row);
    lst_Fantank->setCurrentRow(-1); // Qt would select the next line
    m_plan.Remove(row);
    RecalcHolding();
    cmd_RemoveAnimal->setEnabled(false);
}

bool frm_Fantasy::txt_tanksize_LostFocus()
{
    const auto wrong = [](const char *text) {
        Beep();
        MsgBox(QLatin1String(text), vbExclamation, QStringLiteral("Validation error!"));
        return false;
    };
    const QString size = txt_tanksize->text();
    if (!IsNumeric(size))
        return wrong("Fantasy tank size must be a number less than 250 gallons.");
    if (Val(size) > biggestTank)
        return wrong("Fantasy tank size must be less than 250 gallons.");
    if (Val(size) < smallestTank)
        return wrong("Fantasy tank size must be at least 5 gallons.");
    RecalcHolding();
    return true;
}

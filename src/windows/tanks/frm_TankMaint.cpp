#include "windows/tanks/frm_TankMaint.h"

#include "platform/controls/EmptyText.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/ListKeys.h"
#include "platform/core/Doors.h"
#include "windows/tanks/frm_TankAddNew.h"

namespace {

const QString allTanks = QStringLiteral("SELECT * FROM Tanklst ORDER BY [tankname] COLLATE CASEBLIND ASC");
const QString tankByName = QStringLiteral("where tankname = ?");

// Deletes what belongs to a tank, in this order. The tank's own row is already deleted by then; the last statement is a
// safety net.
const QString cascade[] = {
    QStringLiteral("DELETE FROM MAINTLOG WHERE MAINTTANKNAME = ?"),
    QStringLiteral("DELETE FROM LIVESTOCK WHERE TANKNAME = ?"),
    QStringLiteral("DELETE FROM WATERLOG WHERE TANKNAME = ?"),
    QStringLiteral("DELETE FROM TANKLST WHERE TANKLST.TANKID = ?"),
};

} // namespace

frm_TankMaint::frm_TankMaint(const FormContext &context) : DialogForm(context)
{
    setupUi(this);
    new EmptyText(*lst_tanklist, QStringLiteral("There are no tanks yet. Press \"Add New...\" to set up your first."));
    on(lst_tanklist, &QListWidget::itemDoubleClicked, this, &frm_TankMaint::cmd_ChangeTank_Click);
    for (const Qt::Key key : enterKeys)
        OnListKey(*lst_tanklist, key, *cmd_ChangeTank);
    OnListKey(*lst_tanklist, Qt::Key_Delete, *cmd_DeleteTank);
    OnListKey(*lst_tanklist, Qt::Key_Insert, *cmd_AddTank);
    MoveByKeys(*lst_tanklist);
    on(cmd_AddTank, &QPushButton::clicked, this, &frm_TankMaint::cmd_AddTank_Click);
    on(cmd_ChangeTank, &QPushButton::clicked, this, &frm_TankMaint::cmd_ChangeTank_Click);
    on(cmd_DeleteTank, &QPushButton::clicked, this, &frm_TankMaint::cmd_DeleteTank_Click);
    on(cmd_ok, &QPushButton::clicked, this, &frm_TankMaint::cmd_ok_Click);
    on(cmd_Cancel, &QPushButton::clicked, this, &frm_TankMaint::cmd_Cancel_Click);
}

void frm_TankMaint::Show_List()
{
    fillList(); // clears it first, because the window may be loaded and filled already
    ShowModal();
}

void frm_TankMaint::fillList()
{
    lst_tanklist->clear();
    for (Recordset tanks = g.gDatabase->OpenRecordset(allTanks); !tanks.EOF_(); tanks.MoveNext())
        lst_tanklist->addItem(tanks[QStringLiteral("tankname")].text());
}

QString frm_TankMaint::selection() const
{
    const auto selected = lst_tanklist->selectedItems();
    return selected.isEmpty() ? QString() : selected.constFirst()->text();
}

QString frm_TankMaint::nameOrSelection(const QString &tankName)
{
    const QString name = tankName.isEmpty() ? selection() : tankName;
    if (name.isEmpty()) {
        Beep();
        MsgBox(QStringLiteral("You must first select a tank entry to change."), vbInformation, QStringLiteral("Note!"));
    }
    return name;
}

void frm_TankMaint::ChangeTankInfo(const QString &tankName)
{
    const QString name = nameOrSelection(tankName);
    if (!name.isEmpty())
        Form<frm_TankAddNew>().ChangeTank(name);
}

void frm_TankMaint::DeleteTankInfo(const QString &tankName)
{
    const QString name = nameOrSelection(tankName); // the message says "change" here as well; keepers know it that way
    if (name.isEmpty())
        return;
    g.gTankName = name;
    Recordset tank = g.gDatabase->OpenForUpdate(QStringLiteral("tanklst"), tankByName, {name});
    tank.MoveFirst();
    const QString id = tank[QStringLiteral("tankid")].text(); // the current tank may change under the message box
    g.gTankId = id;
    Beep();
    g.gMessage =
        u"Are you sure you want to delete the tank you named " + name +
        u"?  Deleting this entry will delete ALL entries for this tank in EVERY logbook - Maintenence, Water Quality, "
        u"and Livestock. (Remember, you CANNOT \"undo\" a delete!)";
    if (MsgBox(g.gMessage, vbOKCancel + vbQuestion + vbDefaultButton2, QStringLiteral("Are you sure...")) !=
        MsgBoxAnswer::OK)
        return;
    {
        Database::Transaction whole(*g.gDatabase);
        tank.Delete();
        for (const QString &statement : cascade)
            g.gDatabase->Execute(statement, {id});
        whole.commit();
    }
    MsgBox(u"The tank named " + name + u" was successfully deleted.", vbInformation, QStringLiteral("Tank Deleted"));
    g.gTankName.clear();
    g.gTankId.clear();
}

void frm_TankMaint::cmd_AddTank_Click()
{
    Form<frm_TankAddNew>().AddNewTank();
    fillList();
}

void frm_TankMaint::cmd_ChangeTank_Click()
{
    ChangeTankInfo({});
    fillList();
}

void frm_TankMaint::cmd_DeleteTank_Click()
{
    if (selection().isEmpty()) {
        Beep();
        MsgBox(QStringLiteral("You must first select a tank to delete."), vbInformation, QStringLiteral("Note!"));
    } else {
        DeleteTankInfo({});
    }
    fillList();
}

void frm_TankMaint::cmd_ok_Click() { Unload(*this); }

void frm_TankMaint::cmd_Cancel_Click() { Unload(*this); }

#include "windows/logbook/frm_LivesMove.h"

#include "platform/controls/Guarded.h"
#include "platform/controls/ListKeys.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"

namespace {

const QString tanksByName = QStringLiteral("SELECT * FROM Tanklst ORDER BY [tankname] COLLATE CASEBLIND ASC");
const QString tankByName = QStringLiteral("SELECT * FROM tanklst where tankname = ?");

} // namespace

frm_LivesMove::frm_LivesMove(const FormContext &context) : DialogForm(context)
{
    setupUi(this);
    on(cmd_ok, &QPushButton::clicked, this, &frm_LivesMove::cmd_OK_Click);
    on(cmd_Cancel, &QPushButton::clicked, this, &frm_LivesMove::cmd_Cancel_Click);
    on(lst_tanklist, &QListWidget::itemDoubleClicked, this, &frm_LivesMove::lst_tanklist_DblClick);
    MoveByKeys(*lst_tanklist);
}

void frm_LivesMove::Form_Load()
{
    g.livesMove.MoveCancelled = true;
    for (Recordset tanks = g.gDatabase->OpenRecordset(tanksByName); !tanks.EOF_(); tanks.MoveNext())
        lst_tanklist->addItem(tanks[QStringLiteral("tankname")].text());
}

void frm_LivesMove::ShowWindow(const Recordset &row)
{
    m_row = row;
    ShowModal();
}

void frm_LivesMove::store()
{
    Recordset tank = g.gDatabase->OpenRecordset(tankByName, {lst_tanklist->currentItem()->text()});
    tank.MoveFirst();
    const QString id = tank[QStringLiteral("tankid")].text();
    m_row.Edit(); // started again, so that the date of a refused attempt does not remain
    if (chk_ChangeDate->isChecked()) {
        const QDateTime now = Now(); // read once, because the day may change between two readings
        m_row[QStringLiteral("dateadded")].setValue(Format(now.date(), QStringLiteral("mm/dd/yy")));
        m_row[QStringLiteral("timeadded")].setValue(Format(now.time(), QStringLiteral("hh:mm:ss am/pm")));
    }
    m_row[QStringLiteral("tankname")].setValue(id);
    m_row.Update();
}

void frm_LivesMove::cmd_OK_Click()
{
    if (lst_tanklist->selectedItems().isEmpty()) {
        Beep();
        g.gMessage = QStringLiteral("You must first select a tank entry to move your animal to.");
        MsgBox(g.gMessage, vbInformation, QStringLiteral("Note!"));
        return;
    }
    try {
        store();
    } catch (const RuntimeFailure &failure) {
        if (failure.number() != Failure::DuplicateKey)
            throw;
        Beep();
        MsgBox(QStringLiteral("That tank already has an entry for this animal at the same date and time. Let the date "
                              "and time change to "
                              "\"Now\", or choose another tank."),
               vbExclamation, QStringLiteral("Oops!"));
        return;
    }
    g.livesMove.MoveCancelled = false;
    Unload(*this);
}

void frm_LivesMove::cmd_Cancel_Click()
{
    g.livesMove.MoveCancelled = true;
    Unload(*this);
}

void frm_LivesMove::lst_tanklist_DblClick() { cmd_OK_Click(); }

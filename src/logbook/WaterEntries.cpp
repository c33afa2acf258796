// The logbook's paths for water tests: add, change and delete.
#include "logbook/frm_WaterAddEdit.h"
#include "logbook/frm_Waterlog.h"
#include "logbook/RowKey.h"
#include "platform/Doors.h"
#include "platform/MaskedBox.h"
#include "platform/RuntimeFailure.h"
#include "text/Dates.h"

namespace {

const QString testByMoment =
    QStringLiteral("SELECT * FROM waterlog where tankname = ? AND logdate = ? And logtime = ?");
const QString note = QStringLiteral("Note!");
const QString timePicture = QStringLiteral("hh:mm:ss am/pm");

/// The date or time that a list's row shows; it was made from a real one.
template <class T> T sure(const std::optional<T> &moment, const QString &text)
{
    if (!moment)
        throw RuntimeFailure(Failure::TypeMismatch, QStringLiteral("The row's \"%1\" could not be read.").arg(text));
    return *moment;
}

} // namespace

void frm_Waterlog::AddWaterEntry()
{
    auto &window = Form<frm_WaterAddEdit>();
    window.setDateOrder();
    window.txt_date->setText(Format(Now().date(), g.options.DatePicture));
    window.txt_time->setText(Format(Now().time(), timePicture));
    window.setDefaults(g.gDefaultWaterType);
    window.setWindowTitle(u"Add a log entry for " + g.gTankName + u" Tank");
    g.gRecordset = g.gDatabase->OpenForAppend(QStringLiteral("waterlog"));
    g.gRecordset.AddNew();
    window.ShowWindow();
    Refresh_Listview(QStringLiteral("ascending"));
}

void frm_Waterlog::Change_EntriesWater()
{
    if (lstv_WaterLog->SelectedItem() == 0) {
        g.gMessage = QStringLiteral("You must first select a log entry to delete"); // so here too
        MsgBox(g.gMessage, vbInformation, note);
        return;
    }
    const QString key = lstv_WaterLog->Key(lstv_WaterLog->SelectedItem());
    const QString date = NormalizeDateText(DateOfKey(key), g.options.DateOrder);
    const QString time = TimeOfKey(key);
    g.gRecordset =
        g.gDatabase->OpenRecordset(testByMoment, {g.gTankId, sure(ReadDate(date), date), sure(ReadTime(time), time)});
    g.gRecordset.MoveFirst();
    g.gRecordset.Edit();
    auto &window = Form<frm_WaterAddEdit>();
    window.setDateOrder();
    window.txt_date->setText(DateOfKey(key));
    window.txt_time->setText(time);
    window.setWindowTitle(u"Change Log Entry for " + g.gTankName + u" Tank");
    window.load(g.gRecordset);
    window.ShowWindow();
    Refresh_Listview(QStringLiteral("ascending"));
}

bool frm_Waterlog::mayDelete(const QString &entry)
{
    g.gMessage = u"Are you sure you want to delete the  " + entry + u" entry for the " + g.gTankName +
                 u" tank?   (Remember, you CANNOT \"undo\" a delete!)";
    Beep();
    return MsgBox(g.gMessage, vbOKCancel + vbQuestion, QStringLiteral("Are you sure...")) == MsgBoxAnswer::OK;
}

void frm_Waterlog::Delete_EntriesWater()
{
    if (lstv_WaterLog->SelectedItem() == 0) {
        MsgBox(QStringLiteral("You must first select a log entry to delete"), vbInformation, note);
        return;
    }
    const QString key = lstv_WaterLog->Key(lstv_WaterLog->SelectedItem());
    const QString dateText = DateOfKey(key); // as it stands: month first, whatever the user's order, if it is a date so
    const QString timeText = TimeOfKey(key);
    const QDate date = sure(ReadTypedDate(dateText, g.options.DateOrder), dateText);
    const QTime time = sure(ReadTime(timeText), timeText);
    g.gRecordset = g.gDatabase->OpenRecordset(testByMoment, {g.gTankId, date, time});
    const QDate logdate = g.gRecordset[QStringLiteral("logdate")].value().toDate();
    g.gRecordset.MoveFirst();
    if (!mayDelete(Format(logdate, QStringLiteral("mm/dd/yy")) + u", " + timeText))
        return;
    // The search names the tank by its name, where the statement named it by its id: it finds a row only where the two
    // agree.
    if (g.gRecordset.FindFirst(QStringLiteral("tankname = ? AND logdate = ? And logtime = ?"),
                               {g.gTankName, date, time}))
        g.gRecordset.Delete();
    else
        MsgBox(QStringLiteral("yo... no match on da key!"));
    Refresh_Listview(QStringLiteral("Ascending"));
}

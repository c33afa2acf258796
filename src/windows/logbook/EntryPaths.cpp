// The logbook's commands for entries: add, change, delete and move, for the three logs. Their common parts are written
// once. What differs in words or in how a date is read follows below, log by log; the rest is in the table of the logs.
#include "logic/logbook/RowKey.h"
#include "platform/controls/Caption.h"
#include "platform/controls/MaskedBox.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_LivesMove.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_OMKLogPrint.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/logbook/frm_Waterlog.h"

namespace {

const QString note = QStringLiteral("Note!");
const QString ascending = QStringLiteral("ascending");

// What was not done, for the message if the row is not found.
const QString deleted = QStringLiteral("deleted");
const QString changed = QStringLiteral("changed");

/// The condition that selects the entry of a tank, date and time. "IS" also finds an entry without a date or a time,
/// which only another program can have written.
QString isEntry(const LogKind &kind)
{
    return QStringLiteral("%1 = ? AND %2 IS ? And %3 IS ?")
        .arg(QLatin1String(kind.tankColumn), QLatin1String(kind.dateColumn), QLatin1String(kind.timeColumn));
}

} // namespace

std::optional<ShownEntry> frm_Waterlog::selectedEntry(const QString &ifNone)
{
    if (const int item = list().SelectedItem()) {
        const LogRows &shown = *m_rows[tab()];
        const int row = list().SourceRow(item);
        return ShownEntry{shown.key(row), shown.date(row), shown.time(row)};
    }
    g.gMessage = ifNone;
    MsgBox(g.gMessage, vbInformation, note);
    return {};
}

std::optional<QDate> frm_Waterlog::dateAsTyped(const ShownEntry &entry) const
{
    return ReadTypedDate(DateOfKey(entry.key), m_shownOrder);
}

Recordset frm_Waterlog::newRow(LogTab log)
{
    Recordset row = g.gDatabase->OpenForAppend(QLatin1String(KindOf(log).table));
    row.AddNew();
    return row;
}

std::optional<Recordset> frm_Waterlog::rowOf(LogTab log, const Tank &tank, const ShownEntry &entry,
                                             const std::optional<QDate> &date, const QString &undone)
{
    const LogKind &kind = KindOf(log);
    Recordset row = g.gDatabase->OpenForUpdate(QLatin1String(kind.table), u"where " + isEntry(kind),
                                               {tank.id, date.value_or(QDate()), entry.time});
    if (!row.isEmpty())
        return row;
    tellNoRow(entry, date, undone);
    Refresh_Listview(ascending);
    return {};
}

void frm_Waterlog::tellNoRow(const ShownEntry &entry, const std::optional<QDate> &date, const QString &undone)
{
    g.gMessage = u"Nothing was " + undone + u". ";
    if (!date || *date == entry.date) {
        g.gMessage += u"This entry is no longer in the log as the list showed it. The list is read again.";
    } else {
        g.gMessage += u"The date in this row, " + DateOfKey(entry.key) + u", is read as " +
                      Format(*date, QStringLiteral("mmmm d, yyyy")) + u" here, and there is no entry of that day at " +
                      TimeOfKey(entry.key) + u'.';
        if (m_shownOrder != DateOrder::MMDDYY)
            g.gMessage += u" Choose dates with the month first in \"View\", \"Options...\", and the entry is found.";
    }
    Beep();
    MsgBox(g.gMessage, vbInformation, note);
}

void frm_Waterlog::AddWaterEntry(const Tank &tank)
{
    auto &window = Form<frm_WaterAddEdit>();
    window.setDateOrder();
    window.setDefaults(g.gDefaultWaterType);
    window.setWindowTitle(u"Add a log entry for " + tank.name + u" Tank");
    window.ShowWindow(newRow(WaterTab), tank.id);
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesWater(const Tank &tank)
{
    // The message says "delete" here as well; keepers know it that way.
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to delete"));
    auto row = entry ? rowOf(WaterTab, tank, *entry, entry->date, changed) : std::nullopt;
    if (!row)
        return;
    row->Edit();
    auto &window = Form<frm_WaterAddEdit>();
    window.setDateOrder();
    window.txt_date->setText(Format(entry->date, g.options.DatePicture));
    window.txt_time->setText(TimeOfKey(entry->key));
    window.setWindowTitle(u"Change Log Entry for " + tank.name + u" Tank");
    window.load(*row);
    window.ShowWindow(*row, tank.id);
    Refresh_Listview(ascending);
}

frm_LivesAddEdit &frm_Waterlog::freshLivestockWindow(const Tank &tank)
{
    // Changing a maintenance entry can leave this window loaded, with the lists for the water of another tank.
    if (auto *left = Forms::current().loaded<frm_LivesAddEdit>())
        Unload(*left);
    readWaterType(tank);
    auto &window = Form<frm_LivesAddEdit>();
    window.setDateOrder();
    window.setWindowTitle(u" Livestock Detail for " + tank.name);
    return window;
}

void frm_Waterlog::AddLivestockEntry(const Tank &tank)
{
    auto &window = freshLivestockWindow(tank);
    window.setDefaults();
    window.ShowWindow(newRow(LivestockTab), tank.id);
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesLives(const Tank &tank)
{
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to change."));
    // The name is not part of the condition: if two animals have the same date and time, the first row is taken.
    auto row = entry ? rowOf(LivestockTab, tank, *entry, entry->date, changed) : std::nullopt;
    if (!row)
        return;
    row->Edit();
    auto &window = freshLivestockWindow(tank);
    window.txt_DateAdded->setText(Format(entry->date, g.options.DatePicture));
    window.txt_timeadded->setText(Format(entry->time, QStringLiteral("hh:mm:ss AM/PM")));
    window.load(*row);
    window.ShowWindow(*row, tank.id);
    Refresh_Listview(ascending);
}

void frm_Waterlog::AddMaintEntry(const Tank &tank)
{
    auto &window = Form<frm_MaintAddEdit>();
    window.setDateOrder();
    window.setDefaults();
    window.ShowWindow(newRow(MaintenanceTab), tank.id);
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesMaint(const Tank &tank)
{
    // The message says "delete" here as well; keepers know it that way.
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to delete"));
    if (!entry)
        return;
    // This step has no use but is kept: it loads the livestock window, hidden, and puts the time into it.
    Form<frm_LivesAddEdit>().txt_timeadded->setText(TimeOfKey(entry->key));
    auto row = rowOf(MaintenanceTab, tank, *entry, dateAsTyped(*entry), changed);
    if (!row)
        return;
    row->Edit();
    auto &window = Form<frm_MaintAddEdit>();
    window.setDateOrder();
    window.load(*row);
    window.setWindowTitle(u" Maintenence Log for " + tank.name);
    window.ShowWindow(*row, tank.id);
    Refresh_Listview(ascending);
}

bool frm_Waterlog::mayDelete(const QString &entry, const Tank &tank)
{
    g.gMessage = u"Are you sure you want to delete the  " + entry + u" entry for the " + tank.name +
                 u" tank?   (Remember, you CANNOT \"undo\" a delete!)";
    Beep();
    return MsgBox(g.gMessage, vbOKCancel + vbQuestion, QStringLiteral("Are you sure...")) == MsgBoxAnswer::OK;
}

void frm_Waterlog::deleteEntry(LogTab log, const Tank &tank)
{
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to delete"));
    if (!entry)
        return;
    const LogKind &kind = KindOf(log);
    const auto date = dateAsTyped(*entry);
    const QDate day = date.value_or(QDate());
    auto row = rowOf(log, tank, *entry, date, deleted);
    if (!row)
        return;
    QString description = Format(day, QStringLiteral("mm/dd/yy")) + u", " + TimeOfKey(entry->key);
    if (kind.asksByName)
        description = (*row)[QLatin1String(kind.nameColumn)].text() + u" - " + description;
    if (!mayDelete(description, tank))
        return;
    if (row->FindFirst(isEntry(kind), {kind.findsByTankName ? tank.name : tank.id, day, entry->time}))
        row->Delete();
    else
        MsgBox(QStringLiteral("yo... no match on da key!"));
    Refresh_Listview(QStringLiteral("Ascending"));
}

void frm_Waterlog::Delete_EntriesWater(const Tank &tank) { deleteEntry(WaterTab, tank); }

void frm_Waterlog::Delete_EntriesLives(const Tank &tank) { deleteEntry(LivestockTab, tank); }

void frm_Waterlog::Delete_EntriesMaint(const Tank &tank) { deleteEntry(MaintenanceTab, tank); }

void frm_Waterlog::Move_Entries()
{
    const Tank tank = takeTankInHand();
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to move."));
    if (!entry)
        return;
    const LogKind &kind = KindOf(LivestockTab);
    Recordset row = g.gDatabase->OpenForUpdate(QLatin1String(kind.table), u"where " + isEntry(kind),
                                               {tank.id, entry->date, entry->time});
    if (row.isEmpty()) {
        MsgBox(QStringLiteral("entry not found to be moved"));
        return;
    }
    row.Edit();
    auto &window = Form<frm_LivesMove>();
    window.lbl_Move->setText(u"Moving " + Caption(row[QStringLiteral("animalname")].text()) + u" to...");
    window.ShowWindow(row);
    if (g.livesMove.MoveCancelled)
        row.Close();
    Refresh_Listview(ascending);
}

void frm_Waterlog::Print_Entries() { Form<frm_OMKLogPrint>().ShowFor(tab(), takeTankInHand().id); }

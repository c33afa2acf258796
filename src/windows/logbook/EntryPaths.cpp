// The logbook's paths to its entries: add, change, delete and move, for the three logs. What the paths do alike is
// written once; what differs (statements, the tank named by id or by name, the words, how a date is read) stands side
// by side below.
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

// In all statements "IS" finds an entry without a date or a time as well, which only another program can have written.
struct frm_Waterlog::DeletePath
{
    const char *table;
    const char *condition;  ///< tank, date, time
    bool searchByName;      ///< the search names the tank by its name, so it finds a row only where name and id agree
    const char *nameColumn; ///< told in the question; null: date and time alone
};

const std::array<frm_Waterlog::DeletePath, 3> frm_Waterlog::deletePaths = {{
    {"waterlog", "tankname = ? AND logdate IS ? And logtime IS ?", true, nullptr},
    {"Livestock", "Tankname = ? AND DateAdded IS ? And TimeAdded IS ?", false, "animalname"},
    {"maintlog", "mainttankname = ? AND maintlogdate IS ? And maintlogtime IS ?", true, nullptr},
}};

namespace {

const QString waterTest = QStringLiteral("SELECT * FROM waterlog where tankname = ? AND logdate IS ? And logtime IS ?");
const QString livestockEntry =
    QStringLiteral("SELECT * FROM livestock where tankname = ? AND dateadded IS ? AND timeadded IS ?");
const QString maintEntry =
    QStringLiteral("SELECT * FROM maintlog where mainttankname = ? And maintlogdate IS ? And maintlogtime IS ?");
const QString note = QStringLiteral("Note!");
const QString ascending = QStringLiteral("ascending");

// What does not happen where the row is not found.
const QString deleted = QStringLiteral("deleted");
const QString changed = QStringLiteral("changed");

} // namespace

std::optional<ShownEntry> frm_Waterlog::selectedEntry(const QString &ifNone)
{
    const ListView &rows = list(tab());
    if (const int item = rows.SelectedItem()) {
        const LogRows &shown = *m_rows[static_cast<size_t>(tab())];
        const int row = rows.SourceRow(item);
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

Recordset frm_Waterlog::newRow(const QString &table)
{
    Recordset row = g.gDatabase->OpenForAppend(table);
    row.AddNew();
    return row;
}

std::optional<Recordset> frm_Waterlog::rowOf(const QString &sql, const Tank &tank, const ShownEntry &entry,
                                             const std::optional<QDate> &date, const QString &undone)
{
    Recordset row = g.gDatabase->OpenRecordset(sql, {tank.id, date.value_or(QDate()), entry.time});
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
        if (m_shownOrder != u"MMDDYY")
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
    window.ShowWindow(newRow(QStringLiteral("waterlog")), tank.id);
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesWater(const Tank &tank)
{
    // Its box says "delete" as well.
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to delete"));
    auto row = entry ? rowOf(waterTest, tank, *entry, entry->date, changed) : std::nullopt;
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
    // A change of a maintenance entry may have left it loaded, with the lists of another tank's water.
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
    window.ShowWindow(newRow(QStringLiteral("livestock")), tank.id);
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesLives(const Tank &tank)
{
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to change."));
    // The name is not part of the condition: of two animals of one second the first row is taken.
    auto row = entry ? rowOf(livestockEntry, tank, *entry, entry->date, changed) : std::nullopt;
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
    window.ShowWindow(newRow(QStringLiteral("maintlog")), tank.id);
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesMaint(const Tank &tank)
{
    // Its box says "delete" as well.
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to delete"));
    if (!entry)
        return;
    // A stray step that stays: the time goes into the livestock window, which is loaded for it and stays hidden.
    Form<frm_LivesAddEdit>().txt_timeadded->setText(TimeOfKey(entry->key));
    auto row = rowOf(maintEntry, tank, *entry, dateAsTyped(*entry), changed);
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

void frm_Waterlog::deleteEntry(const DeletePath &path, const Tank &tank)
{
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to delete"));
    if (!entry)
        return;
    const auto date = dateAsTyped(*entry);
    const QDate day = date.value_or(QDate());
    const QString condition = QLatin1String(path.condition);
    auto row =
        rowOf(u"SELECT * FROM " + QLatin1String(path.table) + u" where " + condition, tank, *entry, date, deleted);
    if (!row)
        return;
    QString description = Format(day, QStringLiteral("mm/dd/yy")) + u", " + TimeOfKey(entry->key);
    if (path.nameColumn)
        description = (*row)[QLatin1String(path.nameColumn)].text() + u" - " + description;
    if (!mayDelete(description, tank))
        return;
    if (row->FindFirst(condition, {path.searchByName ? tank.name : tank.id, day, entry->time}))
        row->Delete();
    else
        MsgBox(QStringLiteral("yo... no match on da key!"));
    Refresh_Listview(QStringLiteral("Ascending"));
}

void frm_Waterlog::Delete_EntriesWater(const Tank &tank) { deleteEntry(deletePaths[WaterTab], tank); }

void frm_Waterlog::Delete_EntriesLives(const Tank &tank) { deleteEntry(deletePaths[LivestockTab], tank); }

void frm_Waterlog::Delete_EntriesMaint(const Tank &tank) { deleteEntry(deletePaths[MaintenanceTab], tank); }

void frm_Waterlog::Move_Entries()
{
    const Tank tank = takeTankInHand();
    const auto entry = selectedEntry(QStringLiteral("You must first select a log entry to move."));
    if (!entry)
        return;
    Recordset row = g.gDatabase->OpenRecordset(livestockEntry, {tank.id, entry->date, entry->time});
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

void frm_Waterlog::Print_Entries() { Form<frm_OMKLogPrint>().ShowFor(static_cast<LogTab>(tab()), takeTankInHand().id); }

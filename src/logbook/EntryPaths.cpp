// The logbook's paths to its entries: add, change, delete and move, for the three logs. What the paths do alike is
// written once; what differs (statements, the tank named by id or by name, the words, how a date is read) stands side
// by side below.
#include "logbook/frm_LivesAddEdit.h"
#include "logbook/frm_LivesMove.h"
#include "logbook/frm_MaintAddEdit.h"
#include "logbook/frm_OMKLogPrint.h"
#include "logbook/frm_WaterAddEdit.h"
#include "logbook/frm_Waterlog.h"
#include "logbook/RowKey.h"
#include "platform/Caption.h"
#include "platform/Doors.h"
#include "platform/MaskedBox.h"
#include "platform/RuntimeFailure.h"
#include "text/Dates.h"

struct frm_Waterlog::DeletePath
{
    const char *table;
    const char *condition; ///< tank, date, time
    bool searchByName;     ///< the search names the tank by its name, so it finds a row only where name and id agree
    const char *dateColumn;
    const char *nameColumn; ///< told in the question; null: date and time alone
};

const std::array<frm_Waterlog::DeletePath, 3> frm_Waterlog::deletePaths = {{
    {"waterlog", "tankname = ? AND logdate = ? And logtime = ?", true, "logdate", nullptr},
    {"Livestock", "Tankname = ? AND DateAdded = ? And TimeAdded = ?", false, "dateadded", "animalname"},
    {"maintlog", "mainttankname = ? AND maintlogdate = ? And maintlogtime = ?", true, "maintlogdate", nullptr},
}};

namespace {

const QString waterTest = QStringLiteral("SELECT * FROM waterlog where tankname = ? AND logdate = ? And logtime = ?");
const QString livestockEntry =
    QStringLiteral("SELECT * FROM livestock where tankname = ? AND dateadded = ? AND timeadded = ?");
const QString maintEntry =
    QStringLiteral("SELECT * FROM maintlog where mainttankname = ? And maintlogdate = ? And maintlogtime = ?");
const QString note = QStringLiteral("Note!");
const QString ascending = QStringLiteral("ascending");

/// The date or time that a list's row shows; it was made from a real one.
template <class T> T sure(const std::optional<T> &moment, const QString &text)
{
    if (!moment)
        throw RuntimeFailure(Failure::TypeMismatch, QStringLiteral("The row's \"%1\" could not be read.").arg(text));
    return *moment;
}

} // namespace

QString frm_Waterlog::selectedKey(const QString &ifNone)
{
    const ListView &rows = list(tab());
    if (rows.SelectedItem() > 0)
        return rows.Key(rows.SelectedItem());
    g.gMessage = ifNone;
    MsgBox(g.gMessage, vbInformation, note);
    return {};
}

QDate frm_Waterlog::dateOfRow(const QString &key) const
{
    const QString text = NormalizeDateText(DateOfKey(key), m_shownOrder);
    return sure(ReadDate(text), text);
}

QDate frm_Waterlog::dateAsTyped(const QString &key) const
{
    return sure(ReadTypedDate(DateOfKey(key), m_shownOrder), DateOfKey(key));
}

QTime frm_Waterlog::timeOfRow(const QString &key) const { return sure(ReadTime(TimeOfKey(key)), TimeOfKey(key)); }

void frm_Waterlog::AddWaterEntry()
{
    auto &window = Form<frm_WaterAddEdit>();
    window.setDateOrder();
    window.setDefaults(g.gDefaultWaterType);
    window.setWindowTitle(u"Add a log entry for " + g.gTankName + u" Tank");
    g.gRecordset = g.gDatabase->OpenForAppend(QStringLiteral("waterlog"));
    g.gRecordset.AddNew();
    window.ShowWindow();
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesWater()
{
    const QString key = selectedKey(QStringLiteral("You must first select a log entry to delete")); // so here too
    if (key.isEmpty())
        return;
    g.gRecordset = g.gDatabase->OpenRecordset(waterTest, {g.gTankId, dateOfRow(key), timeOfRow(key)});
    g.gRecordset.MoveFirst();
    g.gRecordset.Edit();
    auto &window = Form<frm_WaterAddEdit>();
    window.setDateOrder();
    window.txt_date->setText(Format(dateOfRow(key), g.options.DatePicture));
    window.txt_time->setText(TimeOfKey(key));
    window.setWindowTitle(u"Change Log Entry for " + g.gTankName + u" Tank");
    window.load(g.gRecordset);
    window.ShowWindow();
    Refresh_Listview(ascending);
}

frm_LivesAddEdit &frm_Waterlog::freshLivestockWindow()
{
    // A change of a maintenance entry may have left it loaded, with the lists of another tank's water.
    if (auto *left = Forms::current().loaded<frm_LivesAddEdit>())
        Unload(*left);
    auto &window = Form<frm_LivesAddEdit>();
    window.setDateOrder();
    window.setWindowTitle(u" Livestock Detail for " + g.gTankName);
    return window;
}

void frm_Waterlog::AddLivestockEntry()
{
    auto &window = freshLivestockWindow();
    window.setDefaults();
    g.gLivestockRecordset = g.gDatabase->OpenForAppend(QStringLiteral("livestock"));
    g.gLivestockRecordset.AddNew();
    window.ShowWindow();
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesLives()
{
    const QString key = selectedKey(QStringLiteral("You must first select a log entry to change."));
    if (key.isEmpty())
        return;
    // The name is not part of the condition: of two animals of one second the first row is taken.
    g.gLivestockRecordset = g.gDatabase->OpenRecordset(livestockEntry, {g.gTankId, dateOfRow(key), timeOfRow(key)});
    g.gLivestockRecordset.MoveFirst();
    g.gLivestockRecordset.Edit();
    auto &window = freshLivestockWindow();
    window.txt_DateAdded->setText(Format(dateOfRow(key), g.options.DatePicture));
    window.txt_timeadded->setText(Format(timeOfRow(key), QStringLiteral("hh:mm:ss AM/PM")));
    window.load(g.gLivestockRecordset);
    window.ShowWindow();
    Refresh_Listview(ascending);
}

void frm_Waterlog::AddMaintEntry()
{
    auto &window = Form<frm_MaintAddEdit>();
    window.setDateOrder();
    window.setDefaults();
    g.gRecordset = g.gDatabase->OpenForAppend(QStringLiteral("maintlog"));
    g.gRecordset.AddNew();
    window.ShowWindow();
    Refresh_Listview(ascending);
}

void frm_Waterlog::Change_EntriesMaint()
{
    const QString key = selectedKey(QStringLiteral("You must first select a log entry to delete")); // so here too
    if (key.isEmpty())
        return;
    // A stray step that stays: the time goes into the livestock window, which is loaded for it and stays hidden.
    Form<frm_LivesAddEdit>().txt_timeadded->setText(TimeOfKey(key));
    g.gRecordset = g.gDatabase->OpenRecordset(maintEntry, {g.gTankId, dateAsTyped(key), timeOfRow(key)});
    g.gRecordset.MoveFirst();
    g.gRecordset.Edit();
    auto &window = Form<frm_MaintAddEdit>();
    window.setDateOrder();
    window.load(g.gRecordset);
    window.setWindowTitle(u" Maintenence Log for " + g.gTankName);
    window.ShowWindow();
    Refresh_Listview(ascending);
}

bool frm_Waterlog::mayDelete(const QString &entry)
{
    g.gMessage = u"Are you sure you want to delete the  " + entry + u" entry for the " + g.gTankName +
                 u" tank?   (Remember, you CANNOT \"undo\" a delete!)";
    Beep();
    return MsgBox(g.gMessage, vbOKCancel + vbQuestion, QStringLiteral("Are you sure...")) == MsgBoxAnswer::OK;
}

void frm_Waterlog::deleteEntry(const DeletePath &path)
{
    const QString key = selectedKey(QStringLiteral("You must first select a log entry to delete"));
    if (key.isEmpty())
        return;
    const QDate date = dateAsTyped(key); // as it stands: month first, whatever the user's order, if it is a date so
    const QTime time = timeOfRow(key);
    const QString condition = QLatin1String(path.condition);
    g.gRecordset = g.gDatabase->OpenRecordset(u"SELECT * FROM " + QLatin1String(path.table) + u" where " + condition,
                                              {g.gTankId, date, time});
    QString entry = Format(g.gRecordset[QLatin1String(path.dateColumn)].value().toDate(), QStringLiteral("mm/dd/yy")) +
                    u", " + TimeOfKey(key);
    if (path.nameColumn)
        entry = g.gRecordset[QLatin1String(path.nameColumn)].text() + u" - " + entry;
    g.gRecordset.MoveFirst();
    if (!mayDelete(entry))
        return;
    if (g.gRecordset.FindFirst(condition, {path.searchByName ? g.gTankName : g.gTankId, date, time}))
        g.gRecordset.Delete();
    else
        MsgBox(QStringLiteral("yo... no match on da key!"));
    Refresh_Listview(QStringLiteral("Ascending"));
}

void frm_Waterlog::Delete_EntriesWater() { deleteEntry(deletePaths[WaterTab]); }

void frm_Waterlog::Delete_EntriesLives() { deleteEntry(deletePaths[LivestockTab]); }

void frm_Waterlog::Delete_EntriesMaint() { deleteEntry(deletePaths[MaintenanceTab]); }

void frm_Waterlog::Move_Entries()
{
    const QString key = selectedKey(QStringLiteral("You must first select a log entry to move."));
    if (key.isEmpty())
        return;
    g.gMoveRecordset = g.gDatabase->OpenRecordset(livestockEntry, {g.gTankId, dateOfRow(key), timeOfRow(key)});
    if (g.gMoveRecordset.isEmpty()) {
        MsgBox(QStringLiteral("entry not found to be moved"));
        return;
    }
    g.gMoveRecordset.MoveFirst();
    g.gMoveRecordset.Edit();
    auto &window = Form<frm_LivesMove>();
    window.lbl_Move->setText(u"Moving " + Caption(g.gMoveRecordset[QStringLiteral("animalname")].text()) + u" to...");
    window.ShowWindow();
    if (g.livesMove.MoveCancelled)
        g.gMoveRecordset.Close();
    Refresh_Listview(ascending);
}

void frm_Waterlog::Print_Entries() { Form<frm_OMKLogPrint>().ShowFor(static_cast<LogTab>(tab()), g.gTankId); }

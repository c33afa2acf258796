// Fills the livestock window's list of animals, from the database or from a name file, for freshwater or saltwater.
#include <algorithm>
#include <numeric>

#include <QComboBox>
#include <QRadioButton>
#include <QStringListModel>

#include "logic/common/NameFile.h"
#include "platform/controls/HourGlass.h"
#include "platform/core/Doors.h"
#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "windows/logbook/frm_LivesAddEdit.h"

/// What differs between the two waters.
struct frm_LivesAddEdit::Source
{
    const char *file;       ///< the name under which it is opened
    const char *inMessage;  ///< "saltwater names (NAMESSW.TXT)"
    const char *cannotView; ///< what the message says cannot be viewed, if reading the file fails
    const char *animalType;
    const char *waterTypes; ///< the water types of the tanks whose animals belong to the list
};

const frm_LivesAddEdit::Source frm_LivesAddEdit::saltSource = {"namessw.txt", "saltwater names (NAMESSW.TXT)",
                                                               "saltwater animal names", "2", "'2', '3'"};
const frm_LivesAddEdit::Source frm_LivesAddEdit::freshSource = {"NAMESFW.txt", "freshwater names (NAMESFW.TXT)",
                                                                "freshwater animal names", "1", "'1'"};

namespace {

// If the file is missing, the message says "freshwater names" for both waters.
QString missingText(const char *names, const char *cannotView)
{
    return QStringLiteral("The file containing the %1 is missing or not in the correct format. You will not be able to "
                          "view %2 using "
                          "the file. Change the setting in the \"Options...\" menu setting, on the \"Lists\" tab. "
                          "Contact Velmoor via "
                          "email or download the file from the Velmoor Website at %3 to obtain a copy of the file.")
        .arg(QLatin1String(names), QLatin1String(cannotView), makersAddress);
}

/// Sorts alphabetically, ignoring case.
QStringList sorted(QStringList names)
{
    std::vector<QString> keys;
    keys.reserve(size_t(names.size()));
    for (const QString &name : std::as_const(names))
        keys.push_back(name.toCaseFolded());
    std::vector<qsizetype> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&keys](qsizetype a, qsizetype b) { return keys[size_t(a)] < keys[size_t(b)]; });
    QStringList inOrder;
    inOrder.reserve(names.size());
    for (const qsizetype row : order)
        inOrder << std::move(names[row]);
    return inOrder;
}

} // namespace

void frm_LivesAddEdit::tell(const QString &progress) { main.setPanel(progress); }

void frm_LivesAddEdit::showAnimals(const QStringList &names)
{
    const QString typed = lst_AnimalList->currentText();
    m_animals->setStringList(names);
    lst_AnimalList->setCurrentIndex(-1);
    lst_AnimalList->setEditText(typed);
}

void frm_LivesAddEdit::opt_Saltwater_Click()
{
    const HourGlass wait;
    if (g.options.UseFileSalt)
        Salt_List_From_File();
    else
        SaltListFromDatabase();
}

void frm_LivesAddEdit::opt_fresh_click()
{
    const HourGlass wait;
    if (g.options.UseFileFresh)
        Fresh_List_From_File();
    else
        FreshListFromDatabase();
}

void frm_LivesAddEdit::Salt_List_From_File() { listFromFile(saltSource); }

void frm_LivesAddEdit::Fresh_List_From_File() { listFromFile(freshSource); }

void frm_LivesAddEdit::SaltListFromDatabase() { listFromDatabase(saltSource); }

void frm_LivesAddEdit::FreshListFromDatabase() { listFromDatabase(freshSource); }

void frm_LivesAddEdit::listFromDatabase(const Source &source)
{
    tell(QStringLiteral("Loading..."));
    const QString sql =
        QStringLiteral("SELECT animalname FROM (SELECT animallist.animalname from animallist "
                       "where animallist.animaltype = '%1' union select livestock.animalname from livestock "
                       "left join tanklst ON livestock.tankname = tanklst.tankID "
                       "where tanklst.tankwatertype in (%2)) WHERE animalname IS NOT NULL "
                       "ORDER BY animalname COLLATE CASEBLIND")
            .arg(QLatin1String(source.animalType), QLatin1String(source.waterTypes));
    QStringList names;
    for (Recordset rows = g.gDatabase->OpenRecordset(sql); !rows.EOF_(); rows.MoveNext())
        names << rows.rows()->text(rows.AbsolutePosition(), 0);
    showAnimals(names);
    tell(QStringLiteral("Ready."));
}

void frm_LivesAddEdit::listFromFile(const Source &source)
{
    const HourGlass wait;
    tell(QStringLiteral("Loading..."));
    showAnimals({});
    if (FindFile(nameFileLookedFor).isEmpty()) {
        MsgBox(missingText(source.inMessage, "freshwater names") +
                   u"\nThe Ostrelmark database version of the list will be used.",
               vbExclamation, namesNotFoundTitle);
        listFromDatabase(source);
        return;
    }
    QStringList names;
    try {
        const int count = ReadNameFile(
            QLatin1String(source.file), [&names](NameRecord record) { names << std::move(record.common); },
            [this](const QString &progress) { tell(progress); });
        showAnimals(sorted(std::move(names)));
        tell(QStringLiteral("%1 names loaded.").arg(count));
    } catch (const RuntimeFailure &) {
        MsgBox(missingText(source.inMessage, source.cannotView), vbExclamation, namesNotFoundTitle);
    }
}

#include "shots/Album.h"
#include "shots/Plays.h"

#include <QRadioButton>

#include "windows/tanks/frm_TankAddNew.h"
#include "windows/tanks/frm_TankMaint.h"

namespace {

void addTank(Album &album, const QString &name, const QString &description, QRadioButton *frm_TankAddNew::*water,
             const QString &notes, bool picture)
{
    auto &dialog = Form<frm_TankAddNew>();
    inDialog([&dialog] { dialog.AddNewTank(); },
             [&] {
                 dialog.txt_tankname->setText(name);
                 dialog.txt_long_desc->setText(description);
                 (dialog.*water)->setChecked(true);
                 dialog.txt_tanknotes->setPlainText(notes);
                 if (picture)
                     album.take(dialog, QStringLiteral("tank-new"));
                 dialog.cmd_OK->click();
             });
}

} // namespace

void playTanks(Album &album)
{
    addTank(album, QStringLiteral("Reef"), QStringLiteral("Mixed reef in the living room"), &frm_TankAddNew::opt_Reef,
            QStringLiteral("Skimmer, two return pumps, 4 x 54 W T5.\nSet up in April."), true);
    addTank(album, QStringLiteral("Angels"), QStringLiteral("Planted tank with angelfish"),
            &frm_TankAddNew::opt_Freshwater, {}, false);
    addTank(album, QStringLiteral("Garden pond"), QStringLiteral("Goldfish and lilies"), &frm_TankAddNew::opt_Pond, {},
            false);
    auto &list = Form<frm_TankMaint>();
    inDialog([&list] { list.Show_List(); },
             [&] {
                 list.lst_tanklist->setCurrentRow(2);
                 album.take(list, QStringLiteral("tank-list"));
                 list.cmd_ok->click();
             });
}

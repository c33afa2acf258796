#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

#include "shots/Album.h"
#include "shots/Plays.h"
#include "windows/advisers/frm_Compat.h"
#include "windows/advisers/frm_FantAddAnimal.h"
#include "windows/advisers/frm_Fantasy.h"
#include "windows/shell/frm_OMKMDIMain.h"

void playCompatibility(Album &album, frm_OMKMDIMain &main)
{
    main.mnu_ToolsCompatibility_Click();
    auto &window = Form<frm_Compat>();
    window.lst_Select->setCurrentIndex(1);
    album.take(window, QStringLiteral("compatibility"));
    window.but_fresh->setChecked(true);
    window.lst_Select->setCurrentIndex(0); // no other animal is certainly compatible with this one
    album.take(window, QStringLiteral("compatibility-fresh"));
    window.parentWidget()->close();
}

namespace {

/// Chooses an animal by its line, from 0, and drops in that many.
void dropAnimal(frm_Fantasy &window, int line, const QString &howMany, Album *album = nullptr)
{
    window.lst_select->setCurrentRow(line);
    inDialog([&window] { window.cmd_AddAnimal->click(); },
             [&] {
                 auto &dialog = Form<frm_FantAddAnimal>();
                 dialog.txt_howmany->setText(howMany);
                 if (album)
                     album->take(dialog, QStringLiteral("fantasy-add"));
                 dialog.cmd_Addit->click();
             });
}

} // namespace

void playFantasyTank(Album &album, frm_OMKMDIMain &main)
{
    main.mnu_ToolsFantasy_Click();
    auto &window = Form<frm_Fantasy>();
    dropAnimal(window, 0, QStringLiteral("2"), &album); // a pair of clownfish, then animals that can live with them
    dropAnimal(window, 14, QStringLiteral("3"));
    dropAnimal(window, 15, QStringLiteral("1"));
    dropAnimal(window, 5, QStringLiteral("2"));
    dropAnimal(window, 37, QStringLiteral("4"));
    window.lst_select->setCurrentRow(7);
    album.take(window, QStringLiteral("fantasy"));
    dropAnimal(window, 11, QStringLiteral("24"));
    album.take(window, QStringLiteral("fantasy-overfull"));
    window.parentWidget()->close();
}

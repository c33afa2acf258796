#include "shots/Album.h"
#include "shots/Plays.h"

#include <QCheckBox>
#include <QTabWidget>

#include "windows/shell/frm_OMKaboutbox.h"
#include "windows/shell/frm_OMKCredits.h"
#include "windows/shell/frm_OMKMDIMain.h"
#include "windows/shell/frm_OMKOptions.h"
#include "windows/shell/frm_OMKtod.h"

void playOptions(Album &album, frm_OMKMDIMain &main)
{
    auto &options = Form<frm_OMKOptions>();
    inDialog([&main] { main.mnu_ViewOptions_Click(); },
             [&] {
                 for (int tab = 0; tab < options.SSTab1->count(); ++tab) {
                     options.SSTab1->setCurrentIndex(tab);
                     album.take(options, QStringLiteral("options-%1").arg(tab + 1));
                 }
                 options.cmdCancel->click();
             });
}

void playAbout(Album &album, frm_OMKMDIMain &main)
{
    inDialog([&main] { main.mnu_HelpAbout_Click(); },
             [&album] {
                 auto &about = Form<frm_OMKaboutbox>();
                 album.take(about, QStringLiteral("about"));
                 about.reject();
             });
    auto &credits = Form<frm_OMKCredits>();
    inDialog([&credits] { credits.ShowCredits(); },
             [&album, &credits] {
                 album.take(credits, QStringLiteral("credits"));
                 credits.reject();
             });
}

void playTip(Album &album, frm_OMKMDIMain &main)
{
    inDialog([&main] { main.mnu_HelpTod_Click(); },
             [&album] {
                 auto &tip = Form<frm_OMKtod>();
                 tip.chk_ShowTipsAtStartup->setChecked(true);
                 album.take(tip, QStringLiteral("tip"));
                 tip.cmd_ok->click();
             });
}

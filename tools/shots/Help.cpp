#include <algorithm>

#include <QEventLoop>

#include "platform/HelpViewer.h"
#include "shell/frm_OMKMDIMain.h"
#include "shots/Album.h"
#include "shots/Plays.h"

void playHelp(Album &album, frm_OMKMDIMain &main)
{
    main.mnu_HelpContents_Click();
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(windows, [](auto *window) { return qobject_cast<HelpViewer *>(window); });
    if (found == windows.end())
        return;
    auto &viewer = static_cast<HelpViewer &>(**found);
    album.take(viewer, QStringLiteral("help"));
    viewer.open({HelpRequest::At::Window, QStringLiteral("frm_Waterlog")});
    album.take(viewer, QStringLiteral("help-page"));
    viewer.open({HelpRequest::At::Search});
    QEventLoop untilFound;
    QObject::connect(&viewer, &HelpViewer::searched, &untilFound, &QEventLoop::quit);
    viewer.searchFor(QStringLiteral("quarantine"));
    untilFound.exec();
    album.take(viewer, QStringLiteral("help-search"));
    viewer.hide();
}

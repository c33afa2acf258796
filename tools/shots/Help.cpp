#include <QDir>
#include <QEventLoop>

#include "platform/core/Files.h"
#include "platform/desktop/HelpViewer.h"
#include "shots/Album.h"
#include "shots/Plays.h"

void playHelp(Album &album)
{
    HelpViewer viewer(QDir(DataFolder()).absoluteFilePath(QStringLiteral("ostrelmark.qch")));
    viewer.open({});
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

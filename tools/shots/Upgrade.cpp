#include <QProgressBar>

#include "OldDatabase.h"
#include "shots/Album.h"
#include "shots/Plays.h"
#include "store/Database.h"
#include "store/Version.h"
#include "upgrade/frm_OMKupgrade.h"
#include "upgrade/UpgradeDatabase.h"

/// Runs the upgrade of an old database and photographs it half way.
void playUpgrade(Album &album, const QString &folder)
{
    const QString file = folder + u"/old.MDB";
    WriteOldDatabase(file, QStringLiteral("1.0"), 500);
    auto database = Database::OpenDatabase(file);
    QString version = ReadDatabaseVersion(*database);
    frm_OMKupgrade window(UpgradeWork(database, file, version));
    QObject::connect(window.ProgressBar1, &QProgressBar::valueChanged, &window, [&](int bar) {
        if (bar == 50)
            album.take(window, u"upgrade-" + version.left(1));
    });
    window.Run();
}

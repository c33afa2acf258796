// omk_shots DIR [--dark] [--scale N] [--points N] [--screen WxH]: uses the real windows, off-screen and with sample
// data, as a keeper does on a day, and writes a PNG of each window and a PDF of each printout to DIR. Prints the names
// of the files. Needs no display. The screen has room for every window, unless it is said how large it is.
#include <cstdio>

#include <QCommandLineParser>
#include <QFile>
#include <QPalette>
#include <QTemporaryDir>

#include "platform/desktop/Application.h"
#include "shots/Album.h"
#include "shots/Plays.h"
#include "store/NewDatabase.h"
#include "windows/logbook/frm_Waterlog.h"
#include "windows/shell/frm_OMKMDIMain.h"

namespace {

void goDark()
{
    QPalette palette(QColor(0x35, 0x37, 0x3b), QColor(0x2b, 0x2d, 0x30));
    palette.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x24));
    palette.setColor(QPalette::AlternateBase, QColor(0x27, 0x29, 0x2c));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, QColor(0xe6, 0xe6, 0xe6));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x83, 0x88));
    palette.setColor(QPalette::Link, QColor(0x5c, 0xb8, 0xd0));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xa0));
    QApplication::setPalette(palette);
}

/// Sets up a screen of a size like "1024x768" in the points of the windows; the off-screen one would be 800 x 800.
void setUpScreen(const QString &size, const QString &scale, const QString &folder)
{
    QFile file(folder + u"/screen.json");
    if (file.open(QIODevice::WriteOnly))
        file.write(QStringLiteral(R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens": [
            {"name": "one", "x": 0, "y": 0, "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                       .arg(size.section(u'x', 0, 0).toInt() * scale.toInt())
                       .arg(size.section(u'x', 1).toInt() * scale.toInt())
                       .toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
    qputenv("QT_SCALE_FACTOR", scale.toUtf8());
}

void setPoints(double points)
{
    QFont letters = QApplication::font();
    letters.setPointSizeF(points);
    QApplication::setFont(letters);
}

} // namespace

int main(int argc, char **argv)
{
    QCommandLineParser asked;
    asked.addOptions({{QStringLiteral("dark"), {}},
                      {QStringLiteral("scale"), {}, QStringLiteral("N"), QStringLiteral("1")},
                      {QStringLiteral("points"), {}, QStringLiteral("N")},
                      {QStringLiteral("screen"), {}, QStringLiteral("WxH"), QStringLiteral("3840x2400")}});
    if (!asked.parse(QStringList(argv, argv + argc)) || asked.positionalArguments().size() != 1) {
        std::fprintf(stderr, "usage: omk_shots DIR [--dark] [--scale N] [--points N] [--screen WxH]\n");
        return 2;
    }
    const QTemporaryDir folder;
    setUpScreen(asked.value(QStringLiteral("screen")), asked.value(QStringLiteral("scale")), folder.path());
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type != QtWarningMsg || !text.startsWith(u"This plugin does not support"))
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    Application application(argc, argv);
    if (asked.isSet(QStringLiteral("dark")))
        goDark();
    if (asked.isSet(QStringLiteral("points")))
        setPoints(asked.value(QStringLiteral("points")).toDouble());
    Album album(QDir(asked.positionalArguments().constFirst()).absolutePath());
    ShotDoors doors(album, folder.filePath(QStringLiteral("OMK.ini")));
    Doors::install(&doors);
    CreateDatabase(folder.filePath(QStringLiteral("OM.MDB")));
    QDir::setCurrent(folder.path());
    Globals globals;
    globals.splashMilliseconds = 0;
    Forms forms(globals);
    auto &main = Form<frm_OMKMDIMain>();
    SaveSetting(QStringLiteral("Show_Tips"), QStringLiteral("No")); // playTip() photographs the tip later
    main.MDIForm_Load();
    playTanks(album);
    main.CheckTanks();
    playReminders(album, main);
    playLogbook(album, main, globals);
    auto &logbook = Form<frm_Waterlog>();
    playLivestock(album, logbook);
    playMaintenance(album, logbook, doors.clock);
    playPrinting(album, logbook);
    playDiagnosis(album, main);
    playCompatibility(album, main);
    playFantasyTank(album, main);
    playReference(album, main);
    playGraph(album, main, globals);
    playHelp(album);
    playOptions(album, main);
    playTip(album, main);
    playAbout(album, main);
    playUpgrade(album, folder.path());
    return album.failed() ? 1 : 0;
}

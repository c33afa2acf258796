// The scenes of omk_shots, one for each tool. A scene uses the real windows, photographs them, and leaves the main
// window as it found it.
#pragma once

#include <QDateTime>

class Album;
class frm_OMKMDIMain;
class frm_Waterlog;
struct Globals;

/// The upgrade of an old database, which the scene writes into that folder.
void playUpgrade(Album &album, const QString &folder);
void playTanks(Album &album);
/// Opens the logbook, in which the next three scenes work.
void playLogbook(Album &album, frm_OMKMDIMain &main, Globals &globals);
void playLivestock(Album &album, frm_Waterlog &logbook);
void playMaintenance(Album &album, frm_Waterlog &logbook, QDateTime &clock);
void playPrinting(Album &album, frm_Waterlog &logbook);
void playReminders(Album &album, frm_OMKMDIMain &main);
void playDiagnosis(Album &album, frm_OMKMDIMain &main);
void playCompatibility(Album &album, frm_OMKMDIMain &main);
void playFantasyTank(Album &album, frm_OMKMDIMain &main);
void playReference(Album &album, frm_OMKMDIMain &main);
/// The graph as a keeper sees it at first, a sheet of all its styles, and its printout.
void playGraph(Album &album, frm_OMKMDIMain &main, Globals &globals);
/// The help with its first page, with the page of a window, and with the results of a search.
void playHelp(Album &album);
void playOptions(Album &album, frm_OMKMDIMain &main);
void playAbout(Album &album, frm_OMKMDIMain &main);
void playTip(Album &album, frm_OMKMDIMain &main);

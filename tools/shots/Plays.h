// The day that omk_shots plays, a scene a tool. Each scene drives the real windows, photographs them, and leaves the
// main window as it found it.
#pragma once

#include <QDateTime>

class Album;
class frm_OMKMDIMain;
class frm_Waterlog;
struct Globals;

/// The upgrade of an old database, which it writes into that folder.
void playUpgrade(Album &album, const QString &folder);
void playTanks(Album &album);
/// Opens the logbook, which the next three work in.
void playLogbook(Album &album, frm_OMKMDIMain &main, Globals &globals);
void playLivestock(Album &album, frm_Waterlog &logbook);
void playMaintenance(Album &album, frm_Waterlog &logbook, QDateTime &clock);
void playPrinting(Album &album, frm_Waterlog &logbook);
void playReminders(Album &album, frm_OMKMDIMain &main);
void playDiagnosis(Album &album, frm_OMKMDIMain &main);
void playCompatibility(Album &album, frm_OMKMDIMain &main);
void playFantasyTank(Album &album, frm_OMKMDIMain &main);
void playReference(Album &album, frm_OMKMDIMain &main);
/// The graph as a keeper sees it first, a sheet of all its styles, and its printout.
void playGraph(Album &album, frm_OMKMDIMain &main, Globals &globals);
/// The help on its first page, on the page of a window, and with what a search found.
void playHelp(Album &album);
void playOptions(Album &album, frm_OMKMDIMain &main);
void playAbout(Album &album, frm_OMKMDIMain &main);
void playTip(Album &album, frm_OMKMDIMain &main);

// The process-wide values, in one object that main() owns and every window is handed. They include the public members
// of windows that outlive their controls. Each value has one owner, which alone writes it; the owner is named beside
// it.
#pragma once

#include <memory>

#include <QString>

#include "logic/advisers/DiagnosisLog.h"
#include "logic/common/Measurements.h"
#include "store/Database.h"
#include "text/Dates.h"

/// Public members of frm_OMKOptions, filled by ReadOptions.
struct OptionsMembers
{
    QString GraphChecks = GraphChecksAtFirst(); ///< one "0" or "1" a measurement, in listOrder
    qint16 GraphStyle = 1;                      ///< chart type code
    qint16 GraphSkipZeroes = 0;
    qint16 GraphPrintColor = 0;
    qint16 ActiveTab = 0;
    QString DefaultWaterType; ///< "SALT" or "FRESH"
    ::DateOrder DateOrder = ::DateOrder::MMDDYY;
    QString DateDelimiter = QStringLiteral("/"); ///< "/", "-" or "."
    QString DatePicture = QStringLiteral("MM/DD/YY");
    bool UseFileFresh = false; ///< the text file instead of the database list
    bool UseFileSalt = false;
};

/// Public members of frm_Caltool.
struct CalendarMembers
{
    QString SelectedDate;      ///< month-first text, "mm/dd/yyyy" when it comes out
    bool PickCancelled = true; ///< until a day has been clicked
};

/// Public members of frm_LivesMove.
struct LivesMoveMembers
{
    bool MoveCancelled = true; ///< nothing has been moved
};

struct Globals
{
    // frm_OMKMDIMain
    QString gDatabaseName;
    QString gCurrentDir;
    std::unique_ptr<Database> gDatabase;
    QString gDbVersion; ///< four characters, blank-padded
    QString gNoTanks;   ///< "Y" or "N"
    bool gSplashMode = false;
    qint16 gGraphPageSize = 0;

    // frm_OMKtod; the main window reads gShowTips from the settings at the start.
    bool gShowTips = false;
    int gTipNumber = 0;

    // ReadOptions and StoreOptions
    OptionsMembers options;
    QString gDefaultWaterType; ///< "SALT" or "FRESH"
    QString gUserFieldName1;
    QString gUserFieldName2;
    UserFieldNames userFieldNames() const { return {gUserFieldName1, gUserFieldName2}; }

    // The tank in hand, written by the window that dealt with a tank last: logbook, graph or tank list. Any of them may
    // write it while a box or a dialog is open, so a command that shows one works on a copy of its own.
    QString gTankName; ///< `tankname` and `tankid` of that tank, or "All Tanks" for both
    QString gTankId;

    // frm_Waterlog, for the livestock window
    QString gTankWaterType; ///< "1" freshwater, "2" saltwater fish only, "3" reef, "4" brackish, "5" pond

    QString gMessage; ///< whoever shows a box builds its text here; the last one built stays

    CalendarMembers calendar;   ///< frm_Caltool
    LivesMoveMembers livesMove; ///< frm_LivesMove
    DiagnosisLog diagnosisLog;  ///< frm_DiagnosisQA and frm_DiagDiagnosis

    int splashMilliseconds = 2000; ///< how long the splash screen stays; tests set it to 0
};

// The values shared by the whole process, in one object that main() owns and every window is handed. They include
// public members of windows, which must outlive the window. Each value has one owner, named beside it, and only the
// owner writes it.
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
    QString GraphChecks = GraphChecksAtFirst(); ///< "0" or "1" for each measurement, in listOrder
    qint16 GraphStyle = 1;                      ///< chart type code
    qint16 GraphSkipZeroes = 0;
    qint16 GraphPrintColor = 0;
    qint16 ActiveTab = 0;
    QString DefaultWaterType; ///< "SALT" or "FRESH"
    ::DateOrder DateOrder = ::DateOrder::MMDDYY;
    QString DateDelimiter = QStringLiteral("/"); ///< "/", "-" or "."
    QString DatePicture = QStringLiteral("MM/DD/YY");
    bool UseFileFresh = false; ///< the name file instead of the list in the database
    bool UseFileSalt = false;
};

/// Public members of frm_Caltool.
struct CalendarMembers
{
    QString SelectedDate;      ///< month-first text; "mm/dd/yyyy" after the calendar was shown
    bool PickCancelled = true; ///< until a day is clicked
};

/// Public members of frm_LivesMove.
struct LivesMoveMembers
{
    bool MoveCancelled = true; ///< until the animal is moved
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

    // The current tank, or tank "in hand", written by the window that last worked with a tank: logbook, graph or tank
    // list. Any of them can write it while a message box or dialog is open, so a command that shows one works on its
    // own copy.
    QString gTankName; ///< `tankname` and `tankid` of that tank, or "All Tanks" for both
    QString gTankId;

    // Written by frm_Waterlog for the livestock window
    QString gTankWaterType; ///< "1" freshwater, "2" saltwater fish only, "3" reef, "4" brackish, "5" pond

    QString gMessage; ///< a window builds the text of a message here, and the last one stays

    CalendarMembers calendar;   ///< frm_Caltool
    LivesMoveMembers livesMove; ///< frm_LivesMove
    DiagnosisLog diagnosisLog;  ///< frm_DiagnosisQA and frm_DiagDiagnosis

    int splashMilliseconds = 2000; ///< how long the splash screen stays; tests set it to 0
};

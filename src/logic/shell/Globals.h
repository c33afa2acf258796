// The process-wide values, in one object with one owner (main). Each window is handed it. Public members of windows
// that outlive their controls stand here too, as small structs: they read as they were left when the window is no
// longer there.
#pragma once

#include <memory>

#include <QString>

#include "logic/advisers/DiagnosisLog.h"
#include "logic/common/Measurements.h"
#include "store/Database.h"

/// Public members of frm_OMKOptions, filled by ReadOptions.
struct OptionsMembers
{
    QString GraphChecks = GraphChecksAtFirst(); ///< one "0" or "1" a measurement, in listOrder
    qint16 GraphStyle = 1;                      ///< chart type code
    qint16 GraphSkipZeroes = 0;
    qint16 GraphPrintColor = 0;
    qint16 ActiveTab = 0;
    QString DefaultWaterType;                     ///< "SALT" or "FRESH"
    QString DateOrder = QStringLiteral("MMDDYY"); ///< "MMDDYY", "DDMMYY" or "YYMMDD"
    QString DateDelimiter = QStringLiteral("/");  ///< "/", "-" or "."
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
    QString gDatabaseName;
    QString gCurrentDir;
    std::unique_ptr<Database> gDatabase;

    QString gMessage; ///< the message being built; the last one built stays
    // The tank in hand: the one that a window has dealt with last. Any window may change it while a box or a dialog is
    // open, so a command that shows one works on a copy of its own.
    QString gTankName; ///< `tankname` and `tankid` of the tank in hand, or "All Tanks" for both
    QString gTankId;
    QString gTankWaterType;    ///< "1" freshwater, "2" saltwater fish only, "3" reef, "4" brackish, "5" pond
    QString gDefaultWaterType; ///< "SALT" or "FRESH"
    QString gUserFieldName1;
    QString gUserFieldName2;
    UserFieldNames userFieldNames() const { return {gUserFieldName1, gUserFieldName2}; }
    QString gDbVersion; ///< four characters, blank-padded
    QString gNoTanks;   ///< "Y" or "N"
    bool gSplashMode = false;
    bool gShowTips = false;
    int gTipNumber = 0;
    qint16 gGraphPageSize = 0;

    OptionsMembers options;
    CalendarMembers calendar;
    LivesMoveMembers livesMove;
    DiagnosisLog diagnosisLog;

    /// How long the splash screen stays; tests set it to 0.
    int splashMilliseconds = 2000;
};

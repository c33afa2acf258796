#include "store/schema.h"

namespace {

// A date is declared DATE TEXT and a time TIME TEXT: the first word tells Rows the type, the second makes SQLite store
// a text. Every column accepts Null, because rows of old files contain it.
constexpr schema::Table allTables[] = {
    {"TANKLST",
     "CREATE TABLE TANKLST (tankname VARCHAR(50), Tankdesc VARCHAR(50), tanksize REAL, tanknotes TEXT, tankid "
     "VARCHAR(50), "
     "TankWaterType VARCHAR(1))",
     "CREATE UNIQUE INDEX TANKLST_tankname ON TANKLST (tankname);"
     "CREATE UNIQUE INDEX TANKLST_tankid ON TANKLST (tankid);"},
    {"WATERLOG",
     "CREATE TABLE WATERLOG (tankname VARCHAR(50), logdate DATE TEXT, logtime TIME TEXT, Ammonia REAL, nitrite REAL, "
     "nitrate REAL, "
     "ph REAL, orp REAL, temp REAL, oxygen REAL, dkh REAL, calcium REAL, copper REAL, sg REAL, custom1 REAL, custom2 "
     "REAL, "
     "Comment TEXT)",
     "CREATE UNIQUE INDEX WATERLOG_entry ON WATERLOG (tankname, logdate, logtime);"},
    {"MAINTLOG",
     "CREATE TABLE MAINTLOG (mainttankname VARCHAR(50), maintlogdate DATE TEXT, maintlogtime TIME TEXT, maintlogtask "
     "VARCHAR(50), "
     "maintlogdesc VARCHAR(50), maintlogunit VARCHAR(10), maintlogqty REAL, maintlognote TEXT)",
     "CREATE UNIQUE INDEX MAINTLOG_entry ON MAINTLOG (mainttankname, maintlogdate, maintlogtime);"},
    {"LIVESTOCK",
     "CREATE TABLE LIVESTOCK (tankname VARCHAR(50), dateadded DATE TEXT, timeadded TIME TEXT, animalname VARCHAR(50), "
     "quantity REAL, "
     "Comment TEXT, Status VARCHAR(30), price_paid REAL, price_sold REAL, datelost DATE TEXT, where_purch VARCHAR(50))",
     "CREATE UNIQUE INDEX LIVESTOCK_entry ON LIVESTOCK (tankname, dateadded, timeadded, animalname);"},
    {"MAINTSCHED",
     "CREATE TABLE MAINTSCHED (SchedTask VARCHAR(255), SchedStartDate DATE TEXT, SchedInterval SMALLINT, schedyears "
     "SMALLINT, "
     "schedcomment VARCHAR(255), schedtankname VARCHAR(50), SchedRtype SMALLINT, SchedRSubtype SMALLINT, "
     "SchedDetailText VARCHAR(255), SchedEnglishDesc VARCHAR(255), SchedEndDate DATE TEXT)",
     "CREATE UNIQUE INDEX MAINTSCHED_SchedTask ON MAINTSCHED (SchedTask);"},
    {"CONFIG",
     "CREATE TABLE CONFIG (default_salt BOOLEAN, default_fresh BOOLEAN, user_fieldname1 VARCHAR(50), user_fieldname2 "
     "VARCHAR(50), "
     "db_version VARCHAR(4))",
     ""},
    {"ANIMALLIST", "CREATE TABLE ANIMALLIST (animalname VARCHAR(50), AnimalType VARCHAR(1))", ""},
};

} // namespace

std::span<const schema::Table> schema::tables() { return allTables; }

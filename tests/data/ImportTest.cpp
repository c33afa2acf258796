// Tests of the import: what a header may name, what each value may be, what is told of a fault, and what happens to
// rows that are there already.
#include "DataFixture.h"

namespace {

struct ImportTest : DataTest
{
    ImportTest() { addTank("Reef"); }
    QString water() { return rowsOf(*g.gDatabase, "WATERLOG").join('\n'); }
};

TEST_F(ImportTest, ColumnsThatAreMissingStartAsInTheEntryWindows)
{
    const struct
    {
        QString setUp;
        QByteArray content;
        QString table, expected;
    } rows[] = {
        {"UPDATE CONFIG SET default_salt = 0", "tank,comment,nitrite\nReef,,0.5\n", "WATERLOG",
         "'Reef' '2026-03-14' '09:26:53' 0.0 0.5 0.0 7.8 0.0 78.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 NULL"},
        {"UPDATE CONFIG SET default_salt = 1", "tank,comment,nitrite\nReef,\"\",0.5\n", "WATERLOG",
         "'Reef' '2026-03-14' '09:26:53' 0.0 0.5 0.0 8.4 0.0 78.0 0.0 0.0 0.0 0.0 1.023 0.0 0.0 ''"},
        {"DELETE FROM TANKLST", "Tank,DESCRIPTION\nS,x\n", "TANKLST", "'S' 'x' 55.0 '' '2'"},
        {"UPDATE CONFIG SET default_salt = 0", "animal,tank\nGoby,S\n", "LIVESTOCK",
         "'S' '2026-03-14' '09:26:53' 'Goby' 1.0 ' ' '' NULL NULL NULL ''"},
        {"DELETE FROM TANKLST", "Tank,DESCRIPTION\nF,x\n", "TANKLST", "'F' 'x' 55.0 '' '1'"},
        {"DELETE FROM LIVESTOCK", "task,tank\nClean,F\n", "MAINTLOG",
         "'F' '2026-03-14' '09:26:53' 'Clean' ' ' '' 0.0 ' '"},
        {"DELETE FROM MAINTLOG", "reminder\nFeed\n", "MAINTSCHED",
         "'Feed' '2026-03-14' 1 NULL NULL NULL 0 0 '' 'Every 1 days.' '2028-03-14'"},
    };
    for (const auto &row : rows) {
        run(row.setUp);
        ReadOptions(g);
        EXPECT_EQ(import(row.content), "1 0 0 0");
        EXPECT_EQ(rowsOf(*g.gDatabase, row.table).join('\n'), row.expected);
        run("DELETE FROM WATERLOG");
    }
}

TEST_F(ImportTest, SpreadsheetsOfOtherCountriesAreRead)
{
    const struct
    {
        const char *content;
        ImportOptions options;
        const char *expected;
    } rows[] = {
        {"Tank,Date,Time,\"pH, total\",a=b\nReef,2026-01-02,13:05,8.1,5\n",
         {.map = *ReadMap("pH, total=ph,a=b = nitrate")},
         "2026-01-02 13:05:00 8.1 5.0"},
        {"tank;date;time;ph;nitrate;colour\nReef;2.1.2026;01:05:00 pm;8,1;1,5;blue\n",
         {.map = *ReadMap("colour="), .dateOrder = DateOrder::DDMMYY, .delimiter = ';', .decimalComma = true},
         "2026-01-02 13:05:00 8.1 1.5"},
        {"tank,date,time,ph,nitrate\nReef,1/2/26,1:5:9,1e1,-.5\n",
         {.dateOrder = DateOrder::MMDDYY},
         "2026-01-02 01:05:09 10.0 -0.5"},
        {"tank\tdate\ttime\tph\tnitrate\nReef\t26-01-02\t13:05:00\t+8\t 5 \n",
         {.dateOrder = DateOrder::YYMMDD, .delimiter = '\t'},
         "2026-01-02 13:05:00 8.0 5.0"},
        {"date,time,ph,nitrate\n2026-01-02,13:05:00,8,5\n", {.tank = "Reef"}, "2026-01-02 13:05:00 8.0 5.0"},
    };
    for (const auto &row : rows) {
        import(row.content, row.options);
        EXPECT_EQ(faults.join('\n'), "") << row.content;
        EXPECT_EQ(asked("SELECT logdate || ' ' || logtime || ' ' || ph || ' ' || nitrate FROM WATERLOG"), row.expected);
        run("DELETE FROM WATERLOG");
    }
}

TEST_F(ImportTest, EachFaultIsToldWithItsPlaceAndNothingIsStored)
{
    const struct
    {
        const char *content;
        const char *faults; ///< one a line; only their beginnings
        ImportOptions options = {};
    } rows[] = {
        {"", "line 1: The file is empty."},
        {"tank;date;ph\n", "line 1: The header has no column that is known."},
        {"tank,date,time,ph,foo\n", "line 1, foo: water.csv has no such column. It has tank, date, time, ammonia"},
        {"tank,ph,animal\n", "line 1, animal: No table has this column beside the others."},
        {"tank,ph,NO3,nitrate\n",
         "line 1, nitrate: The header has this column twice.",
         {.map = *ReadMap("no3=nitrate")}},
        {"date,ph\n", "line 1, tank: water.csv must have this column."},
        {"tank\n", "line 1: The columns could be those of tanks.csv and of water.csv."},
        {"tank,ph\n", "line 1, NO3: The map names this column, but the header", {.map = *ReadMap("NO3=nitrate")}},
        {"tank,p\xffh\n", "line 1: The letters are not encoded in UTF-8."},
        {"ph\n8\n", "line 1: There is no tank named \"Pond\".", {.tank = "Pond"}},
        {"tank,ph\nReef,8\n", "line 1, tank: The file names the tanks itself,", {.tank = "Reef"}},
        // The rules for values are those of the entry windows; here each column must only have the one that is its own.
        {"tank,ph\nReef\nReef,8,9\n\"Reef\",8\n",
         "line 2: The row has 1 values, but the header has 2 columns.\nline 3: The row has 3 values"},
        {"tank,date,ph\nPond,2026-13-01,x\n", "line 2, tank \"Pond\": There is no tank of this name.\nline 2, date "
                                              "\"2026-13-01\": This is not a date such as\n"
                                              "line 2, ph \"x\": Ph entries must be a number."},
        {"tank,date,time,ph\n,,,\n", "line 2, tank: The row must name a tank.\nline 2, date: The row must have a "
                                     "date.\nline 2, time: The row must"},
        {"tank,sg,custom1\nReef,10,1000\n", "line 2, sg \"10\": Specific Gravity entries must be less than 10.\n"
                                            "line 2, custom1 \"1000\": Salinity entries must be less than 1000."},
        {"tank,nitrate\nReef,\"0,5\"\n", "line 2, nitrate \"0,5\": The decimal sign is \".\" here"},
        {"tank,date\nReef,11/24/2026\n",
         "line 2, date \"11/24/2026\": This is not a date in the order",
         {.dateOrder = DateOrder::DDMMYY}},
        {"tank,date\nReef,1929-12-31\nReef,2030-01-01\nReef,0026-01-01\nReef,1930-01-01\nReef,2029-12-31\n",
         "line 2, date \"1929-12-31\": The year must be between 1930 and 2029.\nline 3, date\nline 4, date"},
        {"tank,time\nReef,25:00:00\nReef,00:30:00 AM\nReef,12\n",
         "line 2, time\nline 3, time\nline 4, time \"12\": This is not a time such as"},
        {"tank,nitrite,comment\nReef,0,\"a\xff\"\n", "line 2, comment \"a\xef\xbf\xbd\": The letters are not encoded"},
        {"tank,ph\nPond,8\n\n\"Reef\n,8\n",
         "line 2, tank\nline 4: A value begins with a quotation mark and the file ends"},
        {"tank,animal,quantity,price_paid,date_lost\nReef,,,x,x\nReef,\"D\nE\",32001,,\n",
         "line 2, animal: You must enter an animal name or pick\nline 2, quantity: Quantity entries must be a number.\n"
         "line 2, price_paid \"x\": Price Paid must be\nline 2, date_lost \"x\": This is not a date\n"
         "line 3, animal \"D E\": This text must be on one line.\nline 3, quantity \"32001\": Your quantity must be"},
        {"tank,task,quantity,unit\nReef,,10000,12345678901\n",
         "line 2, task: You must enter a task\nline 2, quantity \"10000\": Your quantity must be less than 10,000.\n"
         "line 2, unit \"12345678901\": Your \"unit of measure\" entry"},
        {"tank,size,water_type\n,1,1\n\"a\"\"b\",10000,6\n",
         "line 2, tank: You must enter a name\nline 3, tank \"a\"b\": The tank name cannot contain a quote\n"
         "line 3, size \"10000\": The tank size must be less\nline 3, water_type \"6\": This must be one of "
         "freshwater, "},
        {"reminder,start_date,end_date,pattern,variant,interval,detail\n"
         ",2026-01-01,2027-01-01,daily,0,1,\n"
         "a,2026-01-01,2026-01-01,daily,0,1,\n"
         "d,2026-01-01,2027-01-01,weekly,0,1,0101000\n"
         "g,2026-01-01,2027-01-01,yearly,0,31,January\n"
         "h,2026-01-01,2027-01-01,yearly,1,1,First Monday\n"
         "i,2026-01-01,2027-01-01,once,0,1,24.11.2026\n"
         "j,2026-01-01,2027-01-01,hourly,2,40000,\n",
         "line 2, reminder: The row must have a description\nline 3, end_date \"2026-01-01\": Your End Date must be "
         "greater\n"
         "line 4, detail \"0101000\": This must be like \"Monday, Thursday\"\n"
         "line 5, interval \"31\": Please enter a valid combination\n"
         "line 6, detail \"First Monday\": This must be like \"Last Friday of November\"\n"
         "line 7, detail \"24.11.2026\": This must be like \"2026-11-24\"\n"
         "line 8, pattern \"hourly\": This must be one of daily\nline 8, interval \"40000\": This is not a"},
    };
    run("UPDATE CONFIG SET user_fieldname1 = 'Salinity'");
    ReadOptions(g);
    for (const auto &row : rows) {
        const QStringList expected = QString::fromUtf8(row.faults).split('\n');
        EXPECT_EQ(import(row.content, row.options).section(' ', 3), QString::number(expected.size()));
        ASSERT_EQ(faults.size(), expected.size()) << row.content << '\n' << faults.join('\n').toStdString();
        for (qsizetype i = 0; i < expected.size(); ++i)
            EXPECT_EQ(faults[i].left(expected[i].size()), expected[i]);
    }
    for (const QString &table : dataTables)
        EXPECT_EQ(asked("SELECT count(*) FROM " + table), table == "TANKLST" ? "1" : "0");
}

TEST_F(ImportTest, ARowThatIsThereIsPassedOverAndOneThatDiffersIsAFault)
{
    const QByteArray head = "tank,date,time,nitrate,comment\n", first = "Reef,2026-01-02,10:00:00,5,\"a\"\n";
    EXPECT_EQ(import(head + first), "1 0 0 0");
    run("UPDATE WATERLOG SET copper = 0.25");
    EXPECT_EQ(import(head + first + "Reef,2026-01-02,10:00:01,5,\"a\"\n"), "1 0 1 0");

    const QByteArray other = "Reef,2026-01-02,10:00:00,6,\"b\"\n", third = "Reef,2026-01-03,10:00:00,1,\"\"\n";
    const QString before = water();
    EXPECT_EQ(import(head + third + other), "1 0 0 1");
    EXPECT_EQ(faults.join('\n'),
              "line 3, nitrate \"6\": This water test is there already, with \"5\" here. (--replace puts "
              "the values of the file in their place.)");
    EXPECT_EQ(water(), before) << "all rows or none";
    EXPECT_EQ(import(head + third + other, {.replaces = true, .isDryRun = true}), "1 1 0 0");
    EXPECT_EQ(water(), before) << "a dry run";
    EXPECT_EQ(import(head + third + other, {.replaces = true}), "1 1 0 0");
    EXPECT_EQ(asked("SELECT group_concat(nitrate || Comment || copper) FROM WATERLOG ORDER BY logdate"),
              "6.0b0.25,5.0a0.0,1.00.0")
        << "columns that the file lacks stay";
}

TEST_F(ImportTest, AFileThatASpreadsheetSavedAgainIsTheSame)
{
    const QByteArray head = "tank,date,time,comment\n", key = "Reef,2026-01-02,10:00:0";
    import(head + key + "0,\"\"\n" + key + "1,\"one\r\ntwo\"\n" + key + "2,\n");
    EXPECT_EQ(import(head + key + "0,\n" + key + "1,\"one\ntwo\"\n" + key + "2,\"\"\n"), "0 0 3 0");
    EXPECT_EQ(import(head + key + "1,\"one two\"\n"), "0 0 0 1");
}

TEST_F(ImportTest, LinesOfOneFileMustNotContradictEachOther)
{
    const QByteArray head = "tank,animal,date,time,quantity\n";
    const QByteArray goby = "Reef,Goby,2026-01-02,10:00:00,", tang = "Reef,Tang,2026-01-02,10:00:00,";
    EXPECT_EQ(import(head + goby + "1\n" + goby + "1\n"), "1 0 1 0") << "twice the same";
    for (const auto &[line, counts] : {std::pair{goby, "0 1 0 1"}, {tang, "1 0 0 1"}}) {
        EXPECT_EQ(import(head + line + "2\n" + line + "3\n", {.replaces = true}), counts);
        EXPECT_EQ(faults.join('\n'), "line 3, quantity \"3\": An earlier line of the file is the same livestock entry "
                                     "with another value here.");
    }
    EXPECT_EQ(asked("SELECT count(*) || quantity FROM LIVESTOCK"), "11.0");
}

TEST_F(ImportTest, TanksOfOneFileGetIdentitiesOfTheirOwn)
{
    run("INSERT INTO TANKLST (tankname, tankid) VALUES ('Other', '03/14/2026 09:26:54')");
    EXPECT_EQ(import("tank,size\nA,1\nB,2\nReef,55\nC,3\n"), "3 0 1 0");
    EXPECT_EQ(asked("SELECT group_concat(tankname || ' ' || tankid) FROM TANKLST WHERE tankname < 'D'"),
              "A 03/14/2026 09:26:53,B 03/14/2026 09:26:55,C 03/14/2026 09:26:56");
    EXPECT_EQ(import("tank,size\nC,4\n", {.replaces = true}), "0 1 0 0");
    EXPECT_EQ(asked("SELECT tankid || tanksize FROM TANKLST WHERE tankname = 'C'"), "03/14/2026 09:26:564.0");
}

TEST_F(ImportTest, RemindersAreReadFromTheWordsOfTheirPatterns)
{
    const std::pair<const char *, const char *> cases[] = {
        {"weekly,0,2,\"mon, Thursday\"", "0100100 2 Every 2 week(s) on Mon, Thu."},
        {"monthly,1,2,fourth sun", "30 2 The Forth Sunday of every 2 month(s)."},
        {"yearly,1,1,Last Friday of November", "4510 1 The Last Friday of every November."},
        {"once,0,1,2026-11-24", "11/24/26 1 Only once on 11/24/26."},
        {"3,0,5,MAR", "2 5 Every year on March 5."},
    };
    for (const auto &[rule, expected] : cases) {
        EXPECT_EQ(import(QByteArray("reminder,pattern,variant,interval,detail\nFeed,") + rule + "\n"), "1 0 0 0")
            << rule << faults.join('\n').toStdString();
        EXPECT_EQ(asked("SELECT SchedDetailText || ' ' || SchedInterval || ' ' || SchedEnglishDesc FROM MAINTSCHED"),
                  expected);
        run("DELETE FROM MAINTSCHED");
    }
}

} // namespace

// Everything that the entry windows can store, and what rows of older files lack, goes out and comes back the same. By
// default with 1,000 rows; omk_tests_data --rows=20000 is the long run.
#include <cfloat>
#include <clocale>
#include <random>

#include <QLocale>

#include "DataFixture.h"
#include "logic/reminders/RuleFields.h"

namespace {

int rowsOfThisRun()
{
    for (const std::string &argument : testing::internal::GetArgvs())
        if (argument.starts_with("--rows="))
            return std::stoi(argument.substr(7));
    return 1000;
}

constexpr double numbers[] = {
    0,      0.1,      7.8,     1.0 / 3, 0.1 + 0.2,  999,   9.999, -0.5, 1e-7, 123456789.123456789,
    5e-324, -DBL_MAX, DBL_MIN, 100,     1e15 + 0.5, 2.5e-5};
const QStringList texts = {
    " ",
    "",
    "plain",
    "a \"quoted\" word",
    "\"",
    "one\ntwo\r\nthree\rfour",
    "comma, semicolon; tab\there",
    " blanks around  ",
    "007",
    "1.50",
    "=1+1",
    "-",
    "NULL",
    "2026-11-24",
    "Ünïcödé ß",
    "Кириллица",
    "Ελληνικά",
    "עברית",
    "العربية",
    "हिन्दी",
    "ไทย",
    "한국어",
    "日本語と漢字",
    "\U0001F420 \U0001D11E",
    "e\u0301\u200d\u00a0",
    "\u2028\u2029\ufffd",
    QString(3000, u'n') + "\n" + QString(3000, u'\u00fc'),
};

/// Fills a database with random rows; the same seed gives the same rows.
class Filler
{
public:
    explicit Filler(Database &database) : m_database(database) {}

    void fill(int rows)
    {
        Database::Transaction whole(m_database);
        for (int tank = 0; tank < 5; ++tank)
            addTank(tank);
        for (int row = 0; row < rows; ++row)
            row % 3 == 0 ? addWater(row) : row % 3 == 1 ? addAnimal(row) : addWork(row);
        addReminders();
        whole.commit();
    }

private:
    int pick(std::size_t n) { return int(m_random() % n); }
    Value number(double most)
    {
        const double value = numbers[pick(std::size(numbers))];
        return pick(10) == 0 ? Value() : Value(std::min(value, most));
    }
    Value some(double most)
    {
        const Value value = number(most);
        return value.isNull() ? Value(most) : value;
    }
    Value notes() { return pick(10) == 0 ? Value() : Value(texts[pick(std::size_t(texts.size()))]); }
    Value line(int longest)
    {
        QString text = texts[pick(std::size_t(texts.size()))];
        return pick(10) == 0 ? Value() : Value(text.replace('\n', '_').replace('\r', '_').left(longest));
    }
    QString name(int longest, int number)
    {
        QString text = line(longest - 6).text();
        return QString("%1 ").arg(number, 5) + text;
    }
    Value day() { return Value(QDate(1930, 1, 1).addDays(pick(36524))); }
    Value time(int row) { return Value(QTime::fromMSecsSinceStartOfDay(row % 86400 * 1000)); }
    Value tank() { return Value(m_tanks[pick(5)]); }

    void insert(const QString &table, const QString &columns, const Parameters &values)
    {
        QStringList marks;
        for (std::size_t i = 0; i < values.size(); ++i)
            marks << "?";
        m_database.Execute(QString("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns, marks.join(',')), values);
    }
    void addTank(int number)
    {
        m_tanks << QString("tank %1 of before").arg(number);
        const Value type = number == 4 ? Value() : Value(QString::number(number + 1));
        insert("TANKLST", "tankname, Tankdesc, tanksize, tanknotes, tankid, TankWaterType",
               {name(50, number).replace('"', '\''), line(50), some(9999), notes(), m_tanks.back(), type});
    }
    void addWater(int row)
    {
        QStringList columns{"tankname", "logdate", "logtime", "Comment"};
        Parameters values{tank(), day(), time(row), notes()};
        for (const MeasurementRow &m : measurements) {
            columns << m.column;
            values.push_back(number(m.entry.limit));
        }
        insert("WATERLOG", columns.join(','), values);
    }
    void addAnimal(int row)
    {
        insert("LIVESTOCK",
               "tankname, dateadded, timeadded, animalname, quantity, Comment, Status, price_paid, price_sold, "
               "datelost, where_purch",
               {tank(), day(), time(row), name(50, row), some(32000), notes(), line(30),
                pick(2) ? Value() : Value(999999999999.99), pick(2) ? Value() : Value(-0.01), pick(2) ? Value() : day(),
                line(50)});
    }
    void addWork(int row)
    {
        insert("MAINTLOG",
               "mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogdesc, maintlogunit, maintlogqty, "
               "maintlognote",
               {tank(), day(), time(row), name(50, row), line(50), line(10), number(9999), notes()});
    }
    /// Each pattern in both variants, as the editor stores it, some after another pattern whose detail stays, and one
    /// of an older version.
    void addReminders()
    {
        const DateConventions dates{DateOrder::MMDDYY, "MM/DD/YY"};
        int count = 0;
        for (int type = 0; type < 5; ++type)
            for (int variant = 0; variant < 2; ++variant)
                for (int before = 0; before < 2; ++before) {
                    EditorFields f;
                    f.txt_TaskDescription = name(255, ++count);
                    f.txt_StartDate = PutDate(QDate(1950 + 40 * before, 2, 28), dates);
                    f.txt_endDate = PutDate(QDate(2026 + 90 * before, 12, 31), dates);
                    f.pattern = Pattern(type);
                    f.opt_DailyEveryWeekday = f.Opt_MonthlyXWeekdayofEveryMonth = f.opt_YearlyThe = variant;
                    f.txt_DailyDays = f.txt_WeeklyWeeks = f.txt_MonthlyNumofMonths = f.txt_MonthlyNumofMonths2 =
                        "32767";
                    f.chk_WeeklyDay = {false, true, bool(before), false, false, false, bool(variant)};
                    f.txt_MonthlyDay = before ? " 7" : "28";
                    f.cbo_MonthlyXth = f.cbo_YearlyXth = before ? 3 : 4;
                    f.cbo_MonthlyWeekday = f.cbo_YearlyWeekday = before ? 0 : 6;
                    f.cbo_YearlyMonth = f.cbo_YearlyMonth2 = before ? 0 : 11;
                    f.txt_OnceDate = variant ? PutDate(QDate(2050, 1, 2), dates) : DateBox{"11/24/26", {}};
                    f.txt_EnglishDesc = EnglishSentence(f);
                    ASSERT_FALSE(EditFault(f, dates));
                    RecurrenceRule rule;
                    if (before)
                        rule.RecurrenceDetail = "0101000";
                    StoreRecurrence(f, dates, rule);
                    Recordset row = m_database.OpenForAppend("MAINTSCHED");
                    row.AddNew();
                    WriteRule(row, rule);
                    row.Update();
                }
        insert("MAINTSCHED", "SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype",
               {QString("of before"), QDate(1999, 1, 1), QDate(2001, 1, 1), 14, 0});
    }

    Database &m_database;
    std::minstd_rand m_random{20261124};
    QStringList m_tanks;
};

struct RoundTripTest : DataTest
{
    static void expectSame(const QStringList &out, const QStringList &back)
    {
        ASSERT_EQ(out.size(), back.size());
        for (qsizetype row = 0; row < out.size(); ++row)
            ASSERT_EQ(out[row].toStdString(), back[row].toStdString());
    }
    /// Exports the database, imports the files into a new one and compares all rows; then imports them once more.
    void goOutAndComeBack(const QString &there)
    {
        const ExportResult out = Export(g, {.folder = path(there)});
        EXPECT_EQ(out.refusal, "");
        EXPECT_EQ(out.lost, 0);
        Globals back;
        open(back, there + ".MDB");
        for (int again = 0; again < 2; ++again)
            for (const ExportedFile &file : out.files) {
                const ImportResult in = Import(back, file.path, {}, [&](const ImportFault &fault) {
                    ADD_FAILURE() << FaultText(fault).toStdString();
                });
                EXPECT_EQ(counts(in), again ? QString("0 0 %1 0").arg(file.rows) : QString("%1 0 0 0").arg(file.rows))
                    << file.path.toStdString();
            }
        for (const QString &table : dataTables)
            expectSame(rowsOf(*g.gDatabase, table), rowsOf(*back.gDatabase, table));
    }
};

TEST_F(RoundTripTest, AllRowsComeBackTheSame)
{
    Filler(*g.gDatabase).fill(rowsOfThisRun());
    goOutAndComeBack("out");
    g.options.DateOrder = DateOrder::DDMMYY; // nothing in a file depends on the options of either side
    g.options.DatePicture = "DD.MM.YY";
    goOutAndComeBack("german");
}

/// A locale with a comma before the decimals, for the C library and for Qt.
struct CommaLocale
{
    CommaLocale() : before(std::setlocale(LC_ALL, nullptr))
    {
        for (const char *name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8"})
            if (std::setlocale(LC_ALL, name))
                break;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }
    ~CommaLocale()
    {
        QLocale::setDefault(QLocale::c());
        std::setlocale(LC_ALL, before.c_str());
    }
    std::string before;
};

TEST_F(RoundTripTest, TheLocaleDoesNotMatter)
{
    Filler(*g.gDatabase).fill(300);
    ASSERT_EQ(Export(g, {.folder = path("english")}).refusal, "");
    const CommaLocale comma;
    ASSERT_EQ(QLocale().toString(0.5), "0,5");
    goOutAndComeBack("comma");
    EXPECT_EQ(contentOf(path("english")), contentOf(path("comma")));
}

} // namespace

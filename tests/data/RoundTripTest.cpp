// Everything that the entry windows can store, and what rows of older files lack, goes out and comes back the same. By
// default with 1,000 rows; omk_tests_data --rows=20000 is the long run.
#include <cfloat>
#include <clocale>
#include <random>

#include <QLocale>

#include "data/Tables.h"
#include "DataFixture.h"

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
const QString texts[] = {"",
                         " blanks around  ",
                         "a \"quoted\" word",
                         "one\ntwo\r\nthree\rfour",
                         "comma, semicolon; tab\there",
                         "1.50",
                         "2026-11-24",
                         "Ünïcödé Кириллица עברית हिन्दी 日本語",
                         "\U0001F420 e\u0301\u200d\u00a0\u2028\u2029\ufffd",
                         QString(3000, u'n') + "\n" + QString(3000, u'\u00fc')};

struct Rule
{
    int type, subtype, interval;
    const char *detail;
};
constexpr Rule rules[] = {
    {0, 0, 32767, ""}, {0, 1, 1, ""},         {1, 0, 2, "0101001"},    {2, 0, 1, " 7"},
    {2, 0, 1, "28"},   {2, 1, 3, "36"},       {2, 1, 1, "40"},         {3, 0, 30, "0"},
    {3, 1, 1, "4611"}, {4, 0, 1, "11/24/26"}, {4, 0, 1, "01/02/2050"}, {0, 0, 14, "0101000"}}; // a detail that stayed

/// Fills a database with random values that the entry windows would take; the same seed gives the same rows.
class Filler
{
public:
    explicit Filler(const Globals &g) : m_database(*g.gDatabase), m_tables(DataTables(g, Now())) {}

    void fill(int rows)
    {
        Database::Transaction whole(m_database);
        for (const DataTable &table : m_tables)
            for (int row = 0; !table.isReminders && row < (table.isTanks() ? 5 : rows / 3); ++row)
                add(table, row);
        for (const Rule &rule : rules)
            m_database.Execute(
                "INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, "
                "SchedRtype, SchedRSubtype, SchedDetailText, SchedEnglishDesc) VALUES (?, ?, ?, ?, ?, ?, "
                "?, 'Now and then.')",
                {text(true).left(255), QDate(1950, 2, 28), QDate(2116, 12, 31), rule.interval, rule.type, rule.subtype,
                 QString(rule.detail)});
        m_database.Execute(
            "INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype) "
            "VALUES ('of an older version', '1999-01-01', '2001-01-01', 14, 0)");
        whole.commit();
    }

private:
    int pick(std::size_t n) { return int(m_random() % n); }
    QString text(bool isLine)
    {
        QString text = texts[pick(std::size(texts))];
        return isLine ? QString::number(++m_number) + text.replace('\n', '_').replace('\r', '_') : text;
    }
    Value valueOf(const DataColumn &column, int row)
    {
        const auto isBad = [&column](const QString &text) { return column.complaint && column.complaint(text); };
        if (column.ifEmpty.isEmpty() && pick(10) == 0)
            return {};
        switch (column.kind) {
        case CellKind::Tank: return QString("tank %1 of before").arg(pick(5));
        case CellKind::EntryDate: return QDate(1930, 1, 1).addDays(pick(36524));
        case CellKind::Time: return QTime::fromMSecsSinceStartOfDay(row * 1000);
        case CellKind::WaterType: return QString::number(row + 1);
        case CellKind::Number: {
            const double number = numbers[pick(std::size(numbers))];
            return isBad(QString::number(number, 'g', 17)) ? 1 : number;
        }
        case CellKind::Notes: return text(false);
        default: {
            QString line = text(true);
            while (isBad(line))
                line.chop(1);
            return line;
        }
        }
    }
    void add(const DataTable &table, int row)
    {
        QStringList columns, marks;
        Parameters values;
        for (const DataColumn &column : table.columns) {
            columns << column.stored;
            values.push_back(valueOf(column, row));
        }
        if (table.isTanks()) {
            columns << "tankid";
            values.push_back(QString("tank %1 of before").arg(row));
        }
        marks.fill("?", columns.size());
        m_database.Execute(
            QString("INSERT INTO %1 (%2) VALUES (%3)").arg(table.table, columns.join(','), marks.join(',')), values);
    }

    Database &m_database;
    const std::vector<DataTable> m_tables;
    std::minstd_rand m_random{20261124};
    int m_number = 0;
};

struct RoundTripTest : DataTest
{
    /// Exports the database, imports the files into a new one and compares all rows; then imports them once more.
    void goOutAndComeBack(const QString &there)
    {
        const ExportResult out = Export(g, {.folder = path(there)});
        EXPECT_EQ(out.refusal, "");
        EXPECT_EQ(out.lost, 0);
        Globals back;
        CreateDatabase(path(there + ".MDB"));
        back.gDatabase = Database::OpenDatabase(path(there + ".MDB"));
        ReadOptions(back);
        for (int again = 0; again < 2; ++again)
            for (const ExportedFile &file : out.files) {
                const ImportResult in = Import(back, file.path, {}, [&](const ImportFault &fault) {
                    ADD_FAILURE() << FaultText(fault).toStdString();
                });
                EXPECT_EQ(counts(in), again ? QString("0 0 %1 0").arg(file.rows) : QString("%1 0 0 0").arg(file.rows))
                    << file.path.toStdString();
            }
        for (const QString &table : dataTables)
            EXPECT_EQ(rowsOf(*g.gDatabase, table), rowsOf(*back.gDatabase, table));
    }
};

TEST_F(RoundTripTest, AllRowsComeBackTheSame)
{
    Filler(g).fill(rowsOfThisRun());
    goOutAndComeBack("out");
    g.options.DateOrder = DateOrder::DDMMYY; // nothing in a file depends on the options of either side
    g.options.DatePicture = "DD.MM.YY";
    goOutAndComeBack("german");
}

TEST_F(RoundTripTest, TheLocaleDoesNotMatter)
{
    Filler(g).fill(300);
    ASSERT_EQ(Export(g, {.folder = path("english")}).refusal, "");
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // where the system has it
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    goOutAndComeBack("comma");
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(contentOf(path("english")), contentOf(path("comma")));
}

} // namespace

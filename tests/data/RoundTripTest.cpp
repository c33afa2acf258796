// Everything that the entry windows can store, and what rows of older files lack, goes out and comes back the same.
#include <cfloat>
#include <clocale>
#include <random>

#include <QLocale>

#include "data/Tables.h"
#include "DataFixture.h"

namespace {

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
                         "\U0001F420 e\u0301\u200d\u00a0\u2028\u2029\ufffd"};
/// The pattern, variant, interval and detail of reminders.
const QString rules[] = {"0, 0, 32767, ''",     "0, 1, 1, ''",         "1, 0, 2, '0101001'",    "2, 0, 1, ' 7'",
                         "2, 0, 1, '28'",       "2, 1, 3, '36'",       "2, 1, 1, '40'",         "3, 0, 30, '0'",
                         "3, 1, 1, '4611'",     "4, 0, 1, '11/24/26'", "4, 0, 1, '01/02/2050'",
                         "0, 0, 14, '0101000'", // a detail that stayed
                         "0, NULL, 14, NULL"};  // of an older version

struct RoundTripTest : DataTest
{
    /// A value that the entry window would take in that column.
    Value valueOf(const DataColumn &column, int row)
    {
        const auto oneOf = [this](const auto &values) { return values[random() % std::size(values)]; };
        const auto isBad = [&column](const QString &text) { return column.complaint && column.complaint(text); };
        if (column.ifEmpty.isEmpty() && random() % 10 == 0)
            return {};
        switch (column.kind) {
        case CellKind::Tank: return QString("id of tank %1").arg(1 + row % 5);
        case CellKind::EntryDate: return QDate(1930, 1, 1).addDays(qint64(random() % 36524));
        case CellKind::Time: return QTime::fromMSecsSinceStartOfDay(row * 1000);
        case CellKind::WaterType: return QString::number(row % 5 + 1);
        case CellKind::Notes: return oneOf(texts);
        case CellKind::Number:
            if (const double number = oneOf(numbers); !isBad(QString::number(number, 'g', 17)))
                return number;
            return 1;
        default:
            QString line = QString::number(row) + oneOf(texts).replace('\n', '_').replace('\r', '_');
            while (isBad(line))
                line.chop(1);
            return line;
        }
    }
    void addRow(const DataTable &table, int row)
    {
        QStringList columns;
        Parameters values;
        for (const DataColumn &column : table.columns) {
            columns << column.stored;
            values.push_back(valueOf(column, row));
        }
        const QStringList marks(columns.size(), "?");
        run(QString("INSERT INTO %1 (%2) VALUES (%3)").arg(table.table, columns.join(','), marks.join(',')), values);
    }
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
        for (const char *expected : {"%1 0 0 0", "0 0 %1 0"})
            for (const ExportedFile &file : out.files)
                EXPECT_EQ(counts(Import(back, file.path, {}, [&](const ImportFault &f) { faults << FaultText(f); })),
                          QString(expected).arg(file.rows))
                    << file.path.toStdString() << '\n'
                    << faults.join('\n').toStdString();
        for (const QString &table : dataTables)
            EXPECT_EQ(rowsOf(*g.gDatabase, table), rowsOf(*back.gDatabase, table));
    }

    std::minstd_rand random{20261124};
};

TEST_F(RoundTripTest, AllRowsComeBackTheSameWhateverTheOptionsAndTheLocale)
{
    Database::Transaction whole(*g.gDatabase);
    for (const DataTable &table : DataTables(g, Now()))
        for (int row = 0; !table.isReminders && row < (table.isTanks() ? 5 : 350); ++row)
            addRow(table, row);
    run("UPDATE TANKLST SET tankid = 'id of tank ' || rowid");
    for (const QString &rule : rules)
        run("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedEnglishDesc, SchedRtype, "
            "SchedRSubtype, SchedInterval, SchedDetailText) VALUES (?, '1950-02-28', '2116-12-31', 'Now and then.', " +
                rule + ")",
            {rule});
    whole.commit();
    goOutAndComeBack("out");
    g.options.DateOrder = DateOrder::DDMMYY;
    g.options.DatePicture = "DD.MM.YY";
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // where the system has it
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    goOutAndComeBack("german");
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(contentOf(path("out")), contentOf(path("german")));
}

} // namespace

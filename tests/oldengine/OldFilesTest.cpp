// Reads files of the old engine with the program that does so in earnest: each file cut off, and with random bytes
// changed. By default only a few copies are read; omk_tests_oldengine --copies=1000 --cuts=all is the long run, whose
// table is in docs/RELIABILITY.md. --reader=PROGRAM uses the reader of another build, and --seed=2 changes other bytes.
#include <cmath>
#include <cstdio>
#include <random>

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>

#include "oldengine/OldOutcome.h"
#include "OldFiles.h"
#include "platform/core/Files.h"

namespace {

QString argument(const QString &name, const QString &otherwise)
{
    for (const QString &argument : QCoreApplication::arguments())
        if (argument.startsWith(name))
            return argument.mid(name.size());
    return otherwise;
}

/// The outcome of reading a file.
enum Result { Opened, OpenedWithAnotherValue, Told, Refused, Crashed, Results };

struct OldFilesTest : testing::Test
{
    QString draft() const { return folder.filePath("draft"); }

    /// Reads a file into a new draft. Returns the last line that the program wrote, if any.
    std::optional<OldLine> read(const QString &path)
    {
        writeFile(draft(), {});
        QProcess reader;
        reader.start(argument("--reader=", PrivateProgram("ostrelmark-read-old")), {path, draft()});
        EXPECT_TRUE(reader.waitForFinished(120'000)) << path.toStdString();
        expectNoFaultOfOurs(QString::fromLocal8Bit(reader.readAllStandardError()));
        std::optional<OldLine> last;
        while (reader.canReadLine())
            if (auto line = ReadOldLine(reader.readLine()))
                last.emplace(std::move(*line));
        return last;
    }
    /// The sanitizers also report faults in the library; those are not ours.
    static void expectNoFaultOfOurs(const QString &words)
    {
        static const QRegularExpression report("Sanitizer|runtime error:"), place("mdb_|libmdb|/src/");
        EXPECT_FALSE(words.contains(report) && place.match(words).captured() == "/src/") << words.toStdString();
    }
    /// The draft must be an undamaged database that opens and has as many rows as the program reported.
    void expectWhole(const OldOutcome &outcome)
    {
        EXPECT_EQ(OtherProgram(draft()).run("PRAGMA integrity_check"), "ok");
        const auto database = Database::OpenDatabase(draft());
        EXPECT_EQ(outcome.counts.size(), tableNames.size());
        for (const OldCount &count : outcome.counts)
            EXPECT_EQ(database->OpenRecordset("SELECT * FROM " + count.table).RecordCount(), count.rows);
    }
    /// Reads a file with these bytes, a variation of `file`.
    Result resultOf(const OldFile &file, const QByteArray &bytes)
    {
        const QString path = folder.filePath("OM.MDB");
        writeFile(path, bytes);
        const auto last = read(path);
        EXPECT_EQ(contentOf(folder.path()).at("OM.MDB"), bytes);
        const auto *outcome = last ? std::get_if<OldOutcome>(&*last) : nullptr;
        if (!outcome)
            return last && std::holds_alternative<RuntimeFailure>(*last) ? Refused : Crashed;
        expectWhole(*outcome);
        if (!outcome->unread.empty())
            return Told;
        for (const QString &table : tableNames)
            if (const BothRows rows = rowsOf(draft(), file, table); rows.ours != rows.expected)
                return OpenedWithAnotherValue;
        return Opened;
    }

    QTemporaryDir folder;
};

TEST_F(OldFilesTest, CutOffOrWithRandomBytesItIsOpenedOrToldOrRefused)
{
    const int copies = argument("--copies=", "3").toInt(), stride = argument("--cuts=", {}) == "all" ? 1 : 17;
    std::minstd_rand random(std::uint_fast32_t(argument("--seed=", "1").toInt()));
    for (const OldFile &file : oldFiles) {
        SCOPED_TRACE(file.name.toStdString());
        const QByteArray bytes = file.bytes();
        std::array<int, Results> cut{}, changed{};
        for (int page = stride == 1 ? 0 : 5; page < bytes.size() / file.pageSize(); page += stride)
            ++cut[resultOf(file, bytes.first(page * file.pageSize()))];
        EXPECT_EQ(cut[OpenedWithAnotherValue], 0);
        for (int copy = 0; copy < copies && !HasFailure(); ++copy) {
            QByteArray damaged = bytes;
            for (auto changes = 1 + random() % 64; changes > 0; --changes)
                damaged[qsizetype(random() % std::size_t(bytes.size()))] = char(random());
            ++changed[resultOf(file, damaged)];
        }
        std::printf("%s: cut off %s, random bytes %s\n", qPrintable(file.name), testing::PrintToString(cut).c_str(),
                    testing::PrintToString(changed).c_str());
    }
}

TEST_F(OldFilesTest, WhatIsNotAsItShouldBeIsToldOrRefused)
{
    const auto at = [](int hour, int minute, int second) {
        return bytesOf((hour * 3600 + minute * 60 + second) / 86400.0);
    };
    const struct
    {
        std::vector<std::pair<QByteArray, QByteArray>> replaced;
        QString says;
        const char *sql = "SELECT count(*) FROM WATERLOG";
        QString result = "200";
    } rows[] = {
        {{{utf16("WATERLOG"), utf16("WaterLog")}, {utf16("nitrate"), utf16("NITRATE")}},
         "",
         "SELECT count(*) FROM WATERLOG WHERE nitrate > 0",
         "177"},
        {{{utf16("MAINTLOG"), utf16("MAINTLOX")}},
         "The file has no table MAINTLOG. It is damaged, or it belongs to another program."},
        {{{utf16("nitrate"), utf16("nitraxx")}}, "The table WATERLOG has no column nitrate."},
        {{{utf16("2.0 "), utf16("3.0 ")}}, "The file is of version \"3.0 \", which this program does not know."},
        {{{utf16("2.0 "), utf16("1.1 ")}, {utf16("SchedRtype"), utf16("SchedOther")}},
         "The column \"SchedOther\" of the table MAINTSCHED is not part of Ostrelmark and was left out."},
        {{{bytesOf(7.8F), bytesOf(NAN)}}, "WATERLOG: the column ph in 23 of 200 rows"},
        {{{utf16("Clean the skimmer"), utf16("Change 10 gallons")}},
         "Two reminders had the same SchedTask, \"Change 10 gallons\"; the later one has \"Change 10 gallons (2)\" "
         "now."},
        {{{bytesOf(35808.0), bytesOf(35807.0)},
          {at(8, 7, 24), at(23, 59, 59)},
          {at(8, 8, 38), at(23, 59, 59)},
          {at(8, 8, 1), at(9, 0, 0)},
          {at(8, 9, 15), at(9, 0, 0)}},
         "2 water tests had the date and time of others; each was moved to the next free second.",
         "SELECT group_concat(m) FROM (SELECT logdate || ' ' || logtime AS m FROM WATERLOG WHERE logdate BETWEEN "
         "'1998-01-12' AND '1998-01-13' ORDER BY m)",
         "1998-01-12 09:00:00,1998-01-12 09:00:01,1998-01-12 23:59:59,1998-01-13 00:00:00"},
    };
    for (const auto &row : rows) {
        QByteArray bytes = oldFiles[5].bytes();
        for (const auto &[from, to] : row.replaced)
            bytes.replace(from, to);
        writeFile(folder.filePath("OM.MDB"), bytes);
        const OldLine line = read(folder.filePath("OM.MDB")).value();
        if (const auto *failure = std::get_if<RuntimeFailure>(&line)) {
            EXPECT_EQ(failure->description().section('\n', 1), row.says);
        } else {
            const auto &outcome = std::get<OldOutcome>(line);
            EXPECT_EQ((outcome.changed + outcome.unread).join(' '), row.says);
            EXPECT_EQ(OtherProgram(draft()).run(row.sql), row.result);
        }
    }
}

TEST_F(OldFilesTest, ARowThatMovedToAnotherPageIsFollowedAndADeletedOneIsNot)
{
    const OldFile &file = oldFiles[1];
    QByteArray bytes = file.bytes();
    const int from = 47, to = 61, row = 3; // two pages of water tests; the last has room
    const auto page = [&](int number) { return bytes.data() + qsizetype(number) * file.pageSize(); };
    const auto rowCount = [&](int number) { return page(number) + 12; };
    const auto slot = [&](int number, int of) { return rowCount(number) + 2 + 2 * of; };
    const auto start = [&](int number, int of) { return qFromLittleEndian<quint16>(slot(number, of)); };
    const int size = start(from, row - 1) - start(from, row), last = qFromLittleEndian<quint16>(rowCount(to));
    const int moved = start(to, last - 1) - size;
    ASSERT_GT(page(to) + moved, slot(to, last + 1));
    std::memcpy(page(to) + moved, page(from) + start(from, row), std::size_t(size));
    qToLittleEndian(quint16(moved | 0x8000), slot(to, last)); // not a row of this page
    qToLittleEndian(quint16(last + 1), rowCount(to));
    qToLittleEndian(quint32(to << 8 | last), page(from) + start(from, row));
    qToLittleEndian(quint16(start(from, row) | 0x4000), slot(from, row));
    const auto open = [&] {
        writeFile(folder.filePath("OM.MDB"), bytes);
        EXPECT_TRUE(std::holds_alternative<OldOutcome>(read(folder.filePath("OM.MDB")).value()));
    };
    open();
    const BothRows rows = rowsOf(draft(), file, "WATERLOG");
    EXPECT_EQ(rows.ours, rows.expected);
    qToLittleEndian(quint16(start(from, row) | 0xc000), slot(from, row)); // deleted
    open();
    EXPECT_EQ(OtherProgram(draft()).run("SELECT count(*) FROM WATERLOG"), "199");
}

} // namespace

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "common/NameFile.h"
#include "support/ScriptedDoors.h"

namespace {

QByteArray recordLine(const QByteArray &common, const QByteArray &latin) { return common.leftJustified(49) + latin; }

struct ReadResult
{
    QStringList names;
    QStringList latin;
    QStringList progress;
    int count = 0;
};

ReadResult readBytes(const QByteArray &bytes)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("NAMESSW.TXT"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    ReadResult read;
    read.count = ReadNameFile(
        folder.filePath("namessw.txt"),
        [&read](NameRecord r) {
            read.names << r.common;
            read.latin << r.latin.toString();
        },
        [&read](const QString &text) { read.progress << text; });
    return read;
}

} // namespace

TEST(NameFile, TakesRecordsAloneWhateverTheLineEnds)
{
    const QByteArray tang = recordLine("Yellow Tang", "Zebrasoma flavescens");
    EXPECT_EQ(TurnAbout(u"Betta"), "Betta");
    for (const QByteArray end : {"\n", "\r\n", "\r"}) {
        const auto read = readBytes("\xEF\xBB\xBF! Title" + QByteArray(60, '-') + end + end + tang + end +
                                    recordLine("Too short", "X") + end + // 50 characters
                                    recordLine("Just long enough", "Xy") + end + "!" + tang + end + tang);
        EXPECT_EQ(read.names, QStringList({"Tang - Yellow ", "enough - Just long ", "Tang - Yellow "}));
        EXPECT_EQ(read.latin, QStringList({"Zebrasoma flavescens", "Xy", "Zebrasoma flavescens"}));
    }
}

TEST(NameFile, CountsCharactersNotBytes)
{
    const QString umlaut = QString::fromUtf8("Grüner Fisch").leftJustified(49) + "Pisces viridis";
    EXPECT_EQ(readBytes(umlaut.toUtf8()).names, QStringList(QString::fromUtf8("Fisch - Grüner ")));
    EXPECT_EQ(readBytes(umlaut.toLatin1()).names, QStringList(QString::fromUtf8("Fisch - Grüner ")));
    EXPECT_EQ(readBytes(recordLine("Fish", "Pisces b\xe9")).latin, QStringList(QString::fromUtf8("Pisces bé")));
    EXPECT_EQ(readBytes(QString(QString::fromUtf8("ü").repeated(50)).toUtf8()).count, 0); // 100 bytes, 50 characters
}

TEST(NameFile, TellsADotForEachTwentyNamesAndStartsAgainAtTwoThousand)
{
    QByteArray bytes;
    for (int i = 0; i < 2041; ++i)
        bytes += recordLine("Fish " + QByteArray::number(i), "Pisces numerus") + "\n";
    const auto progress = readBytes(bytes).progress;
    ASSERT_EQ(progress.size(), 103); // the first name, and each twentieth
    EXPECT_EQ(progress[0], "Loading.");
    EXPECT_EQ(progress[99].count('.'), 100);
    EXPECT_EQ(progress[100], "Loading.."); // set anew, and a dot of its own
}

TEST(NameFile, TheShippedOnesKeepTheFormat)
{
    // A name that reached column 49 would touch the Latin one.
    const QRegularExpression record("^\\S.{47} [A-Z][a-z]+ ([a-z][a-z-]+|sp\\.)$");
    for (const char *name : {"NAMESSW.TXT", "NAMESFW.TXT"}) {
        QFile file(QStringLiteral(OMK_DATA_DIR "/") + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QString before;
        QSet<QString> seen;
        for (const QString &line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
            if (line.startsWith('!') && before.isEmpty())
                continue;
            EXPECT_TRUE(record.match(line).hasMatch()) << line.toStdString();
            EXPECT_LT(before, line.toCaseFolded()) << "not sorted";
            before = line.toCaseFolded();
            const QString common = before.left(49);
            EXPECT_FALSE(seen.contains(common)) << line.toStdString();
            seen.insert(common);
        }
        EXPECT_GE(seen.size(), 800);
    }
}

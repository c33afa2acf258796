#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "common/NameFile.h"
#include "platform/RuntimeFailure.h"
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

ReadResult readBytes(const QByteArray &bytes, const QString &name = "NAMESSW.TXT", const QString &asked = "namessw.txt")
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    ReadResult read;
    read.count = ReadNameFile(
        folder.filePath(asked),
        [&read](NameRecord r) {
            read.names << r.common;
            read.latin << r.latin.toString();
        },
        [&read](const QString &text) { read.progress << text; });
    return read;
}

} // namespace

TEST(NameFile, TurnsANameAboutAtItsLastBlank)
{
    EXPECT_EQ(TurnAbout(u"Yellow Tang"), "Tang - Yellow ");
    EXPECT_EQ(TurnAbout(u"Red Sea Sailfin Tang"), "Tang - Red Sea Sailfin ");
    EXPECT_EQ(TurnAbout(u"Betta"), "Betta");
}

TEST(NameFile, TakesRecordsAloneWhateverTheLineEnds)
{
    const QByteArray tang = recordLine("Yellow Tang", "Zebrasoma flavescens");
    const QByteArray kissing = recordLine("Kissing Gourami", "Helostoma temminkii");
    for (const QByteArray end : {"\n", "\r\n", "\r"}) {
        const auto read = readBytes("\xEF\xBB\xBF! Title" + QByteArray(60, '-') + end + end + tang + end +
                                    recordLine("Too short", "X") + end + // 50 characters
                                    recordLine("Just long enough", "Xy") + end + "!" + tang + end + kissing);
        EXPECT_EQ(read.names, QStringList({"Tang - Yellow ", "enough - Just long ", "Gourami - Kissing "}));
        EXPECT_EQ(read.latin, QStringList({"Zebrasoma flavescens", "Xy", "Helostoma temminkii"}));
        EXPECT_EQ(read.count, 3);
    }
}

TEST(NameFile, CountsCharactersNotBytes)
{
    const QString umlaut = QString::fromUtf8("Grüner Fisch").leftJustified(49) + "Pisces viridis";
    EXPECT_EQ(readBytes(umlaut.toUtf8()).names, QStringList(QString::fromUtf8("Fisch - Grüner ")));
    EXPECT_EQ(readBytes(umlaut.toLatin1()).names, QStringList(QString::fromUtf8("Fisch - Grüner ")));
    EXPECT_EQ(readBytes(umlaut.toLatin1()).latin, QStringList("Pisces viridis"));
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
    EXPECT_EQ(progress[1], "Loading..");
    EXPECT_EQ(progress[99].count('.'), 100);
    EXPECT_EQ(progress[100], "Loading.."); // set anew, and a dot of its own
    EXPECT_EQ(progress[102], "Loading....");
}

TEST(NameFile, MissingFileIsAFailure)
{
    const QTemporaryDir folder;
    try {
        ReadNameFile(
            folder.filePath("namesfw.txt"), [](NameRecord) {}, [](const QString &) {});
        FAIL() << "read a file that is not there";
    } catch (const RuntimeFailure &failure) {
        EXPECT_EQ(failure.number(), Failure::FileNotFound);
    }
}

class ShippedNames : public ::testing::TestWithParam<const char *>
{
};

TEST_P(ShippedNames, KeepTheFormat)
{
    QFile file(QStringLiteral(OMK_DATA_DIR "/") + GetParam());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QRegularExpression latin("^[A-Z][a-z]+ ([a-z][a-z-]+|sp\\.)$");
    QSet<QString> seen;
    QString before;
    bool headIsOver = false;
    const auto lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    EXPECT_TRUE(lines.front().startsWith('!'));
    for (const QString &line : lines) {
        if (line.startsWith('!')) {
            EXPECT_FALSE(headIsOver) << line.toStdString();
            continue;
        }
        headIsOver = true;
        EXPECT_GE(line.size(), 51) << line.toStdString();
        EXPECT_EQ(line.at(48), ' ') << line.toStdString(); // a name that reached column 49 would touch the Latin one
        EXPECT_TRUE(latin.match(line.mid(49)).hasMatch()) << line.toStdString();
        const QString common = line.left(49).trimmed();
        EXPECT_EQ(common.simplified(), common);
        EXPECT_FALSE(seen.contains(common.toCaseFolded())) << line.toStdString();
        seen.insert(common.toCaseFolded());
        EXPECT_LT(before, line.toCaseFolded()) << "not sorted";
        before = line.toCaseFolded();
    }
    EXPECT_GE(seen.size(), 800);
}

INSTANTIATE_TEST_SUITE_P(Files, ShippedNames, ::testing::Values("NAMESSW.TXT", "NAMESFW.TXT"));
